// One cell: its ground by state, its content by kind of column, its lines.
#include "desktop/grid/grid_delegate.h"

#include <QPainter>

#include "desktop/grid/cell_text.h"
#include "desktop/grid/digit_boxes.h"
#include "desktop/grid/grid_header.h"
#include "desktop/grid/grid_view.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/house_style.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"
#include "host/controls/grid_groups.h"

namespace desktop {
namespace {

// "银行存款-工行": the parent part is quiet, the own part is ink.
void paint_account_name(QPainter& painter, const QRect& box, const QString& text) {
    const qsizetype own = text.lastIndexOf('-') + 1;
    const QString parent = text.left(own);
    const int width = painter.fontMetrics().horizontalAdvance(parent);
    painter.setPen(token::ink_3);
    painter.drawText(box, Qt::AlignLeft | Qt::AlignVCenter, parent);
    painter.setPen(token::ink_1);
    const QRect rest = box.adjusted(width, 0, 0, 0);
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(text.mid(own), Qt::ElideRight, rest.width()));
}

// A text that begins with blanks stands in by a step for each, and a high row wraps a long one.
void paint_text(QPainter& painter, QRect box, QString text, Qt::Alignment alignment, bool wraps) {
    constexpr int step = 12;
    qsizetype blanks = 0;
    while (blanks < text.size() && text[blanks] == ' ') ++blanks;
    if (alignment & Qt::AlignLeft) box.setLeft(box.left() + static_cast<int>(blanks) * step);
    text = text.mid(blanks);
    if (wraps) return painter.drawText(box, alignment | Qt::TextWrapAnywhere, text);
    painter.drawText(box, alignment,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, box.width()));
}

bool is_set(const QString& text) {
    return text == "1" || text.compare("True", Qt::CaseInsensitive) == 0;
}

} // namespace

GridDelegate::GridDelegate(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {80, view_.grid() ? row_height(*view_.grid()) : token::grid_row};
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    host::TDBGridEh* grid = view_.grid();
    if (!grid || !grid->DataSet || index.row() >= grid->DataSet->RecordCount()) return;
    const host::CellParams params = grid->cell_params(index.row(), index.column());
    painter->fillRect(option.rect, ground_of(index.row(), params));
    paint_content(*painter, option.rect, index.row(), index.column(), params);
    paint_lines(*painter, option.rect, index.row(), index.column());
}

// A summary is blue to its end; a blue item alone is a heading and keeps the ground of its line.
bool GridDelegate::is_summary(int row) const {
    const int last = static_cast<int>(view_.grid()->Columns.size()) - 1;
    return view_.grid()->cell_params(row, last).Font == host::clBlue;
}

QColor GridDelegate::ground_of(int row, const host::CellParams& params) const {
    QColor ground = token::of(params.Background, token::paper_0);
    // Rows a form writes in blue are summaries: they stand on a ground of their own.
    if (params.Background == host::clDefault && params.Font == host::clBlue && is_summary(row))
        ground = token::summary_ground;
    if (view_.row_edited(row)) ground = token::indigo_4;
    else if (view_.row_selected(row))
        ground = view_.shows_focus() ? token::indigo_3 : token::selected_quiet;
    return ground;
}

// Right of the last column a row goes on as it began, unless its cells differ from each other.
void GridDelegate::paint_rest(QPainter& painter, const QRect& rest, int row) const {
    host::TDBGridEh& grid = *view_.grid();
    const int last = static_cast<int>(grid.Columns.size()) - 1;
    host::CellParams params = grid.cell_params(row, last);
    if (params.Background != grid.cell_params(row, 0).Background)
        params.Background = host::clDefault;
    painter.fillRect(rest, ground_of(row, params));
    const bool selected = view_.row_selected(row) && view_.shows_focus();
    painter.fillRect(rest.left(), rest.bottom(), rest.width(), 1,
                     selected ? token::selected_rule : token::rule_1);
}

void GridDelegate::paint_content(QPainter& painter, const QRect& cell, int row, int column,
                                 const host::CellParams& params) const {
    const host::TDBGridEh& grid = *view_.grid();
    const auto& shown = grid.Columns[static_cast<std::size_t>(column)];
    const QString text = qt(grid.cell_text(row, column));
    if (shown.CheckBox) {
        // A flag that means nothing in its row: the form tints the cell and leaves it empty.
        const bool meaningless = text.isEmpty() && params.Background != host::clDefault;
        return meaningless ? void() : paint_check_box(painter, cell, is_set(text));
    }
    const QColor ink = token::of(params.Font, token::ink_1);
    if (shown.RuledAmount) {
        digit_boxes::paint_rules(painter, cell.adjusted(0, 0, 0, -1));
        painter.setFont(fonts::digits(params.Bold));
        return digit_boxes::paint_amount(painter, cell, text, amount_color(text, ink));
    }
    painter.setFont(fonts::body(params.Bold));
    const QRect box = cell.adjusted(token::cell_padding, 0, -token::cell_padding, 0);
    if (is_amount_column(grid, shown) && looks_like_amount(text))
        return paint_amount(painter, box, text, amount_color(text, ink));
    if (params.Font == host::clDefault && is_account_name_column(grid, shown) && text.contains('-'))
        return paint_account_name(painter, box, text);
    painter.setPen(ink);
    paint_text(painter, box, text, alignment_of(grid, shown), cell.height() > row_height(grid));
}

void GridDelegate::paint_lines(QPainter& painter, const QRect& cell, int row, int column) const {
    const host::TDBGridEh& grid = *view_.grid();
    const bool selected = view_.row_selected(row) && view_.shows_focus();
    painter.fillRect(cell.right(), cell.top(), 1, cell.height(),
                     view_.title_header().closes_group(column) ? token::rule_3 : token::rule_1);
    if (host::begins_group(grid, row + 1)) // the last row of a group closes it with a strong line
        painter.fillRect(cell.left(), cell.bottom() - 1, cell.width(), 2, token::rule_3);
    else
        painter.fillRect(cell.left(), cell.bottom(), cell.width(), 1,
                         selected ? token::selected_rule : token::rule_1);
    if (row != grid.DataSet->RecNo() || column != grid.column()) return;
    painter.setBrush(Qt::NoBrush);
    if (view_.shows_focus()) {
        painter.setPen(QPen(token::indigo_2, 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.drawRect(cell.adjusted(1, 1, -1, -1));
    } else {
        painter.setPen(token::rule_3);
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
    }
}

} // namespace desktop
