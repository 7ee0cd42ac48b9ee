// A flag.
#include <QCheckBox>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {

QWidget* draw_check_box(host::TCheckBox& box, FormView& view) {
    auto* widget = new QCheckBox(&view);
    view.claim(widget, box);
    view.set_own_keys(
        box, [](const host::Key& key) { return own_when(key.code == host::KeyCode::Space); });
    view.listen(box, [widget, &box] {
        widget->setText(qt(box.Caption.get()));
        widget->setChecked(box.Checked);
        widget->setEnabled(box.Enabled);
        widget->setVisible(box.Visible);
    });
    // The control decides; the mark then shows what it decided.
    QObject::connect(widget, &QCheckBox::clicked, widget, [widget, &box, &view](bool on) {
        QPointer<QCheckBox> alive(widget);
        view.run([&] { box.set_checked(on); });
        if (alive && view.form()) widget->setChecked(box.Checked);
    });
    return widget;
}

} // namespace desktop
