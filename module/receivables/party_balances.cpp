// What the reports on balances with customers and suppliers share: calls, words, drill-down.
#include "module/receivables/party_balances.h"

#include "host/controls/grid_groups.h"
#include "host/printing/paper.h"
#include "host/values/sql_text.h"
#include "module/entry/open_document.h"
#include "module/opening.h"
#include "module/refuse.h"

namespace module {

namespace {

const char* const nothing_asked_to_print = "您还没选择任何汇总参数,请按【F3】呼出汇总选项!";

} // namespace

// ---- opening ----

PartyReport::PartyReport(TForm* parent, const PartyReportKind& kind)
    : TFrm_Base_Qry(parent), kind_(kind) {
    Caption = kind.caption;
    KeyField = "KH_GYS_ID";
    NothingChosen = kind.nothing_asked;
    Act_Open.Caption = kind.open_caption;
    Act_Open.OnExecute = [this] {
        DBGridEhDblClick();
    };
    TipLabel.Caption = kind.tip;
    DBGridEh.EmptyText = "没有数据，请按 F3 选择查询条件";
    const TradeCode& party = kind.side.parties;
    AddColumn("KH_GYS_ID", party.code_title, 10);
    AddColumn("KG_NAME", std::string(party.what) + "简称", -1);
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Open, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Rest(DBGridEh), StatusLine({Control(TipLabel)})});
}

PartyDetail::PartyDetail(TForm* parent, const PartyReportKind& kind) : PartyReport(parent, kind) {
    SumFields = "A,B,C,F,D";
    DBGridEh.Columns.front().Tag = group_tag;
    AddColumn("BDATE", "日期", 10);
    AddColumn("NOID", "单号", 14);
    AddColumn("MNAME", "单据类型", 10);
    AddAmountColumn("A", kind.side.opening, 12);
    AddAmountColumn("B", kind.side.added, 12);
    AddAmountColumn("C", kind.side.settled, 12);
    AddAmountColumn("F", kind.side.discount, 10);
    AddAmountColumn("D", kind.side.closing, 12);
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("mytype", FieldType::Integer); // function of the document, 0 for none
}

void PartyDetail::ShowStatement(const std::string& statement, const std::string& party,
                                const std::string& conditions) {
    Trecord record;
    record.set_code(side().detail_function);
    Tag = side().detail_function;
    SetTabTitle(Caption.get() + " " + party);
    OpenQuery(record);
    SqlText = statement;
    ConditionLabel.Caption = conditions;
    GetData();
}

PartySummary::PartySummary(TForm* parent, const PartyReportKind& kind)
    : PartyReport(parent, kind) {
    SumFields = "A,B,C,D";
    AddAmountColumn("A", kind.side.opening, 18);
    AddAmountColumn("B", kind.side.added, 18);
    AddAmountColumn("C", kind.side.settled_in_all, 18);
    AddAmountColumn("D", kind.side.closing, 18);
}

// ---- rows ----

std::unique_ptr<PaperDocument> PartyReport::MakeDocument() {
    if (SqlText.empty()) refuse(nothing_asked_to_print);
    return TFrm_Base_Qry::MakeDocument();
}

void PartyDetail::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    const std::int64_t function = AdoQry_Main.FieldByName("mytype").AsInteger();
    if (function == 0) return; // what was open before the first day
    open_document(static_cast<std::int32_t>(function), AdoQry_Main.FieldByName("NOID").AsText(),
                  this);
}

void PartyDetail::DBGridEhGetCellParams(TField& field, CellParams& params) {
    PartyReport::DBGridEhGetCellParams(field, params);
    if (field.dataset() != &AdoQry_Main || AdoQry_Main.FieldByName("mytype").AsInteger() != 0)
        return;
    if (params.Font == clDefault) params.Font = clBlue;
}

// The days are those of the summary's own call, so that both agree to the cent.
void PartySummary::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    const std::string party = AdoQry_Main.FieldByName("KH_GYS_ID").AsText();
    const std::string name = AdoQry_Main.FieldByName("KG_NAME").AsText();
    const AskedDays& days = Conditions()->Days();
    const std::string statement = side().documents_of_party + quoted(days.from) + ",@EDATE=" +
                                  quoted(days.until) + ",@KH_GYS_ID=" + quoted(party);
    open_or_release(NewDetail(), [&](PartyDetail& detail) {
        detail.ShowStatement(statement, party,
                             std::string(" ●") + side().parties.what + ":" + party + " " + name +
                                 "     ●日期:" + days.told);
    });
}

} // namespace module
