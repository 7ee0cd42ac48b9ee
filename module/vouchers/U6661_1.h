// Enter, change or look at one voucher; saves only when debits equal credits.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "host/forms/Base_Entry_Body.h"
#include "module/host_names.h"
#include "module/vouchers/account_search.h"
#include "module/vouchers/voucher_grid.h"
#include "module/vouchers/voucher_statements.h"

namespace module {

class TF6661_2;
class TF6661_3;
class TF6661_4;
class TF6661_5;

class TF6661_1 : public Tfrm_Base_Entry_Body {
public:
    // What the user sees, from top to bottom.
    TComboBox PZZ{this, "PZZ", "凭证字"};              // voucher word
    TNumberEdit PZZ_H{this, "PZZ_H", " 号"};           // number within period and word
    TLabel PZQJ{this, "PZQJ"};                         // accounting period
    TDateEdit BDATE{this, "BDATE", "日期"};            // voucher date, within the period
    TLabel DateHint{this, "DateHint", "日期不在本期"}; // shown while it is so
    TNumberEdit PZZ_Z{this, "PZZ_Z", "附单据(张)"};    // number of attached documents
    TLabel USER_ID{this, "USER_ID"};                   // maker's name
    TLabel AuditState{this, "AuditState"};             // not audited, audited by, posted
    TLabel EDATE{this, "EDATE"};                       // audit date
    TLabel DebitTotal{this, "DebitTotal"};
    TLabel CreditTotal{this, "CreditTotal"};
    TPanel Difference{this, "Difference"};                 // which side is more, and by how much
    TAction Act_xj{this, "Act_xj", "分配", "F8", "split"}; // cash-flow allocation
    TMenuItem N2{this, "N2", "存为模板"};                  // save as template
    TPopupMenu PoPMenu{this, "PoPMenu"};

    // What the user does.
    explicit TF6661_1(TForm* parent);
    ~TF6661_1() override;
    const char* ClassName() const override { return "TF6661_1"; }
    void PZZChange();     // another word has its own numbers
    void N2Click();       // the saved lines become a template
    void Act_xjExecute(); // cash lines are allocated to cash-flow items
    void PoPMenuPopup();

    // Steps of every document that differ here.
    void InitForm(const std::string& key, TClientDataSet* list, bool read_only = false,
                  bool copy = false, bool modal = false, int number = 0) override;
    void OpenNoid(const std::string& key) override;
    void RefreshData() override;
    bool AllCheck() override;
    void SaveData() override;
    std::unique_ptr<PaperDocument> MakeDocument() override; // the customary form
    void ColumnClick(GridColumn& column) override;
    void WL_IDSetText(TField& field, const std::string& typed) override; // account on a line
    void SetFloatText(TField& field, const std::string& typed) override; // amount on a line

protected:
    void Act_OtherExecute() override; // apply a template
    void FormKeyPress(char32_t& character) override;
    void DBGridEhKeyPress(char32_t& character) override;
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;

private:
    // This form's own rules.
    void build_columns();
    void bind_events();
    void read_books();
    void number_new_voucher();
    void show_stored_head();
    void refresh_totals();
    void refresh_title();
    void refresh_date_hint();
    std::vector<TDBGridEh::Suggestion> suggest(const GridColumn& column, const std::string& typed);
    const LeafAccounts& leaf_accounts();
    void take_account(const LeafAccount& account);
    const LeafAccount& account_meant_by(const std::string& typed);
    void mark_cash_lines();
    void prepare_allocation();
    std::string save_allocation(const std::string& key) const;
    void check_head();
    void check_accounts_take_entries(const std::vector<VoucherLine>& lines);
    std::string why_changed_meanwhile(); // by others; "" when it was not
    std::string save(const std::string& key, const std::string& batch);
    VoucherHead head_to_save(const std::string& period) const;

    bool new_voucher() const { return Mode == "Add" || Mode == "CopyAdd"; }

    VoucherGrid grid_{AdoQry_Main};
    LeafAccounts leaf_accounts_;
    std::string period_;       // current period of the books
    bool single_word_ = false; // all vouchers carry one word
    bool opened_anew_ = false; // not merely ready for the next voucher
    std::string as_opened_;    // what was stored when the voucher was opened
    std::optional<std::pair<Amount, Amount>> shown_sums_; // debit and credit below the lines
    std::unique_ptr<TF6661_2> F6661_2;
    std::unique_ptr<TF6661_3> F6661_3;
    std::unique_ptr<TF6661_4> F6661_4;
    std::unique_ptr<TF6661_5> F6661_5;
};

} // namespace module
