// A choice among items.
#include <algorithm>

#include "host/contract/U_function.h"
#include "host/contract/Zpy.h"
#include "host/controls/edits.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

TComboBox::TComboBox(TForm* form, std::string name, std::string caption)
    : TWinControl(form, std::move(name), std::move(caption)), Items(this), Text(this) {}

int TComboBox::item_index() const {
    const auto at = std::find(Items->begin(), Items->end(), Text.get());
    return at == Items->end() ? -1 : static_cast<int>(at - Items->begin());
}

void TComboBox::set_index(int index) {
    if (index >= 0 && index < static_cast<int>(Items->size()))
        Text = Items.get()[static_cast<std::size_t>(index)];
    else
        Text = "";
}

void TComboBox::changed() {
    TWinControl::changed();
    if (Text.get() == last_text_) return;
    last_text_ = Text;
    if (OnChange) OnChange();
}

void TComboBox::enter_text(const std::string& text) {
    const bool known = std::find(Items->begin(), Items->end(), text) != Items->end();
    if (ReadOnly || (DropDownList && !known)) {
        std::string choices;
        for (const std::string& item : Items.get()) choices += (choices.empty() ? "" : "、") + item;
        DISPINFO(ReadOnly ? "“" + label() + "”不能修改。"
                          : "“" + label() + "”没有“" + first_characters(text, 30) +
                                "”这一项，请从以下各项中选择：" + choices + "。", 5);
        Abort();
    }
    Text = text;
}

bool TComboBox::key_down(Key key) {
    const bool up = key.code == KeyCode::Up, down = key.code == KeyCode::Down;
    if (ReadOnly || key.ctrl || key.alt || !(up || down)) return false;
    const int index = item_index() + (up ? -1 : 1);
    if (index >= 0 && index < static_cast<int>(Items->size())) set_index(index);
    return true;
}

void TComboBox::type(char32_t character) {
    if (ReadOnly) return;
    const std::string typed = to_utf8(character);
    if (!DropDownList) {
        Text = Text.get() + typed;
        return;
    }
    const int count = static_cast<int>(Items->size());
    for (int step = 1; step <= count; ++step) {
        const int index = (item_index() + step) % count;
        const std::string& item = Items.get()[static_cast<std::size_t>(index)];
        if (!starts_with_text(item, typed) && !starts_with_text(GetPY(item), typed)) continue;
        set_index(index);
        return;
    }
}

} // namespace host
