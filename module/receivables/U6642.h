// List every document that moved the balance with a supplier, and open it.
#pragma once

#include "module/receivables/party_balances.h"

namespace module {

class TF6642 : public PartyDetail {
public:
    explicit TF6642(TForm* parent);
    const char* ClassName() const override { return "TF6642"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
};

extern TF6642* F6642;

} // namespace module
