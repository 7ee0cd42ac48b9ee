// Show each account's opening, turnover and closing balance by period.
#pragma once

#include "module/ledgers/ledger_form.h"

namespace module {

class TF6686F;

class TF6686 : public LedgerForm {
public:
    explicit TF6686(TForm* parent);
    const char* ClassName() const override { return "TF6686"; }
    void InitForm(const Trecord& record) override;

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    LedgerFilter* Conditions() override;
    BookRow book_row(int row) const override; // the months' sums are added up
    void DBGridEhDblClick() override; // the row's account and period in the detailed ledger

private:
    TF6686F* F6686F = nullptr; // the dialog, owned by the base
};

extern TF6686* F6686;

} // namespace module
