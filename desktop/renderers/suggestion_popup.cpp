// Paints the matching codes, the current one filled, with the keys that work on them below.
#include "desktop/renderers/suggestion_popup.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <algorithm>

#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int row = 28, title = 24, hint = 26, most_rows = 10;

QString hint_text() {
    return QStringLiteral("↑↓ 选择    Enter 填入    Esc 关闭");
}

} // namespace

SuggestionPopup::SuggestionPopup() : QFrame(nullptr) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    hide();
}

int SuggestionPopup::shown() const {
    return std::min<int>(static_cast<int>(rows_.size()), most_rows);
}

int SuggestionPopup::rows_top() const { return titles_.empty() ? 1 : 1 + title; }

// The balance is the last of several columns; a code in front is digits too.
bool SuggestionPopup::is_amount(std::size_t column, const QString& text) const {
    return column >= 2 && column + 1 == widths_.size() && looks_like_amount(text);
}

// The text of most bytes is about the widest; measuring each would cost more than finding them.
int SuggestionPopup::width_of(std::size_t column) const {
    std::string longest;
    for (const auto& entry : rows_)
        if (column < entry.cells.size() && entry.cells[column].size() > longest.size())
            longest = entry.cells[column];
    if (column < titles_.size() && titles_[column].size() > longest.size())
        longest = titles_[column];
    return QFontMetrics(fonts::body(true)).horizontalAdvance(qt(longest)) + 8;
}

void SuggestionPopup::offer(const std::vector<host::Suggestion>& rows,
                            const std::vector<std::string>& titles, const QString& typed,
                            QWidget& edit) {
    rows_ = rows;
    titles_ = titles;
    typed_ = typed;
    top_ = 0;
    widths_.clear();
    std::size_t columns = 0;
    for (const auto& entry : rows_) columns = std::max(columns, entry.cells.size());
    int width = 20;
    for (std::size_t i = 0; i < columns; ++i) {
        widths_.push_back(std::clamp(width_of(i), 56, 320));
        width += widths_.back() + 16;
    }
    choose_first();
    keep_in_sight();
    stand_beside(edit, QSize(std::max({width, edit.width(), 320}),
                             rows_top() + shown() * row + hint + 1));
    show();
    raise();
    update();
}

void SuggestionPopup::choose_first() {
    const bool code_wanted = !rows_.empty() && !rows_.front().key.empty();
    int said = -1;
    for (std::size_t i = 0; code_wanted && i < rows_.size(); ++i)
        if (qt(rows_[i].value) == typed_) said = static_cast<int>(i);
    const bool begun = said < 0 && std::all_of(typed_.begin(), typed_.end(),
                                               [](QChar c) { return c.isDigit(); });
    lowest_ = code_wanted && !begun ? 0 : -1;
    current_ = said >= 0 ? said : lowest_;
}

// Inside the window of the edit; as a window of its own where that one is too small for it.
void SuggestionPopup::stand_beside(QWidget& edit, QSize size) {
    QWidget* window = edit.window();
    const QPoint corner = edit.mapTo(window, QPoint(0, 0));
    const int below = window->height() - corner.y() - edit.height();
    const bool own = size.height() > std::max(corner.y(), below) ||
                     corner.x() + size.width() > window->width();
    if (parentWidget() != window || isWindow() != own)
        setParent(window, own ? Qt::ToolTip | Qt::WindowDoesNotAcceptFocus : Qt::Widget);
    const QRect room = own ? edit.screen()->availableGeometry() : window->rect();
    const auto place = [&](int y) {
        return own ? edit.mapToGlobal(QPoint(0, y)) : edit.mapTo(window, QPoint(0, y));
    };
    QPoint at = place(edit.height());
    if (at.y() + size.height() > room.bottom()) at = place(-size.height());
    at.setX(std::max(room.left(), std::min(at.x(), room.right() - size.width() - 4)));
    setGeometry(QRect(at, size));
}

bool SuggestionPopup::chosen_by(const host::Key& key) const {
    if (key.ctrl || key.alt || key.shift || current_ < 0) return false;
    return key.code == host::KeyCode::Enter || key.code == host::KeyCode::Tab;
}

bool SuggestionPopup::key(const host::Key& key) {
    using host::KeyCode;
    if (key.ctrl || key.alt) return false;
    const int last = static_cast<int>(rows_.size()) - 1;
    switch (key.code) {
    case KeyCode::Up: current_ = std::max(current_ - 1, lowest_); break;
    case KeyCode::Down: current_ = std::min(current_ + 1, last); break;
    case KeyCode::PageUp: current_ = std::max(current_ - most_rows, lowest_); break;
    case KeyCode::PageDown: current_ = std::min(current_ + most_rows, last); break;
    case KeyCode::Esc: return hide(), true;
    default: return false;
    }
    keep_in_sight();
    update();
    return true;
}

