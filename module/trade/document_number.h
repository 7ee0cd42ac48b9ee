// The number of a new document: one that is missing or taken gives way to a fresh one.
#pragma once

#include <string>

#include "host/controls/edits.h"
#include "host/forms/Base_Common.h"
#include "module/host_names.h"

namespace module {

// Where documents of a kind stand, and which code their numbers begin with.
struct NumberSeries {
    const char* code;  // "646": 646240305001
    const char* table; // "d651", spelled as its statements spell it
};

// The next number of the series; unique, whoever asks at the same moment.
std::string fresh_number(const NumberSeries& series);

// Leaving the number field of a new document; a number that may not be changed is let be.
void settle_number(TFrm_Base_Common& form, TEdit& number, const NumberSeries& series);

} // namespace module
