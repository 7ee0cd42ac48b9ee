// Things that are clicked: buttons, check boxes, labels; and the actions behind tool bars.
#pragma once

#include "host/controls/control.h"

namespace host {

inline constexpr int mrNone = 0, mrOk = 1, mrCancel = 2;

class TLabel : public TControl {
public:
    using TControl::TControl;
    const char* ClassName() const override { return "TLabel"; }
    std::function<void()> OnClick;
    Property<bool> Bold{this, false};
};

// A panel that is shown or hidden as a whole, such as the badge 试算平衡.
class TPanel : public TControl {
public:
    using TControl::TControl;
    const char* ClassName() const override { return "TPanel"; }
};

class TButton : public TWinControl {
public:
    using TWinControl::TWinControl;
    const char* ClassName() const override { return "TButton"; }
    std::function<void()> OnClick;
    int ModalResult = mrNone; // set on the form after OnClick returned
    bool Default = false;     // Enter presses it where nothing else takes the key
    bool Cancel = false;      // Esc presses it
    std::string KeyHint;      // "F2", shown behind the caption
    std::string Icon;         // name of the drawing, see the desktop's theme
    void Click();
    bool key_down(Key key) override;
};

// One of a row of buttons of which exactly one is down.
class TSpeedButton : public TControl {
public:
    using TControl::TControl;
    const char* ClassName() const override { return "TSpeedButton"; }
    Property<bool> Down{this, false};
    int GroupIndex = 0; // buttons of one form with the same index release each other; 0 none
    std::function<void()> OnClick;
    void Click();
    void changed() override; // pressing one releases the others
};

class TCheckBox : public TWinControl {
public:
    using TWinControl::TWinControl;
    const char* ClassName() const override { return "TCheckBox"; }
    Property<bool> Checked{this, false};
    std::function<void()> OnClick;
    std::string value_text() const override { return Checked ? "true" : "false"; }
    void set_checked(bool on); // as a person does: runs OnClick when it changes
    bool key_down(Key key) override;
};

class TRadioButton : public TWinControl {
public:
    using TWinControl::TWinControl;
    const char* ClassName() const override { return "TRadioButton"; }
    Property<bool> Checked{this, false};
    int GroupIndex = 1; // checking one unchecks the others of the form with this index
    std::function<void()> OnClick;
    std::string value_text() const override { return Checked ? "true" : "false"; }
    void set_checked(bool on);
    bool key_down(Key key) override;
    void changed() override; // also when a program checks it, the others are unchecked
};

class TProgressBar : public TControl {
public:
    using TControl::TControl;
    const char* ClassName() const override { return "TProgressBar"; }
    Property<std::int64_t> Position{this, 0};
    Property<std::int64_t> Max{this, 100};
};

// What a person can do on a form: a tool button, a menu item and a key with one meaning.
class TAction : public TControl {
public:
    TAction(TForm* form, std::string name, std::string caption, std::string shortcut = "",
            std::string icon = "");
    const char* ClassName() const override { return "TAction"; }
    std::string ShortCut; // "F2", "Ctrl+P"; empty for none
    std::string Icon;
    std::string Right; // action of the rights table ("add", "audit"); empty: always allowed
    bool IsMenuItem = false;
    std::function<void()> OnExecute;
    // May it run now? Asked before Execute; a form may add a condition of its own.
    std::function<bool()> OnUpdate;
    bool Execute(); // false when not usable; refuses with a message when the right is missing
};

// An item of a context menu; behaves as an action.
class TMenuItem : public TAction {
public:
    TMenuItem(TForm* form, std::string name, std::string caption);
    const char* ClassName() const override { return "TMenuItem"; }
};

class TPopupMenu : public TControl {
public:
    using TControl::TControl;
    const char* ClassName() const override { return "TPopupMenu"; }
    std::vector<TAction*> Items; // null parts groups
    std::function<void()> OnPopup;
};

} // namespace host
