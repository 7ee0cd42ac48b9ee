// One of several that exclude each other; the form's group index says which.
#include <QRadioButton>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {

QWidget* draw_radio_button(host::TRadioButton& button, FormView& view) {
    auto* widget = new QRadioButton(&view);
    widget->setAutoExclusive(false);
    view.claim(widget, button);
    view.set_own_keys(
        button, [](const host::Key& key) { return own_when(key.code == host::KeyCode::Space); });
    view.listen(button, [widget, &button] {
        widget->setText(qt(button.Caption.get()));
        widget->setChecked(button.Checked);
        widget->setEnabled(button.Enabled);
        widget->setVisible(button.Visible);
    });
    QObject::connect(widget, &QRadioButton::clicked, widget, [widget, &button, &view] {
        QPointer<QRadioButton> alive(widget);
        view.run([&] { button.set_checked(true); });
        if (alive && view.form()) widget->setChecked(button.Checked);
    });
    return widget;
}

} // namespace desktop
