#pragma once

#include <QString>

/// Classes of paper sizes and paper types, by their PPD keywords. Case-sensitive; null belongs to
/// none.
namespace conflict {

/// Paper names of the page format that the printer's PPD spells otherwise; others stay as they are.
[[nodiscard]] QString ppdPaperName(const QString &paperName);

[[nodiscard]] bool isBanner(const QString &paperName);
[[nodiscard]] bool isEnvelopeSize(const QString &paperName);
/// Glossy media, but for the two brochure-like ones that take any ink.
[[nodiscard]] bool isPhotoMedia(const QString &mediaTicket);
[[nodiscard]] bool isEnvelopeMedia(const QString &mediaTicket);
[[nodiscard]] bool isAutomaticMedia(const QString &mediaTicket);

} // namespace conflict
