// Type from one family list whose digits all have one width.
#include "desktop/theme/fonts.h"

#include <QStringList>

namespace desktop::fonts {
namespace {

QFont sans(int pixels, bool bold) {
    QFont font;
    font.setFamilies({"Noto Sans CJK SC", "Source Han Sans SC", "Microsoft YaHei UI",
                      "PingFang SC", "WenQuanYi Micro Hei"});
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

QFont serif(int pixels) {
    QFont font;
    font.setFamilies({"Noto Serif CJK SC", "Source Han Serif SC", "SimSun", "Songti SC"});
    font.setPixelSize(pixels);
    font.setBold(true);
    return font;
}

} // namespace

QFont body(bool bold) { return sans(13, bold); }
QFont small(bool bold) { return sans(12, bold); }
QFont formula() {
    QFont font = sans(13, false);
    font.setFamilies({"Noto Sans Mono CJK SC", "Consolas", "Menlo", "monospace"});
    font.setStyleHint(QFont::Monospace);
    return font;
}
QFont tiny() { return sans(11, false); }
QFont money() { return sans(15, false); }
QFont digits(bool bold) { return sans(14, bold); }
QFont key_figure() { return sans(20, true); }
QFont message() { return sans(14, false); }
QFont seal(int pixels) { return serif(pixels); }

QFont title(int pixels) {
    QFont font = serif(pixels);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 6);
    return font;
}

} // namespace desktop::fonts
