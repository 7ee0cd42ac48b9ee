// What every receipt and payment shares: the party, what stands open with it, what it is for.
#pragma once

#include <string>
#include <vector>

#include "host/forms/Base_Entry_Body.h"
#include "module/host_names.h"
#include "module/settlement/code_name.h"
#include "module/settlement/settlement_kind.h"
#include "module/settlement/write_off.h"
#include "module/trade/money_edit.h"
#include "module/trade/opened_document.h"

namespace module {

class SettlementForm : public Tfrm_Base_Entry_Body {
public:
    // What the user sees, from top to bottom.
    TEdit Edit1{this, "Edit1", "单    号"};         // number
    TLinkEdit KH_GYS_ID;                            // customer or supplier
    CodeName KG_NAME{this, "KG_NAME", KH_GYS_ID};   // its name
    TDateEdit BDATE{this, "BDATE", "开单日期"};     // date
    TEdit PH{this, "PH", "票    号"};               // cheque or slip number
    TComboBox CB1{this, "CB1", "单据类型"};         // what it is for
    TLinkEdit JY_ID;                                // money account
    CodeName JY_NAME{this, "JY_NAME", JY_ID};       // its name
    TLabel EDATE{this, "EDATE"};                    // last change
    TLabel USER_NAME{this, "USER_NAME"};            // maker
    TLabel BalanceLine{this, "BalanceLine"};        // paid in advance, owed, the difference
    TLabel ShareTotal{this, "ShareTotal"};          // written off here
    TLabel LeftOpen{this, "LeftOpen"};              // of the items listed, after this document
    TPanel Difference{this, "Difference"};          // money less what is written off
    TAction Act_Clear{this, "Act_Clear", "清空分摊", "F8", "eraser"};

    // What the user does.
    void Edit1Exit();           // number left: empty or taken gives way to a fresh one
    void KH_GYS_IDExit();       // party left: its balances and open items are read
    void CB1Change();           // advances and their refunds write nothing off
    void Act_ClearExecute();    // nothing is written off

    // Steps of every document that differ here.
    void OpenNoid(const std::string& key) override;
    void RefreshData() override;
    bool AllCheck() override;
    void SaveData() override;
    void SetFloatText(TField& field, const std::string& typed) override;
    void DBGridEhColorLine(TField& field, CellParams& params) override; // more than is open

protected:
    SettlementForm(TForm* parent, const SettlementKind& kind, NumberSeries numbers);

    // What the forms add: their statements, their amounts, their order of checks.
    virtual std::string open_items_query(const std::string& party) const = 0;
    virtual std::string head_query(const std::string& number) const = 0;
    virtual std::string lines_query_of(const std::string& number) const = 0;
    virtual void begin_amounts() = 0;              // of a new document
    virtual void show_amounts() = 0;               // of the head that was read
    virtual Amount money_to_spread() const = 0;    // over the open items
    virtual Amount money_moved() const = 0;        // of an advance, its refund or its use
    virtual void check_amounts() = 0;              // in order; refuses
    virtual std::string batch_to_save() = 0;

    void FormShow() override;
    void Act_SaveExecute() override;
    void Act_OtherExecute() override;   // the money is spread anew
    void Act_RefreshExecute() override; // the party's open items are read anew
    virtual void items_loaded() {}  // into the grid, from a query
    virtual void prepare_advance(); // before an advance is saved: one row with the whole amount

    Purpose purpose() const { return static_cast<Purpose>(CB1.item_index()); }
    bool writes_off() const { return writes_off_at(CB1.item_index()); }
    bool new_document() const { return Mode == "Add" || Mode == "CopyAdd"; }
    void define_amounts(std::initializer_list<const char*> fields);
    void spread_over_items();
    void clear_shares();
    virtual void refresh_totals();
    Amount share_sum() const { return AdoQry_Main.Sum("MONEY"); }
    virtual Amount document_shares() const { return share_sum(); } // without income
    std::vector<WriteOff> write_offs() const;
    void read_party(); // its name and balances; refuses an unknown one
    void load_open_items();
    const SettlementKind& kind_;
    const NumberSeries numbers_;
    bool holding_ = false; // amounts are set by the form: nothing is spread

private:
    // This form's own rules.
    static bool writes_off_at(int purpose);
    void go_to_first_field();
    void write_shares(const std::vector<Amount>& shares); // one a row
    void bind_events();
    void begin_document();
    void show_document();
    void refresh_lines_access();
    void refresh_balance();
    void check_head();
    void check_advance();
    std::string why_items_changed() const; // "" while they are as they were listed
    std::string save(const std::string& number, const std::string& batch);
    std::string party_;         // whose items are listed
    std::string balance_text_;  // of the party
    Amount advance_at_hand_;    // of the party, without this document
    bool writing_shares_ = false;
    OpenedDocument opened_;
};

} // namespace module
