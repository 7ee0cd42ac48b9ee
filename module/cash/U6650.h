// Add up the movements of money by account: opening, in, out, closing.
#pragma once

#include "module/cash/money_report.h"

namespace module {

class TF6650F;

class TF6650 : public MoneyReport {
public:
    explicit TF6650(TForm* parent);
    const char* ClassName() const override { return "TF6650"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    void DBGridEhDblClick() override; // the account's movements of the days asked for

private:
    TF6650F* F6650F = nullptr; // the dialog, owned by the base
};

extern TF6650* F6650;

} // namespace module
