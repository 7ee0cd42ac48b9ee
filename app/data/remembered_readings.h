// Tells whether the books still read as they did when a person's act was decided on.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "engines/session.h"

namespace app {

// What a result was, in a number: equal for equal rows in the same order.
class ResultDigest {
public:
    void begin_set(std::size_t columns) { add(columns); }
    void row(std::span<const engines::Value> cells);
    friend bool operator==(const ResultDigest&, const ResultDigest&) = default;

private:
    void add(std::uint64_t number) { value_ = (value_ ^ number ^ (value_ >> 29)) * multiplier; }
    void add(const engines::Value& cell);
    static constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15;
    std::uint64_t value_ = multiplier;
};

// The queries of each act that is under way, the innermost last, with what they answered.
class RememberedReadings {
public:
    explicit RememberedReadings(engines::Session& session) : session_(session) {}

    void begin_act() { acts_.emplace_back(); }
    void end_act();
    // Whether a query is to be remembered; asked before it runs, for changes count from there on.
    bool want_next();
    void add(std::string_view query, const ResultDigest& digest);

    // Whether the queries of the innermost act would be answered as they were. Asked inside the
    // transaction that writes, so that it stays so until the commit. Costs one comparison while
    // nobody else wrote to the books.
    bool still_true();
    // The act wrote: what it read before was for that.
    void written();

private:
    struct Reading {
        std::string query;
        ResultDigest digest;
    };
    struct Act {
        std::optional<std::int64_t> changes_by_others; // when its first query was asked
        std::vector<Reading> readings;
    };
    engines::Session& session_;
    std::vector<Act> acts_;
};

} // namespace app
