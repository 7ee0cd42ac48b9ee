// Changes of a dataset, each row once: a row added and deleted again leaves no trace.
#include "host/dataset/change_log.h"

namespace host {

void ChangeLog::row_changed(Slot row, std::vector<Value> original) {
    if (!inserted.contains(row)) changed.try_emplace(row, std::move(original));
}

void ChangeLog::row_deleted(Slot row, std::vector<Value> values) {
    if (inserted.erase(row) > 0) return;
    const auto original = changed.find(row);
    deleted.push_back(original == changed.end() ? std::move(values) : std::move(original->second));
    if (original != changed.end()) changed.erase(original);
}

} // namespace host
