// A person with one function open, on a database that knows its answers by heart.
#include "tests/forms/form_desk.h"

namespace tests {

Person& FormDesk::person() {
    if (!anna_) {
        anna_ = std::make_unique<Person>(data);
        anna_->open(code_);
    }
    return *anna_;
}

std::string FormDesk::last_batch() const {
    return data.executed().empty() ? "" : data.executed().back().batch;
}

} // namespace tests
