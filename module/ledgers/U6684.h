// Add up the vouchers of a range of days by top-level account.
#pragma once

#include "host/forms/Base_Qry.h"
#include "module/host_names.h"

namespace module {

class TF6684F;

class TF6684 : public TFrm_Base_Qry {
public:
    TAction Act_Open{this, "Act_Open", "打开明细帐", "Enter", "book-open"};

    explicit TF6684(TForm* parent);
    const char* ClassName() const override { return "TF6684"; }
    void InitForm(const Trecord& record) override;

protected:
    std::unique_ptr<TFrm_Sys_Filter> CreateFilter() override;
    void DBGridEhDblClick() override; // the account's detailed ledger of the months asked for

private:
    TF6684F* F6684F = nullptr; // the dialog, owned by the base
};

extern TF6684* F6684;

} // namespace module
