// Places texts in their boxes and draws rules.
#include "desktop/printing/page_painter.h"

#include <QPainter>

#include "desktop/theme/text.h"
#include "desktop/theme/tokens.h"

namespace desktop {
namespace {

constexpr double units_an_inch = 2540, points_an_inch = 72;
constexpr double smaller[] = {0.9, 0.8, 0.7, 0.6, 0.5};

QColor color_of(host::Ink ink) {
    switch (ink) {
    case host::Ink::Grey: return QColor(0x50, 0x56, 0x5E);
    case host::Ink::Pale: return QColor(0xB0, 0xAC, 0xA4);
    case host::Ink::Red: return token::cinnabar_1;
    default: return QColor(0x14, 0x16, 0x18);
    }
}

// The sans of the screen would give texts that cannot be searched or copied out of a PDF file: some
// of its glyphs are named after rarer characters of the same shape.
QFont font_of(int units, bool bold, bool serif) {
    QFont font;
    if (serif)
        font.setFamilies({"Noto Serif CJK SC", "Source Han Serif SC", "SimSun", "Songti SC"});
    else if (bold) // a drawn bold face instead of a thickened regular one
        font.setFamilies({"Noto Sans CJK SC", "Microsoft YaHei", "PingFang SC",
                          "WenQuanYi Micro Hei"});
    else
        font.setFamilies({"WenQuanYi Micro Hei", "Microsoft YaHei", "PingFang SC",
                          "Noto Sans CJK SC"});
    font.setPixelSize(units);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

Qt::Alignment alignment_of(host::Alignment align) {
    return Qt::AlignVCenter | (align == host::Alignment::Left     ? Qt::AlignLeft
                               : align == host::Alignment::Center ? Qt::AlignHCenter
                                                                  : Qt::AlignRight);
}

bool is_number(const QString& words) {
    return std::all_of(words.begin(), words.end(),
                       [](QChar c) { return c.unicode() < 0x80 && !c.isLetter(); });
}

QStringList broken(const QString& words, const QFontMetricsF& metrics, double width) {
    QStringList lines;
    QString line;
    for (const QChar c : words) {
        if (!line.isEmpty() && !c.isLowSurrogate() && metrics.horizontalAdvance(line + c) > width) {
            lines << line;
            line.clear();
        }
        line += c;
    }
    return lines << line;
}

} // namespace

void scale_to_paper(QPainter& painter, double dots_per_inch) {
    painter.scale(dots_per_inch / units_an_inch, dots_per_inch / units_an_inch);
}

const PagePainter::Type& PagePainter::type_of(const host::PaperText& text, double scale) {
    const int units = qMax(1, qRound(text.size * scale * units_an_inch / points_an_inch / 10));
    const auto key = std::tuple(units, text.bold, text.serif);
    auto found = types_.find(key);
    if (found == types_.end()) {
        const QFont font = font_of(units, text.bold, text.serif);
        found = types_.emplace(key, Type{font, QFontMetricsF(font)}).first;
    }
    return found->second;
}

void PagePainter::paint(QPainter& painter, const host::PaperPage& page) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (const host::PaperLine& line : page.lines) {
        painter.setPen(QPen(color_of(line.ink), line.weight, Qt::SolidLine, Qt::SquareCap));
        painter.drawLine(line.x1, line.y1, line.x2, line.y2);
    }
    for (const host::PaperText& text : page.texts) {
        painter.setPen(color_of(text.ink));
        if (text.upright) draw_upright(painter, text);
        else draw(painter, text);
    }
}

void PagePainter::draw(QPainter& painter, const host::PaperText& text) {
    const QString words = qt(text.text);
    const QRectF box(text.box.left, text.box.top, text.box.width, text.box.height);
    if (text.spacing != 0) return draw_spaced(painter, text, box, words);
    const Type& usual = type_of(text, 1);
    const double width = usual.metrics.horizontalAdvance(words);
    if (width > box.width()) {
        if (!is_number(words)) return draw_lines(painter, text, box, words);
        painter.setFont(type_of(text, box.width() / width * 0.99).font);
    } else {
        painter.setFont(usual.font);
    }
    painter.drawText(box, alignment_of(text.align) | Qt::TextSingleLine | Qt::TextDontClip, words);
}

// Titles. A PDF file's own spacing would be another one than the screen's.
void PagePainter::draw_spaced(QPainter& painter, const host::PaperText& text, const QRectF& box,
                              const QString& words) {
    double scale = 1;
    const auto width = [&] {
        return type_of(text, scale).metrics.horizontalAdvance(words) +
               text.spacing * scale * static_cast<double>(words.size() - 1);
    };
    if (width() > box.width()) scale = box.width() / width() * 0.99;
    const double left = text.align == host::Alignment::Left ? 0 : box.width() - width();
    double x = box.left() + (text.align == host::Alignment::Center ? left / 2 : left);
    const Type& type = type_of(text, scale);
    painter.setFont(type.font);
    for (const QChar c : words) {
        const double advance = type.metrics.horizontalAdvance(c);
        painter.drawText(QRectF(x, box.top(), advance, box.height()),
                         Qt::AlignCenter | Qt::TextDontClip, c);
        x += advance + text.spacing * scale;
    }
}

// As large as it fits, on as many lines as the box has room for.
void PagePainter::draw_lines(QPainter& painter, const host::PaperText& text, const QRectF& box,
                             const QString& words) {
    for (const double scale : smaller) {
        const Type& type = type_of(text, scale);
        const double spacing = type.metrics.height() * 0.95;
        const int room = qMax(1, static_cast<int>(box.height() / spacing));
        QStringList lines = broken(words, type.metrics, box.width());
        const bool last = scale == smaller[std::size(smaller) - 1];
        if (lines.size() > room && !last) continue;
        if (lines.size() > room) {
            lines = lines.mid(0, room);
            lines.last() = type.metrics.elidedText(lines.last() + QStringLiteral("……"),
                                                   Qt::ElideRight, box.width());
        }
        painter.setFont(type.font);
        double y = box.top() + (box.height() - spacing * static_cast<double>(lines.size())) / 2;
        for (const QString& line : lines) {
            painter.drawText(QRectF(box.left(), y, box.width(), spacing),
                             alignment_of(text.align) | Qt::TextSingleLine | Qt::TextDontClip,
                             line);
            y += spacing;
        }
        return;
    }
}

void PagePainter::draw_upright(QPainter& painter, const host::PaperText& text) {
    const QString words = qt(text.text);
    const Type& type = type_of(text, 1);
    painter.setFont(type.font);
    const double step = type.metrics.height() + text.spacing;
    double y = text.box.top + (text.box.height - step * static_cast<double>(words.size())) / 2;
    for (const QChar c : words) {
        painter.drawText(QRectF(text.box.left, y, text.box.width, step),
                         Qt::AlignCenter | Qt::TextDontClip, c);
        y += step;
    }
}

} // namespace desktop
