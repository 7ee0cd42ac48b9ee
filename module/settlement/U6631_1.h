// Enter, change or look at one receipt from a customer on one money account.
#pragma once

#include "module/settlement/single_account_form.h"

namespace module {

class TF6631_1 : public SingleAccountForm {
public:
    explicit TF6631_1(TForm* parent);
    const char* ClassName() const override { return "TF6631_1"; }

protected:
    // Steps of the twins that differ here.
    void check_amounts() override; // a split over accounts, kept as it is, must still add up
};

} // namespace module
