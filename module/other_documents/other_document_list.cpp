// What the lists of other receipts and of other payments share: all but a table of differences.
#include "module/other_documents/other_document_list.h"

#include "host/controls/amount_column.h"
#include "host/forms/parts/delete_guard.h"
#include "module/other_documents/other_document_statements.h"
#include "module/refuse.h"

namespace module {

namespace {

constexpr Color approved_background = 0xFFFF80;

bool approval_in_use() { return G_SK == "1"; }

} // namespace

// ---- opening ----

OtherDocumentList::OtherDocumentList(TForm* parent, const OtherDocumentKind& kind)
    : TFrm_Base_Entry_Head(parent), kind_(kind) {
    Caption = kind.list_caption;
    build_columns();
}

void OtherDocumentList::build_columns() {
    AddColumn("C_NAME", "单据类型", 8);
    AddColumn("NOID", "单号", 14);
    AddColumn("BDATE", "开单日期", 10);
    AddColumn("JY_NAME", "结算帐户", 9); // money account
    AddColumn("KH_GYS_ID", "客户代码", 7); // customer or supplier
    AddColumn("KG_NAME", "客户简称", 10);
    AddColumn("ZY", "摘要", -1);
    AddAmountColumn("TOLMONEY", "应结算金额", 11).Footer = FooterKind::Sum;
    AddAmountColumn("SUMMONEY", "已结算金额", 11).Footer = FooterKind::Sum;
    AddColumn("YW_NAME", "经手人", 7);
    AddColumn("BM_NAME", "部门", 7);
    AddColumn("USER_NAME", "制单人", 7);
    AddColumn("SK", "审批", 7).Visible = approval_in_use(); // who approved it
    AddColumn("SDATE", "审批日期", 11).Visible = approval_in_use();
    for (const char* day : {"BDATE", "SDATE"})
        AdoQry_Main.DefineField(day, FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    DBGridEh.EmptyText = "没有符合条件的单据";

    GridColumn name{.FieldName = "SZLB_NAME", .Title = kind_.category_title, .Width = 28};
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    DBGridEhLine.Columns = {{.FieldName = "SZLB", .Title = "代码", .Width = 10},
                            name,
                            amount_column("MONEY", "金额", 16),
                            {.FieldName = "NOTE", .Title = "备注", .Width = -1}};
    AdoQry_Line.DefineField("MONEY", FieldType::Amount).DisplayFormat = "0.00";
}

void OtherDocumentList::InitForm(const Trecord& record) {
    FunctionCode = std::to_string(record.code());
    Settings = {.table = kind_.heads,
                .key_field = "NOID",
                .lookup_field = "SZLB",
                .amount_fields = "MONEY",
                .head_query = select_heads(kind_),
                .head_order = " ORDER BY " + std::string(kind_.heads) + ".BDATE," + kind_.heads +
                              ".NOID",
                .line_query = select_lines(kind_),
                .delete_statement = "delete from " + std::string(kind_.heads) +
                                    " Where NOID=%S",
                .period_field = "",
                .posted_field = ""};
    entry_form_ = make_entry_form();
    filter_ = make_filter();
    filter_->InitForm();
    TFrm_Base_Entry_Head::InitForm(record);
}

// ---- lines ----

void OtherDocumentList::DBGridEhGetCellParams(TField& field, CellParams& params) {
    TFrm_Base_Entry_Head::DBGridEhGetCellParams(field, params);
    const bool approved = AdoQry_Main.FieldByName("T").AsInteger() == 1;
    if (approval_in_use() && approved) params.Background = approved_background;
}

// ---- deleting ----

// The receipt that wrote it off would be left with lines that name nothing.
void OtherDocumentList::refuse_if_written_off() {
    TClientDataSet count;
    opensql(count, FunctionCode,
            with_key(kind_.write_offs, AdoQry_Main.FieldByName("NOID").AsText()));
    if (count.IsEmpty() || count.Fields().front()->AsInteger() == 0) return;
    refuse("“" + DocumentName() + "”不能删除：" + kind_.written_off_by + "!");
}

void OtherDocumentList::Act_DeleteExecute() {
    if (AdoQry_Main.IsEmpty()) return;
    refuse_if_written_off();
    TFrm_Base_Entry_Head::Act_DeleteExecute();
}

} // namespace module
