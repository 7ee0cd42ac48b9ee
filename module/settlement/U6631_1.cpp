// Enter, change or look at one receipt from a customer on one money account.
#include "module/settlement/U6631_1.h"

#include "host/values/sql_text.h"
#include "module/refuse.h"

namespace module {

TF6631_1::TF6631_1(TForm* parent) : SingleAccountForm(parent, receipt_kind) {}

// A receipt made in any currency keeps its split when it is changed here: the money on the accounts
// would no longer be the money received.
void TF6631_1::check_amounts() {
    SingleAccountForm::check_amounts();
    if (Mode != "Edit") return;
    TClientDataSet split;
    opensql(split, FunctionCode, "SELECT MONEY FROM D631B WHERE NOID=" + quoted(Key));
    if (split.IsEmpty() || split.Sum("MONEY") == MONEY.value()) return;
    MONEY.SetFocus();
    refuse("本单的收款 " + split.Sum("MONEY").to_text() +
           " 已分到各帐户，实收金额请在“销售收款 · 外币”（功能 630）中修改!");
}

} // namespace module
