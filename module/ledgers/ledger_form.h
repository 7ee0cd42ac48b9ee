// What the ledgers on screen share: rows grouped by account, and the way from a row to its origin.
#pragma once

#include "host/forms/Base_Qry.h"
#include "host/printing/sheet.h"
#include "module/host_names.h"

namespace module {

class LedgerFilter;

// How the ledgers differ.
struct LedgerKind {
    const char* caption;
    const char* open_caption; // what Enter on a row does
    const char* tip;          // the line below the grid
};

class LedgerForm : public TFrm_Base_Qry {
public:
    // What the user sees, from top to bottom.
    TAction Act_Group{this, "Act_Group", "下一组", "Tab", "arrow-down-to-line"};
    TAction Act_Open{this, "Act_Open", "", "Enter", "file-text"};
    TLabel ScopeLabel{this, "ScopeLabel"};     // what the list leaves out
    TLabel OpenerLabel{this, "OpenerLabel"};   // the book this was opened from; a click goes back
    TLabel OpenerArrow{this, "OpenerArrow", "›"};
    TLabel AccountLabel{this, "AccountLabel"}; // account of the current row
    TLabel VoucherArrow{this, "VoucherArrow", "›"};
    TLabel VoucherLabel{this, "VoucherLabel"}; // its voucher; a click opens it
    TClientDataSet Groups;                     // the accounts listed, with their last balance
    TDBGridEh GroupGrid{this, "GroupGrid", &Groups};
    TLabel TipLabel{this, "TipLabel"};

    // Steps of every query that differ here.
    void GetData() override;
    // On paper: pages carry their sums over, and what the list leaves out is told.
    Sheet MakeSheet() override;

protected:
    LedgerForm(TForm* parent, const LedgerKind& kind);
    // The parts from top to bottom; the groups stand at the left where a list has several.
    void arrange(bool with_groups);
    void Act_LocateExecute() override;
    virtual void DBGridEhKeyDown(Key& key); // Tab: the next account, Shift+Tab the one before
    // The form's dialog as the ledgers know it.
    virtual LedgerFilter* Conditions() = 0;
    // What the row is to the sums carried from page to page.
    virtual BookRow book_row(int row) const = 0;
    virtual std::string voucher_of_row() { return ""; } // "记-13"

private:
    void build_group_grid();
    void list_groups();
    void go_to_group(bool backward);
    void row_chosen();
    void group_chosen();
    std::size_t group_of(int row) const;
    int line_in_group(int row) const; // 0 for the first
    int last_of_group(int row) const; // the last row of the group of `row`
    std::vector<int> group_rows_; // first row of each group
    std::string shown_sql_;       // the statement whose rows are shown
    bool following_ = false;      // one grid follows the other
};

} // namespace module
