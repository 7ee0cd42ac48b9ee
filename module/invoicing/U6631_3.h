// Enter, change or look at one sales document; money taken at once makes its receipt.
#pragma once

#include "host/forms/Base_Entry_Body.h"
#include "module/host_names.h"
#include "module/invoicing/goods.h"
#include "module/invoicing/invoice_grid.h"
#include "module/trade/opened_document.h"

namespace module {

class TF6631_3 : public Tfrm_Base_Entry_Body {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "销售单号"};         // number
    TLinkEdit KH_GYS_ID{this, "KH_GYS_ID", "客    户"};
    TLabel FULL_NAME{this, "FULL_NAME", ""};         // the customer's full name
    TLabel TEL{this, "TEL", ""};                     // his telephone
    TLabel ADDR{this, "ADDR", ""};                   // his address
    TDateEdit BDATE{this, "BDATE", "开单日期"};
    TEdit NOTE{this, "NOTE", "备    注"};
    TLinkEdit SEND_ID{this, "SEND_ID", "送货方式"};  // delivery route
    TLinkEdit CK_ID{this, "CK_ID", "仓    库"};      // warehouse
    TLinkEdit YW_ID{this, "YW_ID", "业 务 员"};      // salesman
    TLabel EDATE{this, "EDATE", ""};                 // last change
    TLabel USER_NAME{this, "USER_NAME", ""};         // maker
    TNumberEdit BQMONEY{this, "BQMONEY", "本次收款", 2}; // taken at the counter
    TNumberEdit YHMONEY{this, "YHMONEY", "优惠", 2};     // discount given with it
    TCheckBox CK1{this, "CK1", "新单保存成功即打印(F6)"};
    TCheckBox CK2{this, "CK2", "充许负数量"};        // quantities may be negative
    TCheckBox CK3{this, "CK3", "充许重复商品"};      // a good may stand on several lines

    // What the user does.
    explicit TF6631_3(TForm* parent);
    ~TF6631_3() override;
    const char* ClassName() const override { return "TF6631_3"; }
    void Edit1Exit();     // number left: never empty, never one in use
    void KH_GYS_IDExit(); // customer left: his telephone, address, route and salesman

    // Steps of every document that differ here.
    void OpenNoid(const std::string& key) override;
    void RefreshData() override;
    bool AllCheck() override;
    void SaveData() override;
    void ColumnClick(GridColumn& column) override;                       // good, unit, order line
    void WL_IDSetText(TField& field, const std::string& typed) override; // good of a line
    void DW_IDSetText(TField& field, const std::string& typed) override; // unit of a line
    void showdw() override;                                              // picks a unit
    void SetFloatText(TField& field, const std::string& typed) override;

protected:
    void FormShow() override;
    void Act_SaveExecute() override;
    void Act_PrintExecute() override;
    void Act_PreviewExecute() override;
    void Act_OtherExecute() override; // opens an earlier document to be changed
    void FormKeyDown(host::Key& key) override;

private:
    // This form's own rules.
    void bind_events();
    void build_layout();
    void read_options();
    void begin_new();
    void go_to_first_field();
    void show_stored_head();
    void read_customer(const std::string& code);
    void pick_order();
    void order_typed(const std::string& typed);
    void require_party_and_warehouse();
    void refuse_unit_of_order() const;
    void take_good_typed(const std::string& typed);
    std::vector<TDBGridEh::Suggestion> suggest(const GridColumn& column, const std::string& typed);
    const Goods& goods();
    void drop_blank_line();
    void check_lines();
    void check_repeats();
    void print_new();
    void document_printed();
    InvoiceHead head_to_save() const;

    InvoiceGrid grid_{AdoQry_Main};
    Goods goods_;
    OpenedDocument opened_;
    std::string customer_read_; // whose details are shown
};

} // namespace module
