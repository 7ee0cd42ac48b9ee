// List the vouchers: enter, copy, change, delete them; as function 662 audit them.
#include "module/vouchers/U6661.h"

#include "host/controls/amount_column.h"
#include "host/ports/host.h"
#include "host/values/sql_text.h"
#include "module/filters/U6661f.h"
#include "module/refuse.h"
#include "module/vouchers/U6661_1.h"
#include "module/vouchers/voucher_number.h"
#include "module/vouchers/voucher_paper.h"
#include "module/vouchers/voucher_statements.h"
#include "module/vouchers/voucher_template.h"

namespace module {

TF6661* F6661 = nullptr;

namespace {

constexpr Color not_audited_background = 0xFFFF80;

} // namespace

// ---- opening ----

TF6661::TF6661(TForm* parent) : TFrm_Base_Entry_Head(parent) {
    Caption = "录凭证";
    Action1.OnExecute = [this] { Action1Execute(); };
    Action1.Right = "add"; // a template is something new
    Act_Red.OnExecute = [this] { Act_RedExecute(); };
    Act_Red.Right = "add";
    Act_PrintVouchers.OnExecute = [this] { Act_PrintVouchersExecute(); };
    Act_PrintVouchers.Right = Act_Print.Right;
    Act_PrintVouchers.Visible = Act_Print.Visible.get();
    const auto scrolled = AdoQry_Main.AfterScroll;
    AdoQry_Main.AfterScroll = [this, scrolled] {
        if (scrolled) scrolled();
        show_selected();
    };
    AdoQry_Main.AfterPost = AdoQry_Main.AfterDelete = [this] {
        show_counts();
        show_selected();
    };
    build_columns();
}

TF6661::~TF6661() = default;

void TF6661::build_columns() {
    AddColumn("PZQJ", "期间", 9); // accounting period
    AddColumn("PZZ", "凭证字", 7).Align = Alignment::Center;
    AddColumn("PZZ_H", "号", 6).Align = Alignment::Right;
    AddColumn("PZZ_Z", "附单据(张)", 9).Align = Alignment::Right;
    AddColumn("BDATE", "日期", 11);
    AddColumn("USER_ID", "用户号", 9); // maker
    AddColumn("USER_NAME", "制单人", 11);
    AddColumn("sk", "审核人", 11);
    AddColumn("sdate", "审核日期", 11);
    AddColumn("T", "审核", 6).Align = Alignment::Center;
    AddColumn("D", "登帐", 6).CheckBox = true; // posted
    AdoQry_Main.DefineField("T", FieldType::Integer);
    AdoQry_Main.DefineField("D", FieldType::Boolean);
    AdoQry_Main.DefineField("BDATE", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    AdoQry_Main.DefineField("sdate", FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    DBGridEh.MultiSelect = true;
    DBGridEh.EmptyText = "没有符合条件的凭证";

    GridColumn name{.FieldName = "KM_NAME_NEW", .Title = "会计科目", .Width = 36};
    name.Footer = FooterKind::Text;
    name.FooterText = "合计";
    DBGridEhLine.Columns = {{.FieldName = "ZY", .Title = "摘要", .Width = 32},
                            {.FieldName = "KM_ID", .Title = "科目", .Width = 12},
                            name,
                            amount_column("J", "借方金额", 16),
                            amount_column("D", "贷方金额", 16)};
    for (const char* side : {"J", "D"}) {
        AdoQry_Line.DefineField(side, FieldType::Amount).DisplayFormat = "0.00";
    }
}

void TF6661::build_layout(bool audit) {
    Act_Audit.Visible = audit;
    Act_UnAudit.Visible = audit;
    for (TAction* action : {&Act_Add, &Act_CopyAdd, &Act_Delete, &Action1, &Act_Red})
        action->Visible = !audit;
    Act_Modify.Caption = audit ? "查看凭证" : "修改";
    if (audit) Act_Modify.Right = ""; // looking is part of auditing
    std::vector<TAction*> own = {&Act_Add, &Act_CopyAdd, &Act_Modify, &Act_Delete};
    if (audit) own = {&Act_Audit, &Act_UnAudit, nullptr, &Act_Modify};
    for (TAction* action : {static_cast<TAction*>(nullptr), &Act_Locate, &Act_Refresh}) {
        own.push_back(action);
    }
    if (!audit) own.insert(own.end(), {nullptr, &Action1, &Act_Red});
    own.insert(own.end(), {nullptr, &Act_PrintVouchers, &Act_Print, &Act_Preview, &Act_Export,
                           nullptr, &Act_Quit});
    layout =
        Rows({ToolBar(own), Columns({Control(ConditionLabel), Spring(), Control(CountLabel)}),
              Splitter(Rest(DBGridEh), Rows({Control(SelectedLabel), Rest(DBGridEhLine)}), 65)});
}

void TF6661::InitForm(const Trecord& record) {
    FunctionCode = std::to_string(record.code());
    const bool audit = FunctionCode == "662";
    if (audit) Caption = "凭证审核";
    Settings = {.table = "D6601",
                .key_field = "NOID",
                .lookup_field = "KM_ID",
                .amount_fields = "J,D",
                .head_query = voucher_heads,
                .head_order = " ORDER BY D6601.PZQJ,D6601.PZZ,D6601.PZZ_H",
                .line_query = voucher_lines,
                .delete_statement = "delete from d6601 Where NOID=%S",
                .period_field = "PZQJ"};
    build_layout(audit);
    F6661_1 = std::make_unique<TF6661_1>(this);
    const std::string& voucher = record.user[0];
    if (!voucher.empty()) return open_voucher(record, voucher);
    create_filter();
    choose_current_period();
    TFrm_Base_Entry_Head::InitForm(record);
}

// A voucher belongs to its period whatever day it bears, so what waits to be audited is all there;
// books that are not set up yet have no period to go by.
void TF6661::choose_current_period() {
    const std::string& period = F6661F->CurrentPeriod;
    if (period.empty()) return;
    Condition = "D6601.PZQJ=" + quoted(period);
    ConditionLabel.Caption = " ●会计期间:" + period;
}

void TF6661::create_filter() {
    F6661F = std::make_unique<TF6661F>(this);
    F6661F->InitForm();
}

// Another book asks for one voucher: the list holds it alone and goes when the voucher is closed,
// so that the person is back where he came from.
void TF6661::open_voucher(const Trecord& record, const std::string& key) {
    Condition = "D6601.NOID=" + quoted(key);
    ConditionLabel.Caption = " ●凭证:" + key;
    TFrm_Base_Entry_Head::InitForm(record);
    create_filter();
    if (AdoQry_Main.IsEmpty()) {
        DISPINFO("凭证 " + key + " 已不存在，请按 F5 刷新帐簿!", 5);
        return Close();
    }
    F6661_1->OnClose = [this] { Close(); };
    DBGridEhDblClick();
}

TFrm_Sys_Filter* TF6661::Filter() {
    return F6661F.get();
}

Tfrm_Base_Entry_Body* TF6661::EntryForm() {
    return F6661_1.get();
}

// ---- lines ----

void TF6661::GetData() {
    TFrm_Base_Entry_Head::GetData();
    count_posted();
    show_counts();
    show_selected();
}

// Posting happens elsewhere: it shows when the list is read again.
void TF6661::count_posted() {
    posted_ = 0;
    const int field = AdoQry_Main.FieldByName("D").index();
    for (int row = 0; row < AdoQry_Main.RecordCount(); ++row) {
        if (AdoQry_Main.text_at(row, field) == "True") ++posted_;
    }
}

void TF6661::show_counts() {
    const std::int64_t audited = AdoQry_Main.Sum("T").units() / Amount::scale;
    const std::int64_t all = AdoQry_Main.RecordCount();
    CountLabel.Caption = "未审核 " + std::to_string(all - audited) + " 张    已审未登帐 " +
                         std::to_string(audited - posted_) + " 张    共 " + std::to_string(all) +
                         " 张";
}

std::string TF6661::DocumentName() {
    const auto text = [this](const char* field) { return AdoQry_Main.FieldByName(field).AsText(); };
    if (AdoQry_Main.IsEmpty()) return "";
    return text("PZQJ") + " " + text("PZZ") + "-" + text("PZZ_H");
}

void TF6661::show_selected() {
    if (AdoQry_Main.IsEmpty() || !AdoQry_Main.FindField("PZZ_H")) {
        SelectedLabel.Caption = "";
        return;
    }
    const auto text = [this](const char* field) {
        return AdoQry_Main.FieldByName(field).DisplayText();
    };
    SelectedLabel.Caption = text("PZZ") + "-" + text("PZZ_H") + "    " + text("BDATE") +
                            "    制单人 " + text("USER_NAME") + "    附单据 " + text("PZZ_Z") +
                            " 张";
}

void TF6661::DBGridEhGetCellParams(TField& field, CellParams& params) {
    TFrm_Base_Entry_Head::DBGridEhGetCellParams(field, params);
    if (AdoQry_Main.FieldByName("T").AsInteger() == 0) params.Background = not_audited_background;
}

// ---- printing ----

void TF6661::Act_PrintVouchersExecute() {
    std::vector<std::string> keys;
    const int key = AdoQry_Main.IsEmpty() ? -1 : AdoQry_Main.FieldByName("NOID").index();
    for (const int row : DBGridEh.selected_rows()) keys.push_back(AdoQry_Main.text_at(row, key));
    const auto paper = paper_of_vouchers(FunctionCode, keys);
    if (paper->page_count() == 0) refuse("没有可打印的凭证，请先选择凭证!");
    the_host().ui->print(*paper, true);
}

// ---- saving ----

void TF6661::Action1Execute() {
    if (AdoQry_Main.IsEmpty()) return;
    save_as_template(FunctionCode, AdoQry_Main.FieldByName("NOID").AsText());
}

OriginalVoucher TF6661::selected_voucher() {
    const auto text = [this](const char* field) { return AdoQry_Main.FieldByName(field).AsText(); };
    return {text("NOID"), text("PZQJ"), text("PZZ"), text("PZZ_H")};
}

// What is not posted yet needs no reversal, and nothing is reversed before it happened.
Period TF6661::period_for_red_voucher() {
    const std::string name = "“" + DocumentName() + "”";
    if (!AdoQry_Main.FieldByName("D").AsBoolean()) {
        refuse(name + "还没有登帐,不必红字冲销!请直接修改或删除它,已审核的先反审核。");
    }
    const auto open = Period::parse(read_current_period(FunctionCode));
    if (!open) refuse(no_current_period);
    if (open->to_text() < selected_voucher().period) {
        refuse(name + "晚于当前会计期间 " + open->to_text() + ",不能在本期冲销!");
    }
    return *open;
}

void TF6661::Act_RedExecute() {
    if (!StillThere()) return;
    const Period open = period_for_red_voucher();
    const OriginalVoucher original = selected_voucher();
    const auto lines = read_voucher_lines(FunctionCode, original.key);
    const std::string before = already_reversed_by(FunctionCode, original, lines);
    const std::string question =
        "“" + DocumentName() + "”已由红字凭证 " + before + " 冲销,还要再冲销一次吗?";
    if (!before.empty() && DISPINFO(question, 2) != 'y') return;
    const RedVoucher red =
        red_voucher(FunctionCode, original, lines, open, the_host().clock->today(), G_UserId);
    const std::string answer =
        ExecSql(FunctionCode, red.key, "Red", red.batch, 65535, false, true, false, true);
    if (answer != "Y") return;
    ShowDocument(red.key);
    DBGridEhDblClick();
}

} // namespace module
