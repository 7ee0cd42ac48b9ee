// What every visible control shares: caption, visible, enabled, and for those that take the
// focus, the events of entering, leaving and keys.
#pragma once

#include <cstdint>

#include "host/controls/component.h"
#include "host/controls/key.h"

namespace host {

// Colours are numbers in blue-green-red order, as forms give them.
using Color = std::int32_t;
inline constexpr Color clDefault = -1;
inline constexpr Color clRed = 255;       // negative amounts, and what is wrong
inline constexpr Color clBlue = 0xFF0000; // rows that sum up, and what is right

class TControl : public TComponent {
public:
    TControl(TForm* form, std::string name, std::string caption = "");
    const char* ClassName() const override { return "TControl"; }

    Property<std::string> Caption;
    Property<std::string> Hint;
    Property<bool> Visible;
    Property<bool> Enabled;
    Property<Color> FontColor;

    // Shown and enabled, itself and its form; the driver and the keyboard refuse otherwise.
    bool usable() const { return Visible.get() && Enabled.get(); }
    // The plain text of what the control holds, "true"/"false" for a check mark.
    virtual std::string value_text() const { return Caption; }
    // What messages call it: its caption without colons and blanks, else its name.
    std::string label() const;
};

class TWinControl : public TControl {
public:
    using TControl::TControl;

    std::function<void()> OnEnter;
    std::function<void()> OnExit; // may Abort(): the focus then stays
    std::function<void(Key&)> OnKeyDown;
    std::function<void(char32_t&)> OnKeyPress; // may replace the character; 0 swallows it

    Property<bool> ReadOnly{this, false};
    bool TabStop = true;

    bool focused() const;
    void SetFocus();
    // A key that reached this control after its form had its say; true when it was used.
    virtual bool key_down(Key key);
    // A character typed into it.
    virtual void type(char32_t character);
    // The focus is about to go elsewhere: takes over what was typed, in its proper form, or refuses
    // by Abort(). Runs before OnExit.
    virtual void leave() {}
    // Everything it holds replaced by `text`, as if typed; runs the change events.
    virtual void enter_text(const std::string& text);
};

} // namespace host
