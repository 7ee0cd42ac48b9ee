// One host form on the screen: its widgets, its focus, its keys.
#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <unordered_map>
#include <vector>

#include "host/controls/key.h"

namespace host {
class TComponent;
class TControl;
class TForm;
class TWinControl;
} // namespace host

namespace desktop {

// What a widget does with a key: leaves it to the form, takes it, or has already acted on it.
enum class OwnKey { No, Yes, Used };
// A label in a row of fields; beside conditions or in the line at the bottom; holding a formula.
enum class LabelLook { Plain, Quiet, Formula };
inline OwnKey own_when(bool takes) {
    return takes ? OwnKey::Yes : OwnKey::No;
}

// The form's controls hold the truth. Widgets listen to them and hand every event of the person to
// them through `run`, the one gate, after which the focus of the widgets follows the form's own.
// The form may go at any event; `release` then cuts every tie, and the view is deleted later.
class FormView : public QWidget {
public:
    FormView(host::TForm& form, QWidget* parent);
    ~FormView() override;

    host::TForm* form() const { return form_; } // null once released
    void release();

    // Runs an event of the person; false when it was refused, failed, or the form is gone.
    bool run(const std::function<void()>& event);
    // Calls `refresh` now and whenever the component changes.
    void listen(host::TComponent& component, std::function<void()> refresh);
    // The widget stands for the control: its focus, keys and mouse presses pass through the view.
    void claim(QWidget* widget, host::TWinControl& control);
    QWidget* widget_of(const host::TControl* control) const;
    // Widgets that take keys for themselves (text, lists) say which; absent: none.
    using OwnKeys = std::function<OwnKey(const host::Key&)>;
    void set_own_keys(const host::TWinControl& control, OwnKeys own);
    // How the labels look that are drawn from now on.
    void set_label_look(LabelLook look) { label_look_ = look; }
    LabelLook label_look() const { return label_look_; }
    // Run once when the form goes, before the view does.
    void at_release(std::function<void()> action) { release_actions_.push_back(std::move(action)); }
    // Run after every event, before the focus is looked at.
    void after_event(std::function<void()> action) { after_actions_.push_back(std::move(action)); }

    // Sends one key to the form; true when something used it.
    bool send_key(const host::Key& key);
    // Moves the form's focus to the control as a person does; false when it stayed.
    bool move_focus(host::TWinControl& control);
    // Puts the widget focus where the form's is.
    void sync_focus();

    // Called when the form's title or unsaved state may have changed.
    std::function<void()> on_changed;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Claim {
        host::TWinControl* control = nullptr;
        QPointer<QWidget> widget;
        OwnKeys own_keys;
    };
    Claim* claim_of(const host::TControl* control);
    bool key_pressed(Claim& claim, QKeyEvent& event);
    bool character_taken(Claim& claim, QKeyEvent& event, char32_t character);
    bool finish_key(const host::Key& key);

    host::TForm* form_;
    std::unordered_map<const host::TControl*, Claim> claims_;
    QHash<QObject*, host::TWinControl*> control_of_;
    std::vector<std::pair<host::TComponent*, int>> handles_;
    std::vector<std::function<void()>> release_actions_, after_actions_;
    bool syncing_ = false, replaying_ = false;
    LabelLook label_look_ = LabelLook::Plain;
};

} // namespace desktop
