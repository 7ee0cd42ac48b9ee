// Show the lines of a cash or bank account with the accounts on their other side.
#pragma once

#include "module/ledgers/detailed_ledger.h"

namespace module {

class TF6690F;

class TF6690 : public DetailedLedger {
public:
    explicit TF6690(TForm* parent);
    const char* ClassName() const override { return "TF6690"; }
    void InitForm(const Trecord& record) override;

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    LedgerFilter* Conditions() override;

private:
    TF6690F* F6690F = nullptr; // the dialog, owned by the base
};

extern TF6690* F6690;

} // namespace module
