// The value of a control as answers give it: true or false for a mark, else a text.
#pragma once

#include <nlohmann/json.hpp>

#include "host/controls/buttons.h"

namespace automation {

inline nlohmann::json shown_value(const host::TControl& control) {
    if (const auto* box = dynamic_cast<const host::TCheckBox*>(&control)) return box->Checked.get();
    if (const auto* radio = dynamic_cast<const host::TRadioButton*>(&control)) {
        return radio->Checked.get();
    }
    if (const auto* speed = dynamic_cast<const host::TSpeedButton*>(&control)) {
        return speed->Down.get();
    }
    return control.value_text();
}

} // namespace automation
