// Enter or change one voucher word, its printed title and whether it is the default.
#include "module/masterdata/U6682_1.h"

#include "host/contract/Zpy.h"
#include "host/dataset/client_dataset.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/masterdata/list_row.h"
#include "module/masterdata/new_code.h"

namespace module {

// ---- opening ----

TF6682_1::TF6682_1(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "凭证字";
    Edit1.MaxLength = 10;
    PZZ_PRINT.MaxLength = 20;
    Edit1.OnExit = [this] { Edit1Exit(); };
    PZZ_PRINT.OnExit = [this] { PZZ_PRINTExit(); };
    layout = Rows({Field("凭 证 字", Edit1, 12), Field("打印标题", PZZ_PRINT, 24), Control(T),
                   Buttons({&btn_ok, &btn_Cancel})});
}

void TF6682_1::RefreshData() {
    FirstField = adding() ? &Edit1 : &PZZ_PRINT;
    LockedField = adding() ? nullptr : &Edit1;
    const bool blank = Mode == "Add";
    Edit1.Text = blank ? "" : List->FieldByName("PZZ").AsText();
    PZZ_PRINT.Text = blank ? "" : List->FieldByName("PZZ_PRINT").AsText();
    T.Checked = !blank && List->FieldByName("T").AsBoolean();
    TFrm_Base_Detail::RefreshData();
}

// ---- leaving a field ----

void TF6682_1::Edit1Exit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_code(*this, Edit1, "凭证字",
                     "select pzz from d6802 where pzz=" + quoted(Edit1.Text.get()),
                     "凭证字已登记!");
}

void TF6682_1::PZZ_PRINTExit() {
    if (!leaving_by_cancel()) CheckBlank(PZZ_PRINT, "打印标题");
}

// ---- statements ----

std::string TF6682_1::save_word() const {
    const std::string title = quoted(PZZ_PRINT.Text.get());
    const std::string pinyin = quoted(GetPY(trimmed(PZZ_PRINT.Text.get())));
    const std::string flag = T.Checked ? "1" : "0";
    const std::string clear_the_default = T.Checked ? "update d6802 set t=0;" : "";
    if (adding()) {
        return clear_the_default + "insert into d6802 (PZZ,PZZ_PRINT,T,pym)ValueS(" +
               quoted(Edit1.Text.get()) + "," + title + "," + flag + "," + pinyin + ")";
    }
    return clear_the_default + "update d6802 set PZZ_PRINT=" + title + ",PYM=" + pinyin +
           ",T=" + flag + " where PZZ=" + quoted(List->FieldByName("PZZ").AsText());
}

// ---- saving ----

void TF6682_1::SaveData() {
    saved_ = ExecSql(FunctionCode, Edit1.Text, Mode, save_word()) == "Y";
    if (!saved_) return;
    write_list_row(*List, adding(),
                   {{"PZZ", Edit1.Text.get()},
                    {"PZZ_PRINT", PZZ_PRINT.Text.get()},
                    {"T", std::int64_t{T.Checked ? 1 : 0}}});
}

} // namespace module
