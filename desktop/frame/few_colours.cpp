// Counts the colours of a picture and keeps the commonest.
#include "desktop/frame/few_colours.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace desktop {
namespace {

constexpr qsizetype most = 256;

QHash<QRgb, qint64> counted(const QImage& picture) {
    QHash<QRgb, qint64> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) ++counts[line[x]];
    }
    return counts;
}

// The order of equally common colours is their own, so that a picture is the same each time.
std::vector<QRgb> commonest(const QHash<QRgb, qint64>& counts) {
    std::vector<QRgb> colours(counts.keyBegin(), counts.keyEnd());
    std::sort(colours.begin(), colours.end(), [&counts](QRgb a, QRgb b) {
        const qint64 of_a = counts[a], of_b = counts[b];
        return of_a != of_b ? of_a > of_b : a < b;
    });
    colours.resize(std::min<std::size_t>(colours.size(), most));
    return colours;
}

int distance(QRgb a, QRgb b) {
    const int red = qRed(a) - qRed(b), green = qGreen(a) - qGreen(b), blue = qBlue(a) - qBlue(b);
    return 3 * red * red + 6 * green * green + blue * blue;
}

int nearest(const std::vector<QRgb>& palette, QRgb colour) {
    const auto found = std::min_element(
        palette.begin(), palette.end(),
        [colour](QRgb a, QRgb b) { return distance(a, colour) < distance(b, colour); });
    return static_cast<int>(found - palette.begin());
}

} // namespace

QImage with_few_colours(const QImage& picture) {
    const QImage full = picture.convertToFormat(QImage::Format_RGB32);
    const std::vector<QRgb> palette = commonest(counted(full));
    QHash<QRgb, int> index;
    QImage result(full.size(), QImage::Format_Indexed8);
    result.setColorTable(QList<QRgb>(palette.begin(), palette.end()));
    for (int y = 0; y < full.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(full.constScanLine(y));
        uchar* out = result.scanLine(y);
        for (int x = 0; x < full.width(); ++x) {
            auto found = index.constFind(line[x]);
            if (found == index.cend()) found = index.insert(line[x], nearest(palette, line[x]));
            out[x] = static_cast<uchar>(*found);
        }
    }
    return result;
}

} // namespace desktop
