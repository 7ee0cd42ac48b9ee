// What one cell of a dataset holds.
#pragma once

#include <cstdint>
#include <optional>
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

// The value as a field of `type` keeps it; nullopt when it does not fit. An empty text is NULL for
// every type but Text. Amounts become whole numbers only when nothing is lost.
std::optional<Value> converted(const Value& value, FieldType type);

// Milliseconds since 1970-01-01 and back: how moments are stored and travel.
std::int64_t to_milliseconds(DateTime moment);
DateTime from_milliseconds(std::int64_t milliseconds);

// What a person reads: "0.00" and "#,##0.00" fix the decimals (and group the thousands),
// "yyyy-mm-dd" shows a day without its time, "" the plain text.
std::string formatted(const Value& value, const std::string& format);

} // namespace host
