// What was changed in a dataset since it was loaded or saved: the base of its change statements.
#pragma once

#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/dataset/record_store.h"

namespace host {

// Only touched rows cost memory: a changed row keeps the values it was loaded with.
struct ChangeLog {
    std::unordered_set<Slot> inserted;
    std::unordered_map<Slot, std::vector<Value>> changed; // original values by field
    std::vector<std::vector<Value>> deleted;              // original values of rows that are gone

    bool empty() const { return inserted.empty() && changed.empty() && deleted.empty(); }
    void clear() { *this = {}; }
    void row_inserted(Slot row) { inserted.insert(row); }
    void row_changed(Slot row, std::vector<Value> original);
    void row_deleted(Slot row, std::vector<Value> values);
};

} // namespace host
