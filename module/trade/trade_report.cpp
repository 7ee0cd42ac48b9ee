// What the reports over trade documents share: the buttons, the words, what Enter on a row does.
#include "module/trade/trade_report.h"

namespace module {

TradeReport::TradeReport(TForm* parent, const TradeReportKind& kind) : TFrm_Base_Qry(parent) {
    Caption = kind.caption;
    NothingChosen = kind.nothing_chosen;
    Act_Open.Caption = kind.open_caption;
    Act_Open.OnExecute = [this] { DBGridEhDblClick(); };
    TipLabel.Caption = kind.tip;
    DBGridEh.EmptyText = "没有数据，请按 F3 选择查询条件";
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Open, nullptr, &Act_Print,
                            &Act_Preview, &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Rest(DBGridEh), StatusLine({Control(TipLabel)})});
}

} // namespace module
