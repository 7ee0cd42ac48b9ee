// Several lines of text.
#include <QPlainTextEdit>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/layout_builder.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"
#include "host/forms/form.h"

namespace desktop {

QWidget* draw_memo(host::TMemo& memo, FormView& view) {
    auto* widget = new QPlainTextEdit(&view);
    widget->setTabChangesFocus(true);
    // Only a list fills its window to the edges; there the lines around the text are the window's.
    if (view.form() && kind_of(view.form()->layout) == FormKind::List)
        widget->setProperty("part", "to the edges");
    view.claim(widget, memo);
    view.set_own_keys(memo, [](const host::Key& key) {
        using host::KeyCode;
        const bool moves = key.code == KeyCode::Enter || key.code == KeyCode::Up ||
                           key.code == KeyCode::Down || key.code == KeyCode::PageUp ||
                           key.code == KeyCode::PageDown;
        return own_when(line_takes(key) || (moves && !key.ctrl));
    });
    view.listen(memo, [widget, &memo] {
        const QString text = qt(memo.Text.get());
        if (widget->toPlainText() != text) widget->setPlainText(text);
        widget->setReadOnly(memo.ReadOnly);
        widget->setEnabled(memo.Enabled);
        widget->setVisible(memo.Visible);
    });
    QObject::connect(widget, &QPlainTextEdit::textChanged, widget, [widget, &memo, &view] {
        const std::string typed = utf8(widget->toPlainText());
        if (view.form() && typed != memo.Text.get()) view.run([&] { memo.enter_text(typed); });
    });
    return widget;
}

} // namespace desktop
