// How a receipt in any currency stands on the screen.
#pragma once

#include <vector>

#include "host/controls/grid.h"
#include "host/layout/layout.h"
#include "module/host_names.h"

namespace module {

class TF6630_1;

std::vector<GridColumn> account_columns();
std::vector<GridColumn> open_item_columns();
LayoutNode currency_receipt_layout(TF6630_1& form);

} // namespace module
