// What the reports over trade documents share: the buttons, the words, what Enter on a row does.
#pragma once

#include "host/forms/Base_Qry.h"
#include "module/host_names.h"

namespace module {

// What 刷新 answers before conditions were given, in a list of documents and in a list of sums.
inline constexpr const char* no_rows_asked_for =
    "您还没选择任何查询参数,请按【F3 或 空格】呼出查询选项!";
inline constexpr const char* no_sums_asked_for =
    "您还没选择任何汇总参数,请按【F3】呼出汇总选项!";

// In what one report differs from the others.
struct TradeReportKind {
    const char* caption;
    const char* open_caption;   // what Enter on a row does
    const char* nothing_chosen; // one of the two above
    const char* tip;            // the line below the grid
};

class TradeReport : public TFrm_Base_Qry {
public:
    // What the user sees beside the rows.
    TAction Act_Open{this, "Act_Open", "", "Enter", "file-text"};
    TLabel TipLabel{this, "TipLabel"};

protected:
    TradeReport(TForm* parent, const TradeReportKind& kind);
};

} // namespace module
