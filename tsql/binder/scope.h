// Finding columns by name in the tables of a FROM clause and those around it.
#pragma once

#include "tsql/binder/bound_query.h"

#include <string_view>
#include <vector>

namespace tsql {

struct BoundCommonTable;

// The tables visible at one level of a query. `parent` is the query around a subquery.
struct Scope {
    Scope* parent = nullptr;
    std::vector<std::shared_ptr<RangeTable>> tables;
    // Common table expressions of this level.
    std::vector<std::shared_ptr<BoundCommonTable>> with;
    bool reached_out = false; // a column of a query around was used
    // Where aggregates and window functions may stand, and whether one did.
    bool aggregates_allowed = false;
    bool windows_allowed = false;
    bool inside_aggregate = false;
    bool saw_aggregate = false;
};

struct FoundColumn {
    RangeTable* table = nullptr;
    int ordinal = -1;
    bool outer = false; // belongs to a query around
};

// Finds a column. Throws Refusal: 207 no such column ("near: …" names those spelled like it),
// 209 several tables have it, 4104 no table of that name.
FoundColumn find_column(Scope& scope, const ObjectName& name);

// The table a `T.*` or a target names; null when there is none.
RangeTable* find_range(Scope& scope, const ObjectName& name);

std::shared_ptr<BoundCommonTable> find_common(const Scope* scope, std::string_view name);

bool same_name(std::string_view left, std::string_view right);

// "; near: KM_ID, KM_J" for the candidates that differ little from the name, else nothing.
std::string near_misses(std::string_view name, const std::vector<std::string_view>& candidates);

} // namespace tsql
