#include "dialog/memory/memory_store.h"

#include "dialog/presets/set_aside.h"

#include <cerrno>
#include <functional>

namespace dialog {
namespace {

using debuglog::Refusal;

/// Where a file lies below the program's folder, and what its bytes mean.
template <class Value>
struct Place
{
    QString folder; ///< null: the program's own
    QString name;
    std::function<Parsed<Value>(const QByteArray &bytes)> parse;
    std::function<QByteArray(const Value &value)> write;
};

Place<WindowMemory> windowPlace()
{
    return {{}, QStringLiteral("window.json"), parseWindow, writtenWindow};
}

Place<PresetContent> settingsPlace(const RememberedPrinter &printer)
{
    const char *kind = printer.by == RememberedPrinter::By::Queue ? "queue:" : "model:";
    return {QStringLiteral("last-settings"),
            fileNameFor(printer.name, kind + printer.name.toUtf8()) + QStringLiteral(".json"),
            parseSettings,
            [printer](const PresetContent &content) { return writtenSettings(printer, content); }};
}

PrivateFolder::Opened openFolder(const QString &name)
{
    PrivateFolder::Opened state = openUserState();
    const auto *folder = std::get_if<PrivateFolder>(&state);
    return folder && !name.isNull() ? folder->openOrMake(name) : std::move(state);
}

/// Where no folder can be made, nothing is remembered; where one is not to be trusted, something
/// may be.
StoreResult faultOfReading(const Refusal &refused)
{
    return refused.error == 0 ? resultOf(refused) : StoreResult();
}

/// Whoever was faster has set it aside already.
StoreResult setAsideResult(const PrivateFolder &folder, const QString &name)
{
    const SetAside moved = setAside(folder, name);
    if (moved.refused && moved.refused->error != ENOENT)
        return resultOf(*moved.refused);
    return {.setAside = moved.path};
}

/// What lies there now, set aside if it is damaged.
template <class Value>
Recalled<Value> recallFrom(const PrivateFolder &folder, const Place<Value> &place)
{
    const KeptFile file = readKept(folder, place.name, kLargestMemoryFile);
    if (file.state == KeptFile::State::Missing)
        return {};
    if (file.state == KeptFile::State::Forbidden)
        return {.result = {StoreFault::NotAllowed, folder.pathOf(place.name)}};
    Parsed<Value> parsed = file.state == KeptFile::State::Read
                               ? place.parse(file.bytes)
                               : Parsed<Value>{.health = FileHealth::Damaged};
    if (parsed.health == FileHealth::Newer)
        return {.result = {StoreFault::Newer, folder.pathOf(place.name)}};
    if (parsed.health == FileHealth::Damaged)
        return {.result = setAsideResult(folder, place.name)};
    return {.value = std::move(parsed.value)};
}

template <class Value>
Recalled<Value> recall(const Place<Value> &place)
{
    const PrivateFolder::Opened opened = openFolder(place.folder);
    if (const auto *refused = std::get_if<Refusal>(&opened))
        return {.result = faultOfReading(*refused)};
    return recallFrom(std::get<PrivateFolder>(opened), place);
}

/// Writes what @p now makes of what is remembered, unless that is the same.
template <class Value, class Now>
StoreResult keep(const Place<Value> &place, const Now &now)
{
    const PrivateFolder::Opened opened = openFolder(place.folder);
    if (const auto *refused = std::get_if<Refusal>(&opened))
        return resultOf(*refused);
    const auto &folder = std::get<PrivateFolder>(opened);
    const Recalled<Value> former = recallFrom(folder, place);
    if (!former.result.isOk())
        return former.result;
    const Value value = now(former.value.value_or(Value()));
    if (value == former.value)
        return {};
    if (const auto refused = folder.replace(place.name, place.write(value)))
        return resultOf(*refused);
    return {.setAside = former.result.setAside};
}

WindowMemory merged(const WindowMemory &former, const WindowMemory &now)
{
    return {now.size.isValid() ? now.size : former.size,
            now.panel.isNull() ? former.panel : now.panel};
}

} // namespace

Recalled<WindowMemory> recallWindow()
{
    return recall(windowPlace());
}

Recalled<PresetContent> recallSettings(const RememberedPrinter &printer)
{
    return recall(settingsPlace(printer));
}

StoreResult keepWindow(const WindowMemory &window)
{
    return keep(windowPlace(), [&](const WindowMemory &former) { return merged(former, window); });
}

StoreResult keepSettings(const RememberedPrinter &printer, const PresetContent &content)
{
    return keep(settingsPlace(printer), [&](const PresetContent &) { return content; });
}

} // namespace dialog
