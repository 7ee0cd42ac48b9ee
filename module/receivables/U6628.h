// Type what each customer owed, and had paid in advance, when the books start.
#pragma once

#include "module/receivables/opening_amounts.h"

namespace module {

class TF6628 : public OpeningAmounts {
public:
    explicit TF6628(TForm* parent);
    const char* ClassName() const override { return "TF6628"; }
};

extern TF6628* F6628;

} // namespace module
