// What the detailed ledger and the journal share: a line a voucher line, with its running balance.
#pragma once

#include "module/ledgers/ledger_form.h"

namespace module {

// A column that only one of the two has.
struct LedgerColumn {
    const char* field;
    const char* title;
    int width;
    Alignment align = Alignment::Left;
};

struct DetailedLedgerKind {
    LedgerKind form;
    LedgerColumn after_summary; // field null for none
    LedgerColumn before_balance;
};

class DetailedLedger : public LedgerForm {
protected:
    DetailedLedger(TForm* parent, const DetailedLedgerKind& kind);
    void DBGridEhDblClick() override; // opens the row's voucher
    // Rows that are no voucher line are blue; in the others negative amounts are red.
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;
    std::string voucher_of_row() override;
    BookRow book_row(int row) const override; // lines are added up from one total to the next

private:
    void add_own_column(const LedgerColumn& column);
    void add_group_column(const char* field, const char* title); // named beside the grid
};

} // namespace module
