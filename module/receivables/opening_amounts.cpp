// What the opening amounts of customers and suppliers share: typed, checked, saved as a whole.
#include "module/receivables/opening_amounts.h"

#include "host/values/text.h"
#include "module/refuse.h"

namespace module {

namespace {

const char* const already_started = "帐套已启用，期初数据不能被更改!";
const char* const typed_fields[] = {"BEGINYS_MONEY", "BEGIN_MONEY"};

} // namespace

// ---- opening ----

OpeningAmounts::OpeningAmounts(TForm* parent, const OpeningAmountsKind& kind)
    : TFrm_Base_Inner(parent), kind_(kind) {
    Caption = kind.caption;
    hide({&Act_Add, &Act_Delete}); // parties come and go in the modules that keep them
    ReadOnlyHint.Caption = already_started;
    ReadOnlyHint.Visible = false;
    build_columns();
    layout = Rows({ToolBar({&Act_Save, nullptr, &Act_Refresh, nullptr, &Act_Print, &Act_Preview,
                            &Act_Export, nullptr, &Act_Quit}),
                   Control(ReadOnlyHint), Rest(DBGridEh)});
}

void OpeningAmounts::build_columns() {
    const auto& titles = kind_.titles;
    AddColumn("KH_GYS_ID", titles.code, 10).ReadOnly = true;
    AddColumn("KG_NAME", "简称", 14).ReadOnly = true;
    AddColumn("FULL_NAME", "全称", -1).ReadOnly = true;
    AddAmountColumn("BEGINYS_MONEY", titles.advance, 12);
    AddAmountColumn("BEGIN_MONEY", titles.opening, 12);
    AddAmountColumn("SUMMONEY", titles.difference, 12).ReadOnly = true;
    AddAmountColumn("YM", titles.open, 12).ReadOnly = true;
    AddAmountColumn("YSM", titles.advance_left, 12).ReadOnly = true;
    AddAmountColumn("XJYS", titles.net, 12).ReadOnly = true;
    for (const char* field : typed_fields) {
        AdoQry_Main.FieldByName(field).OnSetText = [this](TField& amount, const std::string& text) {
            AdoQry_MainBEGINYS_MONEYSetText(amount, text);
        };
    }
    AdoQry_Main.BeforeInsert = [] { Abort(); };
    DBGridEh.AppendOnEnter = false;
    DBGridEh.SelectField("BEGINYS_MONEY");
}

void OpeningAmounts::InitForm(const Trecord& record) {
    SqlText = kind_.query;
    TableName = kind_.table;
    KeyField = "KH_GYS_ID";
    SumFields = "BEGIN_MONEY,BEGINYS_MONEY,SUMMONEY,YM,YSM,XJYS";
    TFrm_Base_Inner::InitForm(record);
    if (ReadOnlyHint.Visible) DISPINFO(already_started, 5);
}

void OpeningAmounts::GetData() {
    set_read_only(books_started());
    TFrm_Base_Inner::GetData();
}

bool OpeningAmounts::books_started() const {
    return !Getsysinfo("period").empty();
}

// What the books were opened with stays as it was posted.
void OpeningAmounts::set_read_only(bool started) {
    DBGridEh.ReadOnly = started;
    Act_Save.Enabled = !started;
    ReadOnlyHint.Visible = started;
}

// ---- lines ----

// What is owed on balance follows what is typed.
void OpeningAmounts::AdoQry_MainBEGINYS_MONEYSetText(TField& field, const std::string& typed) {
    AdoQry_Main.Edit();
    SetFloatText(field, trimmed(typed).empty() ? "0" : typed);
    field.SetValue(field.AsAmount().rounded(2));
    const auto amount = [this](const char* name) {
        return AdoQry_Main.FieldByName(name).AsAmount();
    };
    AdoQry_Main.FieldByName("SUMMONEY").SetValue(amount("BEGIN_MONEY") - amount("BEGINYS_MONEY"));
}

// ---- saving ----

void OpeningAmounts::SaveData() {
    if (books_started()) refuse(already_started);
    refuse_negative_amounts();
    TFrm_Base_Inner::SaveData();
}

// The cell that has to be corrected becomes the current one.
void OpeningAmounts::refuse_negative_amounts() {
    const std::pair<const char*, const char*> rules[] = {
        {"BEGINYS_MONEY", kind_.negative_advance}, {"BEGIN_MONEY", kind_.negative_opening}};
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        for (const auto& [field, reason] : rules) {
            const Value value =
                AdoQry_Main.value_at(row, AdoQry_Main.FieldByName(field).index());
            const auto* amount = std::get_if<Amount>(&value);
            if (amount == nullptr || !amount->is_negative()) continue;
            DBGridEh.set_row(row);
            DBGridEh.SelectField(field);
            refuse(reason);
        }
    }
}

} // namespace module
