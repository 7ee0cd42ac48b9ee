// Keeps the table in step with its grid control, and its columns in their places.
#include "desktop/grid/grid_view.h"

#include <QApplication>
#include <QPainter>
#include <QTimer>

#include "desktop/grid/cell_editor.h"
#include "desktop/grid/cell_text.h"
#include "desktop/grid/column_memory.h"
#include "desktop/grid/digit_boxes.h"
#include "desktop/grid/grid_delegate.h"
#include "desktop/grid/grid_header.h"
#include "desktop/grid/grid_model.h"
#include "desktop/grid/row_numbers.h"
#include "desktop/renderers/form_view.h"
#include "desktop/renderers/suggestion_popup.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int rows_measured = 200, widest_by_content = 360;

} // namespace

GridView::GridView(host::TDBGridEh& grid, FormView& form, QWidget* parent)
    : QTableView(parent), grid_(&grid), form_(form), model_(new GridModel(grid, this)),
      header_(new GridHeader(grid, this)), delegate_(new GridDelegate(*this)),
      editor_(new CellEditor(viewport())), popup_(new SuggestionPopup) {
    setObjectName("grid");
    setModel(model_);
    setItemDelegate(delegate_);
    setHorizontalHeader(header_);
    setVerticalHeader(new RowNumbers(*this));
    setFrameShape(QFrame::NoFrame);
    setShowGrid(false);
    setWordWrap(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // the frame has one below the footer
    setTabKeyNavigation(false);
    setMouseTracking(true);
    verticalHeader()->setDefaultSectionSize(row_height(grid));
    model_->on_reset = [this] {
        laid_out_ = false;
        lay_columns_out();
        cursor_due();
        if (on_geometry) on_geometry();
    };
    model_->on_cursor = [this] { cursor_due(); };
    model_->on_rows_changed = [this](int, int) {
        viewport()->update();
        cursor_due();
        if (on_geometry) on_geometry();
    };
    connect_header();
    form.claim(this, grid);
    form.claim(viewport(), grid);
    form.claim(editor_, grid);
    form.set_own_keys(grid, [this](const host::Key& key) { return own_key(key); });
    editor_->on_edited = [this](const QString& text) { edited(text); };
    editor_->on_lookup = [this] { form_.run([this] { grid_->press_button(); }); };
    editor_->on_focus = [this] { cursor_due(); }; // it goes when the focus leaves the grid
    editor_->on_composing = [this] { popup_->hide(); };
    popup_->on_chosen = [this](int index) {
        host::Key enter;
        enter.code = host::KeyCode::Enter;
        if (take_suggestion(index)) form_.send_key(enter);
    };
    form.after_event([this] {
        if (cursor_due_) sync_cursor();
        keep_refused_text();
    });
    form.at_release([this] { detach(); });
    form.listen(grid, [this] { refresh(); });
}

GridView::~GridView() { delete popup_.data(); }

void GridView::detach() {
    grid_ = nullptr;
    header_->detach();
    editor_->hide();
    popup_->hide();
    model_->detach();
}

void GridView::connect_header() {
    connect(header_, &QHeaderView::sectionClicked, this, [this](int column) {
        if (grid_) form_.run([&] { grid_->title_click(column); });
    });
    auto moved = [this] {
        header_->viewport()->update();
        if (on_geometry) on_geometry();
        place_editor();
        if (!laying_out_ && laid_out_) remember_columns();
    };
    connect(header_, &QHeaderView::sectionResized, this, moved);
    connect(header_, &QHeaderView::sectionMoved, this, moved);
    connect(header_, &QHeaderView::geometriesChanged, this, [this] {
        if (on_geometry) on_geometry();
    });
}

void GridView::refresh() {
    if (!grid_) return;
    model_->refresh();
    setEnabled(grid_->Enabled);
    // Setting it again would take back the heights that the person gave rows.
    if (const int height = row_height(*grid_); verticalHeader()->defaultSectionSize() != height)
        verticalHeader()->setDefaultSectionSize(height);
    for (int i = 0; i < model_->columnCount(); ++i) {
        const bool hidden = !grid_->Columns[static_cast<std::size_t>(i)].Visible;
        if (hidden && !isColumnHidden(i)) setColumnHidden(i, true);
    }
    viewport()->update();
    verticalHeader()->viewport()->update();
    header_->viewport()->update();
    cursor_due();
}

// Cursor news come in bursts while a form walks through its rows: shown once, when it is done.
void GridView::cursor_due() {
    if (cursor_due_) return;
    cursor_due_ = true;
    QTimer::singleShot(0, this, [this] {
        if (cursor_due_) sync_cursor();
    });
}

void GridView::sync_cursor() {
    cursor_due_ = false;
    if (!grid_ || !grid_->DataSet) return;
    const QModelIndex now = model_->index(grid_->DataSet->RecNo(), grid_->column());
    if (now != currentIndex()) {
        selectionModel()->setCurrentIndex(now, QItemSelectionModel::NoUpdate);
        if (now.isValid()) scrollTo(now);
    }
    place_editor();
    viewport()->update();
    verticalHeader()->viewport()->update();
}

bool GridView::shows_focus() const {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == this || focus == editor_);
}

bool GridView::row_selected(int row) const {
    if (!grid_ || !grid_->DataSet) return false;
    const auto marked = grid_->marked(row);
    return marked || (row == grid_->DataSet->RecNo() && grid_->selected_rows().size() <= 1);
}

bool GridView::row_edited(int row) const {
    return grid_ && grid_->DataSet && row == grid_->DataSet->RecNo() && is_entry_grid(*grid_) &&
           shows_focus();
}

