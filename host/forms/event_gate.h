// The one place where an event of a person enters a form.
#pragma once

#include <functional>

namespace host {

// Runs the event. An Abort() ends it silently, a DataError shows its sentence, any other failure
// shows a message that nothing was saved; in each case the forms stay as they are and false is
// the answer. Afterwards forms that were closed by the event are released.
bool enter_event(const std::function<void()>& event);

} // namespace host
