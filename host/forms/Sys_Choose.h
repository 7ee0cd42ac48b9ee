// The host's own choosers that trade documents open: a trading partner, a warehouse article.
#pragma once

#include "host/controls/edits.h"
#include "host/dataset/client_dataset.h"
#include "host/forms/Base_Dialog.h"

namespace host {

// Chooses a trading partner into the current row of `target`; `kind` says customer or supplier.
class TFrm_Sys_GETDW : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;
    virtual void init(TClientDataSet& target, const std::string& kind) = 0;
};

// Chooses an article of a warehouse into `edit` and the current row of `target`. The texts are
// function code, warehouse, condition, and the text typed so far.
class TFrm_Sys_GETCK_WL : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;
    virtual void init(TClientDataSet& target, TLinkEdit& edit, const std::string& function,
                      const std::string& warehouse, const std::string& condition,
                      const std::string& typed) = 0;
};

} // namespace host
