// A window without a toolkit: its controls, its layout, its focus, its life.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/controls/buttons.h"
#include "host/controls/control.h"
#include "host/controls/edits.h"
#include "host/layout/layout.h"

namespace host {

// A form owns the forms created with it as parent: they go when it goes. Modeless forms are made
// with `new` and destroy themselves after Close() unless FreeOnClose is false (entry forms stay
// with their list and are shown again); members may hold modal ones by unique_ptr.
class TForm : public TControl {
public:
    explicit TForm(TForm* parent);
    ~TForm() override;

    const char* ClassName() const override { return "TForm"; }
    std::string FormName() const { return ClassName() + 1; } // TF6661 → F6661
    TForm* Parent() const { return parent_; }
    // Counted per class over the life of the program; 0 before it was shown.
    int InstanceNumber() const { return instance_; }

    // Parts.
    const std::vector<TComponent*>& components() const { return components_; }
    TComponent* FindComponent(const std::string& name) const; // without regard to case
    LayoutNode layout;
    int PreferredWidth = 0; // characters; dialogs
    bool Dirty() const;     // something unsaved: a dot in the tab, a question on leaving
    std::string TabTitle() const { return tab_title_.empty() ? Caption.get() : tab_title_; }
    void SetTabTitle(std::string title);

    // The function whose rights its actions need; "" when none applies.
    virtual std::string RightsFunction() const { return ""; }

    // Focus. Moving it runs OnExit of the control left, which may refuse by Abort().
    TWinControl* ActiveControl() const { return active_; }
    TWinControl* FocusTarget() const { return target_; } // where it is going, during OnExit
    void SetFocusTo(TWinControl& control);
    void SelectNext(bool backward = false); // tab order is the order of the layout
    // Takes over what is being typed: runs the exit of the active control without moving on. For
    // actions that work with the fields while the focus stays. May Abort().
    void CommitActive();
    std::vector<TWinControl*> TabOrder() const; // those that can take the focus now

    // One key or character that the person sent to this form. Order: the form's FormKeyDown, the
    // focused control, actions by shortcut, default and cancel buttons, Enter to the next field.
    virtual bool KeyDown(Key key);

    // Life. Show and ShowModal make it appear through the host's user interface.
    void Show();
    int ShowModal();
    void Close(); // asks CloseQuery first
    virtual bool CloseQuery(); // false keeps it open; asks about unsaved work
    Property<int> ModalResult{this, 0}; // not 0 ends the modal loop
    bool IsModal() const { return modal_; }
    bool Closed() const { return closed_; }
    bool Shown() const { return shown_; } // stands in the frame or over it
    bool FreeOnClose = true;
    void Activate(); // it came to the front; runs FormActivate when it was not there before

    std::function<void()> OnShow, OnClose, OnActivate;

protected:
    virtual void FormKeyDown(Key&) {}        // may clear the key to use it up
    virtual void FormKeyPress(char32_t&) {}  // sees characters and Enter (13) first
    virtual void FormActivate() {}
    virtual void FormShow() {}
    virtual void FormClose() {}
    virtual bool has_unsaved_work() const { return false; }

private:
    friend class TComponent;
    void forget_component(TComponent* component);
    void appear();
    void disappear();
    bool press_key(Key key);
    bool press_shortcut(const Key& key);
    bool press_button_for(const Key& key);
    TForm* parent_ = nullptr;
    std::vector<TForm*> children_;
    std::vector<TComponent*> components_;
    TWinControl* active_ = nullptr;
    TWinControl* target_ = nullptr;
    std::string tab_title_;
    int instance_ = 0;
    bool modal_ = false;
    bool closed_ = false;
    bool shown_ = false;
};

} // namespace host
