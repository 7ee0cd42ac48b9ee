// Add up the movements of money by account: opening, in, out, closing.
#include "module/cash/U6650.h"

#include "module/cash/U6650f.h"
#include "module/cash/U6652.h"

namespace module {

TF6650* F6650 = nullptr;

namespace {

constexpr TradeReportKind kind{
    .caption = "现金银行总帐",
    .open_caption = "打开日记帐",
    .nothing_chosen = no_sums_asked_for,
    .tip = "操作提示：【双击/回车】打开该帐户的日记帐，【空格/F3】重新筛选",
};

} // namespace

// ---- opening ----

TF6650::TF6650(TForm* parent) : MoneyReport(parent, kind) {
    AddColumn("JY_ID", "帐户代码", 10);
    AddColumn("JY_NAME", "帐户名称", -1);
    AddAmountColumn("QC", "期初余额", 18);
    AddAmountColumn("INMONEY", "收入", 18);
    AddAmountColumn("OUTMONEY", "支出", 18);
    AddAmountColumn("YE", "期末余额", 18);
    SumFields = "QC,INMONEY,OUTMONEY,YE";
    KeyField = "JY_ID";
}

std::unique_ptr<TFrm_Sys_Filter> TF6650::CreateFilter() {
    auto dialog = std::make_unique<TF6650F>(this);
    F6650F = dialog.get();
    return dialog;
}

// ---- lines ----

void TF6650::DBGridEhDblClick() {
    if (AdoQry_Main.IsEmpty()) return;
    open_daybook_of({AdoQry_Main.FieldByName("JY_ID").AsText(),
                     AdoQry_Main.FieldByName("JY_NAME").AsText()},
                    F6650F->Days(), this);
}

} // namespace module
