// What functions ask of the session: variables, identities, objects.
#include "engines/sqlite/executor/executor.h"

#include <algorithm>

#include "engines/sqlite/raise.h"
#include "tsql/binder/scope.h"

namespace engines {
namespace {

// "dbo.D6801", "[dbo].[D6801]" and "D6801" name the same object.
std::string bare_name(std::string_view name) {
    std::string part;
    bool bracket = false;
    for (const char c : name) {
        if (c == '[' && !bracket)
            bracket = true;
        else if (c == ']' && bracket)
            bracket = false;
        else if (c == '.' && !bracket)
            part.clear();
        else
            part += c;
    }
    return part;
}

std::string_view kind_code(const tsql::CatalogObject& object) {
    switch (object.kind) {
    case tsql::CatalogKind::Table: return "U";
    case tsql::CatalogKind::View: return "V";
    case tsql::CatalogKind::Procedure: return "P";
    case tsql::CatalogKind::Trigger: return "TR";
    case tsql::CatalogKind::Function: return "FN";
    }
    return "";
}

// A number that stays the same as long as the name does.
std::int64_t number_of(std::string_view name) {
    std::uint32_t hash = 2166136261u;
    for (const char c : tsql::fold_name(name)) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 16777619u;
    }
    return static_cast<std::int64_t>(hash & 0x7FFFFFFF) | 1;
}

std::shared_ptr<const tsql::CatalogObject> object_of(const tsql::Catalog& catalog,
                                                     std::int64_t number) {
    for (const auto& [name, object] : catalog.objects())
        if (number_of(name) == number) return object;
    return nullptr;
}

} // namespace

Stored Executor::variable(int slot, tsql::Type& type) {
    const auto place = static_cast<std::size_t>(slot);
    type = frame_->plan->variables[place].type;
    return frame_->variables[place].get();
}

std::int64_t Executor::next_identity(std::string_view name) {
    const auto table = parts_.catalog.find_table(name);
    if (!table) raise_error(208, "Invalid object name '" + std::string(name) + "'.");
    const std::int64_t value = parts_.identities.next(*table);
    identity_ = value;
    (frame_->routine.empty() ? scope_identity_ : frame_->scope_identity) = value;
    return value;
}

void Executor::identity_seen(std::string_view name, std::int64_t value) {
    const auto table = parts_.catalog.find_table(name);
    if (!table) raise_error(208, "Invalid object name '" + std::string(name) + "'.");
    if (!tsql::same_name(bare_name(options_.identity_insert), table->name))
        raise_error(544, "Cannot insert explicit value for identity column in table '" +
                             table->name + "' when IDENTITY_INSERT is set to OFF.");
    parts_.identities.seen(*table, value);
    identity_ = value;
    (frame_->routine.empty() ? scope_identity_ : frame_->scope_identity) = value;
}

std::optional<std::int64_t> Executor::current_identity(std::string_view name) {
    const auto table = parts_.catalog.find_table(bare_name(name));
    return table ? parts_.identities.current(*table) : std::nullopt;
}

std::optional<std::int64_t> Executor::object_id(std::string_view name, std::string_view kind) {
    const std::string bare = bare_name(name);
    const auto object = parts_.catalog.find(bare);
    if (!object) return std::nullopt;
    if (!kind.empty() && !tsql::same_name(kind, kind_code(*object))) {
        const bool function = object->kind == tsql::CatalogKind::Function &&
                              (tsql::same_name(kind, "IF") || tsql::same_name(kind, "TF"));
        if (!function) return std::nullopt;
    }
    return number_of(object->name);
}

std::optional<std::string> Executor::object_name(std::int64_t id) {
    const auto object = object_of(parts_.catalog, id);
    return object ? std::optional(object->name) : std::nullopt;
}

std::optional<std::string> Executor::object_definition(std::int64_t id) {
    const auto object = object_of(parts_.catalog, id);
    if (!object || object->kind == tsql::CatalogKind::Table) return std::nullopt;
    return object->definition;
}

std::optional<std::int64_t> Executor::index_property(std::int64_t table, std::string_view index,
                                                     std::string_view property) {
    const auto object = object_of(parts_.catalog, table);
    if (!object || object->kind != tsql::CatalogKind::Table) return std::nullopt;
    const auto& indexes = static_cast<const tsql::CatalogTable&>(*object).indexes;
    const auto found = std::ranges::find_if(indexes, [&](const tsql::CatalogIndex& one) {
        return tsql::same_name(one.name, index);
    });
    if (found == indexes.end()) return std::nullopt;
    if (tsql::same_name(property, "IndexID")) return found - indexes.begin() + 1;
    if (tsql::same_name(property, "IsUnique")) return found->unique ? 1 : 0;
    return std::nullopt;
}

bool Executor::has_rows(const std::string& name) {
    const auto table = parts_.catalog.find_table(name);
    if (!table) return false;
    if (pending_rows_.text.empty()) {
        std::string quoted;
        for (const char c : table->stored_name) quoted.append(c == '"' ? 2 : 1, c);
        pending_rows_.text = "SELECT EXISTS (SELECT 1 FROM \"" + quoted + "\")";
    }
    const StatementLease lease = parts_.statements.lease(pending_rows_, nullptr);
    return step(lease.get(), StatementVerb::other) == SQLITE_ROW &&
           sqlite3_column_int64(lease.get(), 0) != 0;
}

} // namespace engines
