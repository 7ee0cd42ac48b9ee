// A code with its lookup button, and the name that the code stands for.
#include <QHBoxLayout>
#include <QLabel>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/link_suggestions.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {

QWidget* draw_link_edit(host::TLinkEdit& edit, FormView& view) {
    auto* row = new QWidget(&view);
    auto* across = new QHBoxLayout(row);
    across->setContentsMargins(0, 0, 0, 0);
    across->setSpacing(8);
    auto* widget = new FieldEdit(row);
    no_input_method(widget);
    widget->set_edge(EdgeButton::Boxed, "ellipsis");
    widget->on_edge = [&edit, &view](bool) {
        if (!view.move_focus(edit)) return;
        host::Key key;
        key.code = host::KeyCode::F4;
        view.run([&] { edit.key_down(key); });
    };
    sync_edit(widget, edit, view, Handover::Checked);
    new LinkSuggestions(*widget, edit, view); // goes with the widget
    auto* name = new QLabel(row);
    name->setTextFormat(Qt::PlainText);
    name->setProperty("part", "looked-up");
    across->addWidget(widget, 0);
    across->addWidget(name, 1);
    widget->setMinimumWidth(width_of_characters(10));
    name->setMinimumWidth(width_of_characters(12)); // the line for the name, also while it is empty
    view.listen(edit, [name, row, &edit] {
        name->setText(qt(edit.DisplayName.get()));
        row->setVisible(edit.Visible);
    });
    return row;
}

} // namespace desktop
