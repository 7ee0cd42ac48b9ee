// A choice from a list, or a text with proposals.
#include <QAbstractItemView>
#include <QComboBox>
#include <QStyledItemDelegate>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {
namespace {

constexpr int most_shown = 14; // the months of a year without a scroll bar

void refresh(QComboBox* widget, host::TComboBox& box) {
    const QSignalBlocker quiet(widget);
    QStringList items;
    for (const auto& item : box.Items.get()) items << qt(item);
    QStringList shown;
    for (int i = 0; i < widget->count(); ++i) shown << widget->itemText(i);
    if (items != shown) {
        widget->clear();
        widget->addItems(items);
    }
    const QString text = qt(box.Text.get());
    widget->setCurrentIndex(static_cast<int>(items.indexOf(text)));
    if (widget->isEditable()) widget->setEditText(text);
    widget->setEnabled(box.Enabled && !box.ReadOnly);
    widget->setVisible(box.Visible);
    widget->setToolTip(qt(box.Hint.get()));
}

} // namespace

QWidget* draw_combo_box(host::TComboBox& box, FormView& view) {
    auto* widget = new QComboBox(&view);
    fix_height(widget);
    widget->setEditable(!box.DropDownList);
    widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget->setMinimumWidth(64);
    widget->setMaxVisibleItems(most_shown);
    widget->setItemDelegate(new QStyledItemDelegate(widget)); // the style sheet's own rows
    view.claim(widget, box);
    view.set_own_keys(box, [widget](const host::Key& key) {
        using host::KeyCode;
        if (widget->view()->isVisible() || is_opening_key(key)) return OwnKey::Yes;
        if (widget->isEditable()) return own_when(line_takes(key));
        return own_when(key.code == KeyCode::Character && !key.ctrl && !key.alt);
    });
    view.listen(box, [widget, &box] { refresh(widget, box); });
    auto choose = [widget, &box, &view](const QString& text) {
        if (!view.form() || text == qt(box.Text.get())) return;
        if (view.move_focus(box)) view.run([&] { box.enter_text(utf8(text)); });
        if (view.form()) refresh(widget, box);
    };
    QObject::connect(widget, &QComboBox::textActivated, widget, choose);
    if (widget->isEditable()) {
        QObject::connect(widget, &QComboBox::editTextChanged, widget, choose);
        widget->setFocusProxy(nullptr);
    }
    return widget;
}

} // namespace desktop
