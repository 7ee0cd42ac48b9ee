// Two forms with one of every control, for the driver's own tests.
#include "automation/drive/sample_forms.h"

namespace automation {

namespace {

constexpr host::Color red = 255;

} // namespace

TF100::TF100(host::TForm* parent) : TForm(parent) {
    Caption = "样张";
    prepare_lines();
    prepare_controls();
    prepare_deeds();
}

void TF100::prepare_lines() {
    lines.DefineField("ZY", host::FieldType::Text, 20);
    lines.DefineField("J", host::FieldType::Amount).DisplayFormat = "0.00";
    lines.DefineField("D", host::FieldType::Boolean);
    lines.DefineField("BDATE", host::FieldType::DateTime).DisplayFormat = "yyyy-mm-dd";
    lines.Open();
    for (const char* amount : {"1234.5", "-0.07"}) {
        lines.Append();
        lines.FieldByName("zy").SetValue(std::string("行"));
        lines.FieldByName("j").SetValue(*host::Amount::parse(amount));
        lines.FieldByName("d").SetValue(true);
        lines.FieldByName("bdate").SetValue(*host::DateTime::parse("2024-03-01"));
        lines.Post();
    }
    lines.First();
    DBGridEh.Columns = {{.FieldName = "ZY", .Title = "摘要", .Button = true},
                        {.FieldName = "J", .Title = "金额|借方", .Footer = host::FooterKind::Sum},
                        {.FieldName = "BDATE", .Title = "日期", .ReadOnly = true}};
    DBGridEh.MultiSelect = true;
}

void TF100::prepare_controls() {
    Locked.ReadOnly = true;
    PZZ.Items = std::vector<std::string>{"收", "付", "转"};
    PZZ.Text = std::string("收");
    R1.Checked = true;
    SpeedButton1.GroupIndex = SpeedButton2.GroupIndex = 1;
    SpeedButton1.Down = true;
    btn_more.Enabled = false;
    Act_Print.Visible = false;
    N2.Enabled = false;
    Menu.Items = {&N2};
    auto* cash = TreeView1.AddRoot("1002 银行存款");
    TreeView1.AddChild(cash, "100201 工行");
}

void TF100::prepare_deeds() {
    KM_ID.OnExit = [this] {
        if (KM_ID.Text.get() != "9999") return;
        host::DISPINFO("科目代号不存在!", 5);
        host::Abort();
    };
    KM_ID.OnKeyPress = [](char32_t& character) {
        if (character == '*') character = 0;
    };
    Menu.OnPopup = [this] { N2.Enabled = !lines.IsEmpty(); };
    N2.OnExecute = [] { host::DISPINFO("已存为模板", 5); };
    LA1.OnClick = [this] { choose_then_tell(); };
    KH_GYS_ID.OnButtonClick = [this] { choose_then_tell(); };
    DBGridEh.OnButtonClick = [this](host::GridColumn&) { choose_then_tell(); };
    DBGridEh.OnDblClick = [this] {
        host::DISPINFO("第" + std::to_string(lines.RecNo()) + "行", 5);
    };
    SpeedButton2.OnClick = [] { host::DISPINFO("负债", 5); };
    Act_Save.OnExecute = [] {
        if (host::DISPINFO("真的保存吗?", 2) == 'y') host::DISPINFO("已保存", 5);
    };
    DBGridEh.OnGetCellParams = [](host::TField& field, host::CellParams& params) {
        if (field.FieldName == "J" && field.AsAmount().is_negative()) params.Font = red;
    };
    TreeView1.OnDblClick = [] { throw std::runtime_error("磁盘已满"); };
}

void TF100::choose_then_tell() {
    const int result = dialog.ShowModal();
    host::DISPINFO(result == host::mrOk ? "选了" + dialog.Edit1.Text.get() : "没有选", 5);
}

void open_sample(const host::Trecord& record, host::TForm& frame) {
    if (record.code() != 100) {
        host::DISPINFO("模块暂不开放!" + std::to_string(record.code()), 5);
        return;
    }
    auto* form = new TF100(&frame);
    form->Tag = record.code();
    form->Hint = record.user[0];
    form->Show();
}

} // namespace automation
