// The catalogue of one connection: every object by name, kept in memory, filled by definitions.
#pragma once

#include "tsql/catalog/change.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tsql {

// Folds a name for comparison: upper case for ASCII letters, others as they are.
std::string fold_name(std::string_view name);

// Less-than of names without regard to case, without making copies.
struct NameLess {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

// What an engine keeps in its file for each object, and hands back on open. `kind` is the
// CatalogKind as number; for a disabled trigger the text begins with "--disabled\n".
struct StoredObject {
    int kind = 0;
    std::string name;
    std::string definition;
};

// Objects by name. Tables, views, functions, procedures and triggers share one space of names, as
// in the server. A state is a cheap copy: an engine takes one when a transaction begins and puts it
// back when the transaction is undone.
//
//     Catalog::State before = catalog.state();
//     catalog.apply(ddl.change);
//     catalog.restore(before);         // ROLLBACK
class Catalog {
public:
    using Objects = std::map<std::string, std::shared_ptr<const CatalogObject>, NameLess>;

    // Changes with every apply and restore, so that a plan knows whether it is stale. Temporary
    // tables do not count.
    std::uint64_t version() const { return version_; }

    // Null when there is no such object. Temporary tables (#t) are found before permanent objects.
    std::shared_ptr<const CatalogObject> find(std::string_view name) const;
    std::shared_ptr<const CatalogTable> find_table(std::string_view name) const;
    std::shared_ptr<const CatalogModule> find_module(CatalogKind kind, std::string_view name) const;
    // The triggers of a table, in order of their names.
    std::vector<std::shared_ptr<const CatalogTrigger>> triggers_of(std::string_view table) const;
    // All permanent objects, in order of their names.
    const Objects& objects() const { return *objects_; }

    void apply(const CatalogChange& change);

    struct State {
        std::shared_ptr<const Objects> objects;
        std::shared_ptr<const Objects> temporary;
    };
    State state() const { return {objects_, temporary_}; }
    void restore(const State& state);

    // What an object is kept as.
    static StoredObject store(const CatalogObject& object);

private:
    std::shared_ptr<const Objects> objects_ = std::make_shared<Objects>();
    std::shared_ptr<const Objects> temporary_ = std::make_shared<Objects>();
    // Triggers by table, made anew with every change.
    std::multimap<std::string, std::shared_ptr<const CatalogTrigger>, NameLess> triggers_;
    std::uint64_t version_ = 1;

    void index_triggers();
};

} // namespace tsql
