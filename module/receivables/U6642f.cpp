// Ask for which suppliers and days the payables are listed document by document.
#include "module/receivables/U6642f.h"

namespace module {

namespace {

constexpr PartyDialog dialog = {
    .side = payables,
    .caption = "采购付款明细表 · 查询条件",
    .party = "供 应 商：",
    .call = "exec SYS_YF @PARAM=1,@PARAM1=",
};

} // namespace

TF6642F::TF6642F(TForm* parent) : PartyRangeFilter(parent, dialog) {}

} // namespace module
