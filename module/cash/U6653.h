// List every document that moved money, with its kind, and open it.
#pragma once

#include "module/cash/money_report.h"

namespace module {

class TF6653 : public MoneyReport {
public:
    explicit TF6653(TForm* parent);
    const char* ClassName() const override { return "TF6653"; }

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    void DBGridEhDblClick() override; // opens the row's document
};

extern TF6653* F6653;

} // namespace module
