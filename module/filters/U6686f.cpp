// Ask for the periods, the accounts and the account level of the general ledger.
#include "module/filters/U6686f.h"

namespace module {

// ---- opening ----

TF6686F::TF6686F(TForm* parent) : AccountRangeFilter(parent, general_ledger_dialog, "999999999") {
    PZZ_H.Min = Amount::from_whole(1);
    PZZ_H.Max = Amount::from_whole(5);
    PZZ_H.set(std::int64_t{1});
    std::vector<LayoutNode> rows = period_and_account_rows();
    rows.insert(rows.end(),
                {Columns({Field("科目级别:", PZZ_H, 10), Text("1 – 5，下次沿用"), Spring()}),
                 Columns({Field("币    别:", ComboBox2, 12), Spring()}), Control(YS), Rule(),
                 Control(Books), Buttons({&btn_ok, &btn_Cancel})});
    layout = Rows(rows);
}

void TF6686F::InitForm() {
    AccountRangeFilter::InitForm();
    Remember(PZZ_H);
}

// ---- statements ----

std::string TF6686F::statement(LedgerCall call) const {
    return general_ledger_call(with_accounts(std::move(call)), PZZ_H.as_integer());
}

std::string TF6686F::more_description() const {
    return "  ●科目级别： " + std::to_string(PZZ_H.as_integer()) + "   ●科目代码：" + accounts_description();
}

} // namespace module
