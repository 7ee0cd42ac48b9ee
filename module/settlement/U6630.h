// List the receipts from customers in any currency: enter, copy, change, delete them.
#pragma once

#include "module/settlement/settlement_list.h"

namespace module {

class TF6630 : public SettlementList {
public:
    explicit TF6630(TForm* parent);
    const char* ClassName() const override { return "TF6630"; }

protected:
    // Steps of the lists that differ here.
    EntryHeadSettings settings() const override;
    std::unique_ptr<TFrm_Sys_Filter> make_filter() override;
    std::unique_ptr<Tfrm_Base_Entry_Body> make_entry_form() override;
    std::string why_changed_elsewhere() override; // discounts and returns belong to the other form
};

extern TF6630* F6630;

} // namespace module
