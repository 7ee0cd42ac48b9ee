// A dialog that yields a condition for somebody else's list.
#pragma once

#include "host/forms/Base_Dialog.h"

namespace host {

class TFrm_Base_Condition : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;
    virtual void GetData() {}
    std::string ResultText;  // statement or condition that OK produced
    std::string Description; // " ●凭证日期:(… 至 …)", shown above the list
};

} // namespace host
