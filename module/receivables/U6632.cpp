// List every document that moved the balance with a customer, and open it.
#include "module/receivables/U6632.h"

#include "module/receivables/U6632f.h"

namespace module {

TF6632* F6632 = nullptr;

namespace {

constexpr TradeReportKind kind = {
    .caption = "销售收款明细表",
    .open_caption = "打开单据",
    .nothing_chosen = no_rows_asked_for,
    .tip = "操作提示：【双击/回车】打开单据，【空格/F3】重新筛选",
};

} // namespace

TF6632::TF6632(TForm* parent) : PartyDetail(parent, receivables, kind) {}

std::unique_ptr<TFrm_Sys_Filter> TF6632::CreateFilter() {
    return std::make_unique<TF6632F>(this);
}

} // namespace module
