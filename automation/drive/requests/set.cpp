// set: the focus, then a text typed or an entry chosen.
#include "automation/drive/requests/requests.h"

#include "automation/drive/acting.h"
#include "automation/drive/driver.h"
#include "automation/drive/finding.h"
#include "automation/drive/typing.h"
#include "host/forms/form.h"
#include "host/values/text.h"

namespace automation::requests {

namespace {

// A check box is clicked until it shows what is wanted; of radio buttons one is chosen.
void set_mark(Driver& driver, host::TForm& form, host::TWinControl& control, const json& value) {
    const auto wanted = as_flag(value);
    if (!wanted) throw Refusal(control.Name() + " takes true or false");
    auto* radio = dynamic_cast<host::TRadioButton*>(&control);
    if (radio != nullptr && !*wanted && radio->Checked) {
        throw Refusal(control.Name() + " is let go by choosing another of its group");
    }
    move_focus(driver, form, control);
    act_fully(driver, [&] {
        if (radio == nullptr) {
            static_cast<host::TCheckBox&>(control).set_checked(*wanted);
        } else if (*wanted) {
            radio->set_checked(true);
        }
    });
}

void choose(Driver& driver, host::TForm& form, host::TComboBox& combo, const std::string& text) {
    const auto& items = combo.Items.get();
    if (combo.DropDownList && std::find(items.begin(), items.end(), text) == items.end()) {
        std::string names;
        for (const std::string& item : items) names += (names.empty() ? "" : ", ") + item;
        throw Refusal(combo.Name() + " has no item \"" + text + "\"; it has " + names);
    }
    move_focus(driver, form, combo);
    act_fully(driver, [&] { combo.enter_text(text); });
}

// What is left of a text when the control's key handler has seen each character.
std::string through_the_keys(host::TWinControl& control, const std::string& text) {
    if (!control.OnKeyPress) return text;
    std::u32string typed;
    for (char32_t character : host::to_characters(text)) {
        control.OnKeyPress(character);
        if (character != 0) typed += character;
    }
    return host::to_utf8(typed);
}

void set_control(Driver& driver, host::TForm& form, host::TControl& control,
                 const Request& request) {
    auto* window = dynamic_cast<host::TWinControl*>(&control);
    if (dynamic_cast<host::TCheckBox*>(&control) || dynamic_cast<host::TRadioButton*>(&control)) {
        require_writable(*window);
        set_mark(driver, form, *window, request.member("value"));
    } else if (auto* combo = dynamic_cast<host::TComboBox*>(&control)) {
        require_writable(*combo);
        choose(driver, form, *combo, request.text("value"));
    } else if (auto* edit = dynamic_cast<host::TEdit*>(&control)) {
        require_writable(*edit);
        const std::string text = request.text("value");
        move_focus(driver, form, *edit);
        act_fully(driver, [&] { edit->enter_text(through_the_keys(*edit, text)); });
    } else {
        throw Refusal(control.Name() + " (" + control.ClassName() + ") takes no value");
    }
}

} // namespace

json set(Driver& driver, const Request& request) {
    host::TForm& form = form_to_act_on(driver, request);
    const Target target = target_of(form, request);
    auto* grid = dynamic_cast<host::TDBGridEh*>(target.control);
    if (grid == nullptr) {
        set_control(driver, form, *target.control, request);
        return json::object();
    }
    const int column = target.column >= 0 ? target.column : grid->column();
    if (column < 0 || column >= static_cast<int>(grid->Columns.size())) {
        throw Refusal(grid->Name() + " has no column to type into");
    }
    type_into_cell(driver, form, *grid, -1,
                   grid->Columns[static_cast<std::size_t>(column)].FieldName,
                   request.member("value"));
    return json::object();
}

} // namespace automation::requests
