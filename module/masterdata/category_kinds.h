// The three kinds of income and expense categories.
#pragma once

#include <array>

#include "host/dataset/client_dataset.h"
#include "module/host_names.h"

namespace module {

// A kind is kept as its place in this list.
inline constexpr std::array<const char*, 3> category_kinds{"收入类别", "支出类别", "费用类别"};
inline constexpr int income = 0, expenditure = 1;

// An empty list with the fields that the category dialog writes after saving.
void define_category_fields(TClientDataSet& list);

} // namespace module
