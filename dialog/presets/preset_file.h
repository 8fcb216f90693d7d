#pragma once

#include "dialog/presets/preset.h"

#include <QByteArray>
#include <QJsonObject>

#include <optional>

/// The files of presets and of last settings. Their form is described in docs/presets.md. Whoever
/// reads one trusts nothing in it.
namespace dialog {

inline constexpr qint64 kLargestPresetFile = 1024 * 1024;
inline constexpr std::size_t kMostPresets = 500; ///< in one file
inline constexpr int kPresetFileVersion = 1;

enum class FileHealth {
    Sound,
    Damaged, ///< no presets, or not all of them
    Newer,   ///< of a version that this program does not know
};

struct ReadPresets
{
    std::vector<Preset> presets = {}; ///< those that are whole, each name once
    FileHealth health = FileHealth::Sound;
};

[[nodiscard]] QByteArray writtenPresets(const QString &printer, const std::vector<Preset> &presets);
[[nodiscard]] ReadPresets readPresets(const QByteArray &bytes);

/// The members of a JSON object that a content is made of.
void insertContent(QJsonObject &object, const PresetContent &content);
/// Nothing where a member is of another kind, or beyond what any printer has.
[[nodiscard]] std::optional<PresetContent> readContent(const QJsonObject &object);

} // namespace dialog
