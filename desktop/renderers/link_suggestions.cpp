// Shows what the code field offers, and hands over the row the person takes.
#include "desktop/renderers/link_suggestions.h"

#include <QEvent>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/suggestion_popup.h"
#include "desktop/theme/text.h"
#include "host/contract/U_linkedit.h"

namespace desktop {
namespace {

// A code field offers codes with their names; a field of free text, the texts themselves.
std::vector<std::string> titles_of(const std::vector<host::Suggestion>& offered) {
    if (offered.front().cells.size() != 2) return {};
    return {"代码", "名称"};
}

} // namespace

// The edit has handed its text to the control before it is told here that it was edited.
LinkSuggestions::LinkSuggestions(FieldEdit& widget, host::TLinkEdit& edit, FormView& view)
    : QObject(&widget), widget_(widget), edit_(edit), view_(view), popup_(new SuggestionPopup) {
    connect(&widget, &QLineEdit::textEdited, this, [this] { offer(); });
    view.set_own_keys(edit, [this](const host::Key& key) { return own_key(key); });
    popup_->on_chosen = [this](int index) { take(index); };
    widget.installEventFilter(this);
}

LinkSuggestions::~LinkSuggestions() { delete popup_.data(); }

void LinkSuggestions::offer() {
    if (!view_.form() || !popup_) return;
    offered_.clear();
    const std::string typed = edit_.Text;
    QPointer<LinkSuggestions> alive(this);
    if (edit_.OnSuggest && !widget_.text().trimmed().isEmpty())
        view_.run([&] { offered_ = edit_.OnSuggest(typed); });
    if (!alive || !popup_) return;
    if (!view_.form() || offered_.empty() || !widget_.hasFocus()) return popup_->hide();
    popup_->offer(offered_, titles_of(offered_), qt(typed), widget_);
}

void LinkSuggestions::take(int index) {
    if (popup_) popup_->hide();
    if (index < 0 || index >= static_cast<int>(offered_.size())) return;
    const host::Suggestion chosen = offered_[static_cast<std::size_t>(index)];
    view_.run([&] { host::TakeSuggestion(edit_, chosen); });
}

// Enter fills the field and stays in it, for in a dialog it would press 确定; Tab goes on.
OwnKey LinkSuggestions::own_key(const host::Key& key) {
    using host::KeyCode;
    if (popup_ && popup_->isVisible()) {
        if (popup_->chosen_by(key)) {
            take(popup_->current());
            return key.code == KeyCode::Tab ? OwnKey::No : OwnKey::Used;
        }
        if (popup_->key(key)) return OwnKey::Used;
        if (!line_takes(key)) popup_->hide();
    }
    return own_when(line_takes(key));
}

bool LinkSuggestions::eventFilter(QObject* watched, QEvent* event) {
    const bool left = event->type() == QEvent::FocusOut || event->type() == QEvent::Hide;
    if (left && popup_) popup_->hide();
    return QObject::eventFilter(watched, event);
}

} // namespace desktop
