// List the receipts from customers on one money account: enter, copy, change, delete them.
#pragma once

#include "module/settlement/settlement_list.h"

namespace module {

class TF6631 : public SingleAccountList {
public:
    explicit TF6631(TForm* parent);
    const char* ClassName() const override { return "TF6631"; }

protected:
    // Steps of the lists that differ here.
    std::unique_ptr<TFrm_Sys_Filter> make_filter() override;
    std::unique_ptr<Tfrm_Base_Entry_Body> make_entry_form() override;
    std::string why_changed_elsewhere() override; // over-receipts belong to the other form
};

extern TF6631* F6631;

} // namespace module
