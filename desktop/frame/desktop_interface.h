// The host's door to the person, opened by the desktop.
#pragma once

#include <QPointer>

#include <vector>

#include "desktop/dialogs/progress_dialog.h"
#include "desktop/frame/main_window.h"
#include "host/ports/user_interface.h"

namespace desktop {

class FormDialog;

class DesktopInterface : public host::UserInterface {
public:
    void set_window(MainWindow* window) { window_ = window; }

    void show(host::TForm& form) override;
    void show_modal(host::TForm& form) override;
    void forget(host::TForm& form) override;
    void inform(const std::string& text) override;
    bool ask(const std::string& text) override;
    void popup(host::TPopupMenu& menu, host::TControl& at) override;
    std::optional<std::string> choose_file_to_save(const std::string& title,
                                                   const std::string& suggested,
                                                   const std::vector<host::FileKind>&) override;
    bool progress(const std::string& what, std::int64_t done, std::int64_t total) override;
    bool offers_printing() const override { return true; }
    void print(const host::PaperDocument& document, bool preview) override;
    void set_clipboard(const std::string& text) override;
    void repaint_frame() override;

private:
    QWidget* widget_of(const host::TControl& control) const;
    QPointer<MainWindow> window_;
    std::vector<FormDialog*> dialogs_; // modal forms, the innermost last
    ProgressDialog progress_;
};

} // namespace desktop
