// The one function a module exports.
#pragma once

#include "host/contract/U_glo.h"

namespace host {

class TForm;

// Exported with C linkage under the name P6_600: opens the form of the record's function code as a
// child of `parent`. Failures inside propagate to the caller.
using ModuleEntry = void (*)(const Trecord& record, TForm* parent);

} // namespace host
