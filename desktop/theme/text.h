// Between the host's UTF-8 and Qt's text.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace desktop {

inline QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string utf8(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

} // namespace desktop
