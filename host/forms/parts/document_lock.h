// Which documents may not be changed any more, and why.
#pragma once

#include <string>

namespace host {

class TClientDataSet;

struct DocumentState {
    std::string name;           // what messages call it
    bool audited = false;
    bool posted = false;
    std::string period;         // "" when documents of its kind have none
    std::string current_period; // of the books
    bool strict = false;        // posted stays posted: corrections are made in red
};

// The reason, a sentence that says what to do; "" when the document may be changed. What was posted
// may not even be un-audited, so posting is named first.
std::string why_locked(const DocumentState& document);

// Do the books demand that a document is audited by another person than its maker? They do when the
// setting says so, and always when they are kept in the strict way.
bool two_persons_demanded(const std::string& function);

} // namespace host
