// List every movement of money by account, with the running balance.
#include "module/cash/U6652.h"

#include "host/controls/grid_groups.h"
#include "host/printing/sheet.h"
#include "host/values/sql_text.h"
#include "module/cash/U6652f.h"
#include "module/opening.h"

namespace module {

TF6652* F6652 = nullptr;

namespace {

constexpr std::int32_t code = 652;

constexpr TradeReportKind kind{
    .caption = "现金银行日记帐",
    .open_caption = "打开单据",
    .nothing_chosen = no_rows_asked_for,
    .tip = "操作提示：【双击/回车】打开单据，【空格/F3】重新筛选",
};

} // namespace

// ---- opening ----

TF6652::TF6652(TForm* parent) : MoneyReport(parent, kind) {
    AddColumn("JY_ID", "帐户", 5).Tag = group_tag;
    AddColumn("JY_NAME", "帐户名称", 11).Tag = group_tag;
    AddColumn("BDATE", "日期", 11);
    AddColumn("MNAME", "单据类型", 12);
    AddColumn("NOID", "单号", 15);
    AddColumn("ZY", "摘要", -1);
    AddColumn("KG_NAME", "往来单位", 13);
    AddAmountColumn("INMONEY", "收入", 13);
    AddAmountColumn("OUTMONEY", "支出", 13);
    AddAmountColumn("YE", "余额", 13);
    show_days_as_dates();
    // The balance runs from row to row: in another order it would say nothing.
    DBGridEh.OnTitleClick = [](int) {};
    SumFields = "INMONEY,OUTMONEY";
    KeyField = "NOID";
}

std::unique_ptr<TFrm_Sys_Filter> TF6652::CreateFilter() {
    return std::make_unique<TF6652F>(this);
}

// The end goes into the call as it is, although the call leaves its end out: what moved on the last
// day stands in the ledger's row and not here. The line above the rows says so.
void open_daybook_of(const MoneyAccount& account, const DaysAsked& days, TForm* opener) {
    const std::string statement = "EXEC SYS_XJ @PARAM=1,@BDATE=" + quoted(days.first) +
                                  ",@EDATE=" + quoted(days.last) +
                                  ",@JY_ID=" + quoted(account.code);
    open_or_release(new TF6652(opener), [&](TF6652& daybook) {
        daybook.SetTabTitle(daybook.Caption.get() + " " + account.code);
        daybook.ShowStatement(code, statement,
                              " ●帐户:" + account.code + " " + account.name + "     ●日期:" +
                                  days.first + " 至 " + days.last + " 之前（不含 " + days.last +
                                  " 当日）");
    });
}

// ---- lines ----

void TF6652::DBGridEhDblClick() {
    open_document_of_row();
}

void TF6652::DBGridEhGetCellParams(TField& field, CellParams& params) {
    const TField* document = AdoQry_Main.FindField("NOID");
    if (field.dataset() == &AdoQry_Main && document != nullptr && document->AsText().empty()) {
        params.Font = clBlue;
        return;
    }
    MoneyReport::DBGridEhGetCellParams(field, params);
}

// ---- printing ----

Sheet TF6652::MakeSheet() {
    Sheet sheet = MoneyReport::MakeSheet();
    if (sheet.rows == 0) return sheet; // nothing asked for yet, or nothing moved
    CarriedSums carried{.label = "ZY",
                        .added = {"INMONEY", "OUTMONEY"},
                        .copied = {"JY_ID", "JY_NAME", "YE"}};
    const int document = AdoQry_Main.FieldByName("NOID").index();
    carried.row = [this, document](int row) {
        return AdoQry_Main.text_at(row, document).empty() ? BookRow::Opening : BookRow::Added;
    };
    carried.begins_account = [this](int row) { return begins_group(DBGridEh, row); };
    carried.a_page_each = false;
    sheet.carried = std::move(carried);
    return sheet;
}

} // namespace module
