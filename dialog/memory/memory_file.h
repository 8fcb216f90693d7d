#pragma once

#include "dialog/presets/preset_file.h"

#include <QSize>

/// The files of what the dialog remembers. Their form is described in docs/memory.md. Whoever reads
/// one trusts nothing in it.
namespace dialog {

inline constexpr qint64 kLargestMemoryFile = 256 * 1024;
inline constexpr int kMemoryFileVersion = 1;

/// The window as a person left it.
struct WindowMemory
{
    QSize size = {};    ///< without margins and position; invalid where no person has chosen one
    QString panel = {}; ///< the kind of the panel in front; null: none

    bool operator==(const WindowMemory &) const = default;
};

/// A printer for whose jobs settings are remembered.
struct RememberedPrinter
{
    enum class By { Queue, Model };

    By by = By::Queue;
    QString name = {};

    bool operator==(const RememberedPrinter &) const = default;
};

/// By its queue; by its model where that is null.
[[nodiscard]] RememberedPrinter rememberedPrinter(const QString &queue, const PpdDocument &printer);

template <class Value>
struct Parsed
{
    Value value = {}; ///< of a sound file
    FileHealth health = FileHealth::Sound;
};

[[nodiscard]] QByteArray writtenWindow(const WindowMemory &window);
[[nodiscard]] Parsed<WindowMemory> parseWindow(const QByteArray &bytes);

[[nodiscard]] QByteArray writtenSettings(const RememberedPrinter &printer,
                                         const PresetContent &content);
[[nodiscard]] Parsed<PresetContent> parseSettings(const QByteArray &bytes);

} // namespace dialog
