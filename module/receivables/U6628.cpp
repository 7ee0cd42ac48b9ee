// Type what each customer owed, and had paid in advance, when the books start.
#include "module/receivables/U6628.h"

namespace module {

TF6628* F6628 = nullptr;

namespace {

constexpr OpeningAmountsKind kind = {
    .caption = "期初应收款",
    .table = "D1102",
    .query = "SELECT D1102.KH_GYS_ID,KG_NAME,FULL_NAME,BEGIN_MONEY, BEGINYS_MONEY, "
             "SUMMONEY,vd631.ym,vd631.ysm,vd631.xjys FROM D1102 INNER JOIN VD631 ON "
             "D1102.KH_GYS_ID=VD631.KH_GYS_ID order by D1102.KH_GYS_ID",
    .titles = {.code = "客户编号",
               .advance = "期初预收",
               .opening = "期初应收",
               .difference = "往来应收",
               .open = "应收",
               .advance_left = "预收",
               .net = "实际应收"},
    .negative_advance = "期初预收不可以小于0",
    .negative_opening = "期初应收不可以小于0",
};

} // namespace

TF6628::TF6628(TForm* parent) : OpeningAmounts(parent, kind) {}

} // namespace module
