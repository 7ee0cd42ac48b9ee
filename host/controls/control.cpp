// What all controls share: labels, focus, keys that nobody else took.
#include "host/controls/control.h"

#include "host/forms/form.h"
#include "host/values/text.h"

namespace host {

TControl::TControl(TForm* form, std::string name, std::string caption)
    : TComponent(form, std::move(name)), Caption(this, std::move(caption)), Hint(this),
      Visible(this, true), Enabled(this, true), FontColor(this, clDefault) {}

std::string TControl::label() const {
    std::string text = replaced(replaced(Caption.get(), " ", ""), "：", "");
    while (!text.empty() && text.back() == ':') text.pop_back();
    return text.empty() ? Name() : text;
}

bool TWinControl::focused() const { return form() != nullptr && form()->ActiveControl() == this; }

void TWinControl::SetFocus() {
    if (form() != nullptr) form()->SetFocusTo(*this);
}

bool TWinControl::key_down(Key) { return false; }

void TWinControl::type(char32_t) {}

void TWinControl::enter_text(const std::string&) {}

} // namespace host
