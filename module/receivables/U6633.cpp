// Sum up what each customer owed, was charged and paid in a range of days.
#include "module/receivables/U6633.h"

#include "module/receivables/U6632.h"
#include "module/receivables/U6633f.h"

namespace module {

TF6633* F6633 = nullptr;

namespace {

constexpr TradeReportKind kind = {
    .caption = "销售收款汇总表",
    .open_caption = "打开明细表",
    .nothing_chosen = no_sums_asked_for,
    .tip = "操作提示：【双击/回车】打开明细表，【空格/F3】重新筛选",
};

} // namespace

TF6633::TF6633(TForm* parent) : PartySummary(parent, receivables, kind) {}

std::unique_ptr<TFrm_Sys_Filter> TF6633::CreateFilter() {
    auto dialog = std::make_unique<TF6633F>(this);
    F6633F = dialog.get();
    return dialog;
}

const PartyRangeFilter* TF6633::Conditions() const {
    return F6633F;
}

PartyDetail* TF6633::NewDetail() {
    return new TF6632(this);
}

} // namespace module
