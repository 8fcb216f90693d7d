#include "dialog/presets/preset_file.h"

#include "dialog/presets/preset_name.h"
#include "dialog/printers/choice_json.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace dialog {
namespace {

constexpr qsizetype kMostEntries = 2000;
constexpr qsizetype kLongestText = 1000;

// clang-format off
const QString kFormatKey  = QStringLiteral("format");
const QString kFormat     = QStringLiteral("korvane-print presets");
const QString kVersionKey = QStringLiteral("version");
const QString kPresets    = QStringLiteral("presets");
const QString kName       = QStringLiteral("name");
const QString kPrinter    = QStringLiteral("printer");
const QString kMadeBy     = QStringLiteral("madeBy");
const QString kChoices    = QStringLiteral("choices");
const QString kSettings   = QStringLiteral("settings");
const QString kPaper      = QStringLiteral("paper");
// clang-format on

QJsonObject choicesJson(const OptionChoices &choices)
{
    QJsonObject object;
    for (const auto &[option, several] : choices)
        object.insert(option, several.size() == 1
                                  ? QJsonValue(several.first())
                                  : QJsonValue(QJsonArray::fromStringList(several)));
    return object;
}

QJsonObject presetJson(const Preset &preset)
{
    QJsonObject object{{kName, preset.name},
                       {kPrinter, textJson(preset.printer)},
                       {kMadeBy, textJson(preset.madeBy)}};
    insertContent(object, preset.content);
    return object;
}

bool isText(const QJsonValue &value)
{
    return value.isString() && value.toString().size() <= kLongestText;
}

/// A list has at least one text and no other values.
std::optional<QStringList> textsOf(const QJsonValue &value)
{
    const QJsonArray several = value.isArray() ? value.toArray() : QJsonArray{value};
    QStringList texts;
    for (const QJsonValue &text : several) {
        if (!isText(text) || texts.size() == kMostEntries)
            return std::nullopt;
        texts.append(text.toString());
    }
    return texts.isEmpty() ? std::nullopt : std::optional(texts);
}

/// Null for JSON null and a missing member.
std::optional<QString> textOrNull(const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined())
        return QString();
    return isText(value) ? std::optional(value.toString()) : std::nullopt;
}

bool isSettingValue(const QJsonValue &value)
{
    return isText(value) || value.isBool() || (value.isDouble() && std::isfinite(value.toDouble()));
}

/// Nothing for a member that is missing is an empty object.
std::optional<QJsonObject> objectOrNone(const QJsonValue &value)
{
    if (value.isUndefined())
        return QJsonObject();
    return value.isObject() && value.toObject().size() <= kMostEntries
               ? std::optional(value.toObject())
               : std::nullopt;
}

bool readChoices(const QJsonObject &object, OptionChoices &choices)
{
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const auto texts = textsOf(entry.value());
        if (!texts || entry.key().isEmpty() || entry.key().size() > kLongestText)
            return false;
        choices[entry.key()] = *texts;
    }
    return true;
}

bool readSettings(const QJsonObject &object, std::map<QString, QVariant> &settings)
{
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (!isSettingValue(entry.value()) || entry.key().isEmpty() ||
            entry.key().size() > kLongestText)
            return false;
        if (isKeptInPresets(entry.key()))
            settings[entry.key()] = entry.value().toVariant();
    }
    return true;
}

std::optional<Preset> readPreset(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const QString name = cleanPresetName(object[kName].toString());
    const auto printer = textOrNull(object[kPrinter]);
    const auto madeBy = textOrNull(object[kMadeBy]);
    auto content = readContent(object);
    if (nameFault(name, {}) != NameFault::None || !printer || !madeBy || !content)
        return std::nullopt;
    return Preset{name, *printer, *madeBy, std::move(*content)};
}

FileHealth healthOf(const QJsonObject &root, const QString &format, int known)
{
    const QJsonValue version = root[kVersionKey];
    if (root[kFormatKey].toString() != format || !version.isDouble() || version.toInt() < 1)
        return FileHealth::Damaged;
    return version.toInt() > known ? FileHealth::Newer : FileHealth::Sound;
}

} // namespace

QJsonObject fileHead(const QString &format, int version)
{
    return {{kFormatKey, format}, {kVersionKey, version}};
}

ReadObject readObject(const QByteArray &bytes, const QString &format, int version)
{
    ReadObject read{.object = QJsonDocument::fromJson(bytes).object()};
    read.health = healthOf(read.object, format, version);
    return read;
}

QByteArray writtenPresets(const QString &printer, const std::vector<Preset> &presets)
{
    QJsonArray array;
    for (const Preset &preset : presets)
        array.append(presetJson(preset));
    QJsonObject root = fileHead(kFormat, kPresetFileVersion);
    root.insert(kPrinter, printer);
    root.insert(kPresets, array);
    return QJsonDocument(root).toJson();
}

ReadPresets readPresets(const QByteArray &bytes)
{
    const auto [root, health] = bytes.size() <= kLargestPresetFile
                                    ? readObject(bytes, kFormat, kPresetFileVersion)
                                    : ReadObject{.health = FileHealth::Damaged};
    ReadPresets read{.health = health};
    if (health == FileHealth::Sound && !root[kPresets].isArray())
        read.health = FileHealth::Damaged;
    if (read.health != FileHealth::Sound)
        return read;
    QStringList names;
    for (const QJsonValue &value : root[kPresets].toArray()) {
        std::optional<Preset> preset = readPreset(value);
        if (!preset || read.presets.size() == kMostPresets) {
            read.health = FileHealth::Damaged;
            continue;
        }
        preset->name = freePresetName(preset->name, names);
        names.append(preset->name);
        read.presets.push_back(std::move(*preset));
    }
    return read;
}

void insertContent(QJsonObject &object, const PresetContent &content)
{
    object.insert(kChoices, choicesJson(content.choices));
    object.insert(kSettings, settingsJson(content.settings));
    object.insert(kPaper, textJson(content.paperName));
}

std::optional<PresetContent> readContent(const QJsonObject &object)
{
    const auto choices = objectOrNone(object[kChoices]);
    const auto settings = objectOrNone(object[kSettings]);
    const auto paper = textOrNull(object[kPaper]);
    PresetContent content;
    if (!choices || !settings || !paper || !readChoices(*choices, content.choices) ||
        !readSettings(*settings, content.settings))
        return std::nullopt;
    content.paperName = *paper;
    return content;
}

} // namespace dialog
