// What the reports on balances with customers and suppliers share: calls, words, drill-down.
#include "module/receivables/party_balances.h"

#include "host/controls/grid_groups.h"
#include "host/printing/paper.h"
#include "host/values/sql_text.h"
#include "module/entry/open_document.h"
#include "module/opening.h"
#include "module/refuse.h"

namespace module {

// ---- opening ----

PartyReport::PartyReport(TForm* parent, const TradeSide& side, const TradeReportKind& kind)
    : TradeReport(parent, kind), side_(side) {
    KeyField = "KH_GYS_ID";
    const TradeCode& party = side.parties;
    AddColumn("KH_GYS_ID", party.code_title, 10);
    AddColumn("KG_NAME", std::string(party.what) + "简称", -1);
}

PartyDetail::PartyDetail(TForm* parent, const TradeSide& side, const TradeReportKind& kind)
    : PartyReport(parent, side, kind) {
    SumFields = "A,B,C,F,D";
    DBGridEh.Columns.front().Tag = group_tag;
    AddColumn("BDATE", "日期", 10);
    AddColumn("NOID", "单号", 14);
    AddColumn("MNAME", "单据类型", 10);
    AddAmountColumn("A", side.opening, 12);
    AddAmountColumn("B", side.added, 12);
    AddAmountColumn("C", side.settled, 12);
    AddAmountColumn("F", side.discount, 10);
    AddAmountColumn("D", side.closing, 12);
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("mytype", FieldType::Integer); // function of the document, 0 for none
}

void PartyDetail::ShowDocuments(const std::string& statement, const std::string& party,
                                const std::string& conditions) {
    SetTabTitle(Caption.get() + " " + party);
    ShowStatement(side().detail_function, statement, conditions);
}

PartySummary::PartySummary(TForm* parent, const TradeSide& side, const TradeReportKind& kind)
    : PartyReport(parent, side, kind) {
    SumFields = "A,B,C,D";
    AddAmountColumn("A", side.opening, 18);
    AddAmountColumn("B", side.added, 18);
    AddAmountColumn("C", side.settled_in_all, 18);
    AddAmountColumn("D", side.closing, 18);
}

// ---- rows ----

std::unique_ptr<PaperDocument> PartyReport::MakeDocument() {
    if (SqlText.empty()) refuse(no_sums_asked_for);
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
        detail.ShowDocuments(statement, party,
                             std::string(" ●") + side().parties.what + ":" + party + " " + name +
                                 "     ●日期:" + days.told);
    });
}

} // namespace module
