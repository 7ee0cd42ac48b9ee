// Paints sums bold and right-aligned; below a paper form its texts in one run.
#include "desktop/grid/grid_footer.h"

#include <QPainter>

#include "desktop/grid/cell_text.h"
#include "desktop/grid/digit_boxes.h"
#include "desktop/grid/grid_header.h"
#include "desktop/grid/grid_view.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {

GridFooter::GridFooter(GridView& view, QWidget* parent) : QWidget(parent), view_(view) {
    setFixedHeight(token::footer);
}

bool GridFooter::wanted() const {
    if (!view_.grid() || !view_.grid()->AutoFooter) return false;
    const auto& columns = view_.grid()->Columns;
    return std::any_of(columns.begin(), columns.end(), [](const host::GridColumn& column) {
        return column.Visible && column.Footer != host::FooterKind::None;
    });
}

void GridFooter::refresh() {
    if (!view_.grid()) return;
    setVisible(wanted());
    setFixedHeight(is_ruled(*view_.grid()) ? token::voucher_footer : token::footer);
    update();
}

void GridFooter::paint_column(QPainter& painter, int column, const QRect& cell) {
    const host::TDBGridEh& grid = *view_.grid();
    const auto& shown = grid.Columns[static_cast<std::size_t>(column)];
    const QString text = qt(grid.footer_text(column));
    if (shown.RuledAmount) {
        digit_boxes::paint_rules(painter, cell);
        painter.setFont(fonts::digits(true));
        digit_boxes::paint_amount(painter, cell, text, amount_color(text, token::ink_1));
    } else if (looks_like_amount(text)) {
        painter.setFont(fonts::body(true));
        paint_amount(painter, cell.adjusted(8, 0, -8, 0), text, amount_color(text, token::ink_1));
    } else if (!text.isEmpty()) {
        painter.setFont(fonts::body());
        painter.setPen(token::ink_2);
        const auto side = shown.FooterAlign == host::Alignment::Left     ? Qt::AlignLeft
                          : shown.FooterAlign == host::Alignment::Center ? Qt::AlignHCenter
                                                                         : Qt::AlignRight;
        // A text may be wider than its column: it runs over the empty footers to its left.
        const QRect wide = side == Qt::AlignRight ? cell.adjusted(-cell.left(), 0, -8, 0)
                                                  : cell.adjusted(8, 0, 0, 0);
        painter.drawText(wide, side | Qt::AlignVCenter, text);
    }
    painter.fillRect(cell.right(), cell.top(), 1, cell.height(),
                     view_.title_header().closes_group(column) ? token::rule_3 : token::rule_2);
}

// The texts of a paper form stand in one run before its ruled columns: 合计 人民币（大写）, and the
// total in words, which must not be overlooked.
void GridFooter::paint_run(QPainter& painter, int right) {
    const host::TDBGridEh& grid = *view_.grid();
    const int left = view_.verticalHeader()->width();
    painter.fillRect(QRect(left, 1, right - left - 1, height() - 1), token::paper_2);
    QFont bold = fonts::digits(true);
    bold.setLetterSpacing(QFont::AbsoluteSpacing, 1);
    int x = left + 16;
    bool first = true;
    for (const host::GridColumn& column : grid.Columns) {
        if (column.Footer != host::FooterKind::Text || column.FooterText.empty()) continue;
        const QString text = qt(column.FooterText);
        painter.setFont(first ? fonts::body() : bold);
        painter.setPen(first                  ? token::ink_2
                       : text.startsWith(QStringLiteral("负")) ? token::cinnabar_1
                                              : token::ink_1);
        painter.drawText(QRect(x, 1, right - x, height() - 1), Qt::AlignVCenter, text);
        x += painter.fontMetrics().horizontalAdvance(text) + 10;
        first = false;
    }
}

void GridFooter::paintEvent(QPaintEvent*) {
    if (!view_.grid()) return;
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_2);
    const int origin = view_.verticalHeader()->width();
    const auto& header = view_.title_header();
    const bool ruled = is_ruled(*view_.grid());
    int first_ruled = width();
    painter.save();
    painter.setClipRect(rect().adjusted(origin, 0, 0, 0));
    for (int i = 0; i < header.count(); ++i) {
        if (header.isSectionHidden(i)) continue;
        const QRect cell(origin + header.sectionViewportPosition(i), 1, header.sectionSize(i),
                         height() - 1);
        paint_column(painter, i, cell);
        if (view_.grid()->Columns[static_cast<std::size_t>(i)].RuledAmount)
            first_ruled = std::min(first_ruled, cell.left());
    }
    if (ruled) paint_run(painter, first_ruled);
    painter.restore();
    painter.fillRect(origin - 1, 0, 1, height(), token::rule_2);
    painter.fillRect(0, 0, width(), 1, token::rule_3);
}

} // namespace desktop
