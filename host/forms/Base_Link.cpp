// A lookup picker: a search box over a grid, Enter takes the row.
#include "host/forms/Base_Link.h"

#include <algorithm>

namespace host {

TBase_Link::TBase_Link(TForm* parent) : TFrm_Base_Dialog(parent) {
    btn_ok.Default = true;
    DBGridEh.ReadOnly = true;
    DBGridEh.AppendOnEnter = false;
    DBGridEh.OnDblClick = [this] { press(btn_ok); };
    layout = Rows({Control(wl_id), Rest(DBGridEh), Buttons({&btn_ok, &btn_Cancel})});
}

void TBase_Link::btn_okClick() {
    if (!AdoQry_Main.IsEmpty()) TFrm_Base_Dialog::btn_okClick();
}

void TBase_Link::FormShow() {
    TFrm_Base_Dialog::FormShow();
    if (wl_id.usable()) SetFocusTo(wl_id);
}

void TBase_Link::FormKeyDown(Key& key) {
    TFrm_Base_Dialog::FormKeyDown(key);
    if (!wl_id.focused() || key.ctrl || key.alt || AdoQry_Main.IsEmpty()) return;
    const int step = key.code == KeyCode::Down ? 1 : key.code == KeyCode::Up ? -1 : 0;
    if (step == 0) return;
    key = {};
    DBGridEh.set_row(std::clamp(AdoQry_Main.RecNo() + step, 0, AdoQry_Main.RecordCount() - 1));
}

} // namespace host
