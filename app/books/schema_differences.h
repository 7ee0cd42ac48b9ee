// What the database of a set of books has otherwise than this program's schema.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engines/session.h"
#include "schema/schema.h"

namespace app {

// A column or an index that a table of the books lacks.
struct TableAddition {
    std::string name;      // "D6601.PZZ_Z", "IX_D6601_BDATE"
    std::string statement; // "ALTER TABLE D6601 ADD …", "CREATE INDEX …"
};

struct SchemaDifferences {
    std::vector<schema::Object> missing; // of any kind
    std::vector<schema::Object> changed; // no tables: views, functions, procedures, triggers
    std::vector<TableAddition> additions;
    bool unnumbered = false; // the books do not bear this program's version

    bool none() const {
        return missing.empty() && changed.empty() && additions.empty() && !unnumbered;
    }
    // Whether a view or routine of this name is to be made.
    bool has_module(std::string_view name) const;
};

// Tables are looked into only when the books bear another version than the program: it takes a
// query a table. Throws engines::Failure.
SchemaDifferences differences(engines::Session& session);

} // namespace app
