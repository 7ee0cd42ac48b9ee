// Type what each supplier was owed, and had been paid in advance, when the books start.
#pragma once

#include "module/receivables/opening_amounts.h"

namespace module {

class TF6629 : public OpeningAmounts {
public:
    explicit TF6629(TForm* parent);
    const char* ClassName() const override { return "TF6629"; }
};

extern TF6629* F6629;

} // namespace module
