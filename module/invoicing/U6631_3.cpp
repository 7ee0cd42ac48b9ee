// Enter, change or look at one sales document; money taken at once makes its receipt.
#include "module/invoicing/U6631_3.h"

#include <set>

#include "host/ports/host.h"
#include "host/printing/paper.h"
#include "host/values/sql_text.h"
#include "host/values/text.h"
#include "module/invoicing/invoice_pickers.h"
#include "module/refuse.h"
#include "module/trade/document_number.h"
#include "module/trade/trade_code.h"

namespace module {

namespace {

constexpr NumberSeries invoice_numbers{"202", "d8102"};

// What is kept between uses, in the settings' section "Login".
constexpr const char* options_section = "Login";
struct Option {
    TCheckBox TF6631_3::*box;
    const char* key;
};
constexpr Option options[] = {{&TF6631_3::CK1, "u2202autoprint"},
                              {&TF6631_3::CK2, "u2202r1"},
                              {&TF6631_3::CK3, "u2202r2"}};

constexpr const char* figures[] = {"SL", "DW_J", "DW_L", "SJ", "SMONEY", "DJ", "MONEY"};

std::string shown_amount(const TNumberEdit& edit) {
    return edit.Text->empty() ? "0" : edit.Text.get();
}

} // namespace

// ---- opening ----

TF6631_3::TF6631_3(TForm* parent) : Tfrm_Base_Entry_Body(parent) {
    Caption = "销售开单";
    Edit1.MaxLength = 12; // the receipt of money taken at once adds three
    NOTE.MaxLength = 200;
    Act_Other.Caption = "打开旧单";
    grid_.define_fields();
    DBGridEh.Columns = invoice_columns();
    DBGridEh.FixedOrder = true;
    bind_events();
    build_layout();
    read_options();
}

TF6631_3::~TF6631_3() {
    if (the_host().settings == nullptr) return;
    for (const Option& option : options)
        the_host().settings->write(options_section, option.key,
                                   boltos((this->*option.box).Checked));
}

void TF6631_3::read_options() {
    if (the_host().settings == nullptr) return;
    for (const Option& option : options)
        (this->*option.box).Checked =
            the_host().settings->read(options_section, option.key, "0") == "1";
}

void TF6631_3::build_layout() {
    layout = Rows(
        {ToolBar({&Act_Save, nullptr, &Act_AddLine, &Act_DeleteLine, nullptr, &Act_Other, nullptr,
                  &Act_Print, &Act_Preview, nullptr, &Act_Quit}),
         Columns({Title("销售开单"), Space(),
                  Rows({Field("销售单号", Edit1, 14), Field("客    户", KH_GYS_ID, 10),
                        Field("备    注", NOTE, 26)}),
                  Rows({Field("开单日期", BDATE, 12), Field("仓    库", CK_ID, 6), Spring()}),
                  Rows({Field("送货方式", SEND_ID, 6), Field("业 务 员", YW_ID, 6), Spring()}),
                  Spring()}),
         Columns({Text("公司名称"), Control(FULL_NAME), Space(2), Text("电话"), Control(TEL),
                  Space(2), Text("地址"), Control(ADDR), Spring(), Text("更改日期"),
                  Control(EDATE)}),
         Control(LockReason), Rest(DBGridEh),
         Columns({Field("本次收款", BQMONEY, 14), Field("优惠", YHMONEY, 10), Spring(),
                  Control(CK1), Control(CK2), Control(CK3)}),
         StatusLine({Text("制单人:"), Control(USER_NAME), Spring(),
                     Text("F4 选择商品、单位、订单"), Text("本次收款与优惠保存时自动生成收款单")})});
}

void TF6631_3::bind_events() {
    offer_trade_codes(KH_GYS_ID, customers);
    KH_GYS_ID.OnExit = [this] { KH_GYS_IDExit(); };
    bind_trade_code(*this, SEND_ID, delivery_routes);
    bind_trade_code(*this, CK_ID, warehouses);
    bind_trade_code(*this, YW_ID, staff);
    Edit1.OnExit = [this] { Edit1Exit(); };
    const auto on_text = [this](const char* field, void (TF6631_3::*typed)(TField&,
                                                                           const std::string&)) {
        AdoQry_Main.FieldByName(field).OnSetText = [this, typed](TField& of,
                                                                 const std::string& text) {
            (this->*typed)(of, text);
        };
    };
    on_text("WL_ID", &TF6631_3::WL_IDSetText);
    on_text("DW_NAME", &TF6631_3::DW_IDSetText);
    for (const char* figure : figures) on_text(figure, &TF6631_3::SetFloatText);
    AdoQry_Main.FieldByName("NOID").OnSetText = [this](TField&, const std::string& typed) {
        order_typed(typed);
    };
    DBGridEh.OnSuggest = [this](const GridColumn& column, const std::string& typed) {
        return suggest(column, typed);
    };
}

void TF6631_3::OpenNoid(const std::string& key) {
    opensql(AdoQry_Head, FunctionCode, select_invoice_head(key));
    opensql(AdoQry_Main, FunctionCode, select_invoice_lines(key));
    if (AdoQry_Head.IsEmpty()) refuse("销售单“" + key + "”已不存在!请刷新后再试。");
    opened_.remember(AdoQry_Head, AdoQry_Main, select_invoice_head(key),
                     select_invoice_lines(key));
    Tfrm_Base_Entry_Body::OpenNoid(key);
}

void TF6631_3::RefreshData() {
    Tfrm_Base_Entry_Body::RefreshData();
    goods_.forget();
    if (Mode == "Add") {
        begin_new();
    } else {
        show_stored_head();
    }
    Edit1.ReadOnly = Mode != "Add" && Mode != "CopyAdd";
    if (Mode == "CopyAdd") Edit1.Text = fresh_number(invoice_numbers);
    Act_Other.Enabled = Mode != "ReadOnly";
    SetTabTitle(Caption.get() + " " + Edit1.Text.get());
}

// The number is there already: who types all day begins with the party.
void TF6631_3::FormShow() {
    Tfrm_Base_Entry_Body::FormShow();
    go_to_first_field();
}

void TF6631_3::go_to_first_field() {
    const bool begins = Mode == "Add" || Mode == "CopyAdd";
    if (begins && KH_GYS_ID.usable()) SetFocusTo(KH_GYS_ID);
}

void TF6631_3::begin_new() {
    for (TLinkEdit* field : {&KH_GYS_ID, &SEND_ID, &YW_ID}) {
        field->Text = "";
        field->DisplayName = "";
    }
    for (TLabel* shown : {&FULL_NAME, &TEL, &ADDR, &EDATE}) shown->Caption = "";
    customer_read_.clear();
    Edit1.Text = fresh_number(invoice_numbers);
    BDATE.set(the_host().clock->today());
    NOTE.Text = "";
    CK_ID.Text = G_ckid; // the warehouse at hand
    CK_ID.DisplayName = G_CkName;
    BQMONEY.Text = "";
    YHMONEY.Text = "";
    USER_NAME.Caption = G_UserName;
}

void TF6631_3::show_stored_head() {
    const auto text = [this](const char* field) { return AdoQry_Head.FieldByName(field).AsText(); };
    const auto show = [this](TLinkEdit& edit, const char* code, const char* name) {
        show_code(edit, AdoQry_Head, code, name);
    };
    Edit1.Text = text("NOID");
    show(KH_GYS_ID, "KH_GYS_ID", "KG_NAME");
    show(SEND_ID, "SEND_ID", "SEND_NAME");
    show(CK_ID, "CK_ID", "CK_NAME");
    show(YW_ID, "YW_ID", "YW_NAME");
    customer_read_ = KH_GYS_ID.Text;
    FULL_NAME.Caption = text("FULL_NAME");
    TEL.Caption = text("TEL");
    ADDR.Caption = text("ADDR");
    BDATE.set(AdoQry_Head.FieldByName("BDATE").AsDateTime().date);
    const TField& changed = AdoQry_Head.FieldByName("EDATE");
    EDATE.Caption = changed.IsNull() ? "" : changed.AsDateTime().date.to_text();
    NOTE.Text = text("NOTE");
    BQMONEY.set(AdoQry_Head.FieldByName("BQMONEY").AsAmount());
    YHMONEY.set(AdoQry_Head.FieldByName("YHMONEY").AsAmount());
    USER_NAME.Caption = text("USER_NAME");
}

void TF6631_3::Act_OtherExecute() {
    if (!CloseQuery()) return; // what is not saved yet
    const auto number = pick_invoice(*this, FunctionCode);
    if (!number) return;
    DBGridEh.cancel_edit();
    touched_ = false;
    InitForm(*number, List);
}

// ---- leaving a field ----

void TF6631_3::Edit1Exit() {
    settle_number(*this, Edit1, invoice_numbers);
    SetTabTitle(Caption.get() + " " + Edit1.Text.get());
}

// Another customer brings his own route and salesman; the same one leaves what was typed.
void TF6631_3::KH_GYS_IDExit() {
    const std::string code = trimmed(KH_GYS_ID.Text.get());
    if (code.empty() || code == customer_read_) return;
    read_customer(code);
}

void TF6631_3::read_customer(const std::string& code) {
    TClientDataSet found, name;
    opensql(found, FunctionCode, select_customer(code));
    if (found.IsEmpty()) {
        KH_GYS_ID.SetFocus();
        refuse("客户资料不存在,请重新录入!");
    }
    opensql(name, FunctionCode,
            "SELECT KH_GYS_ID,KG_NAME,FULL_NAME FROM D1102 WHERE KH_GYS_ID=" + quoted(code));
    const auto text = [&found](const char* field) { return found.FieldByName(field).AsText(); };
    show_code(KH_GYS_ID, name, "KH_GYS_ID", "KG_NAME");
    FULL_NAME.Caption = name.FieldByName("FULL_NAME").AsText();
    TEL.Caption = text("TEL");
    ADDR.Caption = text("ADDR");
    show_code(SEND_ID, found, "SEND_ID", "SEND_NAME");
    show_code(YW_ID, found, "YW_ID", "YW_NAME");
    customer_read_ = KH_GYS_ID.Text;
}

// ---- lines ----

const Goods& TF6631_3::goods() {
    if (!goods_.loaded()) goods_.load(FunctionCode);
    return goods_;
}

void TF6631_3::ColumnClick(GridColumn& column) {
    if (column.FieldName == "NOID") return pick_order();
    if (column.FieldName == "DW_NAME") return showdw();
    if (column.FieldName != "WL_ID") return;
    goods_.forget();
    const auto code = pick_good(*this, goods(), grid_.current().good);
    if (code) take_good_typed(*code);
}

void TF6631_3::WL_IDSetText(TField&, const std::string& typed) {
    const std::string text = trimmed(typed);
    if (text.empty()) return grid_.take_good({});
    take_good_typed(text);
}

void TF6631_3::take_good_typed(const std::string& typed) {
    const Good* good = goods().find(typed);
    if (!good) {
        goods_.load(FunctionCode); // a good may have been added since
        good = goods_.find(typed);
    }
    if (good) return grid_.take_good(*good);
    const auto found = goods_.matching(typed);
    if (found.size() == 1) return grid_.take_good(*found.front());
    if (found.empty()) refuse("商品“" + typed + "”不存在!请按 F4 选择商品。");
    refuse("有 " + std::to_string(found.size()) + " 种商品与“" + typed +
           "”相符!请录入完整的商品编号，或按 F4 选择。");
}

std::vector<TDBGridEh::Suggestion> TF6631_3::suggest(const GridColumn& column,
                                                     const std::string& typed) {
    std::vector<TDBGridEh::Suggestion> suggestions;
    if (column.FieldName != "WL_ID" || trimmed(typed).empty()) return suggestions;
    for (const Good* good : goods().matching(typed))
        suggestions.push_back({good->code, {good->code, good->name, good->size}, good->code});
    return suggestions;
}

void TF6631_3::refuse_unit_of_order() const {
    if (!grid_.current().order.empty()) refuse("从订单取的销售记录不可更改单位!");
}

void TF6631_3::showdw() {
    refuse_unit_of_order();
    const InvoiceLine line = grid_.current();
    if (line.good.empty()) refuse("请先录入商品编号，再选择单位!");
    const auto unit = pick_unit(*this, goods(), line.good, "");
    if (unit) grid_.take_unit(*goods().in_unit(line.good, *unit));
}

void TF6631_3::DW_IDSetText(TField&, const std::string& typed) {
    refuse_unit_of_order();
    const InvoiceLine line = grid_.current();
    const Good* unit = goods().in_unit(line.good, trimmed(typed));
    if (!unit) refuse("商品“" + line.good + "”没有单位“" + typed + "”!请按 F4 选择单位。");
    grid_.take_unit(*unit);
}

void TF6631_3::SetFloatText(TField& field, const std::string& typed) {
    Tfrm_Base_Entry_Body::SetFloatText(field, typed);
    grid_.follow(field.FieldName);
}

// An order belongs to a customer and is delivered from a warehouse.
void TF6631_3::require_party_and_warehouse() {
    if (KH_GYS_ID.DisplayName->empty()) refuse("在选择订单前应先填写一个有效的客户!");
    if (CK_ID.DisplayName->empty()) refuse("在选择订单前应先填写一个有效的仓库!");
}

void TF6631_3::pick_order() {
    require_party_and_warehouse();
    const auto line = pick_order_line(*this, FunctionCode);
    if (line) grid_.take_order(line->order, line->key);
}

void TF6631_3::order_typed(const std::string& typed) {
    if (trimmed(typed).empty()) return grid_.take_order("", "");
    refuse("请按 F4 从订单里选择，不能直接录入订单编号!");
}

// ---- checking ----

bool TF6631_3::AllCheck() {
    if (!Tfrm_Base_Entry_Body::AllCheck()) return false;
    if (trimmed(KH_GYS_ID.Text.get()).empty()) {
        KH_GYS_ID.SetFocus();
        refuse("客户资料不存在,请重新录入!");
    }
    CheckDate(BDATE, "开单日期");
    drop_blank_line();
    check_lines();
    check_repeats();
    return true;
}

void TF6631_3::drop_blank_line() {
    const InvoiceLine line = grid_.current();
    if (AdoQry_Main.RecordCount() > 1 && line.good.empty() && line.order.empty())
        AdoQry_Main.Delete();
}

void TF6631_3::check_lines() {
    if (AdoQry_Main.IsEmpty()) refuse("请至少录入一行商品!");
    int key = 0;
    for (int row = AdoQry_Main.RecordCount() - 1; row >= 0; --row) {
        AdoQry_Main.GotoRow(row);
        const InvoiceLine line = grid_.current();
        if (line.good.empty()) refuse("单据明细不可保存空白的商品编号!请将此行删除!");
        if (CK2.Checked && line.quantity.is_zero()) refuse("数量不能为0，可以为负数");
        if (!CK2.Checked && line.quantity <= Amount()) refuse("数量必须大于0");
        if (!line.order.empty()) continue;
        AdoQry_Main.Edit();
        AdoQry_Main.FieldByName("D8101AID").SetValue(std::to_string(--key));
        AdoQry_Main.Post();
    }
}

// An order's line is delivered once; a good typed twice is a slip more often than not.
void TF6631_3::check_repeats() {
    if (checkDatamore(AdoQry_Main, "D8101AID", "订单行")) Abort();
    if (CK3.Checked) return;
    std::set<std::string> typed;
    for (const InvoiceLine& line : grid_.read()) {
        if (!line.order.empty() || typed.insert(upper_case(line.good)).second) continue;
        refuse("商品“" + line.good + "”重复，请合并成一行，或勾选“充许重复商品”!");
    }
}

// ---- statements ----

InvoiceHead TF6631_3::head_to_save() const {
    return {.number = Edit1.Text,
            .customer = KH_GYS_ID.Text,
            .warehouse = CK_ID.Text,
            .date = BDATE.Text,
            .route = SEND_ID.Text,
            .salesman = YW_ID.Text,
            .user = G_UserId,
            .note = NOTE.Text,
            .total = AdoQry_Main.Sum("SMONEY").to_text(),
            .received = shown_amount(BQMONEY),
            .discount = shown_amount(YHMONEY)};
}

// ---- saving ----

void TF6631_3::Act_SaveExecute() {
    Tfrm_Base_Entry_Body::Act_SaveExecute();
    if (!Closed()) go_to_first_field();
}

void TF6631_3::SaveData() {
    const InvoiceHead head = head_to_save();
    const bool takes_money = BQMONEY.value() + YHMONEY.value() > Amount();
    const std::string batch =
        (Mode == "Edit" ? update_invoice(head) : insert_invoice(head, G_SKSTR)) +
        insert_invoice_lines(head, grid_.read()) +
        (takes_money ? insert_counter_receipt(head) : "") + recompute_settlement(head.number);
    if (opened_.save(FunctionCode, head.number, Mode, batch) != "Y") return;
    Saved(head.number);
    if (Mode != "Edit" && CK1.Checked) print_new();
}

// ---- printing ----

// Printing is asked for in advance; whoever may not print saves all the same.
void TF6631_3::print_new() {
    if (!Act_Print.Visible || !Allowed(Act_Print.Right)) return;
    the_host().ui->print(*TFrm_Base_Panel::MakeDocument(), false);
    ExecSql(FunctionCode, Key, "Print", mark_printed(Key));
}

void TF6631_3::document_printed() {
    if (ExecSql(FunctionCode, Key, "Print", mark_printed(Key)) != "Y") return;
    AdoQry_Head.Edit();
    AdoQry_Head.FieldByName("T_PRINT").SetValue(std::string("*"));
    AdoQry_Head.Post();
    opened_.remember(AdoQry_Head, AdoQry_Main, select_invoice_head(Key),
                     select_invoice_lines(Key));
}

void TF6631_3::Act_PrintExecute() {
    Tfrm_Base_Entry_Body::Act_PrintExecute();
    document_printed();
}

void TF6631_3::Act_PreviewExecute() {
    Tfrm_Base_Entry_Body::Act_PreviewExecute();
    document_printed();
}

void TF6631_3::FormKeyDown(host::Key& key) {
    if (key.code == KeyCode::F6 && !key.ctrl && !key.alt && !key.shift) {
        key = {};
        CK1.set_checked(!CK1.Checked);
    }
    Tfrm_Base_Entry_Body::FormKeyDown(key);
}

} // namespace module
