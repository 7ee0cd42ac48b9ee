// Ask for the periods and the accounts of the detailed ledger.
#include "module/filters/U6685f.h"

namespace module {

// ---- opening ----

TF6685F::TF6685F(TForm* parent)
    : AccountRangeFilter(parent, detailed_ledger_dialog, "999999999999999") {
    std::vector<LayoutNode> rows = period_and_account_rows();
    rows.insert(rows.end(), {Columns({Field("币    别:", ComboBox2, 12), Spring()}), Control(YS),
                             Rule(), Control(Books), Buttons({&btn_ok, &btn_Cancel})});
    layout = Rows(rows);
}

// ---- statements ----

std::string TF6685F::statement(LedgerCall call) const {
    return detailed_ledger_call(with_accounts(std::move(call)));
}

std::string TF6685F::more_description() const {
    return "     ●科目代码：" + accounts_description();
}

} // namespace module
