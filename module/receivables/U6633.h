// Sum up what each customer owed, was charged and paid in a range of days.
#pragma once

#include "module/receivables/party_balances.h"

namespace module {

class TF6633F;

class TF6633 : public PartySummary {
public:
    explicit TF6633(TForm* parent);
    const char* ClassName() const override { return "TF6633"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    const PartyRangeFilter* Conditions() const override;
    PartyDetail* NewDetail() override;

private:
    TF6633F* F6633F = nullptr; // the dialog, owned by the base
};

extern TF6633* F6633;

} // namespace module
