// Ask for which suppliers and days the payables are summed up.
#include "module/receivables/U6643f.h"

namespace module {

namespace {

constexpr PartyDialog dialog = {
    .side = payables,
    .caption = "采购付款汇总表 · 查询条件",
    .party = "供 应 商：",
    .call = "exec SYS_YF @PARAM=0,@PARAM1=",
};

} // namespace

TF6643F::TF6643F(TForm* parent) : PartyRangeFilter(parent, dialog) {}

} // namespace module
