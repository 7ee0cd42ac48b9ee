// List every document that moved money, with its kind, and open it.
#include "module/cash/U6653.h"

#include "module/cash/U6653f.h"

namespace module {

TF6653* F6653 = nullptr;

namespace {

constexpr TradeReportKind kind{
    .caption = "收支明细表",
    .open_caption = "打开单据",
    .nothing_chosen = no_rows_asked_for,
    .tip = "操作提示：【双击/回车】打开单据，【空格/F3】重新筛选",
};

} // namespace

// ---- opening ----

TF6653::TF6653(TForm* parent) : MoneyReport(parent, kind) {
    AddColumn("BDATE", "日期", 11);
    AddColumn("MNAME", "单据类型", 13);
    AddColumn("NOID", "单号", 15);
    AddAmountColumn("INMONEY", "收入", 15);
    AddAmountColumn("OUTMONEY", "支出", 15);
    AddColumn("ZY", "摘要", -1);
    AddColumn("KG_NAME", "往来单位", 16);
    AddColumn("BM_NAME", "部门", 10);
    AddColumn("YW_NAME", "业务员", 10);
    show_days_as_dates();
    SumFields = "INMONEY,OUTMONEY";
    OrderFields = "BDATE,C,NOID";
    KeyField = "NOID";
}

std::unique_ptr<TFrm_Sys_Filter> TF6653::CreateFilter() {
    return std::make_unique<TF6653F>(this);
}

// ---- lines ----

void TF6653::DBGridEhDblClick() {
    open_document_of_row();
}

} // namespace module
