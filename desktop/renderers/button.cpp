// A push button of a form.
#include <QRegularExpression>

#include "desktop/renderers/form_view.h"
#include "desktop/renderers/hinted_button.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {
namespace {

// "F2" of "确定 F2": a caption that names its key has it drawn as every other button has.
QString key_at_end(const QString& caption) {
    static const QRegularExpression key(QStringLiteral(" (F\\d{1,2}|ESC)$"));
    const QString found = key.match(caption).captured(1);
    return found == "ESC" ? QStringLiteral("Esc") : found;
}

} // namespace

QWidget* draw_button(host::TButton& button, FormView& view) {
    auto* widget = new HintedButton(&view, ButtonLook::Plain);
    view.claim(widget, button);
    view.set_own_keys(
        button, [](const host::Key& key) { return own_when(key.code == host::KeyCode::Space); });
    view.listen(button, [widget, &button] {
        QString caption = qt(button.Caption.get());
        QString hint = qt(button.KeyHint);
        if (hint.isEmpty()) hint = key_at_end(caption);
        // A caption that already ends with its key ("登帐 F2") shows it once.
        if (!hint.isEmpty() && caption.endsWith(" " + hint, Qt::CaseInsensitive))
            caption.chop(hint.size() + 1);
        // The button that does what the dialog is for stands out, also where Enter goes on instead.
        const bool filled = button.Default || button.Name() == "btn_ok";
        widget->set_look(filled ? ButtonLook::Primary : ButtonLook::Plain);
        widget->set_drawing(button.Icon);
        widget->set_texts(caption, hint);
        widget->setToolTip(qt(button.Hint.get()));
        widget->setEnabled(button.Enabled);
        widget->setVisible(button.Visible);
    });
    QObject::connect(widget, &QPushButton::clicked, widget, [&button, &view] {
        // Leaving a field may have been refused between the press and the release.
        if (view.form() && view.move_focus(button)) view.run([&button] { button.Click(); });
    });
    return widget;
}

} // namespace desktop
