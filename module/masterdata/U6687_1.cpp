// Enter or change one income or expense category and the account it belongs to.
#include "module/masterdata/U6687_1.h"

#include "host/contract/U_linkedit.h"
#include "host/contract/Zpy.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/masterdata/Ulink_6801.h"
#include "module/masterdata/category_kinds.h"
#include "module/masterdata/list_row.h"
#include "module/masterdata/new_code.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

TF6687_1::TF6687_1(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "收支类别";
    PreferredWidth = 68; // full names of accounts stand beside their codes
    SZLB_CLASS.Items = std::vector<std::string>(category_kinds.begin(), category_kinds.end());
    Edit1.MaxLength = 4;
    SZLB_NAME.MaxLength = 20;
    KM_ID.MaxLength = 18;
    Edit1.OnExit = [this] { Edit1Exit(); };
    SZLB_NAME.OnExit = [this] { SZLB_NAMEExit(); };
    KM_ID.OnExit = [this] { CheckId(); };
    KM_ID.OnButtonClick = [this] { BM_IDButtonClick(); };
    KM_ID.OnChange = [this] { KM_ID.DisplayName = ""; }; // the name belongs to the code before
    OfferCodes(KM_ID, "SELECT KM_ID,KM_NAME2,PYM FROM V6801 ORDER BY KM_ID");
    layout = Rows({Field("收支类别", SZLB_CLASS, 14), Field("代    码", Edit1, 8),
                   Field("名    称", SZLB_NAME, 28), Field("科目代码", KM_ID, 18), Control(T),
                   Buttons({&btn_ok, &btn_Cancel})});
}

TF6687_1::~TF6687_1() = default;

void TF6687_1::RefreshData() {
    FirstField = adding() ? static_cast<TWinControl*>(&SZLB_CLASS) : &SZLB_NAME;
    LockedField = adding() ? nullptr : &Edit1;
    const bool blank = Mode == "Add";
    const auto text = [&](const char* field) {
        return blank ? std::string() : List->FieldByName(field).AsText();
    };
    SZLB_CLASS.set_index(
        blank ? KindOffered : static_cast<int>(List->FieldByName("SZLB_CLASS").AsInteger()));
    Edit1.Text = text("SZLB");
    SZLB_NAME.Text = text("SZLB_name");
    T.Checked = !blank && List->FieldByName("t").AsBoolean();
    KM_ID.Text = text("km_ID");
    KM_ID.DisplayName = text("KM_NAME_NEW");
    TFrm_Base_Detail::RefreshData();
}

// ---- leaving a field ----

void TF6687_1::Edit1Exit() {
    if (leaving_by_cancel() || !adding()) return;
    require_new_code(*this, Edit1, "收支代码",
                     "select * from D6804 where SZLB=" + quoted(Edit1.Text.get()),
                     "收支代码已登记!");
}

void TF6687_1::SZLB_NAMEExit() {
    if (!leaving_by_cancel()) CheckBlank(SZLB_NAME, "名称");
}

void TF6687_1::CheckId() {
    if (leaving_by_cancel()) return;
    CheckBlank(KM_ID, "科目代码");
    TClientDataSet account;
    opensql(account, FunctionCode,
            "SELECT KM_ID,KM_NAME_NEW FROM V6801 WHERE KM_ID=" + quoted(KM_ID.Text.get()));
    if (account.IsEmpty()) {
        KM_ID.SetFocus();
        refuse("科目“" + KM_ID.Text.get() + "”不存在!请按 F4 选择科目。");
    }
    KM_ID.Text = account.FieldByName("KM_ID").AsText();
    KM_ID.DisplayName = account.FieldByName("KM_NAME_NEW").AsText();
}

void TF6687_1::BM_IDButtonClick() {
    if (!FLINK_6801) FLINK_6801 = std::make_unique<TFLINK_6801>(this);
    FLINK_6801->FunctionCode = FunctionCode;
    FLINK_6801->init(KM_ID, "");
    FLINK_6801->ShowModal();
}

// ---- checking ----

// The kind is asked for when all is entered, not when it is left: the fields may be filled in any
// order.
bool TF6687_1::CheckAll() {
    CheckBlank(SZLB_CLASS, "收支类别");
    return TFrm_Base_Detail::CheckAll();
}

// ---- statements ----

std::string TF6687_1::save_category() const {
    const std::string kind = std::to_string(SZLB_CLASS.item_index());
    const std::string name = quoted(SZLB_NAME.Text.get());
    const std::string pinyin = quoted(GetPY(trimmed(SZLB_NAME.Text.get())));
    const std::string account = quoted(KM_ID.Text.get());
    if (adding()) {
        return "INSERT INTO D6804 (SZLB_CLASS,SZLB,SZLB_NAME, PYM,KM_ID,  T) ValueS(" + kind + "," +
               quoted(Edit1.Text.get()) + "," + name + "," + pinyin + "," + account + "," +
               boltos(T.Checked) + ")";
    }
    return "update D6804 set SZLB_NAME=" + name + ",PYM=" + pinyin +
           ",SZLB_CLASS=" + quoted(kind) + ",KM_ID=" + account + ",t=" + boltos(T.Checked) +
           " where SZLB=" + quoted(List->FieldByName("SZLB").AsText());
}

// ---- saving ----

void TF6687_1::SaveData() {
    saved_ = ExecSql(FunctionCode, Edit1.Text, Mode, save_category()) == "Y";
    if (!saved_) return;
    write_list_row(*List, adding(),
                   {{"SZLB_CLASS", std::int64_t{SZLB_CLASS.item_index()}},
                    {"SZLB_CLASSN", SZLB_CLASS.Text.get()},
                    {"SZLB", Edit1.Text.get()},
                    {"SZLB_NAME", SZLB_NAME.Text.get()},
                    {"T", T.Checked.get()},
                    {"KM_ID", KM_ID.Text.get()},
                    {"KM_NAME_NEW", KM_ID.DisplayName.get()}});
}

} // namespace module
