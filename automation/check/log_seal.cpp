// Reads the head of the log and compares seals.
#include "automation/check/log_seal.h"

#include <algorithm>
#include <charconv>

#include "automation/sql/collected_result.h"

namespace automation {

namespace {

// Enough that nobody finds another log with the same beginning.
constexpr std::size_t sealed_digits = 16;

struct Seal {
    std::int64_t number = 0;
    std::string digits;
};

std::optional<Seal> parsed(std::string_view text) {
    Seal seal;
    const std::size_t dash = text.find('-');
    if (dash == std::string_view::npos) return std::nullopt;
    const char* end = text.data() + dash;
    const auto [stop, error] = std::from_chars(text.data(), end, seal.number);
    seal.digits = std::string(text.substr(dash + 1));
    const bool hexadecimal = std::ranges::all_of(seal.digits, [](unsigned char c) {
        return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
    });
    if (error != std::errc() || stop != end || seal.number < 1 || !hexadecimal ||
        seal.digits.size() != sealed_digits)
        return std::nullopt;
    return seal;
}

} // namespace

LogHead read_log_head(engines::Session& session) {
    LogHead head;
    head.kept = rows_of(session, "SELECT OBJECT_ID('SYS_LOG_HEAD')")[0][0].has_value();
    if (!head.kept) return head;
    const auto rows = rows_of(session, "SELECT LAST_ID, HASH, FIRST_TEXT FROM SYS_LOG_HEAD");
    if (rows.empty()) return head;
    head.found = true;
    head.last = std::stoll(rows[0][0].value_or("0"));
    head.hash = rows[0][1].value_or("");
    head.first_text = std::stoll(rows[0][2].value_or("1"));
    return head;
}

std::string log_seal(engines::Session& session) {
    const auto rows = rows_of(session, "SELECT TOP 1 ID, HASH FROM SYS_LOG ORDER BY ID DESC");
    if (rows.empty()) return "";
    return *rows[0][0] + "-" + rows[0][1].value_or("").substr(0, sealed_digits);
}

std::optional<std::string> broken_seal(engines::Session& session, std::string_view text) {
    const auto seal = parsed(text);
    if (!seal) return std::nullopt;
    const std::string number = std::to_string(seal->number);
    const auto rows = rows_of(session, "SELECT HASH FROM SYS_LOG WHERE ID = " + number);
    if (rows.empty()) return "封条 " + std::string(text) + " 对不上: 没有第 " + number + " 条记录";
    if (!rows[0][0].value_or("").starts_with(seal->digits))
        return "封条 " + std::string(text) + " 对不上: 第 " + number + " 条记录的校验码是 " +
               rows[0][0].value_or("").substr(0, sealed_digits);
    return "";
}

} // namespace automation
