// Paints titles, groups of titles, the unit letters of ruled amounts and the mark of the sort.
#include "desktop/grid/grid_header.h"

#include <QPainter>

#include "desktop/grid/cell_text.h"
#include "desktop/grid/digit_boxes.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {

GridHeader::GridHeader(host::TDBGridEh& grid, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), grid_(&grid) {
    setSectionsClickable(true);
    setSectionsMovable(!grid.FixedOrder);
    setHighlightSections(false);
    setMinimumSectionSize(28);
    setStretchLastSection(false);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setFont(fonts::small());
}

const host::GridColumn* GridHeader::column_at(int logical) const {
    if (!grid_ || logical < 0 || logical >= static_cast<int>(grid_->Columns.size())) return nullptr;
    return &grid_->Columns[static_cast<std::size_t>(logical)];
}

QString GridHeader::upper(int logical) const {
    const auto* column = column_at(logical);
    if (!column) return {};
    const QString title = qt(column->Title);
    if (column->RuledAmount) return title;
    const qsizetype bar = title.indexOf('|');
    return bar < 0 ? QString() : title.left(bar);
}

QString GridHeader::lower(int logical) const {
    const auto* column = column_at(logical);
    if (!column) return {};
    const QString title = qt(column->Title);
    return title.mid(title.indexOf('|') + 1);
}

int GridHeader::levels() const {
    for (int i = 0; grid_ && i < static_cast<int>(grid_->Columns.size()); ++i)
        if (!isSectionHidden(i) && !upper(i).isEmpty()) return 2;
    return 1;
}

QSize GridHeader::sizeHint() const {
    const int height = levels() == 1 ? token::header : 2 * token::header_level;
    return {QHeaderView::sizeHint().width(), height};
}

int GridHeader::needed_width(int column) const {
    const QFontMetrics metrics(fonts::small());
    const auto* shown = column_at(column);
    const int hint = shown && shown->Button ? 22 : 0;
    return metrics.horizontalAdvance(lower(column)) + hint + 2 * token::cell_padding + 14;
}

QRect GridHeader::group_rect(int logical) const {
    const QString name = upper(logical);
    int first = visualIndex(logical), last = first;
    auto same = [&](int visual) {
        const int other = logicalIndex(visual);
        return !isSectionHidden(other) && upper(other) == name;
    };
    const auto* column = column_at(logical);
    if (column && !column->RuledAmount) {
        while (first > 0 && same(first - 1)) --first;
        while (last + 1 < count() && same(last + 1)) ++last;
    }
    const int left = sectionViewportPosition(logicalIndex(first));
    const int end = logicalIndex(last);
    return QRect(left, 0, sectionViewportPosition(end) + sectionSize(end) - left,
                 token::header_level);
}

// A sheet with lettered columns ("A|资产") has halves: the second begins with new items, followed
// by the titles of the first half once more.
bool GridHeader::closes_half(int logical, int after) const {
    if (!grid_->FixedOrder || upper(logical).size() != 1) return false;
    const auto repeats = [&](int column) {
        for (int i = 0; i <= logical; ++i)
            if (lower(i) == lower(column)) return true;
        return false;
    };
    return after + 1 < count() && !repeats(after) && repeats(after + 1);
}

bool GridHeader::closes_group(int logical) const {
    const auto* column = column_at(logical);
    if (!column || levels() == 1 || is_ruled(*grid_)) return false;
    const int next = visualIndex(logical) + 1;
    if (next >= count()) return false;
    const int after = logicalIndex(next);
    if (closes_half(logical, after)) return true;
    // A title of two lines over one column makes no group of it.
    const auto spans = [this](int column) {
        return group_rect(column).width() > sectionSize(column);
    };
    return upper(logical) != upper(after) && (spans(logical) || spans(after));
}

void GridHeader::paint_title(QPainter& painter, const QRect& box, int logical,
                             const QString& text) const {
    const auto& column = *column_at(logical);
    QRect inner = box.adjusted(token::cell_padding, 0, -token::cell_padding, 0);
    const Qt::Alignment alignment = alignment_of(*grid_, column);
    const bool sorted = grid_->DataSet && !column.FieldName.empty() &&
                        grid_->DataSet->sorted_by() == column.FieldName;
    const int width = painter.fontMetrics().horizontalAdvance(text);
    painter.setPen(sorted ? token::indigo_1 : token::ink_2);
    painter.drawText(inner, alignment, painter.fontMetrics().elidedText(text, Qt::ElideRight,
                                                                        inner.width()));
    int left = inner.left();
    if (alignment & Qt::AlignRight) left = inner.right() - width;
    else if (alignment & Qt::AlignHCenter) left = inner.center().x() - width / 2;
    if (sorted)
        icons::paint(painter, grid_->DataSet->sorted_descending() ? "chevron-down" : "chevron-up",
                     alignment & Qt::AlignLeft ? QRect(left + width + 2, box.y(), 12, box.height())
                                               : QRect(left - 14, box.y(), 12, box.height()),
                     12, token::indigo_1);
    if (!column.Button || !grid_->OnButtonClick || !is_entry_grid(*grid_)) return;
    painter.save();
    painter.setFont(fonts::tiny());
    painter.setPen(token::ink_3);
    painter.drawText(QRect(left + width + 10, box.y(), 20, box.height()), Qt::AlignVCenter, "F4");
    painter.restore();
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int logical) const {
    const auto* column = column_at(logical);
    if (!column || !rect.isValid()) return;
    painter->save();
    painter->setClipRect(rect);
    painter->setFont(fonts::small());
    painter->fillRect(rect, token::paper_2);
    const QString group = upper(logical);
    const QColor edge = closes_group(logical) ? token::rule_3 : token::rule_2;
    if (group.isEmpty()) {
        paint_title(*painter, rect, logical, lower(logical));
        painter->fillRect(rect.right(), rect.top(), 1, rect.height(), edge);
    } else {
        const QRect whole = group_rect(logical);
        const QRect below = rect.adjusted(0, token::header_level, 0, 0);
        painter->setPen(column->RuledAmount ? token::ink_2 : token::ink_1);
        painter->drawText(whole, Qt::AlignCenter, group);
        painter->fillRect(whole.left(), whole.bottom(), whole.width(), 1, token::rule_2);
        painter->fillRect(whole.right(), 0, 1, token::header_level, edge);
        if (column->RuledAmount) {
            digit_boxes::paint_rules(*painter, below);
            painter->setPen(token::ink_2);
            digit_boxes::paint_units(*painter, below);
        } else {
            paint_title(*painter, below, logical, lower(logical));
        }
        painter->fillRect(rect.right(), below.top(), 1, below.height(), edge);
    }
    painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, token::rule_2);
    painter->restore();
}

void GridHeader::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), token::paper_2);
    painter.fillRect(0, height() - 1, viewport()->width(), 1, token::rule_2);
    painter.end();
    QHeaderView::paintEvent(event);
}

} // namespace desktop
