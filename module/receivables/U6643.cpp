// Sum up what each supplier was owed, charged and was paid in a range of days.
#include "module/receivables/U6643.h"

#include "module/receivables/U6642.h"
#include "module/receivables/U6643f.h"

namespace module {

TF6643* F6643 = nullptr;

namespace {

constexpr TradeReportKind kind = {
    .caption = "采购付款汇总表",
    .open_caption = "打开明细表",
    .nothing_chosen = no_sums_asked_for,
    .tip = "操作提示：【双击/回车】打开明细表，【空格/F3】重新筛选",
};

} // namespace

TF6643::TF6643(TForm* parent) : PartySummary(parent, payables, kind) {}

std::unique_ptr<TFrm_Sys_Filter> TF6643::CreateFilter() {
    auto dialog = std::make_unique<TF6643F>(this);
    F6643F = dialog.get();
    return dialog;
}

const PartyRangeFilter* TF6643::Conditions() const {
    return F6643F;
}

PartyDetail* TF6643::NewDetail() {
    return new TF6642(this);
}

} // namespace module
