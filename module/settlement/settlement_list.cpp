// What the lists of receipts and payments share: heads above, what they wrote off below.
#include "module/settlement/settlement_list.h"

#include "host/controls/amount_column.h"
#include "host/forms/Base_Entry_Body.h"
#include "host/forms/Sys_Filter.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/settlement/settlement_statements.h"

namespace module {

// ---- opening ----

SettlementList::SettlementList(TForm* parent, const SettlementKind& kind)
    : TFrm_Base_Entry_Head(parent), kind_(kind) {
    Caption = kind.caption;
    DBGridEh.EmptyText = "没有符合条件的单据";
}

SettlementList::~SettlementList() = default;

void SettlementList::InitForm(const Trecord& record) {
    FunctionCode = std::to_string(record.code());
    Settings = settings();
    entry_form_ = make_entry_form();
    filter_ = make_filter();
    filter_->FunctionCode = FunctionCode;
    filter_->InitForm();
    TFrm_Base_Entry_Head::InitForm(record);
}

std::vector<GridColumn> SettlementList::opening_columns() const {
    return {{.FieldName = "NOID", .Title = "单号", .Width = 17},
            {.FieldName = "BDATE", .Title = "开单日期", .Width = 11},
            {.FieldName = "KH_GYS_ID", .Title = kind_.party_code_title, .Width = 10},
            {.FieldName = "KG_NAME", .Title = kind_.party_name_title, .Width = 16},
            {.FieldName = "JY_KM", .Title = "类型代号", .Width = 8},
            {.FieldName = "JY_KM_NAME", .Title = kind_.purpose_title, .Width = 11}};
}

std::vector<GridColumn> SettlementList::closing_columns() {
    return {{.FieldName = "PH", .Title = "票号", .Width = 12},
            {.FieldName = "EDATE", .Title = "最后更改", .Width = 11},
            {.FieldName = "USER_ID", .Title = "用户号", .Width = 7},
            {.FieldName = "USER_NAME", .Title = "开单", .Width = 9}};
}

namespace {

void add_columns(TClientDataSet& rows, TDBGridEh& grid, std::vector<GridColumn> columns) {
    for (GridColumn& column : columns) {
        if (column.Tag == amount_tag)
            rows.DefineField(column.FieldName, FieldType::Amount).DisplayFormat = "0.00";
        grid.Columns.push_back(std::move(column));
    }
    for (const char* date : {"BDATE", "EDATE"})
        if (grid.column_index(date) >= 0)
            rows.DefineField(date, FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
}

} // namespace

void SettlementList::add_head_columns(std::vector<GridColumn> columns) {
    add_columns(AdoQry_Main, DBGridEh, std::move(columns));
}

void SettlementList::add_line_columns(std::vector<GridColumn> columns) {
    add_columns(AdoQry_Line, DBGridEhLine, std::move(columns));
}

// ---- documents ----

bool SettlementList::made_elsewhere() const {
    return !AdoQry_Main.IsEmpty() &&
           upper_case(AdoQry_Main.FieldByName("NOID").AsText()).ends_with("SYS");
}

std::string SettlementList::WhyLocked() {
    if (made_elsewhere()) return kind_.made_elsewhere;
    return deleting_ ? "" : why_changed_elsewhere();
}

void SettlementList::Act_ModifyExecute() {
    if (made_elsewhere()) refuse(kind_.made_elsewhere);
    TFrm_Base_Entry_Head::Act_ModifyExecute();
}

void SettlementList::Act_DeleteExecute() {
    if (made_elsewhere()) refuse(kind_.made_elsewhere);
    deleting_ = true;
    try {
        TFrm_Base_Entry_Head::Act_DeleteExecute();
    } catch (...) {
        deleting_ = false;
        throw;
    }
    deleting_ = false;
}

// ---- one account ----

SingleAccountList::SingleAccountList(TForm* parent, const SettlementKind& kind)
    : SettlementList(parent, kind) {
    add_head_columns(opening_columns());
    add_head_columns({{.FieldName = "JY_ID", .Title = kind.account_code_title, .Width = 8},
                      {.FieldName = "JY_NAME", .Title = kind.account_caption, .Width = 12},
                      amount_column("MONEY_SS", kind.paid_caption, 13),
                      amount_column("MONEY_YH", "优惠金额", 11)});
    add_head_columns(closing_columns());
    add_line_columns({{.FieldName = "C_NAME", .Title = "单据类型", .Width = 14},
                      {.FieldName = std::string(kind.documents) + "NOID",
                       .Title = "单号",
                       .Width = 18},
                      {.FieldName = "BDATE", .Title = "开单日期", .Width = 11},
                      amount_column("TOLMONEY", kind.total_title, 15),
                      amount_column("SUMMONEY", kind.settled_title, 15),
                      amount_column("REMONEY", "累计退款", 15),
                      amount_column("MONEY", kind.share_title, 15)});
}

EntryHeadSettings SingleAccountList::settings() const {
    const std::string heads = kind_.heads;
    return {.table = heads,
            .key_field = "NOID",
            .lookup_field = "NOID",
            .amount_fields = "TOLMONEY,SUMMONEY,REMONEY,MONEY",
            .head_query = kind_.select_heads,
            .head_order = " ORDER BY " + heads + ".BDATE," + heads + ".NOID",
            .line_query = lines_query(kind_),
            .delete_statement = kind_.delete_head,
            .period_field = "",
            .audited_field = "",
            .posted_field = ""};
}

} // namespace module
