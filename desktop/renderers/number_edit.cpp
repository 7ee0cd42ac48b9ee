// A number, with arrows where it steps through a small range.
#include <QRegularExpressionValidator>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"

namespace desktop {

QWidget* draw_number_edit(host::TNumberEdit& edit, FormView& view) {
    auto* widget = new FieldEdit(&view);
    no_input_method(widget);
    // Arrows help where a range is given on both sides (a year, a level), not on document numbers.
    const bool steps = edit.Decimals == 0 && edit.Min && edit.Max &&
                       (*edit.Max - *edit.Min) <= host::Amount::from_whole(100);
    widget->setAlignment(steps ? Qt::AlignLeft : Qt::AlignRight);
    if (steps) {
        widget->set_edge(EdgeButton::Spin);
        widget->on_edge = [&edit, &view](bool upper) {
            if (!view.move_focus(edit)) return;
            host::Key key;
            key.code = upper ? host::KeyCode::Up : host::KeyCode::Down;
            view.run([&] { edit.key_down(key); });
        };
    }
    const QString shape = edit.Decimals > 0 ? "-?[0-9]*\\.?[0-9]*" : "-?[0-9]*";
    widget->setValidator(new QRegularExpressionValidator(QRegularExpression(shape), widget));
    sync_edit(widget, edit, view, Handover::HalfMade);
    widget->setMinimumWidth(width_of_characters(5));
    return widget;
}

} // namespace desktop
