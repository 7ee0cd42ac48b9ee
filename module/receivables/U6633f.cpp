// Ask for which customers and days the receivables are summed up.
#include "module/receivables/U6633f.h"

namespace module {

namespace {

constexpr PartyDialog dialog = {
    .side = receivables,
    .caption = "销售收款汇总表 · 查询条件",
    .party = "客    户：",
    .call = "exec SYS_YS  @PARAM=0,@PARAM1=",
};

} // namespace

TF6633F::TF6633F(TForm* parent) : PartyRangeFilter(parent, dialog) {}

} // namespace module
