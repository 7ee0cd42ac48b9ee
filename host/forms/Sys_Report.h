// A report of head and lines, on paper or as a preview.
#pragma once

#include "host/dataset/client_dataset.h"
#include "host/forms/Base_Dialog.h"
#include "host/printing/sheet.h"

namespace host {

// Prints one document or list: the head's fields above, the lines as a table. Fields are named by
// their labels; one without a label is the form's own affair and stays out.
class TFrm_Sys_Report : public TFrm_Base_Dialog {
public:
    using TFrm_Base_Dialog::TFrm_Base_Dialog;
    const char* ClassName() const override { return "TFrm_Sys_Report"; }
    // The texts are, in order: function code, title, name of the layout, "print" or "preview", and
    // two lines of the form's own, told above the table. Refuses without the right to print.
    virtual void InitReport(TClientDataSet& head, TClientDataSet& lines,
                            const std::string& function, const std::string& title,
                            const std::string& layout_name, const std::string& action,
                            const std::string& first, const std::string& second);

private:
    static Sheet sheet_of_lines(TClientDataSet& lines);
};

} // namespace host
