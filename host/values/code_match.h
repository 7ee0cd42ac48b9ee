// How a code is found while it is typed: by its own digits, by its name, by pinyin initials.
#pragma once

#include <string>
#include <vector>

#include "host/values/text.h"

namespace host {

// Does code, name or pinyin contain the text? Case and blanks around it are ignored; a blank text
// fits every row.
bool code_fits(const std::string& code, const std::string& name, const std::string& pinyin,
               const std::string& text);

// The rows, each with `code`, `name` and `pinyin`, that the text fits: first those whose code
// begins with it, then the others; within each group in the order of `rows`. Valid as long as
// `rows` stays as it is.
template <class Row>
std::vector<const Row*> rows_fitting(const std::vector<Row>& rows, const std::string& text) {
    const std::string part = trimmed(text);
    std::vector<const Row*> begin, contain;
    for (const Row& row : rows) {
        if (starts_with_text(row.code, part)) begin.push_back(&row);
        else if (code_fits(row.code, row.name, row.pinyin, part)) contain.push_back(&row);
    }
    begin.insert(begin.end(), contain.begin(), contain.end());
    return begin;
}

} // namespace host
