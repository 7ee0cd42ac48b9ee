// Reading and writing the books through the data port.
#include "host/contract/U_dataop.h"

#include <cstdio>
#include <set>

#include "host/contract/U_function.h"
#include "host/contract/function_table.h"
#include "host/dataset/client_dataset.h"
#include "host/ports/host.h"
#include "host/values/errors.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"

namespace host {

namespace {

SentStatement& remember(SentStatement statement) {
    static SentStatement unrecorded;
    Host& host = the_host();
    if (!host.record_statements) return unrecorded = {};
    statement.n = static_cast<std::int64_t>(host.statements.size());
    return host.statements.emplace_back(std::move(statement));
}

std::string cause_of(const DataError& error) {
    const std::string& text = error.cause.empty() ? error.what() : error.cause;
    return text == "Y" ? "error: Y" : text;
}

// The last door: forms ask for the right to the act itself, but whoever may only look at a function
// writes nothing in it, whatever way he came.
bool may_write(const std::string& key) {
    const Function* function = function_of(key);
    if (function == nullptr) return true;
    bool writes = false;
    for (const RightsAction& action : rights_actions()) {
        if (!action.writes || !function->has(action)) continue;
        writes = true;
        if (the_host().may({key, std::string(action.name)})) return true;
    }
    return !writes;
}

// Runs a batch; what went wrong is shown and answered.
std::string run(const std::string& batch, const LogEntry& entry, const WhyNot& why_not = {}) {
    if (!may_write(entry.function)) {
        DISPINFO("您在这项功能中只能查看，没有保存。请与系统管理员联系。", 5);
        return "no right";
    }
    try {
        the_host().data->execute(batch, entry, why_not);
        return "Y";
    } catch (const DataError& error) {
        DISPINFO(error.what(), 5);
        return cause_of(error);
    }
}

} // namespace

void opensql(TClientDataSet& dataset, const std::string& function, const std::string& select, int,
             int, const std::string&, const std::string&, bool, const std::string&) {
    const std::size_t place = the_host().statements.size();
    remember({.call = "opensql", .function = function, .text = select});
    const auto loader = dataset.loader();
    try {
        the_host().data->query(select, *loader);
    } catch (const DataError& error) {
        if (the_host().record_statements) the_host().statements[place].answer = cause_of(error);
        throw;
    }
    loader->commit();
}

std::string ExecSql(const std::string& function, const std::string& key,
                    const std::string& operation, const std::string& batch, std::uint16_t, bool,
                    bool, bool, bool) {
    return ExecSqlUnless({}, function, key, operation, batch);
}

std::string ExecSqlUnless(const WhyNot& why_not, const std::string& function,
                          const std::string& key, const std::string& operation,
                          const std::string& batch) {
    const std::string answer = run(batch, {function, key, operation}, why_not);
    remember({.call = "ExecSql", .function = function, .key = key, .operation = operation,
              .text = batch, .answer = answer});
    return answer;
}

bool ApplyUpdate(const std::string& function, const std::string& table, const std::string& key,
                 TClientDataSet& dataset, bool) {
    dataset.Post();
    std::string batch;
    for (const std::string& statement : dataset.ChangeStatements(table, key))
        batch += statement + ";";
    if (batch.empty()) return true;
    const std::string answer = run(batch, {function, table, "Update"});
    remember({.call = "ApplyUpdate", .function = function, .key = table, .operation = "Update",
              .text = table + " " + batch, .answer = answer});
    if (answer == "Y") dataset.MarkSaved();
    return answer == "Y";
}

bool checkDatamore(TClientDataSet& dataset, const std::string& field, const std::string& title) {
    const int index = dataset.FieldByName(field).index();
    std::set<std::string> seen;
    for (int row = 0; row < dataset.RecordCount(); ++row) {
        const std::string text = upper_case(trimmed(dataset.text_at(row, index)));
        if (text.empty() || seen.insert(text).second) continue;
        DISPINFO(title + "“" + trimmed(dataset.text_at(row, index)) + "”重复，请删去重复的行!", 5);
        return true;
    }
    return false;
}

bool checkCoSeng(TClientDataSet& dataset, const std::string& field, const std::string& title) {
    const int index = dataset.FieldByName(field).index();
    for (int row = 0; row < dataset.RecordCount(); ++row) {
        if (!trimmed(dataset.text_at(row, index)).empty()) continue;
        DISPINFO("第 " + std::to_string(row + 1) + " 行的" + title + "不能为空，请录入!", 5);
        return true;
    }
    return false;
}

} // namespace host
