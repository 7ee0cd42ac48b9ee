// Name lookup from the inside out; a name found at one level is not looked for further out.
#include "tsql/binder/scope.h"

#include "tsql/catalog/catalog.h"
#include "tsql/source/diagnostic.h"

#include <algorithm>

namespace tsql {

namespace {

// Number of edits from one name to the other, both folded; given up beyond 2.
int distance(std::string_view left, std::string_view right) {
    if (left.size() > right.size() + 2 || right.size() > left.size() + 2) {
        return 3;
    }
    std::vector<int> row(right.size() + 1);
    for (std::size_t j = 0; j <= right.size(); ++j) {
        row[j] = static_cast<int>(j);
    }
    for (std::size_t i = 1; i <= left.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j <= right.size(); ++j) {
            const int kept = row[j];
            row[j] = std::min(
                {row[j] + 1, row[j - 1] + 1, diagonal + (left[i - 1] == right[j - 1] ? 0 : 1)});
            diagonal = kept;
        }
    }
    return row[right.size()];
}

int column_of(const RangeTable& table, std::string_view name) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        if (same_name(table.columns[i].name, name)) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

[[noreturn]] void refuse_column(const Scope& scope, const RangeTable* only, const Name& name) {
    std::vector<std::string_view> candidates;
    const auto add = [&](const RangeTable& table) {
        for (const RangeColumn& column : table.columns) {
            candidates.push_back(column.name);
        }
    };
    if (only != nullptr) {
        add(*only);
    } else {
        for (const auto& table : scope.tables) {
            add(*table);
        }
    }
    throw Refusal(207, name.at,
                  "Invalid column name '" + name.text + "'" + near_misses(name.text, candidates) +
                      ".");
}

std::string dotted(const ObjectName& name) {
    std::string text;
    for (const Name& part : name.parts) {
        text += (text.empty() ? "" : ".") + part.text;
    }
    return text;
}

FoundColumn find_unqualified(Scope& scope, const Name& name) {
    for (Scope* level = &scope; level != nullptr; level = level->parent) {
        FoundColumn found;
        for (const auto& table : level->tables) {
            const int ordinal = column_of(*table, name.text);
            if (ordinal < 0) {
                continue;
            }
            if (found.table != nullptr) {
                throw Refusal(209, name.at, "Ambiguous column name '" + name.text + "'.");
            }
            found = {table.get(), ordinal, level != &scope};
        }
        if (found.table != nullptr) {
            for (Scope* inner = &scope; inner != level; inner = inner->parent) {
                inner->reached_out = true;
            }
            return found;
        }
    }
    refuse_column(scope, nullptr, name);
}

RangeTable* range_at(const Scope& level, std::string_view alias) {
    for (const auto& table : level.tables) {
        if (same_name(table->alias, alias)) {
            return table.get();
        }
    }
    return nullptr;
}

} // namespace

bool same_name(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) {
        return false;
    }
    const NameLess less;
    return !less(left, right) && !less(right, left);
}

std::string near_misses(std::string_view name, const std::vector<std::string_view>& candidates) {
    std::string text;
    int shown = 0;
    const std::string folded = fold_name(name);
    for (const std::string_view candidate : candidates) {
        const int limit = folded.size() <= 2 ? 1 : 2;
        if (shown < 3 && distance(folded, fold_name(candidate)) <= limit &&
            text.find(candidate) == std::string::npos) {
            text += (shown == 0 ? "; near: " : ", ") + std::string(candidate);
            ++shown;
        }
    }
    return text;
}

FoundColumn find_column(Scope& scope, const ObjectName& name) {
    const Name& column = name.object();
    const Name* qualifier = name.schema();
    if (qualifier == nullptr) {
        return find_unqualified(scope, column);
    }
    for (Scope* level = &scope; level != nullptr; level = level->parent) {
        RangeTable* table = range_at(*level, qualifier->text);
        if (table == nullptr) {
            continue;
        }
        const int ordinal = column_of(*table, column.text);
        if (ordinal < 0) {
            refuse_column(scope, table, column);
        }
        for (Scope* inner = &scope; inner != level; inner = inner->parent) {
            inner->reached_out = true;
        }
        return {table, ordinal, level != &scope};
    }
    throw Refusal(4104, name.at,
                  "The multi-part identifier \"" + dotted(name) + "\" could not be bound.");
}

RangeTable* find_range(Scope& scope, const ObjectName& name) {
    for (Scope* level = &scope; level != nullptr; level = level->parent) {
        if (RangeTable* table = range_at(*level, name.object().text)) {
            return table;
        }
    }
    return nullptr;
}

std::shared_ptr<BoundCommonTable> find_common(const Scope* scope, std::string_view name) {
    for (; scope != nullptr; scope = scope->parent) {
        for (auto it = scope->with.rbegin(); it != scope->with.rend(); ++it) {
            if (same_name((*it)->name, name)) {
                return *it;
            }
        }
    }
    return nullptr;
}

} // namespace tsql
