// Show every voucher line of the accounts asked for, with the running balance.
#pragma once

#include "module/ledgers/detailed_ledger.h"
#include "module/ledgers/ledger_call.h"

namespace module {

class TF6685F;

class TF6685 : public DetailedLedger {
public:
    explicit TF6685(TForm* parent);
    const char* ClassName() const override { return "TF6685"; }

    // What the user does.
    void InitForm(const Trecord& record) override;
    // Shows what `statement` answers without asking, under `title` ("1001 现金"): the way from the
    // figure of another book to its lines.
    void open686(const std::string& statement, const std::string& title);

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    LedgerFilter* Conditions() override;

private:
    TF6685F* F6685F = nullptr; // the dialog, owned by the base
};

extern TF6685* F6685;

// Opens a detailed ledger over `opener`, the form it goes back to when it is closed.
void open_detailed_ledger(TForm* opener, const LedgerCall& call, const std::string& title);

} // namespace module
