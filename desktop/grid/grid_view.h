// The rows and columns of a grid: painting by a delegate, editing in place, mouse and keys.
#pragma once

#include <QPointer>
#include <QTableView>

#include <optional>

#include "desktop/renderers/form_view.h"
#include "host/controls/grid.h"

namespace desktop {

class CellEditor;
class GridDelegate;
class GridHeader;
class GridModel;
class SuggestionPopup;

// Where the person is, what is marked and what is typed is kept by the grid control; this view
// shows it. In an entry grid an editor stands in the current cell while the grid has the focus, so
// that input methods find it there.
class GridView : public QTableView {
public:
    GridView(host::TDBGridEh& grid, FormView& form, QWidget* parent);
    ~GridView() override;

    host::TDBGridEh* grid() const { return grid_; } // null once the form went
    bool shows_focus() const;        // the grid or its editor has it
    bool row_selected(int row) const;
    bool row_edited(int row) const;  // the current row of an entry grid that has the focus
    GridHeader& title_header() const { return *header_; }
    void restore_columns();          // widths, order and visibility the person chose before
    void detach();

    std::function<void()> on_geometry; // sizes or sums changed: the footer follows

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;

private:
    void connect_header();
    void lay_columns_out();
    int content_width(int column) const;
    int least_width(int column) const; // for its title and for whole amounts
    void refresh();       // the control changed
    void sync_cursor();   // the current cell, the editor and the scroll position
    void cursor_due();
    void place_editor();
    void edited(const QString& text);
    void offer();         // suggestions for what is typed
    bool take_suggestion(int index); // false: refused
    OwnKey own_key(const host::Key& key);
    void keep_refused_text();
    void mark_to(int row);
    void paint_empty_rows(QPainter& painter);
    void remember_columns();
    void tell_columns(); // to the grid control: paper and files follow the screen
    QString plain_cell_text() const;

    host::TDBGridEh* grid_;
    FormView& form_;
    GridModel* model_;
    GridHeader* header_;
    GridDelegate* delegate_;
    CellEditor* editor_;
    QPointer<SuggestionPopup> popup_; // a child of the window while it shows
    std::vector<host::Suggestion> offered_;
    bool cursor_due_ = false, laying_out_ = false, laid_out_ = false;
    int placed_row_ = -1, placed_column_ = -1;
    int mark_anchor_ = -1;
    struct Entered {
        int row, column;
        QString text, before;
    };
    std::optional<Entered> entered_; // what a key is about to hand over
};

} // namespace desktop
