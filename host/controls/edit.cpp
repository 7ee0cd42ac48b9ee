// A line of text: typing, the caret, what must not be typed.
#include "host/controls/edits.h"

#include "host/contract/U_function.h"
#include "host/forms/form.h"
#include "host/values/errors.h"
#include "host/values/text.h"

namespace host {

TEdit::TEdit(TForm* form, std::string name, std::string caption)
    : TWinControl(form, std::move(name), std::move(caption)), Text(this) {}

void TEdit::changed() {
    TWinControl::changed();
    if (Text.get() == last_text_) return;
    last_text_ = Text;
    const std::size_t length = character_count(last_text_);
    if (caret_ > length) caret_ = length;
    if (OnChange) OnChange();
}

void TEdit::SelectAll() {
    all_selected_ = true;
    caret_ = character_count(Text.get());
}

void TEdit::put(const std::u32string& characters, std::size_t caret) {
    caret_ = caret;
    all_selected_ = false;
    const std::string text = to_utf8(characters);
    Text = UpperCase ? upper_case(text) : text;
}

void TEdit::type(char32_t character) {
    const bool line_end = several_lines() && character == '\n';
    if (ReadOnly || (character < 0x20 && !line_end) || character == 0x7F) return;
    std::u32string characters = all_selected_ ? std::u32string() : to_characters(Text.get());
    if (MaxLength > 0 && characters.size() >= static_cast<std::size_t>(MaxLength)) return;
    const std::size_t at = std::min(caret_, characters.size());
    characters.insert(at, 1, character);
    put(characters, at + 1);
}

bool TEdit::key_down(Key key) {
    if (key.ctrl && key.code == KeyCode::Character && key.character == 'A') {
        SelectAll();
        return true;
    }
    if (key.ctrl || key.alt) return false;
    std::u32string characters = to_characters(Text.get());
    const std::size_t at = std::min(caret_, characters.size());
    const auto move = [&](std::size_t to) {
        caret_ = to;
        all_selected_ = false;
        return true;
    };
    switch (key.code) {
    case KeyCode::Left: return move(at > 0 ? at - 1 : 0);
    case KeyCode::Right: return move(std::min(at + 1, characters.size()));
    case KeyCode::Home: return move(0);
    case KeyCode::End: return move(characters.size());
    case KeyCode::Backspace:
    case KeyCode::Delete: {
        if (ReadOnly) return true;
        if (all_selected_) {
            put({}, 0);
            return true;
        }
        const bool back = key.code == KeyCode::Backspace;
        if (back ? at == 0 : at == characters.size()) return true;
        characters.erase(back ? at - 1 : at, 1);
        put(characters, back ? at - 1 : at);
        return true;
    }
    default: return false;
    }
}

void TEdit::check_text(const std::string& text) const {
    if (const auto at = first_unprintable(text, several_lines())) {
        DISPINFO("“" + label() + "”的第 " + std::to_string(*at) + " 个字不能显示，请删去后再录入。", 5);
        Abort();
    }
    const std::size_t count = character_count(text);
    if (MaxLength <= 0 || count <= static_cast<std::size_t>(MaxLength)) return;
    DISPINFO("“" + label() + "”最多 " + std::to_string(MaxLength) + " 个字，录入了 " +
                 std::to_string(count) + " 个字，请缩短。", 5);
    Abort();
}

void TEdit::enter_text(const std::string& text) {
    if (ReadOnly) {
        DISPINFO("“" + label() + "”不能修改。", 5);
        Abort();
    }
    check_text(text);
    const std::u32string characters = to_characters(text);
    put(characters, characters.size());
}

bool TEdit::leaving_by_cancel() const {
    const TWinControl* target = form() == nullptr ? nullptr : form()->FocusTarget();
    return target != nullptr && target->Name() == "btn_Cancel";
}

bool TMemo::key_down(Key key) {
    if (key.code != KeyCode::Enter || key.ctrl || key.alt) return TEdit::key_down(key);
    type('\n');
    return true;
}

TLinkEdit::TLinkEdit(TForm* form, std::string name, std::string caption)
    : TEdit(form, std::move(name), std::move(caption)), DisplayName(this) {}

bool TLinkEdit::key_down(Key key) {
    if (key.code != KeyCode::F4 || !OnButtonClick) return TEdit::key_down(key);
    OnButtonClick();
    return true;
}

} // namespace host
