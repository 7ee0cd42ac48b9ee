// List the payments to suppliers on one money account: enter, copy, change, delete them.
#pragma once

#include "module/settlement/settlement_list.h"

namespace module {

class TF6641 : public SingleAccountList {
public:
    explicit TF6641(TForm* parent);
    const char* ClassName() const override { return "TF6641"; }

protected:
    // Steps of the lists that differ here.
    std::unique_ptr<TFrm_Sys_Filter> make_filter() override;
    std::unique_ptr<Tfrm_Base_Entry_Body> make_entry_form() override;
};

extern TF6641* F6641;

} // namespace module
