// Enter or change one common summary.
#include "module/masterdata/U6683_1.h"

#include "host/contract/Zpy.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "module/masterdata/list_row.h"

namespace module {

// ---- opening ----

TF6683_1::TF6683_1(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "常用摘要";
    ID.Visible = false;
    ZY.MaxLength = 100;
    ZY.OnExit = [this] { ZYExit(); };
    layout = Rows({Field("摘要", ZY, 48), Buttons({&btn_ok, &btn_Cancel})});
}

void TF6683_1::RefreshData() {
    FirstField = &ZY;
    ID.Text = adding() ? GetGuid() : List->FieldByName("GUID").AsText();
    ZY.Text = adding() ? "" : List->FieldByName("ZY").AsText();
    TFrm_Base_Detail::RefreshData();
}

// ---- leaving a field ----

void TF6683_1::ZYExit() {
    if (!leaving_by_cancel()) CheckBlank(ZY, "摘要");
}

// ---- statements ----

std::string TF6683_1::save_summary() const {
    const std::string summary = quoted(ZY.Text.get());
    const std::string pinyin = quoted(GetPY(ZY.Text));
    if (adding()) {
        return "insert into d6803 (GUID,ZY,pym)ValueS(" + quoted(ID.Text.get()) + "," + summary +
               "," + pinyin + ")";
    }
    return "update d6803 set ZY=" + summary + ",pym=" + pinyin +
           " where GUID=" + quoted(List->FieldByName("GUID").AsText());
}

// ---- saving ----

void TF6683_1::SaveData() {
    saved_ = ExecSql(FunctionCode, ID.Text, Mode, save_summary()) == "Y";
    if (!saved_) return;
    write_list_row(*List, adding(), {{"GUID", ID.Text.get()}, {"ZY", ZY.Text.get()}});
}

} // namespace module
