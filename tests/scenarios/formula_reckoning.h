// A statement's formula worked out without a database.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/scenarios/naive_ledger.h"

namespace tests {

// Sums and differences of calls and constants, which is what the template's formulas are:
//
//     reckon("fasc(期末,'1001','1009')-fd(期末,3)+12.5", [](const FormulaCall& call) { … })
//
// Arguments come without quotes: {"fasc", {"期末", "1001", "1009"}}. A formula of another shape
// throws std::invalid_argument.
struct FormulaCall {
    std::string name;
    std::vector<std::string> arguments;
};
Cents reckon(const std::string& formula, const std::function<Cents(const FormulaCall&)>& value);

} // namespace tests
