// List every document that moved the balance with a customer, and open it.
#pragma once

#include "module/receivables/party_balances.h"

namespace module {

class TF6632 : public PartyDetail {
public:
    explicit TF6632(TForm* parent);
    const char* ClassName() const override { return "TF6632"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
};

extern TF6632* F6632;

} // namespace module
