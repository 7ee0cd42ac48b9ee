// Writes an amount out in words, section of four digits by section of four.
#include "desktop/grid/capital_numerals.h"

namespace desktop {
namespace {

const QString numerals = QStringLiteral("零壹贰叁肆伍陆柒捌玖");

// One section of up to four digits: "7050" → "柒仟零伍拾". Inner zeros are said once.
QString section(int value) {
    static const QString places[] = {QString(), QStringLiteral("拾"), QStringLiteral("佰"),
                                     QStringLiteral("仟")};
    QString text;
    bool zero_due = false;
    for (int place = 3, unit = 1000; place >= 0; --place, unit /= 10) {
        const int digit = value / unit % 10;
        if (digit == 0) {
            zero_due = !text.isEmpty();
            continue;
        }
        if (zero_due) text += numerals[0];
        zero_due = false;
        text += numerals[digit] + places[place];
    }
    return text;
}

QString whole_yuan(qint64 yuan) {
    static const QString steps[] = {QString(), QStringLiteral("万"), QStringLiteral("亿"),
                                    QStringLiteral("万亿")};
    QString text;
    bool zero_due = false;
    for (int step = 3; step >= 0; --step) {
        qint64 unit = 1;
        for (int i = 0; i < step; ++i) unit *= 10000;
        const int part = static_cast<int>(yuan / unit % 10000);
        if (part == 0) {
            zero_due = zero_due || !text.isEmpty();
            continue;
        }
        // A section below 1000 after higher ones is set off by a zero: 壹万零伍佰.
        if (!text.isEmpty() && (zero_due || part < 1000)) text += numerals[0];
        zero_due = false;
        text += section(part) + steps[step];
    }
    return text;
}

} // namespace

QString capital_numerals(const QString& amount) {
    const bool negative = amount.startsWith('-');
    const QString plain = negative ? amount.mid(1) : amount;
    const qsizetype point = plain.indexOf('.');
    const qint64 yuan = (point < 0 ? plain : plain.left(point)).toLongLong();
    const QString cents = point < 0 ? QString() : plain.mid(point + 1, 2).leftJustified(2, '0');
    const int jiao = cents.isEmpty() ? 0 : cents[0].digitValue();
    const int fen = cents.isEmpty() ? 0 : cents[1].digitValue();
    QString text = negative ? QStringLiteral("负") : QString();
    if (yuan == 0 && jiao == 0 && fen == 0) return QStringLiteral("零元整");
    if (yuan > 0) text += whole_yuan(yuan) + QStringLiteral("元");
    if (jiao > 0) text += numerals[jiao] + QStringLiteral("角");
    else if (yuan > 0 && fen > 0) text += numerals[0];
    if (fen > 0) text += numerals[fen] + QStringLiteral("分");
    else text += QStringLiteral("整");
    return text;
}

} // namespace desktop
