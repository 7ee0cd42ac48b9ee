// Shows forms, messages and menus for the host.
#include "desktop/frame/desktop_interface.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QTableView>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/dialogs/form_dialog.h"
#include "desktop/dialogs/message_dialog.h"
#include "desktop/printing/preview_dialog.h"
#include "desktop/printing/print_job.h"
#include "desktop/renderers/form_view.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "host/controls/grid.h"
#include "host/forms/form.h"
#include "host/ports/host.h"

namespace desktop {
namespace {

// A message bears the name of the form it comes from.
QString title_of_active() {
    const host::TForm* form = host::the_host().active;
    return form && !form->Caption->empty() ? qt(form->Caption.get()) : QStringLiteral("帐房");
}

// Below the current cell of a grid, below any other control.
QPoint place_below(QWidget* widget) {
    if (auto* table = widget->findChild<QTableView*>("grid");
        table || (table = qobject_cast<QTableView*>(widget)))
        return table->viewport()->mapToGlobal(
            table->visualRect(table->currentIndex()).bottomLeft());
    return widget->mapToGlobal(QPoint(0, widget->height()));
}

} // namespace

void DesktopInterface::show(host::TForm& form) {
    if (window_) window_->add_form(form);
}

void DesktopInterface::show_modal(host::TForm& form) {
    FormDialog dialog(form, window_in_front());
    dialogs_.push_back(&dialog);
    dialog.show_form();
    std::erase(dialogs_, &dialog);
}

void DesktopInterface::forget(host::TForm& form) {
    for (FormDialog* dialog : dialogs_)
        if (dialog->form() == &form) dialog->forget();
    if (window_) window_->remove_form(form);
}

void DesktopInterface::inform(const std::string& text) {
    progress_.end();
    show_message(title_of_active(), text, window_in_front());
}

bool DesktopInterface::ask(const std::string& text) {
    progress_.end();
    return ask_question(title_of_active(), text, window_in_front());
}

QWidget* DesktopInterface::widget_of(const host::TControl& control) const {
    for (auto dialog = dialogs_.rbegin(); dialog != dialogs_.rend(); ++dialog)
        if (QWidget* widget = (*dialog)->view().widget_of(&control)) return widget;
    FormView* view = window_ ? window_->view_in_front() : nullptr;
    return view ? view->widget_of(&control) : nullptr;
}

void DesktopInterface::popup(host::TPopupMenu& menu, host::TControl& at) {
    if (menu.OnPopup) menu.OnPopup();
    QMenu shown;
    for (host::TAction* item : menu.Items) {
        if (!item) {
            shown.addSeparator();
            continue;
        }
        if (!item->Visible) continue;
        QString text = qt(item->Caption.get());
        if (!item->ShortCut.empty()) text += "\t" + qt(item->ShortCut);
        QAction* action = shown.addAction(text);
        if (!item->Icon.empty()) action->setIcon(icons::menu_icon(item->Icon));
        action->setEnabled(item->Enabled);
        action->setData(QVariant::fromValue(reinterpret_cast<quintptr>(item)));
    }
    QWidget* widget = widget_of(at);
    const QPoint place = widget ? place_below(widget) : QCursor::pos();
    // The item runs after the menu has gone: what it opens must not stand below it.
    if (QAction* chosen = shown.exec(place))
        reinterpret_cast<host::TAction*>(chosen->data().value<quintptr>())->Execute();
}

std::optional<std::string>
DesktopInterface::choose_file_to_save(const std::string& title, const std::string& suggested,
                                      const std::vector<host::FileKind>& kinds) {
    return choose_file(title, suggested, kinds, window_in_front());
}

bool DesktopInterface::progress(const std::string& what, std::int64_t done, std::int64_t total) {
    return progress_.report(what, done, total);
}

// Without a printer the preview stands in: from there a PDF file can be made.
void DesktopInterface::print(const host::PaperDocument& document, bool preview) {
    progress_.end();
    if (!preview) print_document(document, window_in_front());
    if (preview || !printer_at_hand()) PreviewDialog(document, window_in_front()).run();
}

void DesktopInterface::set_clipboard(const std::string& text) {
    QApplication::clipboard()->setText(qt(text));
}

void DesktopInterface::repaint_frame() {
    if (window_) window_->repaint();
}

} // namespace desktop
