// What all one-line edits share: text both ways, own keys, locking.
#pragma once

#include <QString>

#include "host/controls/key.h"

namespace host {
class TEdit;
}

namespace desktop {

class FieldEdit;
class FormView;

// Checked: every keystroke is checked as it comes. HalfMade: numbers and days, whose texts are no
// numbers or days while they are typed; the control looks at them when it is left.
enum class Handover { Checked, HalfMade };

void sync_edit(FieldEdit* widget, host::TEdit& edit, FormView& view, Handover handover);

// The keys a line of text takes for itself.
bool line_takes(const host::Key& key);

// Alt+Down opens the list of a choice.
bool is_opening_key(const host::Key& key);

// Code and number fields switch the input method off: they take Latin letters and digits.
void no_input_method(FieldEdit* widget);

// The natural width of a field of that many characters.
int width_of_characters(int characters);

} // namespace desktop
