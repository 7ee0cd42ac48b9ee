// One request as it was read, and how a request is refused.
#include "automation/drive/request.h"

#include <charconv>

#include "automation/drive/written_numbers.h"
#include "host/values/text.h"

namespace automation {

namespace {

std::optional<std::int64_t> as_number(const nlohmann::json& value) {
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(INT64_MAX)) return std::nullopt;
        return static_cast<std::int64_t>(number);
    }
    if (value.is_number_integer()) return value.get<std::int64_t>();
    if (!value.is_string()) return std::nullopt;
    const auto& text = value.get_ref<const std::string&>();
    std::int64_t number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || stop != text.data() + text.size()) return std::nullopt;
    return number;
}

[[noreturn]] void refuse(const char* name, const char* what) {
    throw Refusal(std::string("\"") + name + "\" must be " + what);
}

} // namespace

Request Request::parse(std::string_view line) {
    Request request;
    request.members_ = parse_keeping_numbers(line);
    if (!request.members_.is_object()) throw Refusal("a request is one JSON object on a line");
    return request;
}

const nlohmann::json& Request::member(const char* name) const {
    const auto at = members_.find(name);
    if (at == members_.end()) throw Refusal(std::string("the request lacks \"") + name + "\"");
    return *at;
}

std::string Request::text(const char* name) const {
    const nlohmann::json& value = member(name);
    if (value.is_string()) return value.get<std::string>();
    if (value.is_null()) return {};
    if (value.is_primitive()) return value.dump();
    refuse(name, "a text");
}

std::string Request::text_or(const char* name, const std::string& fallback) const {
    return has(name) && !member(name).is_null() ? text(name) : fallback;
}

std::int64_t Request::number(const char* name) const {
    if (const auto number = as_number(member(name))) return *number;
    refuse(name, "a whole number");
}

std::int64_t Request::number_or(const char* name, std::int64_t fallback) const {
    return has(name) && !member(name).is_null() ? number(name) : fallback;
}

bool Request::flag_or(const char* name, bool fallback) const {
    if (!has(name) || member(name).is_null()) return fallback;
    if (const auto flag = as_flag(member(name))) return *flag;
    refuse(name, "true or false");
}

std::optional<bool> as_flag(const nlohmann::json& value) {
    if (value.is_boolean()) return value.get<bool>();
    std::string text;
    if (value.is_string()) text = value.get<std::string>();
    if (value.is_number_integer()) text = value.dump();
    if (text == "1" || host::same_text(text, "true") || host::same_text(text, "y")) return true;
    if (text == "0" || host::same_text(text, "false") || host::same_text(text, "n")) return false;
    return std::nullopt;
}

} // namespace automation
