// What one cell of a dataset holds.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "host/values/amount.h"
#include "host/values/date.h"

namespace host {

// Empty (NULL), a text, a whole number, an amount, a flag or a moment.
using Value = std::variant<std::monostate, std::string, std::int64_t, Amount, bool, DateTime>;

enum class FieldType { Text, Integer, Amount, Boolean, DateTime };

inline bool is_null(const Value& value) { return std::holds_alternative<std::monostate>(value); }

// The plain text of a value: "" for NULL, amounts in their shortest exact form ("1234.5"),
// flags "True" / "False", moments "2024-03-05" or "2024-03-05 14:05:06".
std::string to_text(const Value& value);

} // namespace host
