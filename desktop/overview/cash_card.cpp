// The table of cash and bank accounts.
#include <QPainter>

#include "desktop/overview/card.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int account_height = 30, titles_height = 28;

// Columns from the right: closing, out, in, opening; the name takes what is left.
QRect column(const QRect& line, int from_right) {
    const int width = std::min(104, line.width() / 6);
    return QRect(line.right() - (from_right + 1) * width, line.y(), width, line.height());
}

void paint_line(QPainter& painter, const QRect& line, const MoneyAccount& account) {
    painter.setFont(fonts::body());
    painter.setPen(token::ink_1);
    const QRect name = line.adjusted(0, 0, -4 * column(line, 0).width(), 0);
    painter.drawText(
        name, Qt::AlignVCenter,
        painter.fontMetrics().elidedText(qt(account.name), Qt::ElideRight, name.width()));
    const host::Amount amounts[] = {account.closing(), account.out, account.in, account.opening};
    for (int i = 0; i < 4; ++i) {
        painter.setFont(fonts::body(i == 0));
        const QString text = amount_of(amounts[i]);
        paint_amount(painter, column(line, i), text, amount_color(text, token::ink_1));
    }
}

} // namespace

CashCard::CashCard(QWidget* parent) : Card(QStringLiteral("现金与银行"), parent) {}

QString CashCard::hint() const { return QStringLiteral("本期"); }

void CashCard::paint_body(QPainter& painter, const QRect& body) {
    const QRect inner = body.adjusted(16, 0, -16, 0);
    if (figures().money.empty()) {
        painter.setFont(fonts::body());
        painter.setPen(token::ink_3);
        painter.drawText(inner, Qt::AlignCenter,
                         figures().may_see_money ? QStringLiteral("没有现金和银行科目")
                                                 : no_right());
        return;
    }
    const QRect titles(inner.x(), inner.y(), inner.width(), titles_height);
    painter.setFont(fonts::small());
    painter.setPen(token::ink_3);
    painter.drawText(titles, Qt::AlignVCenter, QStringLiteral("帐户"));
    const char* names[] = {"余额", "支出", "收入", "期初"};
    for (int i = 0; i < 4; ++i)
        painter.drawText(column(titles, i), Qt::AlignRight | Qt::AlignVCenter,
                         QString::fromUtf8(names[i]));
    MoneyAccount total{utf8(QStringLiteral("合计")), {}, {}, {}};
    int y = inner.y() + titles_height;
    // The last two rows are kept for the total and the net flow.
    const int room = std::max(1, (body.bottom() - 40 - account_height - y) / account_height);
    int shown = 0;
    for (const MoneyAccount& account : figures().money) {
        total.opening += account.opening;
        total.in += account.in;
        total.out += account.out;
        if (shown++ >= room) continue;
        painter.fillRect(body.x(), y, body.width(), 1, token::rule_1);
        paint_line(painter, QRect(inner.x(), y, inner.width(), account_height), account);
        y += account_height;
    }
    painter.fillRect(body.x(), y, body.width(), 1, token::rule_3);
    paint_line(painter, QRect(inner.x(), y, inner.width(), account_height), total);
    const QRect note(inner.x(), body.bottom() - 39, inner.width(), 40);
    painter.fillRect(body.x(), note.y(), body.width(), 1, token::rule_1);
    painter.setFont(fonts::small());
    painter.setPen(token::ink_2);
    painter.drawText(note, Qt::AlignVCenter, QStringLiteral("本期净流入"));
    painter.setFont(fonts::body());
    const QString net = amount_of(total.in - total.out);
    paint_amount(painter, note, net, amount_color(net, token::ink_1));
}

} // namespace desktop
