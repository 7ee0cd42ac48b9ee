// A grid over a dataset: columns, footers, cell colours, editing in place.
#pragma once

#include <memory>
#include <optional>

#include "host/controls/alignment.h"
#include "host/controls/buttons.h"
#include "host/controls/control.h"
#include "host/controls/suggestion.h"
#include "host/dataset/client_dataset.h"

namespace host {

enum class FooterKind { None, Sum, Text, Count };

// Marks a column of amounts: they stand to the right, negative ones in red.
inline constexpr int amount_tag = 9;

// One column. The title may hold "upper|lower": neighbours with the same upper part are grouped.
struct GridColumn {
    std::string FieldName;
    std::string Title;
    int Width = 0; // characters of ordinary type; 0 by content; -1 takes what is left
    bool ReadOnly = false;
    bool Visible = true;
    Alignment Align = Alignment::Left;
    int Tag = 0;              // amount_tag, or nothing
    bool CheckBox = false;    // shows a flag as a check mark
    bool RuledAmount = false; // shows an amount in ruled digit boxes
    bool Button = false;      // has a lookup button (F4, driver "lookup")
    std::vector<std::string> PickList;
    FooterKind Footer = FooterKind::None;
    std::string FooterText;  // of a Text footer
    std::string FooterField; // field summed in a Sum footer; empty: the column's own
    Alignment FooterAlign = Alignment::Right;
};

// A column as the person has it: where it stands in Columns, and how wide it is in characters (0 by
// content, -1 what is left).
struct ShownColumn {
    int column = 0;
    int width = 0;
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
    ~TDBGridEh() override;
    const char* ClassName() const override { return "TDBGridEh"; }

    TClientDataSet* DataSet = nullptr;
    std::vector<GridColumn> Columns;
    bool MultiSelect = false;        // rows can be marked with Ctrl/Shift or the driver
    bool AppendOnEnter = true;       // leaving the last cell of the last row appends
    bool AutoFooter = true;
    bool FixedOrder = false;         // a printed form: no sorting, no moving of columns
    bool RowSizing = false;          // the person may make the rows higher; long texts then wrap
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

    // The columns the person sees, in his order: what paper and files follow. A renderer in which
    // columns can be moved, sized and hidden tells how they stand; else as the form gave them.
    std::vector<ShownColumn> shown_columns() const;
    void set_shown_columns(std::vector<ShownColumn> columns) { shown_ = std::move(columns); }

    std::string footer_text(int column) const;
    // The same as a value: the sum as an amount, a text, a count; NULL where there is none.
    Value footer_value(int column) const;
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
    using Suggestion = host::Suggestion;
    std::function<std::vector<Suggestion>(const GridColumn&, const std::string& typed)> OnSuggest;
    TPopupMenu* PopupMenu = nullptr;

    // Editing in place, key by key. A renderer with an editor of its own asks filter_key() for
    // every character and hands the result to commit_text() when the person goes on.
    bool editing() const { return edit_text_.has_value(); }
    std::string edit_text() const { return edit_text_.value_or(""); }
    void start_edit(); // with the cell's text; nothing where it may not be edited
    void set_edit_text(const std::string& text);
    bool filter_key(char32_t& character);  // OnKeyPress; false when the key was swallowed
    bool commit_edit();                    // false when the field refused the text
    void cancel_edit();
    std::vector<Suggestion> suggestions(); // for what is typed so far
    void choose(const Suggestion& suggestion);

    // The marked rows, or all, as lines of cells parted by tabs, the titles first.
    std::string copy_text(bool all = false) const;
    // Goes to the next row whose current column begins with `typed` (text or pinyin initials).
    bool find(const std::string& typed);
    bool marked(int row) const;
    void leave() override { commit_edit_or_abort(); }

private:
    struct Watch;
    void attach() const;
    void commit_edit_or_abort();
    void post_typed(const std::string& text);
    bool move_row(int by);
    bool to_first_editable();
    bool row_is_untouched() const;
    bool may_append() const;
    void empty_cell();

    std::string footer_format(const GridColumn& shown) const;

    int column_ = 0;
    std::vector<ShownColumn> shown_;
    std::optional<std::string> edit_text_;
    std::string find_text_;
    mutable std::vector<int> marked_; // in order; forgotten when the rows change places
    mutable std::unique_ptr<Watch> watch_;
};

} // namespace host
