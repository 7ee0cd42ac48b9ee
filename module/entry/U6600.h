// Opens the form that belongs to the function code of a menu pick.
#pragma once

#include "host/contract/U_glo.h"
#include "module/host_names.h"

namespace host {
class TForm;
}

namespace module {

// Opens a new form for the record's code as a child of `parent`, also when one of its class is open
// already. Ordinary functions appear in the frame and the call returns at once; the period
// functions stand over the frame and the call returns when they were closed. A code without a form
// is answered with a message. What a form's opening throws reaches the caller.
void open_function(const Trecord& record, TForm* parent);

// What is told of a code that has no form here.
void say_not_open(std::int32_t code);

} // namespace module
