// Opening figures of an account, and whether those of all accounts balance.
#include "module/period/opening_figures.h"

namespace module {

Amount OpeningFigures::year_opening() const {
    return side == "借" ? balance + credits - debits : balance + debits - credits;
}

void BothSides::add(const std::string& side, Amount amount) {
    if (side == "借") debit += amount;
    if (side == "贷") credit += amount;
}

std::string BothSides::verdict() const {
    if (balanced()) return "平衡";
    return debit > credit ? "借方多 " + (debit - credit).to_text()
                          : "贷方多 " + (credit - debit).to_text();
}

} // namespace module
