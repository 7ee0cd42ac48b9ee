// What the reports on money accounts share: the buttons, the words, the way to a row's document.
#pragma once

#include "host/forms/Base_Qry.h"
#include "module/host_names.h"

namespace module {

// In what one report differs from the others.
struct MoneyReportKind {
    const char* caption;
    const char* open_caption;   // what Enter on a row does
    const char* nothing_chosen; // what 刷新 answers before a condition was chosen
    const char* tip;            // the line below the grid
};

class MoneyReport : public TFrm_Base_Qry {
public:
    // What the user sees beside the rows.
    TAction Act_Open{this, "Act_Open", "", "Enter", "file-text"};
    TLabel TipLabel{this, "TipLabel"};

protected:
    MoneyReport(TForm* parent, const MoneyReportKind& kind);
    void open_document_of_row(); // by its C and NOID; rows without a document open nothing
    void show_days_as_dates();
};

} // namespace module
