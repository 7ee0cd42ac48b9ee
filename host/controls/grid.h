// A grid over a dataset: columns, footers, cell colours, editing in place.
#pragma once

#include "host/controls/control.h"
#include "host/dataset/client_dataset.h"

namespace host {

enum class FooterKind { None, Sum, Text, Count };
enum class Alignment { Left, Center, Right };

// One column. The title may hold "upper|lower": neighbours with the same upper part are grouped.
struct GridColumn {
    std::string FieldName;
    std::string Title;
    int Width = 0; // characters of ordinary type; 0 by content; -1 takes what is left
    bool ReadOnly = false;
    bool Visible = true;
    Alignment Align = Alignment::Left;
    int Tag = 0;              // 9 marks an amount column: negative values are red
    bool CheckBox = false;    // shows a flag as a check mark
    bool RuledAmount = false; // shows an amount in ruled digit boxes
    bool Button = false;      // has a lookup button (F4, driver "lookup")
    std::vector<std::string> PickList;
    FooterKind Footer = FooterKind::None;
    std::string FooterText;  // of a Text footer
    std::string FooterField; // field summed in a Sum footer; empty: the column's own
    Alignment FooterAlign = Alignment::Right;
};

// How a cell is painted; the form's event may change it.
struct CellParams {
    Color Font = clDefault;
    Color Background = clDefault;
    bool Bold = false;
};

// Everything the person does in it goes through these methods, whoever draws it: the renderer
// and the driver call the same ones.
class TDBGridEh : public TWinControl {
public:
    TDBGridEh(TForm* form, std::string name, TClientDataSet* dataset = nullptr);
    const char* ClassName() const override { return "TDBGridEh"; }

    TClientDataSet* DataSet = nullptr;
    std::vector<GridColumn> Columns;
    bool MultiSelect = false;        // rows can be marked with Ctrl/Shift or the driver
    bool AppendOnEnter = true;       // leaving the last cell of the last row appends
    bool AutoFooter = true;
    std::string EmptyText;           // sentence in the middle of an empty grid

    // The current cell. Setting the column runs OnColExit/OnColEnter and posts nothing.
    int column() const { return column_; }
    const GridColumn* current_column() const;
    int column_index(const std::string& field) const; // -1 when there is none
    bool set_column(int index); // false when OnColEnter refused
    void SelectField(const std::string& field) { set_column(column_index(field)); }
    // Goes to a row; the row count itself appends a new one. Posts the row left (its BeforePost may
    // refuse: then false).
    bool set_row(int row);

    // May the current cell be typed into (grid, column, field and dataset allow it)?
    bool can_edit(int column) const;
    // Replaces the current cell's value by a typed text through the key and set-text handlers.
    void enter_cell(const std::string& text);
    void press_button(); // the lookup button of the current cell
    void double_click();
    void title_click(int column); // sorts by the column unless OnTitleClick is set
    bool next_cell();             // Enter: next editable cell, then next row, appending at the end
    bool key_down(Key key) override;
    void type(char32_t character) override; // OnKeyPress first
    void enter_text(const std::string& text) override { enter_cell(text); }

    std::string footer_text(int column) const;
    std::string cell_text(int row, int column) const; // display text
    CellParams cell_params(int row, int column);

    // Marked rows, or the current one when none is marked.
    std::vector<int> selected_rows() const;
    void mark_row(int row, bool on);
    void clear_marks();

    std::function<void(TField& field, CellParams& params)> OnGetCellParams; // dataset is on the row
    std::function<void()> OnColEnter;
    std::function<void()> OnColExit;
    std::function<void()> OnDblClick;
    std::function<void(GridColumn&)> OnButtonClick;
    std::function<void(int column)> OnTitleClick;
    // Type-ahead: the accounts (or summaries) that match what is typed so far in a lookup column.
    struct Suggestion {
        std::string value;              // goes into the cell when chosen
        std::vector<std::string> cells; // code, name, pinyin, side, balance
        std::string key;
    };
    std::function<std::vector<Suggestion>(const GridColumn&, const std::string& typed)> OnSuggest;
    TPopupMenu* PopupMenu = nullptr;

private:
    int column_ = 0;
    std::vector<int> marked_;
};

} // namespace host
