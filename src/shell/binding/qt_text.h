#pragma once

#include <string>
#include <string_view>

#include <QString>

/// The one way of a text to the toolkit and back: the program's own are UTF-8.
namespace gullymark::shell {

/// Bytes that are no UTF-8 show as the character for what cannot be read.
inline QString to_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Half of a pair of code units, which is no character, is replaced.
inline std::string from_qt(const QString& text) {
    return text.toStdString();
}

}  // namespace gullymark::shell
