// Allocate the cash of one voucher to cash-flow items; the voucher saves it.
#include "module/vouchers/U6661_5.h"

#include "host/controls/amount_column.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/vouchers/cash_allocation.h"

namespace module {
namespace {

// The columns before J are never entered.
constexpr int first_amount_column = 2;

// "流入 300.00", "流出 20.00"; "0.00" when nothing came or went.
std::string direction_text(Amount change) {
    if (change.is_zero()) return "0.00";
    return change.is_negative() ? "流出 " + (-change).to_text() : "流入 " + change.to_text();
}

// While rows are loaded no person changes them, whatever way the loading ends.
class Loading {
public:
    explicit Loading(bool& mark) : mark_(mark) { mark_ = true; }
    ~Loading() { mark_ = false; }
    Loading(const Loading&) = delete;
    Loading& operator=(const Loading&) = delete;

private:
    bool& mark_;
};

// Whether an item carries nothing, as most do.
bool is_blank(const TClientDataSet& items, int row) {
    const TClientDataSet::Peek peek(items, row);
    return items.FieldByName("J").IsNull() && items.FieldByName("D").IsNull();
}

} // namespace

// ---- opening ----

TF6661_5::TF6661_5(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "现金流量金额分配";
    PreferredWidth = 110;
    build_columns();
    GRID2.OnColEnter = [this] { GRID2ColEnter(); };
    // The items are those of the books: none is added here.
    AdoQry_Main.BeforeInsert = [] { Abort(); };
    AdoQry_Main.OnDataChange = [this](TField* field) {
        if (loading_) return;
        refresh_hint();
        if (field && save_) save_->Enabled = true;
    };
    layout =
        Rows({Control(CashHint), Rest(GRID2),
              Text("流入填借方,流出填贷方;  = 填入还没有分配的金额;  全部清空时保留原来的分配"),
              Buttons({&btn_ok, &btn_Cancel})});
}

void TF6661_5::build_columns() {
    AdoQry_Main.DefineField("ID", FieldType::Text, 20).ReadOnly = true;
    AdoQry_Main.DefineField("XJLL", FieldType::Text, 100).ReadOnly = true;
    for (const char* side : {"J", "D"}) {
        TField& amount = AdoQry_Main.DefineField(side, FieldType::Amount);
        amount.DisplayFormat = "0.00";
        amount.OnSetText = [this](TField& field, const std::string& typed) {
            amount_typed(field, typed);
        };
    }
    GridColumn item{.FieldName = "ID", .Title = "项目代号", .Width = 10, .ReadOnly = true};
    GridColumn name{.FieldName = "XJLL", .Title = "现金流量项目", .Width = -1, .ReadOnly = true};
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    GRID2.Columns = {item, name, amount_column("J", "流入金额(借)", 16),
                     amount_column("D", "流出金额(贷)", 16)};
    GRID2.AppendOnEnter = false;
    GRID2.EmptyText = "没有可分配的现金流量项目,请先在现金流量项目中增加。";
}

void TF6661_5::initnoid(const std::string& NOID, const std::string& mode) {
    const Loading loading(loading_);
    opensql(AdoQry_Main, FunctionCode, select_allocation(NOID));
    AdoQry_Main.SortBy("ID", false);
    Mode = mode;
    noid_ = NOID;
    confirmed_ = false;
    as_loaded_ = replace_allocation(NOID, AdoQry_Main);
    const bool adding = mode != "Edit" && mode != "ReadOnly";
    for (int row = 0; adding && row < AdoQry_Main.RecordCount(); ++row) {
        if (is_blank(AdoQry_Main, row)) continue;
        AdoQry_Main.GotoRow(row);
        AdoQry_Main.Edit();
        AdoQry_Main.FieldByName("J").Clear();
        AdoQry_Main.FieldByName("D").Clear();
        AdoQry_Main.Post();
    }
    AdoQry_Main.First();
    AdoQry_Main.MarkSaved();
    GRID2.ReadOnly = mode == "ReadOnly";
}

void TF6661_5::forget() {
    AdoQry_Main.Close();
    noid_.clear();
    confirmed_ = false;
}

void TF6661_5::FormShow() {
    TFrm_Base_Detail::FormShow();
    SetFocusTo(GRID2);
    GRID2.SelectField("J");
}

bool TF6661_5::allocate(Amount cash_change) {
    cash_change_ = cash_change;
    saved_ = false;
    refresh_hint();
    TClientDataSet before;
    before.CopyFrom(AdoQry_Main);
    AdoQry_Main.MarkSaved();
    const bool could_save = save_ && save_->Enabled;
    if (ShowModal() == mrOk) {
        confirmed_ = true;
        return AdoQry_Main.Modified();
    }
    GRID2.cancel_edit();
    put_back(before);
    if (save_) save_->Enabled = could_save;
    return false;
}

// What was typed and then not wanted is gone; what was typed before stays.
void TF6661_5::put_back(const TClientDataSet& before) {
    const Loading loading(loading_);
    AdoQry_Main.Cancel();
    for (int row = 0; row < before.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(before, row);
        if (!AdoQry_Main.Locate("ID", before.FieldByName("ID").AsText())) continue;
        AdoQry_Main.Edit();
        for (const char* side : {"J", "D"})
            AdoQry_Main.FieldByName(side).SetValue(before.FieldByName(side).AsValue());
        AdoQry_Main.Post();
    }
    AdoQry_Main.First();
    AdoQry_Main.MarkSaved();
}

bool TF6661_5::has_unsaved_work() const {
    return Shown() && !saved_ && (AdoQry_Main.Modified() || GRID2.editing());
}

// ---- lines ----

void TF6661_5::GRID2ColEnter() {
    if (GRID2.column() >= first_amount_column) return;
    GRID2.SelectField("J");
    Abort();
}

void TF6661_5::amount_typed(TField& field, const std::string& typed) {
    if (trimmed(typed) != "=") {
        field.SetConverted(typed);
        if (!field.IsNull()) field.SetValue(field.AsAmount().rounded(2));
        return;
    }
    const Amount left = left_for(field.FieldName);
    if (left <= Amount()) {
        refuse("这一栏没有剩余的金额可以分配!流入填借方,流出填贷方。");
    }
    field.SetValue(left);
}

Amount TF6661_5::allocated() const {
    return AdoQry_Main.Sum("J") - AdoQry_Main.Sum("D");
}

// What the current item would have to carry on the side for all cash to be allocated.
Amount TF6661_5::left_for(const std::string& side) const {
    const Amount left = cash_change_ - allocated();
    const Amount own = AdoQry_Main.FieldByName(side).AsAmount();
    return side == "J" ? left + own : own - left;
}

// Nothing is refused: a transfer between two cash accounts needs no allocation, and a voucher may
// be allocated later.
void TF6661_5::refresh_hint() {
    const Amount left = cash_change_ - allocated();
    CashHint.Caption = "本凭证现金净额 " + direction_text(cash_change_) + "    已分配 " +
                       direction_text(allocated()) + "    未分配 " + direction_text(left);
    CashHint.FontColor = left.is_zero() ? clDefault : 255;
}

// ---- statements ----

std::string TF6661_5::getsql(const std::string& NOID) const {
    return loaded() ? replace_allocation(NOID, AdoQry_Main) : "";
}

bool TF6661_5::has_amounts() const {
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(AdoQry_Main, row);
        for (const char* side : {"J", "D"})
            if (!AdoQry_Main.FieldByName(side).AsAmount().is_zero()) return true;
    }
    return false;
}

bool TF6661_5::stored_meanwhile() const {
    if (!loaded()) return false;
    TClientDataSet now;
    opensql(now, FunctionCode, select_allocation(noid_));
    now.SortBy("ID", false);
    return replace_allocation(noid_, now) != as_loaded_;
}

// ---- saving ----

// Accepting keeps the amounts in the dialog; the voucher writes them with its own save.
void TF6661_5::SaveData() {
    AdoQry_Main.LeaveRow();
    saved_ = true;
}

} // namespace module
