// The changes of a dataset as statements: what is gone first, so that its keys are free again.
#include <stdexcept>

#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"

namespace host {

namespace {

std::string literal(const Value& value) {
    if (is_null(value)) return "NULL";
    if (const auto* flag = std::get_if<bool>(&value)) return *flag ? "1" : "0";
    if (std::holds_alternative<std::int64_t>(value) || std::holds_alternative<Amount>(value))
        return to_text(value);
    return quoted(to_text(value));
}

std::string where(const std::string& key, const Value& value) {
    return " WHERE " + key + (is_null(value) ? " IS NULL" : "=" + literal(value));
}

} // namespace

std::vector<std::string> TClientDataSet::ChangeStatements(const std::string& table,
                                                          const std::string& key) const {
    const auto key_index = static_cast<std::size_t>(FieldByName(key).index());
    std::vector<std::string> statements;
    for (const auto& values : changes_.deleted)
        statements.push_back("DELETE FROM " + table + where(key, values[key_index]));
    for (const Slot row : alive_) {
        const auto changed = changes_.changed.find(row);
        if (changed == changes_.changed.end()) continue;
        std::string assignments;
        for (const auto& field : fields_) {
            const Value now = store_.value(row, field->index());
            if (now == changed->second[static_cast<std::size_t>(field->index())]) continue;
            assignments += (assignments.empty() ? "" : ",") + field->FieldName + "=" + literal(now);
        }
        if (!assignments.empty())
            statements.push_back("UPDATE " + table + " SET " + assignments +
                                 where(key, changed->second[key_index]));
    }
    for (const Slot row : alive_) {
        if (!changes_.inserted.contains(row)) continue;
        std::string names, values;
        for (const auto& field : fields_) {
            if (store_.is_null(row, field->index())) continue; // the column's default holds
            names += (names.empty() ? "" : ",") + field->FieldName;
            values += (values.empty() ? "" : ",") + literal(store_.value(row, field->index()));
        }
        if (!names.empty())
            statements.push_back("INSERT INTO " + table + " (" + names + ") VALUES (" + values +
                                 ")");
    }
    return statements;
}

} // namespace host
