// Look through the voucher templates: apply one to the voucher being entered, or delete it.
#include "module/vouchers/U6661_4.h"

#include "host/controls/amount_column.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/refuse.h"
#include "module/vouchers/template_amounts.h"
#include "module/vouchers/voucher_picker.h"
#include "module/vouchers/voucher_template.h"

namespace module {
namespace {

constexpr Color shaded_background = 0xF7F1EA;

} // namespace

// ---- opening ----

TF6661_4::TF6661_4(TForm* parent) : TFrm_Base_Detail(parent) {
    Caption = "会计凭证模板";
    PreferredWidth = 120;
    build_columns();
    Edit1.OnChange = [this] { Edit1Change(); };
    btn_del.OnClick = [this] { btn_delClick(); };
    AdoQry_Main.AfterScroll = [this] { show_selected(); };
    layout = Rows(
        {Columns({Field("", Edit1, 28), Spring(), Field("金额", MONEY, 16)}), Rest(DBGridEh),
         Control(SelectedTemplate),
         Text("填了金额时,借贷较大一方的合计按它换算,其他金额同比变动;  不填则按模板原来的金额"),
         Buttons({&btn_del, &btn_ok, &btn_Cancel})});
}

void TF6661_4::build_columns() {
    AdoQry_Main.DefineField("NOID", FieldType::Integer);
    AdoQry_Main.DefineField("ZY", FieldType::Text, 100);
    AdoQry_Main.DefineField("KM_ID", FieldType::Text, 50);
    AdoQry_Main.DefineField("KM_NAME_NEW", FieldType::Text, 610);
    for (const char* side : {"J", "D"}) {
        AdoQry_Main.DefineField(side, FieldType::Amount).DisplayFormat = "0.00";
    }
    AdoQry_Main.Open();
    DBGridEh.Columns = {{.FieldName = "NOID", .Title = "组别", .Width = 8},
                        {.FieldName = "ZY", .Title = "摘要", .Width = 26},
                        {.FieldName = "KM_NAME_NEW", .Title = "会计科目", .Width = -1},
                        amount_column("J", "借方金额", 15, FooterKind::None),
                        amount_column("D", "贷方金额", 15, FooterKind::None)};
    DBGridEh.ReadOnly = true;
    DBGridEh.EmptyText = "没有相符的模板";
    DBGridEh.OnDblClick = [this] { btn_ok.Click(); };
    DBGridEh.OnGetCellParams = [this](TField&, CellParams& params) {
        const bool shaded = shaded_.contains(AdoQry_Main.FieldByName("NOID").AsText());
        if (shaded) params.Background = shaded_background;
    };
}

void TF6661_4::INIT(TClientDataSet& lines) {
    lines_ = &lines;
}

// Templates may have been added since it stood open last.
void TF6661_4::FormShow() {
    TFrm_Base_Detail::FormShow();
    Edit1.Text = "";
    MONEY.Text = "";
    Edit1Change();
    SetFocusTo(Edit1);
}

void TF6661_4::FormKeyDown(host::Key& key) {
    if (ActiveControl() == &Edit1 && move_among_rows(AdoQry_Main, key)) key = {};
    TFrm_Base_Detail::FormKeyDown(key);
}

// ---- lines ----

void TF6661_4::Edit1Change() {
    opensql(AdoQry_Main, FunctionCode, select_templates(trimmed(Edit1.Text.get())));
    shade_every_second_template();
    show_selected();
}

void TF6661_4::shade_every_second_template() {
    shaded_.clear();
    const int group = AdoQry_Main.FieldByName("NOID").index();
    bool shaded = true;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const std::string here = AdoQry_Main.text_at(row, group);
        if (row == 0 || here != AdoQry_Main.text_at(row - 1, group)) shaded = !shaded;
        if (shaded) shaded_.insert(here);
    }
    DBGridEh.changed();
}

std::string TF6661_4::selected_group() const {
    return AdoQry_Main.IsEmpty() ? "" : AdoQry_Main.FieldByName("NOID").AsText();
}

// A line saved with both sides keeps both: a template gives back what was saved.
TF6661_4::Template TF6661_4::selected() const {
    const std::string group = selected_group();
    Template found;
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        const TClientDataSet::Peek peek(AdoQry_Main, row);
        const auto field = [&](const char* name) -> const TField& {
            return AdoQry_Main.FieldByName(name);
        };
        if (field("NOID").AsText() != group) continue;
        found.lines.push_back({field("ZY").AsText(), field("KM_ID").AsText(), field("J").AsAmount(),
                               field("D").AsAmount()});
        found.names.push_back(field("KM_NAME_NEW").AsText());
    }
    return found;
}

void TF6661_4::show_selected() {
    const Template chosen = selected();
    SelectedTemplate.Caption = chosen.lines.empty()
                                   ? ""
                                   : "选中模板 " + selected_group() + ",共 " +
                                         std::to_string(chosen.lines.size()) + " 行,金额 " +
                                         larger_side(chosen.lines).to_text();
}

// ---- saving ----

void TF6661_4::SaveData() {
    Template chosen = selected();
    if (chosen.lines.empty()) refuse("没有可用的模板!请改写检索内容,或先用“存为模板”保存一个。");
    const Amount wanted = MONEY.value();
    if (!wanted.is_zero()) {
        if (larger_side(chosen.lines).is_zero()) {
            refuse("模板 " + selected_group() + " 的金额合计为 0,不能按金额换算!请把金额清空。");
        }
        chosen.lines = scaled_to(chosen.lines, wanted);
    }
    while (!lines_->IsEmpty()) lines_->Delete();
    for (std::size_t i = 0; i < chosen.lines.size(); ++i) {
        const VoucherLine& line = chosen.lines[i];
        lines_->Append();
        lines_->FieldByName("ZY").SetValue(line.summary);
        lines_->FieldByName("KM_ID").SetValue(line.account);
        lines_->FieldByName("KM_NAME_NEW").SetValue(chosen.names[i]);
        lines_->FieldByName("J").SetValue(line.debit);
        lines_->FieldByName("D").SetValue(line.credit);
        lines_->Post();
    }
    saved_ = true;
}

void TF6661_4::btn_delClick() {
    const std::string group = selected_group();
    if (group.empty()) return;
    RequireRight("delete", "删除模板");
    if (delete_template(FunctionCode, group)) Edit1Change();
}

} // namespace module