void SuggestionPopup::keep_in_sight() {
    if (current_ < 0) return;
    if (current_ < top_) top_ = current_;
    if (current_ >= top_ + most_rows) top_ = current_ - most_rows + 1;
}

// The letters that were typed stand out in what they matched.
void SuggestionPopup::paint_match(QPainter& painter, const QRect& box, const QString& text,
                                  bool current) const {
    const qsizetype at = typed_.isEmpty() ? -1 : text.indexOf(typed_, 0, Qt::CaseInsensitive);
    const QColor ink = current ? QColor(Qt::white) : token::ink_1;
    if (at < 0) {
        painter.setFont(fonts::body());
        painter.setPen(ink);
        painter.drawText(box, Qt::AlignVCenter | Qt::AlignLeft,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, box.width()));
        return;
    }
    int x = box.x();
    const QString parts[] = {text.left(at), text.mid(at, typed_.size()),
                             text.mid(at + typed_.size())};
    for (int i = 0; i < 3; ++i) {
        painter.setFont(fonts::body(i == 1));
        painter.setPen(i == 1 && !current ? token::indigo_1 : ink);
        painter.drawText(QRect(x, box.y(), box.right() - x, box.height()),
                         Qt::AlignVCenter | Qt::AlignLeft, parts[i]);
        x += painter.fontMetrics().horizontalAdvance(parts[i]);
    }
}

void SuggestionPopup::paint_row(QPainter& painter, int index, const QRect& box) const {
    const bool current = index == current_;
    if (current) painter.fillRect(box, token::indigo_1);
    int x = box.x() + 10;
    const auto& cells = rows_[static_cast<std::size_t>(index)].cells;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const QString text = qt(cells[i]);
        const QRect cell(x, box.y(), widths_[i], box.height());
        if (is_amount(i, text)) {
            painter.setFont(fonts::body());
            paint_amount(painter, cell, text,
                         current ? QColor(Qt::white) : amount_color(text, token::ink_1));
        } else {
            paint_match(painter, cell, text, current);
        }
        x += widths_[i] + 16;
    }
}

// A title stands on the side on which its column stands.
void SuggestionPopup::paint_titles(QPainter& painter) const {
    if (titles_.empty()) return;
    painter.fillRect(1, title, width() - 2, 1, token::rule_1);
    painter.setFont(fonts::small());
    painter.setPen(token::ink_3);
    const auto& first = rows_.front().cells;
    int x = 11;
    for (std::size_t i = 0; i < widths_.size() && i < titles_.size(); ++i) {
        const bool right = i < first.size() && is_amount(i, qt(first[i]));
        painter.drawText(QRect(x, 1, widths_[i], title - 1),
                         Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft),
                         qt(titles_[i]));
        x += widths_[i] + 16;
    }
}

void SuggestionPopup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), token::paper_0);
    paint_titles(painter);
    for (int i = 0; i < shown(); ++i)
        paint_row(painter, top_ + i, QRect(1, rows_top() + i * row, width() - 2, row));
    const QRect below(1, rows_top() + shown() * row, width() - 2, hint);
    painter.fillRect(below, token::paper_1);
    painter.fillRect(below.left(), below.top(), below.width(), 1, token::rule_1);
    painter.setFont(fonts::small());
    painter.setPen(token::ink_3);
    painter.drawText(below.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignLeft, hint_text());
    painter.drawText(below.adjusted(10, 0, -10, 0), Qt::AlignVCenter | Qt::AlignRight,
                     QStringLiteral("%1 / %2").arg(std::max(current_ + 1, 0)).arg(rows_.size()));
    painter.setPen(token::rule_3);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void SuggestionPopup::mousePressEvent(QMouseEvent* event) {
    const int below_titles = event->position().toPoint().y() - rows_top();
    const int index = top_ + below_titles / row;
    event->accept();
    if (below_titles >= 0 && index < static_cast<int>(rows_.size()) && on_chosen) on_chosen(index);
}

void SuggestionPopup::wheelEvent(QWheelEvent* event) {
    const int most = std::max(0, static_cast<int>(rows_.size()) - most_rows);
    top_ = std::clamp(top_ + (event->angleDelta().y() < 0 ? 1 : -1), 0, most);
    event->accept();
    update();
}

} // namespace desktop
