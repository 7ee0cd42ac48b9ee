// Opening a form that another one, or the menu, asked for.
#pragma once

#include <algorithm>

#include "host/ports/host.h"
#include "module/host_names.h"

namespace module {

// Runs `opening` on a form just made; a form whose opening failed before it appeared would stay
// behind unseen, so it goes. What the opening throws reaches the caller.
template <class Form, class Opening> void open_or_release(Form* form, Opening opening) {
    try {
        opening(*form);
    } catch (...) {
        const auto& open = the_host().forms;
        if (std::find(open.begin(), open.end(), form) == open.end()) delete form;
        throw;
    }
}

} // namespace module
