// The columns of monthly results, painted by hand.
#include <QPainter>

#include "desktop/overview/card.h"
#include "desktop/theme/amount_text.h"
#include "desktop/theme/fonts.h"
#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr int column_width = 36, scale_width = 56;

// The next of 1, 2, 2.5, 5 times a power of ten: the height of the plot in whole yuan.
std::int64_t nice_above(std::int64_t yuan) {
    std::int64_t unit = 1;
    while (unit * 10 <= yuan) unit *= 10;
    for (const std::int64_t tenths : {10, 20, 25, 50, 100})
        if (unit * tenths / 10 >= yuan && unit * tenths % 10 == 0) return unit * tenths / 10;
    return unit * 10;
}

std::int64_t whole(host::Amount amount) {
    return amount.rounded(0).units() / host::Amount::scale;
}

// "5月"; the first and every January with its year.
QString month_label(const std::string& period, bool first) {
    const int month = qt(period).mid(5).toInt();
    const QString label = QStringLiteral("%1月").arg(month);
    return first || month == 1 ? QStringLiteral("%1年").arg(qt(period.substr(0, 4))) + label
                               : label;
}

// "15万", "2500": round figures are said as bookkeepers say them.
QString scale_label(std::int64_t yuan) {
    constexpr std::int64_t ten_thousand = 10'000;
    if (yuan % (ten_thousand / 10) != 0 || std::abs(yuan) < ten_thousand)
        return QString::number(yuan);
    return QString::number(static_cast<double>(yuan) / ten_thousand) + QStringLiteral("万");
}

} // namespace

ProfitCard::ProfitCard(QWidget* parent) : Card(QStringLiteral("利润"), parent) {}

QString ProfitCard::hint() const {
    return QStringLiteral("近%1个月，元，含未登帐凭证").arg(months_shown);
}

// The year so far.
QString ProfitCard::right_hint() const {
    if (figures().months.empty()) return {};
    const std::string year = figures().period.substr(0, 4);
    host::Amount sum;
    for (const auto& month : figures().months)
        if (month.period.starts_with(year)) sum += month.profit;
    return QStringLiteral("%1年累计 %2").arg(qt(year), amount_of(sum));
}

// The lines of the plot: nothing, its top and half of it. A loss has its figure at its column.
void ProfitCard::paint_scale(QPainter& painter, const QRect& plot, std::int64_t low,
                             std::int64_t high) {
    painter.setFont(fonts::small());
    std::vector<std::int64_t> lines{0};
    if (high > 1) lines.insert(lines.end(), {high, high / 2});
    for (const std::int64_t yuan : lines) {
        const int y = plot.bottom() - static_cast<int>((yuan - low) * plot.height() / (high - low));
        painter.fillRect(plot.x(), y, plot.width(), 1, yuan == 0 ? token::rule_3 : token::rule_1);
        painter.setPen(token::ink_3);
        painter.drawText(QRect(plot.x() - scale_width, y - 10, scale_width - 8, 20),
                         Qt::AlignVCenter | Qt::AlignRight, scale_label(yuan));
    }
}

void ProfitCard::paint_body(QPainter& painter, const QRect& body) {
    if (figures().months.empty()) {
        painter.setFont(fonts::body());
        painter.setPen(token::ink_3);
        painter.drawText(body, Qt::AlignCenter,
                         figures().may_see_result ? QStringLiteral("还没有损益凭证")
                                                  : no_right());
        return;
    }
    std::int64_t high = 0, low = 0;
    for (const auto& month : figures().months) {
        high = std::max(high, whole(month.profit));
        low = std::min(low, whole(month.profit));
    }
    if (high > 0) high = nice_above(high);
    if (low < 0) low = -nice_above(-low);
    if (high == low) high = 1;
    // Below a loss stands its figure, above the names of the months.
    const QRect plot = body.adjusted(16 + scale_width, 30, -32, low < 0 ? -50 : -34);
    auto y_of = [&](std::int64_t yuan) {
        return plot.bottom() - static_cast<int>((yuan - low) * plot.height() / (high - low));
    };
    paint_scale(painter, plot, low, high);
    const int step = plot.width() / months_shown;
    int place = 0;
    for (const auto& month : figures().months) {
        const std::int64_t yuan = whole(month.profit);
        const int x = plot.x() + place * step + (step - column_width) / 2;
        const int top = std::min(y_of(yuan), y_of(0)), bottom = std::max(y_of(yuan), y_of(0));
        const QRect bar(x, top, column_width, std::max(bottom - top, 1));
        const bool open = month.period == figures().period && !figures().carried_forward;
        const QColor ink = yuan < 0 ? token::cinnabar_1 : token::indigo_1;
        // A month that is not closed is outlined: its figure still moves.
        painter.fillRect(bar, open ? (yuan < 0 ? token::cinnabar_3 : token::indigo_4) : ink);
        if (open) {
            painter.setPen(ink);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(bar.adjusted(0, 0, -1, -1));
        }
        painter.setFont(fonts::small());
        painter.setPen(yuan < 0 ? token::cinnabar_1 : token::ink_1);
        const QString text = QString::number(yuan);
        const int wide = amount_width(text, painter.fontMetrics());
        paint_amount_from(painter, bar.center().x() - wide / 2,
                          yuan < 0 ? bottom + 16 : top - 6, text);
        painter.setPen(token::ink_3);
        painter.drawText(QRect(x - 40, body.bottom() - 28, column_width + 80, 20), Qt::AlignCenter,
                         month_label(month.period, place == 0) +
                             (open ? QStringLiteral("（未结转）") : QString()));
        ++place;
    }
}

} // namespace desktop
