// What a sales document chooses from: goods, their units, order lines, earlier documents.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "host/forms/Base_Common.h"
#include "module/host_names.h"
#include "module/invoicing/goods.h"

namespace module {

// Each opens a picker over `form`; nullopt when it was left without a choice.
std::optional<std::string> pick_good(TForm& form, const Goods& goods, const std::string& current);
std::optional<std::string> pick_unit(TForm& form, const Goods& goods, const std::string& good,
                                     const std::string& current);
struct OrderLine {
    std::string key, order;
};
std::optional<OrderLine> pick_order_line(TForm& form, const std::string& function);
std::optional<std::string> pick_invoice(TForm& form, const std::string& function);

} // namespace module
