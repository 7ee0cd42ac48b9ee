// Turns the few colour values that forms give into the colours of the desktop.
#include "desktop/theme/tokens.h"

namespace desktop::token {

QColor of(host::Color given, const QColor& otherwise) {
    switch (given) {
    case host::clDefault: return otherwise;
    case 255: return cinnabar_1;       // red: negative
    case 0xFF0000: return indigo_1;    // blue: summary rows
    case 0xFFFF80: return tint_open;   // light cyan: not audited
    default: return QColor(given & 0xFF, (given >> 8) & 0xFF, (given >> 16) & 0xFF);
    }
}

} // namespace desktop::token
