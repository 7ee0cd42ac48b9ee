// What the driver needs of the program around it: lines in, lines out, a menu, a query window.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/contract/U_glo.h"

namespace automation {

// Where requests come from: one JSON object a line. Waits for the next line; nullopt at the end.
class RequestLines {
public:
    virtual ~RequestLines() = default;
    virtual std::optional<std::string> next() = 0;
};

// Where answers go: one JSON object a line, in the order of the requests.
class AnswerLines {
public:
    virtual ~AnswerLines() = default;
    virtual void write(const std::string& line) = 0;
};

// The administrator's query window on the open books.
class QueryPort {
public:
    virtual ~QueryPort() = default;
    // Whether the person at work may read the tables directly.
    virtual bool allowed() const = 0;
    // Runs the batch on its own connection and answers as a line of `zhangfang sql --jsonl` does,
    // without "id": {"columns": [...], "rows": [...], "affected": n, "error": {...}}.
    virtual std::string run(const std::string& batch) = 0;
};

// What a driver is made with. All of it must outlive the driver.
struct DriverPorts {
    RequestLines& requests;
    AnswerLines& answers;
    // One menu pick: calls the module's entry with the call record. Failures propagate.
    std::function<void(const host::Trecord&)> menu;
    QueryPort* query = nullptr; // null: queries are refused
    // Opens one of the host's own functions by its name ("users"); false when there is none of that
    // name. Absent: there are none.
    std::function<bool(const std::string& name)> administration = nullptr;
};

} // namespace automation
