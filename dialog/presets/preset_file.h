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

/// How every file begins that the dialog keeps as JSON.
[[nodiscard]] QJsonObject fileHead(const QString &format, int version);
/// Of bytes that should begin so; @p version is the last one that is known.
struct ReadObject
{
    QJsonObject object = {};
    FileHealth health = FileHealth::Sound;
};
[[nodiscard]] ReadObject readObject(const QByteArray &bytes, const QString &format, int version);

[[nodiscard]] QByteArray writtenPresets(const QString &printer, const std::vector<Preset> &presets);
[[nodiscard]] ReadPresets readPresets(const QByteArray &bytes);

/// The members of a JSON object that a content is made of.
void insertContent(QJsonObject &object, const PresetContent &content);
/// Nothing where a member is of another kind, or beyond what any printer has.
[[nodiscard]] std::optional<PresetContent> readContent(const QJsonObject &object);

} // namespace dialog
