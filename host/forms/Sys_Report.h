// A report of head and lines, on paper or as a preview.
#pragma once

#include "host/dataset/client_dataset.h"
#include "host/forms/Base_Dialog.h"

namespace host {

// Prints one document or list: the head's fields above, the lines as a table. The texts are, in
// order: function code, title, name of the layout, "print" or "preview", and two of the form's own.
// The contract that forms are written against; a host that offers no printing has no such form, and
// forms then hide their actions 打印 and 预览 (UserInterface::offers_printing).
class TFrm_Sys_Report : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;
    virtual void InitReport(TClientDataSet& head, TClientDataSet& lines,
                            const std::string& function, const std::string& title,
                            const std::string& layout_name, const std::string& action,
                            const std::string& first, const std::string& second) = 0;
};

} // namespace host
