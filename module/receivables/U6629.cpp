// Type what each supplier was owed, and had been paid in advance, when the books start.
#include "module/receivables/U6629.h"

namespace module {

TF6629* F6629 = nullptr;

namespace {

constexpr OpeningAmountsKind kind = {
    .caption = "期初应付款",
    .table = "D1103",
    .query = "SELECT D1103.KH_GYS_ID,KG_NAME,FULL_NAME,BEGIN_MONEY, BEGINYS_MONEY, "
             "SUMMONEY,vd641.ym,vd641.ysm,vd641.xjys FROM D1103 INNER JOIN VD641 ON "
             "D1103.KH_GYS_ID=VD641.KH_GYS_ID where D1103.kh_gys_id>'' order by "
             "D1103.KH_GYS_ID",
    .titles = {.code = "供应商编号",
               .advance = "期初预付",
               .opening = "期初应付",
               .difference = "往来应付",
               .open = "应付",
               .advance_left = "预付",
               .net = "实际应付"},
    .negative_advance = "期初预付不可以小于0",
    .negative_opening = "期初应付不可以小于0",
};

} // namespace

TF6629::TF6629(TForm* parent) : OpeningAmounts(parent, kind) {}

} // namespace module
