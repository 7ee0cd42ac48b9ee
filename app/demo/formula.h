// Works out the amounts of the story: small sums such as "whole(tv.sold*0.25)*tv.price*1.13".
#pragma once

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "host/values/amount.h"

namespace app {

// What a formula may ask for. `name` is as written, "tv.price"; the arguments of a function are
// texts of codes where the function takes codes, `dr(1131)`, else amounts, `max(0,…)`.
struct FormulaNames {
    std::function<host::Amount(std::string_view name)> value;
    std::function<host::Amount(std::string_view function, std::string_view argument)> look_up;
};

struct FormulaError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// + - * / with the usual precedence, parentheses, numbers, names, `whole(x)` (to whole numbers,
// half away from zero), `max(a,b)`, `min(a,b)`, and every other function by look_up. Steps keep
// four decimals; whoever books the result rounds it to the cent. Throws FormulaError.
host::Amount worked_out(std::string_view formula, const FormulaNames& names);

} // namespace app
