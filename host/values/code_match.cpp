// How a code is found while it is typed: by its own digits, by its name, by pinyin initials.
#include "host/values/code_match.h"

namespace host {

bool code_fits(const std::string& code, const std::string& name, const std::string& pinyin,
               const std::string& text) {
    const std::string part = trimmed(text);
    return contains_text(code, part) || contains_text(name, part) || contains_text(pinyin, part);
}

} // namespace host
