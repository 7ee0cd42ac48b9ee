// One request as it was read, and how a request is refused.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace automation {

// The request cannot be carried out; the text tells the caller what exists instead.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The members of a request, read with their types. A member that is missing or of another type
// throws Refusal, which names it.
class Request {
public:
    // Reads one line. Numbers with a fraction keep their digits as they were written, so that an
    // amount is typed as the caller wrote it. Throws Refusal for what is not a JSON object.
    static Request parse(std::string_view line);

    bool has(const char* name) const { return members_.contains(name); }
    std::string text(const char* name) const; // numbers and flags as a person would write them
    std::string text_or(const char* name, const std::string& fallback) const;
    std::int64_t number(const char* name) const;
    std::int64_t number_or(const char* name, std::int64_t fallback) const;
    bool flag_or(const char* name, bool fallback) const;
    const nlohmann::json& member(const char* name) const;

private:
    nlohmann::json members_;
};

// "true" or "false" of a member or text: a JSON flag, 1/0, "true"/"false", "y"/"n".
std::optional<bool> as_flag(const nlohmann::json& value);

} // namespace automation
