// Ask for the days and the account of the cash and bank ledger.
#include "module/cash/U6650f.h"

namespace module {

namespace {

constexpr MoneyDialog dialog{.caption = "现金银行总帐 · 查询条件",
                             .statement = "exec SYS_XJ @PARAM=0,@BDATE="};

} // namespace

TF6650F::TF6650F(TForm* parent) : MoneyFilter(parent, dialog) {}

} // namespace module
