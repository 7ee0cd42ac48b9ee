// Runs a modal form until it has its result.
#include "desktop/dialogs/form_dialog.h"

#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/renderers/edit_sync.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/layout_builder.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/forms/form.h"

namespace desktop {
namespace {

// "试算平衡表" opens "查询条件": the caption of a dialog is its form's own.
QString caption_of(const host::TForm& form) { return qt(form.Caption.get()); }

bool holds_a_grid(const host::LayoutNode& node) {
    return node.kind == host::LayoutNode::Kind::Rest ||
           std::any_of(node.children.begin(), node.children.end(), holds_a_grid);
}

} // namespace

FormDialog::FormDialog(host::TForm& form, QWidget* over)
    : PanelDialog(caption_of(form), over), view_(new FormView(form, this)) {
    setObjectName("form-dialog");
    body()->addWidget(view_, 1);
    const int least = form.PreferredWidth > 0 ? width_of_characters(form.PreferredWidth) : 360;
    // A document or list shown modally needs the room of a window.
    const bool wide = kind_of(form.layout) != FormKind::Dialog;
    // A grid wants a dozen rows, so that a person sees what there is to choose from.
    const int height = wide ? 600 : holds_a_grid(form.layout) ? 540 : 0;
    setMinimumSize(wide ? std::max(least, 960) : least, height);
    // Beside many fields the grid still shows eight rows.
    if (!wide)
        for (auto* grid : view_->findChildren<QTableView*>("grid"))
            grid->setMinimumHeight(token::header + 8 * token::grid_row);
    view_->listen(form, [this] { follow(); });
}

host::TForm* FormDialog::form() const { return view_->form(); }

void FormDialog::follow() {
    const host::TForm* form = view_->form();
    if (!form) return;
    if (form->ModalResult.get() != 0 || form->Closed()) done(form->ModalResult);
}

void FormDialog::show_form() {
    run();
    view_->release();
}

void FormDialog::forget() {
    view_->release();
    if (isVisible()) done(2);
}

void FormDialog::leave() {
    if (!view_->form()) return done(2);
    view_->run([this] { view_->form()->Close(); });
    follow();
}

// In a small window the grid gives up rows, down to three: what stands below it must be seen.
void FormDialog::give_up_rows(int room) {
    int excess = sizeHint().expandedTo(minimumSize()).height() - room;
    if (excess <= 0) return;
    setMinimumHeight(std::min(minimumHeight(), room));
    for (auto* grid : view_->findChildren<QTableView*>("grid")) {
        const int least = token::header + 3 * token::grid_row;
        const int given = std::clamp(grid->minimumHeight() - least, 0, excess);
        grid->setMinimumHeight(grid->minimumHeight() - given);
        excess -= given;
    }
    layout()->activate();
    setMaximumHeight(std::max(room, layout()->minimumSize().height()));
}

void FormDialog::showEvent(QShowEvent* event) {
    if (parentWidget()) give_up_rows(parentWidget()->window()->height());
    PanelDialog::showEvent(event);
    QTimer::singleShot(0, view_, [this] {
        view_->setFocus();
        view_->sync_focus();
    });
}

} // namespace desktop
