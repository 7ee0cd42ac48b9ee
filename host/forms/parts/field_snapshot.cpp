// Comparing what the fields of a form hold with what they held.
#include "host/forms/parts/field_snapshot.h"

#include <algorithm>

#include "host/forms/form.h"

namespace host {

std::vector<TWinControl*> FieldSnapshot::fields(const TForm& form) {
    std::vector<TWinControl*> fields;
    for (TComponent* part : form.components()) {
        auto* control = dynamic_cast<TWinControl*>(part); // most parts are none: actions, labels
        if (control == nullptr) continue;
        const bool field = dynamic_cast<TEdit*>(control) || dynamic_cast<TComboBox*>(control) ||
                           dynamic_cast<TCheckBox*>(control) ||
                           dynamic_cast<TRadioButton*>(control);
        if (field) fields.push_back(control);
    }
    return fields;
}

void FieldSnapshot::take(const TForm& form) {
    held_.clear();
    for (TWinControl* field : fields(form)) held_.emplace_back(field, field->value_text());
}

bool FieldSnapshot::differs() const {
    return std::any_of(held_.begin(), held_.end(), [](const auto& held) {
        return held.first->value_text() != held.second;
    });
}

} // namespace host
