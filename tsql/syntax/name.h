// Names as they are written: one part, or up to four parts joined by dots.
#pragma once

#include "tsql/source/position.h"

#include <optional>
#include <string>
#include <vector>

namespace tsql {

// One identifier, its brackets or quotes taken off: [my col] is "my col", []]] is "]".
// An empty text stands for a part left out, as the schema in `db..T`.
struct Name {
    std::string text;
    SourceRange at;
    bool quoted = false; // written as [x] or "x", so it is never a keyword or a function's name

    bool empty() const { return text.empty(); }
};

// A name of up to four parts: server.database.schema.object, the last always there. Table
// variables (@t) and temporary tables (#t) are names too, with their mark as first character.
struct ObjectName {
    std::vector<Name> parts; // outermost first; never empty in a parsed tree
    SourceRange at;

    const Name& object() const { return parts.back(); }
    // The part before the last, or null when there is none or it was left out.
    const Name* schema() const {
        return parts.size() > 1 && !parts[parts.size() - 2].empty() ? &parts[parts.size() - 2]
                                                                    : nullptr;
    }
    bool is_temporary() const { return object().text.starts_with('#'); }
    bool is_variable() const { return object().text.starts_with('@'); }
};

// A type as written: decimal(18,2), varchar(max), dbo.MONEY_TYPE, sysname.
struct TypeName {
    ObjectName name;
    std::optional<int> length; // first number in parentheses: length or precision
    std::optional<int> scale;  // second number
    bool max = false;          // (max)
    SourceRange at;
};

} // namespace tsql
