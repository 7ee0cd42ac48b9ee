// A financial statement: its lines with amounts or with formulas, and their recalculation.
#pragma once

#include <memory>

#include "host/forms/Base_Inner.h"
#include "module/statements/statement_kind.h"

namespace module {

// The box of the layouts. Opened and closed on the layout that is shown, it has that one read anew.
class LayoutBox : public TComboBox {
public:
    using TComboBox::TComboBox;
    std::function<void()> OnSameAgain;
    void enter_text(const std::string& text) override;
};

// Amounts and formulas are two grids over the same lines, one of them in front. Nothing is reckoned
// until the person asks for it; the amounts shown are those kept in the books.
class StatementForm : public TFrm_Base_Inner {
public:
    // What the user sees, from top to bottom.
    TRadioButton rb1{this, "rb1", "显示数据"}; // amounts
    TRadioButton rb2{this, "rb2", "显示公式"}; // formulas
    std::unique_ptr<LayoutBox> CB1;            // layout, where the statement has several
    TEdit Edit1{this, "Edit1", "期间:"};       // period to reckon for, as typed
    TLabel CurrentPeriod{this, "CurrentPeriod"}; // of the books, or what to do
    TLabel CellName{this, "CellName"};                    // "D5" of the selected amount
    TLabel LA4{this, "LA4", "-"};                         // its formula
    TLabel CellItem{this, "CellItem"};                    // what it is: item and column
    TDBGridEh DBGridEh1{this, "DBGridEh1", &AdoQry_Main}; // formulas

    // What the user does.
    StatementForm(TForm* parent, const StatementKind& kind);
    void InitForm(const Trecord& record) override;
    void rb1Click();                      // amounts or formulas in front
    void CB1CloseUp();                    // another layout
    void DBGridEhColumns2GetCellParams(); // another cell: its formula is shown

    // Steps of every grid edited in place that differ here.
    void SaveData() override;
    Sheet MakeSheet() override; // of the grid in front, with its period

protected:
    void Act_OtherExecute() override; // reckons every formula anew
    void DBGridEhGetCellParams(TField& field, CellParams& params) override;

private:
    // The rules of statements.
    void FormCreate();
    void add_columns();
    void arrange();
    int layout_number() const;
    std::string layout_text() const;
    std::string read_current_period();
    void follow_the_selected_cell();
    const StatementColumn* selected_column() const;

    // Recalculation: every pass walks through the lines, saves and reads them again, so that the
    // next one sees what this one found.
    struct CellFailure;
    struct Stopped;
    void run_passes();
    void run_pass(int pass);
    bool tell_progress(int pass, int lines_done) const; // false when the person asks to stop
    bool is_due(const std::string& formula, int pass) const;
    void reckon(const StatementColumn& column, const std::string& formula);
    [[noreturn]] void tell_failure(const CellFailure& failure);
    std::string item_of(const StatementColumn& column) const;

    const StatementKind& kind_;
    TClientDataSet work_; // answers of single queries
    int shown_layout_ = 1;
    bool recalculating_ = false;
};

} // namespace module
