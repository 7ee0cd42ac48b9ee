// Ask for the days and the account of the cash and bank daybook.
#include "module/cash/U6652f.h"

namespace module {

namespace {

constexpr MoneyDialog dialog{.caption = "现金银行日记帐 · 查询条件",
                             .statement = "exec SYS_XJ @PARAM=1,@BDATE="};

} // namespace

TF6652F::TF6652F(TForm* parent) : MoneyFilter(parent, dialog) {}

} // namespace module
