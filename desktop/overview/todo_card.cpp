// The list of what is to do, made from the figures.
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/overview/card.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/icons.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int item_height = 43; // five of them

} // namespace

TodoCard::TodoCard(QWidget* parent) : Card(QStringLiteral("待办"), parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void TodoCard::show_figures(const Figures& figures) {
    items_.clear();
    if (!figures.trouble.empty())
        items_.push_back({"triangle-alert", qt(figures.trouble), {}, 0, true});
    else if (figures.period.empty())
        items_.push_back({"book-open", QStringLiteral("首次建帐"),
                          QStringLiteral("会计科目初始"), 699, false});
    if (figures.unaudited > 0)
        items_.push_back({"stamp", QStringLiteral("审核 %1 张凭证").arg(figures.unaudited),
                          {}, 662, false});
    if (figures.unposted > 0)
        items_.push_back({"book-open", QStringLiteral("登帐 %1 张已审凭证").arg(figures.unposted),
                          {}, 663, false});
    for (const MoneyAccount& account : figures.money)
        if (account.closing().is_negative())
            items_.push_back({"triangle-alert", qt(account.name) + QStringLiteral("余额为负"),
                              amount_of(account.closing()), 661, true, true});
    for (const std::string& word : figures.gaps)
        items_.push_back({"triangle-alert", QStringLiteral("凭证号不连续"),
                          qt(word) + QStringLiteral("字有断号"), 661, true});
    if (figures.receivable.parties > 0)
        items_.push_back({"arrow-left-right",
                          QStringLiteral("向 %1 家客户收款").arg(figures.receivable.parties),
                          amount_of(figures.receivable.sum), 633, false, true});
    if (figures.payable.parties > 0)
        items_.push_back({"arrow-left-right",
                          QStringLiteral("向 %1 家供应商付款").arg(figures.payable.parties),
                          amount_of(figures.payable.sum), 643, false, true});
    if (figures.gaps.empty() && figures.vouchers > 0)
        items_.push_back({"circle-check", QStringLiteral("凭证号连续"),
                          QStringLiteral("%1 张，无断号").arg(figures.vouchers), 0, false});
    current_ = 0;
    Card::show_figures(figures);
}

QString TodoCard::hint() const {
    const auto open = std::count_if(items_.begin(), items_.end(),
                                    [](const Item& item) { return item.code != 0; });
    return QStringLiteral("%1 项").arg(open);
}

QString TodoCard::right_hint() const { return QStringLiteral("↑↓ 选择    Enter 打开"); }

void TodoCard::paint_body(QPainter& painter, const QRect& body) {
    if (items_.empty()) {
        painter.setFont(fonts::body());
        painter.setPen(token::ink_3);
        painter.drawText(body, Qt::AlignCenter, QStringLiteral("没有待办"));
        return;
    }
    for (int i = 0; i < static_cast<int>(items_.size()); ++i) {
        const Item& item = items_[static_cast<std::size_t>(i)];
        const QRect line(body.x(), body.y() + i * item_height, body.width(), item_height);
        if (line.bottom() > body.bottom()) return;
        if (hasFocus() && i == current_) painter.fillRect(line, token::indigo_3);
        const QColor ink = item.warning     ? token::cinnabar_1
                           : item.code == 0 ? token::ink_3
                                            : token::indigo_1;
        icons::paint(painter, item.icon, QRect(line.x() + 15, line.y(), 16, item_height), 16, ink);
        painter.setFont(fonts::body());
        painter.setPen(item.code == 0 ? token::ink_3 : token::ink_1);
        painter.drawText(line.adjusted(42, 0, -16, 0), Qt::AlignVCenter, item.what);
        painter.setFont(fonts::small());
        const QColor detail = item.detail.startsWith('-') ? token::cinnabar_1 : token::ink_2;
        painter.setPen(detail);
        const QRect place = line.adjusted(0, 0, -52, 0);
        if (item.amount) paint_amount(painter, place, item.detail, detail);
        else painter.drawText(place, Qt::AlignVCenter | Qt::AlignRight, item.detail);
        if (item.code != 0) {
            painter.setFont(fonts::tiny());
            painter.setPen(token::ink_3);
            painter.drawText(line.adjusted(0, 0, -16, 0), Qt::AlignVCenter | Qt::AlignRight,
                             QString::number(item.code));
        }
        painter.fillRect(line.x(), line.bottom(), line.width(), 1, token::rule_1);
    }
}

void TodoCard::open(int index) {
    if (index < 0 || index >= static_cast<int>(items_.size())) return;
    const int code = items_[static_cast<std::size_t>(index)].code;
    if (code != 0 && on_open) on_open(code);
}

void TodoCard::keyPressEvent(QKeyEvent* event) {
    const int last = static_cast<int>(items_.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Up: current_ = std::max(current_ - 1, 0); return update();
    case Qt::Key_Down: current_ = std::min(current_ + 1, last); return update();
    case Qt::Key_Return:
    case Qt::Key_Enter: return open(current_);
    default: QWidget::keyPressEvent(event);
    }
}

void TodoCard::mouseReleaseEvent(QMouseEvent* event) {
    open((event->position().toPoint().y() - head_height) / item_height);
}

void TodoCard::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void TodoCard::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

} // namespace desktop
