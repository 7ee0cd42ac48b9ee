// Text of a line edit in step with its control.
#include "desktop/renderers/edit_sync.h"

#include <QFontMetrics>

#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "host/controls/edits.h"

namespace desktop {

bool line_takes(const host::Key& key) {
    using host::KeyCode;
    if (key.alt) return false;
    switch (key.code) {
    case KeyCode::Character:
        return !key.ctrl ||
               QStringLiteral("ACVXZY").contains(QChar(static_cast<char16_t>(key.character)));
    case KeyCode::Space:
    case KeyCode::Left:
    case KeyCode::Right:
    case KeyCode::Home:
    case KeyCode::End:
    case KeyCode::Backspace: return true;
    case KeyCode::Delete: return !key.ctrl;
    case KeyCode::Insert: return key.shift || key.ctrl;
    default: return false;
    }
}

bool is_opening_key(const host::Key& key) {
    return key.alt && key.code == host::KeyCode::Down;
}

void no_input_method(FieldEdit* widget) {
    widget->setInputMethodHints(Qt::ImhFormattedNumbersOnly | Qt::ImhPreferLatin);
    widget->setAttribute(Qt::WA_InputMethodEnabled, false);
}

int width_of_characters(int characters) {
    static const int digit = QFontMetrics(fonts::body()).horizontalAdvance('0');
    return characters * digit + 18;
}

void sync_edit(FieldEdit* widget, host::TEdit& edit, FormView& view, Handover handover) {
    view.claim(widget, edit);
    view.set_own_keys(edit, [](const host::Key& key) { return own_when(line_takes(key)); });
    view.listen(edit, [widget, &edit] {
        const QString text = qt(edit.Text.get());
        if (widget->text() != text) widget->setText(text);
        if (edit.MaxLength > 0) widget->setMaxLength(edit.MaxLength);
        widget->setReadOnly(edit.ReadOnly);
        widget->setEnabled(edit.Enabled);
        widget->setVisible(edit.Visible);
        widget->setEchoMode(edit.Password ? QLineEdit::Password : QLineEdit::Normal);
        widget->setToolTip(qt(edit.Hint.get()));
    });
    // The control may refuse or change what was typed (upper case, length): show what it holds.
    QObject::connect(widget, &QLineEdit::textEdited, widget, [widget, &edit, &view, handover] {
        const std::string typed = utf8(widget->text());
        if (!view.form() || typed == edit.Text.get()) return;
        QPointer<FieldEdit> alive(widget);
        view.run([&] {
            if (handover == Handover::Checked) edit.enter_text(typed);
            else edit.Text = typed;
        });
        if (!alive || !view.form()) return;
        const QString held = qt(edit.Text.get());
        if (widget->text() == held) return;
        const int cursor = widget->cursorPosition();
        widget->setText(held);
        widget->setCursorPosition(std::min<int>(cursor, static_cast<int>(held.size())));
    });
}

} // namespace desktop
