// Ask for the periods and the cash or bank account of the journal.
#pragma once

#include "host/controls/grid.h"
#include "module/filters/ledger_filter.h"

namespace module {

class TF6690F : public LedgerFilter {
public:
    // What the user sees beside the periods.
    TClientDataSet AdoQry_Main; // cash and bank accounts
    TDBGridEh DBGridEh{this, "DBGridEh", &AdoQry_Main};

    // What the user does.
    explicit TF6690F(TForm* parent);
    const char* ClassName() const override { return "TF6690F"; }
    void InitForm() override;
    void InitFocu() override;

protected:
    void FormActivate() override;
    void check_more() override;
    std::string statement(LedgerCall call) const override;
    std::string more_description() const override;

private:
    // This form's own rules.
    void read_current_period();
    void read_accounts();
    std::string chosen(const char* field) const;
};

} // namespace module
