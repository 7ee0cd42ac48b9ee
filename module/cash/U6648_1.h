// Enter, change or look at one bank deposit, withdrawal or transfer between own accounts.
#pragma once

#include "host/forms/Base_Detail.h"
#include "module/host_names.h"
#include "module/trade/money_edit.h"

namespace host {
struct Sheet;
}

namespace module {

struct BankTransfer;

class TF6648_1 : public TFrm_Base_Detail {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "单    号"};           // number; left empty a fresh one is drawn
    TDateEdit BDATE{this, "BDATE", "日期"};
    TLinkEdit JY_ID_FK{this, "JY_ID_FK", "付款帐户"}; // account that pays
    TLinkEdit JY_ID_SK{this, "JY_ID_SK", "收款帐户"}; // account that receives
    MoneyEdit MONEY{this, "MONEY", "金    额"};
    TLinkEdit EDIT2{this, "EDIT2", "摘    要"};       // summary, from the common ones or typed
    TLinkEdit YW_ID{this, "YW_ID", "经 手 人"};       // member of the staff
    TLinkEdit BM_ID{this, "BM_ID", "部门"};           // department
    TEdit USER_NAME{this, "USER_NAME", "制 单 人"};   // who wrote it
    TAction Act_Print{this, "Act_Print", "打印", "Ctrl+P", "printer"};
    TButton PrintButton{this, "btn_frf", "打印"};

    // What the user does.
    explicit TF6648_1(TForm* parent);
    const char* ClassName() const override { return "TF6648_1"; }
    void Edit1Exit(); // number left: empty or taken gives way to a fresh one
    void btn_frf();   // prints the slip of a saved document

    // Steps of every edit dialog that differ here.
    void RefreshData() override;
    void SaveData() override;

    // Shows the document with that number, not to be changed; a document that is gone is told of.
    void OpenNoid(const std::string& key);

private:
    // This form's own rules.
    bool adding() const { return Mode == "Add" || Mode == "CopyAdd"; }
    void clear();
    void fill_from(const TClientDataSet& row);
    void lock(bool only_shown);
    void check_accounts();
    void check_unchanged(); // nobody else changed the document since the list was read
    BankTransfer entered() const;
    void write_row(const BankTransfer& saved);
    Sheet slip() const;
};

// Shows the document with that number over `opener`.
void show_bank_transfer(const std::string& number, TForm* opener);

} // namespace module
