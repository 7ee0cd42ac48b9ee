// What the pickers of a voucher line share: a search box over the rows that fit.
#include "module/vouchers/voucher_picker.h"

#include "module/refuse.h"

namespace module {

bool move_among_rows(TClientDataSet& rows, const Key& key) {
    if (key.code == KeyCode::Down && rows.RecNo() + 1 < rows.RecordCount()) rows.Next();
    if (key.code == KeyCode::Up && rows.RecNo() > 0) rows.Prior();
    return key.code == KeyCode::Down || key.code == KeyCode::Up;
}

VoucherPicker::VoucherPicker(TForm* parent) : TFrm_Base_Dialog(parent) {
    PreferredWidth = 80; // full names of accounts with two parents
    DBGridEh.ReadOnly = true;
    DBGridEh.EmptyText = "没有相符的内容";
    DBGridEh.OnDblClick = [this] { btn_ok.Click(); };
    btn_ok.Default = true;
}

void VoucherPicker::bind(TEdit& search, TButton& insert) {
    search_ = &search;
    insert_ = &insert;
    search.OnChange = [this] { search_changed(); };
    insert.KeyHint = "Insert";
    insert.OnClick = [this] { BTN_INSClick(); };
}

void VoucherPicker::start_search() {
    search_->Text = "";
    search_changed();
    search_->SetFocus();
}

void VoucherPicker::FormKeyDown(Key& key) {
    if (key.code == KeyCode::Insert) {
        key = {};
        return insert_->Click();
    }
    if (move_among_rows(AdoQry_Main, key)) key = {};
    TFrm_Base_Dialog::FormKeyDown(key);
}

void VoucherPicker::take_row() {
    if (AdoQry_Main.IsEmpty()) refuse("没有可选的" + Caption.get() + "!请改写检索内容。");
    hand_over();
}

void VoucherPicker::BTN_INSClick() {
    take_row();
}

void VoucherPicker::btn_okClick() {
    take_row();
    TFrm_Base_Dialog::btn_okClick();
}

} // namespace module
