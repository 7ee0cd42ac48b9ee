// A query or report: conditions, statement, rows.
#include "host/forms/Base_Qry.h"

#include "host/forms/Sys_Filter.h"
#include "host/forms/parts/list_search.h"
#include "host/forms/parts/sum_footers.h"
#include "host/printing/sheet.h"

namespace host {

TFrm_Base_Qry::TFrm_Base_Qry(TForm* parent) : TFrm_Base_Panel(parent) {
    hide({&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete, &Act_Save, &Act_Other});
    DBGridEh.ReadOnly = true;
    layout = Rows({ToolBar({&Act_Locate, &Act_Refresh, nullptr, &Act_Print, &Act_Preview,
                            &Act_Export, nullptr, &Act_Quit}),
                   Control(ConditionLabel), Rest(DBGridEh)});
}

TFrm_Base_Qry::~TFrm_Base_Qry() = default;

std::unique_ptr<TFrm_Sys_Filter> TFrm_Base_Qry::CreateFilter() { return nullptr; }

void TFrm_Base_Qry::OpenQuery(const Trecord& record) {
    OpenFunction(record);
    add_sum_footers(DBGridEh, SumFields);
    Show();
    filter_ = CreateFilter();
    if (filter_) filter_->InitForm();
}

void TFrm_Base_Qry::InitForm(const Trecord& record) {
    OpenQuery(record);
    if (filter_) Act_Locate.Execute();
}

void TFrm_Base_Qry::ShowStatement(std::int32_t function, const std::string& statement,
                                  const std::string& conditions) {
    Trecord record;
    record.set_code(function);
    Tag = function;
    OpenQuery(record);
    SqlText = statement;
    ConditionLabel.Caption = conditions;
    GetData();
}

void TFrm_Base_Qry::GetData() {
    const std::string key = current_key(AdoQry_Main, KeyField);
    opensql(AdoQry_Main, FunctionCode, SqlText + OrderText);
    if (!OrderFields.empty() && AdoQry_Main.sorted_by().empty())
        AdoQry_Main.SortBy(OrderFields, false);
    if (!return_to_key(AdoQry_Main, KeyField, key)) AdoQry_Main.First();
}

void TFrm_Base_Qry::Act_RefreshExecute() {
    if (SqlText.empty()) {
        DISPINFO(NothingChosen, 5);
        return;
    }
    GetData();
}

void TFrm_Base_Qry::Act_LocateExecute() {
    TFrm_Sys_Filter* filter = Filter();
    if (filter == nullptr || filter->ShowModal() != mrOk) return;
    const std::string sql = SqlText, order = OrderText;
    SqlText = filter->ResultText;
    OrderText.clear();
    try {
        GetData();
    } catch (...) {
        SqlText = sql; // the rows shown still belong to the statement before
        OrderText = order;
        throw;
    }
    ConditionLabel.Caption = filter->Description;
}

Sheet TFrm_Base_Qry::MakeSheet() {
    Sheet sheet = TFrm_Base_Panel::MakeSheet();
    if (!ConditionLabel.Caption->empty()) sheet.conditions = {ConditionLabel.Caption};
    return sheet;
}

void TFrm_Base_Qry::FormKeyDown(Key& key) {
    TFrm_Base_Panel::FormKeyDown(key);
    const bool plain = !key.ctrl && !key.alt && !key.shift;
    if (!plain || key.code != KeyCode::Space || !DBGridEh.focused()) return;
    key = {};
    Act_Locate.Execute();
}

} // namespace host
