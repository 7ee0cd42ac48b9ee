// What the detailed ledger and the journal share: a line a voucher line, with its running balance.
#include "module/ledgers/detailed_ledger.h"

#include "host/controls/grid_groups.h"
#include "module/entry/U6600.h"

namespace module {

namespace {

constexpr std::int32_t vouchers = 661;

} // namespace

// ---- opening ----

DetailedLedger::DetailedLedger(TForm* parent, const DetailedLedgerKind& kind)
    : LedgerForm(parent, kind.form) {
    AddColumn("BDATE", "凭证日期", 11);
    AddColumn("PZZ", "凭证字", 10); // word and number
    AddColumn("ZY", "摘要", -1);
    add_own_column(kind.after_summary);
    AddAmountColumn("J", "借方金额");
    AddAmountColumn("D", "贷方金额");
    add_own_column(kind.before_balance);
    AddAmountColumn("E", "余额");
    if (kind.before_balance.field == nullptr) AddColumn("FX", "方向").Visible = false;
    add_group_column("KM_ID", "科目");
    add_group_column("KM_NAME", "会计科目");
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("inx", FieldType::Integer); // -1 on openings and totals
    AdoQry_Main.DefineField("NOID", FieldType::Text);   // key of the line's voucher
}

void DetailedLedger::add_own_column(const LedgerColumn& column) {
    if (column.field == nullptr) return;
    AddColumn(column.field, column.title, column.width).Align = column.align;
}

void DetailedLedger::add_group_column(const char* field, const char* title) {
    GridColumn& column = AddColumn(field, title);
    column.Visible = false;
    column.Tag = group_tag;
}

// ---- lines ----

std::string DetailedLedger::voucher_of_row() {
    return AdoQry_Main.FieldByName("PZZ").AsText();
}

BookRow DetailedLedger::book_row(int row) const {
    const TField* kind = AdoQry_Main.FindField("inx");
    const bool total = kind != nullptr && AdoQry_Main.text_at(row, kind->index()) == "-1";
    return total ? BookRow::Opening : BookRow::Added;
}

void DetailedLedger::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    const std::string key = AdoQry_Main.FieldByName("NOID").AsText();
    if (key.empty()) return; // an opening or a total belongs to no voucher
    Trecord record = record_;
    record.user = {key};
    record.set_code(vouchers);
    open_function(record, this);
}

void DetailedLedger::DBGridEhGetCellParams(TField& field, CellParams& params) {
    const TField* kind = AdoQry_Main.FindField("inx");
    if (field.dataset() == &AdoQry_Main && kind != nullptr && kind->AsInteger() == -1) {
        params.Font = clBlue;
        return;
    }
    LedgerForm::DBGridEhGetCellParams(field, params);
}

} // namespace module
