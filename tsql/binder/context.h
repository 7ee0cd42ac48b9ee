// What binding one statement needs to know around it: catalogue, variables, literals, trigger.
#pragma once

#include "tsql/binder/bound_query.h"
#include "tsql/catalog/catalog.h"
#include "tsql/plan/plan.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace tsql {

// The local variables of a batch or routine: scalar ones by slot, table variables by name.
struct Variables {
    std::vector<PlanVariable> slots;
    std::map<std::string, std::shared_ptr<const CatalogTable>, NameLess> tables;
    std::string owner; // folded name of the routine, so that its table variables are its own

    int find(std::string_view name) const; // slot, -1 when not declared
};

// How literals come into the plan: as values of the text being run, or, in views and routines, as
// constants of the plan.
struct Literals {
    bool of_text = true;
    LiteralValues constants;
    // Ordinals whose value decided how the plan looks; a text that differs there needs its own.
    std::set<int> pinned;
    bool exact_lengths = false; // text literals have their own length; it pins them
};

// The trigger or function being compiled, when there is one.
struct Surroundings {
    std::shared_ptr<const CatalogTable> trigger_table; // inserted and deleted mean its rows
    std::string trigger;                               // does not fire itself
    bool instead_of = false;
    bool in_function = false;
    Type return_type;
    std::string return_table; // @r of a function that returns it
};

struct BindContext {
    const Catalog& catalog;
    Variables& variables;
    Literals& literals;
    Surroundings surroundings;
    bool exact_row_counts = false;
    int next_id = 1;                     // of range tables
    std::vector<std::string> views_open; // names of views being expanded, against cycles
    // Functions whose rows must be fetched before the statement runs.
    std::vector<BoundFill> fills;
    // Parameters of a function returning TABLE while its query stands in for the call.
    std::map<std::string, BoundPtr, NameLess> substitutes;
    std::set<std::string> assigned_variables; // folded names, of a SELECT @v = …
};

} // namespace tsql
