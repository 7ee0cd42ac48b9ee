// The list below a code field while a person types into it.
#pragma once

#include <QObject>
#include <QPointer>

#include <vector>

#include "desktop/renderers/form_view.h"
#include "host/controls/edits.h"

namespace desktop {

class FieldEdit;
class SuggestionPopup;

// Any text may stand in the field, so a row comes in only when the person moved to it or pressed
// the mouse on it. Lives as long as the widget.
class LinkSuggestions : public QObject {
public:
    LinkSuggestions(FieldEdit& widget, host::TLinkEdit& edit, FormView& view);
    ~LinkSuggestions() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void offer();
    void take(int index);
    OwnKey own_key(const host::Key& key);

    FieldEdit& widget_;
    host::TLinkEdit& edit_;
    FormView& view_;
    QPointer<SuggestionPopup> popup_; // a child of the window once it showed
    std::vector<host::Suggestion> offered_;
};

} // namespace desktop