// Widths as the form gives them, but no amount is cut; what is left goes to the column that asks
// for it.
void GridView::lay_columns_out() {
    if (!grid_ || laying_out_ || !isVisible()) return;
    laying_out_ = true;
    const auto digit = QFontMetrics(fonts::body()).horizontalAdvance('0');
    int filler = -1;
    for (int i = 0; i < model_->columnCount(); ++i) {
        const auto& column = grid_->Columns[static_cast<std::size_t>(i)];
        if (!column.Visible) continue;
        if (column.Width < 0 && filler < 0) filler = i;
        else if (column.RuledAmount) setColumnWidth(i, token::digit_box * digit_boxes::count);
        else if (!laid_out_ && column.Width <= 0) setColumnWidth(i, content_width(i));
        else if (!laid_out_)
            setColumnWidth(i, std::max(column.Width * digit + 18, least_width(i)));
    }
    if (!laid_out_) restore_columns();
    if (filler >= 0) {
        int used = 0;
        for (int i = 0; i < model_->columnCount(); ++i)
            if (i != filler && !isColumnHidden(i)) used += columnWidth(i);
        setColumnWidth(filler, std::max(viewport()->width() - used, 120));
    }
    laid_out_ = true;
    laying_out_ = false;
    tell_columns();
}

int GridView::least_width(int column) const {
    const auto& shown = grid_->Columns[static_cast<std::size_t>(column)];
    return is_amount_column(*grid_, shown) ? content_width(column) : header_->needed_width(column);
}

int GridView::content_width(int column) const {
    const QFontMetrics metrics(fonts::body());
    int width = header_->needed_width(column);
    const int rows = std::min(model_->rowCount(), rows_measured);
    for (int row = 0; row < rows; ++row) {
        const QString text = qt(grid_->cell_text(row, column));
        const int wide = looks_like_amount(text) ? amount_width(text, metrics)
                                                 : metrics.horizontalAdvance(text);
        width = std::max(width, wide + 2 * token::cell_padding + 2);
    }
    // The sum below an amount is longer than what it adds up, and bold.
    const QString sum = qt(grid_->footer_text(column));
    const QFontMetrics bold(fonts::body(true));
    if (looks_like_amount(sum))
        width = std::max(width, amount_width(sum, bold) + 2 * token::cell_padding + 2);
    return std::min(width, widest_by_content);
}

void GridView::restore_columns() {
    if (grid_) column_memory::restore(*grid_, *header_);
}

void GridView::remember_columns() {
    if (grid_) column_memory::remember(*grid_, *header_);
    tell_columns();
}

void GridView::tell_columns() {
    if (!grid_ || header_->count() != static_cast<int>(grid_->Columns.size())) return;
    const int digit = QFontMetrics(fonts::body()).horizontalAdvance('0');
    std::vector<host::ShownColumn> shown;
    for (int visual = 0; visual < header_->count(); ++visual) {
        const int column = header_->logicalIndex(visual);
        if (isColumnHidden(column)) continue;
        const bool filler = grid_->Columns[static_cast<std::size_t>(column)].Width < 0;
        const int inside = columnWidth(column) - 2 * token::cell_padding;
        shown.push_back({column, filler ? -1 : std::max(1, inside / digit)});
    }
    grid_->set_shown_columns(std::move(shown));
}

void GridView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    lay_columns_out();
    place_editor();
}

void GridView::showEvent(QShowEvent* event) {
    // Otherwise every scroll step would repaint all cells instead of the new ones.
    viewport()->setAutoFillBackground(true);
    QTableView::showEvent(event);
    lay_columns_out();
    cursor_due();
}

void GridView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (on_geometry) on_geometry();
    place_editor();
}

void GridView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!grid_) return;
    QPainter painter(viewport());
    paint_empty_rows(painter);
    if (model_->rowCount() > 0 || grid_->EmptyText.empty()) return;
    painter.setFont(fonts::body());
    painter.setPen(token::ink_2);
    painter.drawText(viewport()->rect(), Qt::AlignCenter, qt(grid_->EmptyText));
}

// A paper form has its rows ruled down to the total, written or not; any grid has its rows drawn
// through to the right edge.
void GridView::paint_empty_rows(QPainter& painter) {
    const int right = header_->length() - header_->offset();
    const int last = model_->rowCount() - 1;
    const int top = rowAt(0) < 0 ? 0 : rowAt(0);
    int y = 0;
    for (int row = top; row >= 0 && row <= last; ++row) {
        y = rowViewportPosition(row) + rowHeight(row);
        if (y > viewport()->height()) return;
        if (right < viewport()->width())
            delegate_->paint_rest(painter,
                                  QRect(right, rowViewportPosition(row),
                                        viewport()->width() - right, rowHeight(row)),
                                  row);
    }
    if (!is_ruled(*grid_)) return;
    const int height = row_height(*grid_);
    for (; y < viewport()->height(); y += height) {
        painter.fillRect(0, y + height - 1, viewport()->width(), 1, token::rule_1);
        for (int i = 0; i < model_->columnCount(); ++i) {
            if (isColumnHidden(i)) continue;
            const QRect cell(columnViewportPosition(i), y, columnWidth(i), height);
            if (grid_->Columns[static_cast<std::size_t>(i)].RuledAmount)
                digit_boxes::paint_rules(painter, cell.adjusted(0, 0, 0, -1));
            painter.fillRect(cell.right(), y, 1, height, token::rule_1);
        }
    }
}

} // namespace desktop
