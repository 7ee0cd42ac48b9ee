// Sum up what each supplier was owed, charged and was paid in a range of days.
#pragma once

#include "module/receivables/party_balances.h"

namespace module {

class TF6643F;

class TF6643 : public PartySummary {
public:
    explicit TF6643(TForm* parent);
    const char* ClassName() const override { return "TF6643"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    const PartyRangeFilter* Conditions() const override;
    PartyDetail* NewDetail() override;

private:
    TF6643F* F6643F = nullptr; // the dialog, owned by the base
};

extern TF6643* F6643;

} // namespace module
