// A line of text.
#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"

namespace desktop {

QWidget* draw_edit(host::TEdit& edit, FormView& view) {
    auto* widget = new FieldEdit(&view);
    // A code in upper case is Latin; so is a password.
    if (edit.UpperCase || edit.Password) no_input_method(widget);
    sync_edit(widget, edit, view, Handover::Checked);
    widget->setMinimumWidth(width_of_characters(6));
    return widget;
}

} // namespace desktop
