// What the reports on money accounts share: the buttons, the words, the way to a row's document.
#include "module/cash/money_report.h"

#include "module/cash/money_document.h"

namespace module {

MoneyReport::MoneyReport(TForm* parent, const MoneyReportKind& kind) : TFrm_Base_Qry(parent) {
    Caption = kind.caption;
    NothingChosen = kind.nothing_chosen;
    Act_Open.Caption = kind.open_caption;
    Act_Open.OnExecute = [this] { DBGridEhDblClick(); };
    TipLabel.Caption = kind.tip;
    DBGridEh.EmptyText = "没有数据，请按 F3 选择查询条件";
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Open, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Rest(DBGridEh), StatusLine({Control(TipLabel)})});
}

void MoneyReport::open_document_of_row() {
    if (AdoQry_Main.IsEmpty()) return;
    open_money_document(AdoQry_Main.FieldByName("C").AsInteger(),
                        AdoQry_Main.FieldByName("NOID").AsText(), this);
}

void MoneyReport::show_days_as_dates() {
    AdoQry_Main.DefineField("C", FieldType::Integer); // kind of the document
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
}

} // namespace module
