// Reads cases from their files, runs them and compares.
#include "tests/tsql/conformance_case.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include <nlohmann/json.hpp>

#include "engines/value_text.h"

namespace tests {

namespace {

std::string upper(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    }
    return text;
}

ResultSet set_of(const nlohmann::json& columns, const nlohmann::json& rows) {
    ResultSet set;
    for (const auto& name : columns) set.columns.push_back(upper(name.get<std::string>()));
    for (const auto& cells : rows) {
        Row row;
        for (const auto& cell : cells) {
            row.push_back(cell.is_null() ? Cell() : Cell(cell.get<std::string>()));
        }
        set.rows.push_back(std::move(row));
    }
    return set;
}

ConformanceCase case_of(const nlohmann::json& line) {
    ConformanceCase one;
    one.id = line.at("id");
    one.note = line.value("note", "");
    one.setup = line.value("setup", std::vector<std::string>());
    one.sql = line.at("sql");
    one.check = line.value("check", "");
    one.error = line.value("error", 0);
    one.ordered = line.value("ordered", false);
    if (line.contains("sets")) {
        one.all_sets = true;
        for (const auto& set : line["sets"]) {
            one.expected.push_back(set_of(set.at("columns"), set.at("rows")));
        }
    } else if (line.contains("rows")) {
        one.expected.push_back(set_of(line.at("columns"), line.at("rows")));
    }
    return one;
}

class Collector : public engines::ResultReceiver {
public:
    std::vector<ResultSet> sets;

    void begin_set(std::span<const engines::Column> columns) override {
        ResultSet set;
        for (const engines::Column& column : columns) set.columns.push_back(upper(column.name));
        sets.push_back(std::move(set));
    }
    bool row(std::span<const engines::Value> cells) override {
        Row row;
        for (const engines::Value& cell : cells) {
            row.push_back(cell.is_null() ? Cell() : Cell(engines::text_of(cell)));
        }
        sets.back().rows.push_back(std::move(row));
        return true;
    }
};

std::string shown(const ResultSet& set) {
    std::string text;
    for (const std::string& column : set.columns) text += column + " ";
    text += "|";
    for (const Row& row : set.rows) {
        text += " (";
        for (const Cell& cell : row) text += (cell ? "'" + *cell + "'" : "NULL") + ",";
        text += ")";
    }
    return text;
}

std::string compare_sets(ResultSet expected, ResultSet actual, bool ordered) {
    if (!ordered) {
        std::sort(expected.rows.begin(), expected.rows.end());
        std::sort(actual.rows.begin(), actual.rows.end());
    }
    if (expected.columns == actual.columns && expected.rows == actual.rows) return "";
    return "expected " + shown(expected) + " but got " + shown(actual);
}

std::string compare_all(const ConformanceCase& one, const std::vector<ResultSet>& sets) {
    const std::size_t wanted = one.expected.size();
    if (sets.size() < wanted || (one.all_sets && sets.size() > wanted)) {
        return "got " + std::to_string(sets.size()) + " result sets";
    }
    for (std::size_t i = 0; i < wanted; ++i) {
        const std::string difference = compare_sets(one.expected[i], sets[i], one.ordered);
        if (!difference.empty()) return difference;
    }
    return "";
}

std::string error_text(const engines::Outcome& outcome) {
    if (outcome.ok()) return "no error";
    const engines::Error& error = *outcome.error;
    return "error " + std::to_string(error.number) + " at " + std::to_string(error.line) + ":" +
           std::to_string(error.column) + " " + error.text + " [" + error.statement + "]";
}

} // namespace

const std::vector<ConformanceCase>& conformance_cases() {
    static const std::vector<ConformanceCase> cases = [] {
        std::vector<ConformanceCase> all;
        const std::filesystem::path folder =
            std::filesystem::path(ZF_SOURCE_DIR) / "tests/tsql/cases";
        for (const auto& file : std::filesystem::directory_iterator(folder)) {
            std::ifstream in(file.path());
            for (std::string line; std::getline(in, line);) {
                all.push_back(case_of(nlohmann::json::parse(line)));
            }
        }
        std::sort(all.begin(), all.end(),
                  [](const ConformanceCase& a, const ConformanceCase& b) { return a.id < b.id; });
        return all;
    }();
    return cases;
}

std::string difference_in(const ConformanceCase& one, engines::Session& session) {
    for (const std::string& batch : one.setup) {
        engines::ResultReceiver unheard;
        const engines::Outcome outcome = session.execute(batch, unheard);
        if (!outcome.ok()) return "setup: " + error_text(outcome) + " in " + batch;
    }
    Collector answer;
    const engines::Outcome outcome = session.execute(one.sql, answer);
    if ((outcome.ok() ? 0 : outcome.error->number) != one.error) {
        return "expected error " + std::to_string(one.error) + " but got " + error_text(outcome);
    }
    if (one.check.empty()) return one.expected.empty() ? "" : compare_all(one, answer.sets);
    session.rollback();
    Collector checked;
    const engines::Outcome check = session.execute(one.check, checked);
    if (!check.ok()) return "check: " + error_text(check);
    return compare_all(one, checked.sets);
}

} // namespace tests
