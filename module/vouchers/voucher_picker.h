// What the pickers of a voucher line share: a search box over the rows that fit.
#pragma once

#include "host/controls/grid.h"
#include "host/forms/Base_Dialog.h"
#include "module/host_names.h"

namespace module {

// The arrow keys up and down go among the rows, and no further; true when the key was one of them.
bool move_among_rows(TClientDataSet& rows, const Key& key);

// Arrow keys move among the rows while the search box keeps the focus; Enter or a double click
// takes the row and closes, Insert fills the line and stays open. A picker has a search box and an
// insert button of its own names and says what taking a row means.
class VoucherPicker : public TFrm_Base_Dialog {
public:
    explicit VoucherPicker(TForm* parent);
    TClientDataSet AdoQry_Main; // rows that fit what is searched for
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};
    void btn_okClick() override;
    void BTN_INSClick(); // fills the line and stays open

protected:
    void FormKeyDown(Key& key) override;
    void bind(TEdit& search, TButton& insert);
    void start_search(); // blank, with the focus in the box
    virtual void search_changed() = 0;
    virtual void hand_over() = 0; // the current row goes to the calling line

private:
    void take_row();
    TEdit* search_ = nullptr;
    TButton* insert_ = nullptr;
};

} // namespace module
