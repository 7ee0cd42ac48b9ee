// Keeps the widgets of a form in step with it: events in, focus and changes out.
#include "desktop/renderers/form_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

#include "desktop/renderers/key_bridge.h"
#include "desktop/renderers/layout_builder.h"
#include "host/forms/event_gate.h"
#include "host/forms/form.h"

namespace desktop {

FormView::FormView(host::TForm& form, QWidget* parent) : QWidget(parent), form_(&form) {
    setFocusPolicy(Qt::StrongFocus);
    build_layout(form.layout, *this);
    listen(form, [this] {
        setEnabled(form_->Enabled);
        if (on_changed) on_changed();
    });
}

FormView::~FormView() { release(); }

void FormView::release() {
    if (!form_) return;
    // From here on nothing that Qt still sends reaches the form: its parts may be gone already.
    host::TForm* const form = std::exchange(form_, nullptr);
    for (auto& action : release_actions_) action();
    release_actions_.clear();
    after_actions_.clear();
    // Parts that went before their form have dropped their listeners themselves.
    const auto& alive = form->components();
    for (auto& [component, handle] : handles_)
        if (component == form || std::find(alive.begin(), alive.end(), component) != alive.end())
            component->forget(handle);
    handles_.clear();
    for (QObject* widget : control_of_.keys()) widget->removeEventFilter(this);
    control_of_.clear();
    claims_.clear();
    on_changed = nullptr;
    setEnabled(false);
}

bool FormView::run(const std::function<void()>& event) {
    if (!form_) return false;
    QPointer<FormView> self(this);
    const bool done = host::enter_event(event);
    if (!self || !form_) return done;
    for (std::size_t i = 0; i < after_actions_.size(); ++i) after_actions_[i]();
    sync_focus();
    if (on_changed) on_changed();
    return done;
}

void FormView::listen(host::TComponent& component, std::function<void()> refresh) {
    refresh();
    handles_.emplace_back(&component, component.listen(std::move(refresh)));
}

void FormView::claim(QWidget* widget, host::TWinControl& control) {
    Claim& claim = claims_[&control];
    claim.control = &control;
    if (!claim.widget) claim.widget = widget;
    control_of_.insert(widget, &control);
    widget->installEventFilter(this);
    QObject::connect(widget, &QObject::destroyed, this, [this](QObject* gone) {
        control_of_.remove(gone);
    });
}

FormView::Claim* FormView::claim_of(const host::TControl* control) {
    const auto found = claims_.find(control);
    return found == claims_.end() ? nullptr : &found->second;
}

QWidget* FormView::widget_of(const host::TControl* control) const {
    const auto found = claims_.find(control);
    return found == claims_.end() ? nullptr : found->second.widget.data();
}

void FormView::set_own_keys(const host::TWinControl& control, OwnKeys own) {
    if (Claim* claim = claim_of(&control)) claim->own_keys = std::move(own);
}

bool FormView::move_focus(host::TWinControl& control) {
    if (!form_) return false;
    if (form_->ActiveControl() == &control) return true;
    QPointer<FormView> self(this);
    run([this, &control] { form_->SetFocusTo(control); });
    return self && form_ && form_->ActiveControl() == &control;
}

void FormView::sync_focus() {
    if (!form_ || syncing_ || !isVisible()) return;
    QWidget* wanted = widget_of(form_->ActiveControl());
    if (!wanted || !wanted->isEnabled()) return;
    QWidget* now = window() == QApplication::activeWindow() ? QApplication::focusWidget()
                                                            : window()->focusWidget();
    if (now == wanted || (now && wanted->isAncestorOf(now))) return;
    syncing_ = true;
    wanted->setFocus(Qt::TabFocusReason); // as the form does: all of its text is marked
    syncing_ = false;
}

bool FormView::send_key(const host::Key& key) {
    if (!form_) return false;
    bool used = false;
    QPointer<FormView> self(this);
    const bool done = run([&] { used = form_->KeyDown(key); });
    return used || !done || !self;
}

// What the form did not use but every window knows: Tab goes on.
bool FormView::finish_key(const host::Key& key) {
    if (key.code != host::KeyCode::Tab || key.ctrl || key.alt || !form_) return false;
    run([&] { form_->SelectNext(key.shift); });
    return true;
}

// A character typed into an editor passes the control's own handler first, which may swallow it or
// put another in its place. True when the editor must not see it as it came.
bool FormView::character_taken(Claim& claim, QKeyEvent& event, char32_t character) {
    if (!claim.control->OnKeyPress) return false;
    const char32_t typed = character;
    host::TWinControl* control = claim.control;
    QPointer<FormView> self(this);
    run([&] { control->OnKeyPress(character); });
    if (!self || character == typed) return !self;
    if (character == 0) return true;
    QWidget* focus = QApplication::focusWidget();
    QKeyEvent other(event.type(), 0, Qt::NoModifier, QString::fromUcs4(&character, 1));
    replaying_ = true;
    if (focus) QCoreApplication::sendEvent(focus, &other);
    replaying_ = false;
    return true;
}

bool FormView::key_pressed(Claim& claim, QKeyEvent& event) {
    const host::Key key = to_key(event);
    if (key.code == host::KeyCode::None || (key.alt && is_plain_character(key))) return false;
    const OwnKey own = claim.own_keys ? claim.own_keys(key) : OwnKey::No;
    if (own == OwnKey::Used) return true;
    if (own == OwnKey::Yes)
        return is_plain_character(key) && character_taken(claim, event, key.character);
    QPointer<FormView> self(this);
    if (send_key(key)) return true;
    return self && finish_key(key);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    host::TWinControl* control = form_ ? control_of_.value(watched) : nullptr;
    if (!control) return QWidget::eventFilter(watched, event);
    Claim* claim = claim_of(control);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // Leaving a field may be refused; the press then does not happen.
        if (control->usable() && !move_focus(*control)) return true;
        break;
    case QEvent::FocusIn:
        if (!syncing_ && form_->ActiveControl() != control && control->usable()) {
            QPointer<FormView> self(this);
            move_focus(*control);
            if (!self) return true;
        }
        break;
    case QEvent::KeyPress:
        // What nobody used wanders up through the parents; it was seen once already.
        if (watched != QApplication::focusWidget()) break;
        if (claim && !replaying_ && key_pressed(*claim, *static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        break;
    default: break;
    }
    return QWidget::eventFilter(watched, event);
}

// Keys while no control has the focus, such as right after a tab was chosen.
void FormView::keyPressEvent(QKeyEvent* event) {
    const host::Key key = to_key(*event);
    QPointer<FormView> self(this);
    if (QApplication::focusWidget() == this && key.code != host::KeyCode::None) {
        if (send_key(key) || (self && finish_key(key))) return;
    }
    if (self) QWidget::keyPressEvent(event);
}

void FormView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    sync_focus();
}

// The tab order is the form's, not Qt's.
bool FormView::focusNextPrevChild(bool next) {
    if (!form_) return false;
    run([&] { form_->SelectNext(!next); });
    return true;
}

} // namespace desktop
