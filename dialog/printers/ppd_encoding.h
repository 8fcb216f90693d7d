#pragma once

#include <QByteArray>

namespace dialog {

/// Name that QStringDecoder knows for a word of *LanguageEncoding; null for a word that libcups
/// does not know.
[[nodiscard]] const char *encodingName(const QByteArray &word);

} // namespace dialog
