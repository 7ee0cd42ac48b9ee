// A code with its lookup button, and the name that the code stands for.
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/field_edit.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/link_suggestions.h"
#include "desktop/renderers/renderers.h"
#include "desktop/theme/text.h"

namespace desktop {
namespace {

// The name that a code stands for, over a line that stands also while it is empty. In a narrow
// window it is cut short, and the pointer tells all of it.
class NameLine : public QLabel {
public:
    explicit NameLine(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setProperty("part", "looked-up");
    }
    void show_name(const QString& name) {
        name_ = name;
        updateGeometry();
        fit();
    }
    QSize sizeHint() const override {
        const int text = fontMetrics().horizontalAdvance(name_) + padding;
        return {std::max(width_of_characters(12), text), QLabel::sizeHint().height()};
    }
    QSize minimumSizeHint() const override {
        return {width_of_characters(5), QLabel::minimumSizeHint().height()};
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        QLabel::resizeEvent(event);
        fit();
    }

private:
    static constexpr int padding = 10;
    void fit() {
        const QString shown =
            fontMetrics().elidedText(name_, Qt::ElideRight, std::max(width() - padding, 0));
        setToolTip(shown == name_ ? QString() : name_);
        if (shown != text()) setText(shown);
    }
    QString name_;
};

} // namespace

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
    auto* name = new NameLine(row);
    across->addWidget(widget, 0);
    across->addWidget(name, 1);
    widget->setMinimumWidth(width_of_characters(10));
    view.listen(edit, [name, row, &edit] {
        name->show_name(qt(edit.DisplayName.get()));
        row->setVisible(edit.Visible);
    });
    return row;
}

} // namespace desktop
