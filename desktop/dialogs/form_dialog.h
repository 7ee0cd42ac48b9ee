// A modal form in a window of its own.
#pragma once

#include "desktop/dialogs/panel_dialog.h"

namespace host {
class TForm;
}

namespace desktop {

class FormView;

// Ends when the form's modal result is set or the form is closed; the form decides whether it may.
class FormDialog : public PanelDialog {
public:
    FormDialog(host::TForm& form, QWidget* over);
    host::TForm* form() const;
    FormView& view() const { return *view_; }
    void forget(); // the form goes: the dialog ends
    void show_form();

protected:
    void leave() override;
    void showEvent(QShowEvent* event) override;

private:
    void follow();
    void give_up_rows(int room);
    FormView* view_;
};

} // namespace desktop
