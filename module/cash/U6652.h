// List every movement of money by account, with the running balance.
#pragma once

#include "module/cash/money_report.h"

namespace module {

struct DaysAsked;

class TF6652 : public MoneyReport {
public:
    explicit TF6652(TForm* parent);
    const char* ClassName() const override { return "TF6652"; }
    Sheet MakeSheet() override; // pages carry their sums over

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    void DBGridEhDblClick() override; // opens the row's document
    // An account's opening is blue.
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;
};

extern TF6652* F6652;

// A money account as its row names it: "1", "现金".
struct MoneyAccount {
    std::string code, name;
};

// The account's movements from the first day up to the last, which itself is left out.
void open_daybook_of(const MoneyAccount& account, const DaysAsked& days, TForm* opener);

} // namespace module
