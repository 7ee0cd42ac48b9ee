// List every document that moved the balance with a supplier, and open it.
#include "module/receivables/U6642.h"

#include "module/receivables/U6642f.h"

namespace module {

TF6642* F6642 = nullptr;

namespace {

constexpr TradeReportKind kind = {
    .caption = "采购付款明细表",
    .open_caption = "打开单据",
    .nothing_chosen = no_rows_asked_for,
    .tip = "操作提示：【双击/回车】打开单据，【空格/F3】重新筛选",
};

} // namespace

TF6642::TF6642(TForm* parent) : PartyDetail(parent, payables, kind) {}

std::unique_ptr<TFrm_Sys_Filter> TF6642::CreateFilter() {
    return std::make_unique<TF6642F>(this);
}

} // namespace module
