// Enter, change or look at one payment to a supplier on one money account.
#pragma once

#include "module/settlement/single_account_form.h"

namespace module {

class TF6641_1 : public SingleAccountForm {
public:
    explicit TF6641_1(TForm* parent) : SingleAccountForm(parent, payment_kind) {}
    const char* ClassName() const override { return "TF6641_1"; }
};

} // namespace module
