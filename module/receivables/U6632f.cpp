// Ask for which customers and days the receivables are listed document by document.
#include "module/receivables/U6632f.h"

namespace module {

namespace {

constexpr PartyDialog dialog = {
    .side = receivables,
    .caption = "销售收款明细表 · 查询条件",
    .party = "客    户：",
    .call = "exec SYS_YS @PARAM=1,@PARAM1=",
};

} // namespace

TF6632F::TF6632F(TForm* parent) : PartyRangeFilter(parent, dialog) {}

} // namespace module
