// Values of cells: their plain text, their conversion, their display.
#include "host/values/value.h"

#include <cctype>

#include "host/values/text.h"

namespace host {

namespace {

constexpr std::int64_t milliseconds_a_day = 86'400'000;

std::optional<std::int64_t> as_whole(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return *whole;
    std::optional<Amount> amount;
    if (const auto* exact = std::get_if<Amount>(&value)) amount = *exact;
    if (const auto* text = std::get_if<std::string>(&value)) amount = Amount::parse(*text);
    if (!amount || amount->units() % Amount::scale != 0) return std::nullopt;
    return amount->units() / Amount::scale;
}

std::optional<Amount> as_amount(const Value& value) {
    if (const auto* exact = std::get_if<Amount>(&value)) return *exact;
    if (const auto* text = std::get_if<std::string>(&value)) return Amount::parse(*text);
    if (const auto whole = as_whole(value)) return Amount::from_whole(*whole);
    return std::nullopt;
}

std::optional<bool> as_flag(const Value& value) {
    if (const auto* flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (same_text(*text, "True")) return true;
        if (same_text(*text, "False")) return false;
    }
    if (const auto amount = as_amount(value)) return !amount->is_zero();
    return std::nullopt;
}

std::optional<DateTime> as_moment(const Value& value) {
    if (const auto* moment = std::get_if<DateTime>(&value)) return *moment;
    if (const auto* text = std::get_if<std::string>(&value)) return DateTime::parse(*text);
    return std::nullopt;
}

template <class T> std::optional<Value> as_value(std::optional<T> converted) {
    if (!converted) return std::nullopt;
    return Value{*std::move(converted)};
}

// Blanks or commas between the thousands of a plain number.
std::string with_separators(std::string text) {
    const std::size_t point = text.find('.');
    std::size_t at = point == std::string::npos ? text.size() : point;
    const std::size_t first = text.front() == '-' ? 1 : 0;
    while (at > first + 3) text.insert(at -= 3, ",");
    return text;
}

std::string formatted_amount(Amount amount, const std::string& format) {
    const std::size_t point = format.find('.');
    const int decimals =
        point == std::string::npos ? 0 : static_cast<int>(format.size() - point - 1);
    std::string text = amount.to_text(decimals);
    return format.find(',') != std::string::npos ? with_separators(std::move(text)) : text;
}

} // namespace

std::string to_text(const Value& value) {
    switch (value.index()) {
    case 1: return std::get<std::string>(value);
    case 2: return std::to_string(std::get<std::int64_t>(value));
    case 3: return std::get<Amount>(value).to_plain_text();
    case 4: return std::get<bool>(value) ? "True" : "False";
    case 5: return std::get<DateTime>(value).to_text();
    default: return {};
    }
}

std::optional<Value> converted(const Value& value, FieldType type) {
    if (is_null(value)) return Value{};
    if (type == FieldType::Text) return Value{to_text(value)};
    if (const auto* text = std::get_if<std::string>(&value); text && trimmed(*text).empty())
        return Value{};
    switch (type) {
    case FieldType::Integer: return as_value(as_whole(value));
    case FieldType::Amount: return as_value(as_amount(value));
    case FieldType::Boolean: return as_value(as_flag(value));
    default: return as_value(as_moment(value));
    }
}

std::int64_t to_milliseconds(DateTime moment) {
    return moment.date.days() * milliseconds_a_day + moment.milliseconds;
}

DateTime from_milliseconds(std::int64_t milliseconds) {
    std::int64_t days = milliseconds / milliseconds_a_day;
    if (milliseconds % milliseconds_a_day < 0) --days;
    return {Date::from_days(static_cast<std::int32_t>(days)),
            static_cast<std::int32_t>(milliseconds - days * milliseconds_a_day)};
}

std::string formatted(const Value& value, const std::string& format) {
    if (format.empty() || is_null(value)) return to_text(value);
    if (const auto* moment = std::get_if<DateTime>(&value))
        return format.size() <= 10 ? moment->date.to_text() : moment->to_text();
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return formatted_amount(Amount::from_whole(*whole), format);
    if (const auto* amount = std::get_if<Amount>(&value)) return formatted_amount(*amount, format);
    return to_text(value);
}

} // namespace host
