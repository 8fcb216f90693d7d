#include "dialog/memory/memory_file.h"

#include "dialog/printers/choice_json.h"

#include <QJsonDocument>

namespace dialog {
namespace {

// clang-format off
const QString kWindowFormat   = QStringLiteral("korvane-print window");
const QString kSettingsFormat = QStringLiteral("korvane-print last settings");
const QString kWidth          = QStringLiteral("width");
const QString kHeight         = QStringLiteral("height");
const QString kPanel          = QStringLiteral("panel");
const QString kQueue          = QStringLiteral("queue");
const QString kModel          = QStringLiteral("model");
// clang-format on

constexpr int kLargestSide = 100'000; ///< beyond any screen
constexpr qsizetype kLongestPanel = 1000;

/// 0 for none.
bool isSide(const QJsonValue &value)
{
    const int side = value.toInt(-1);
    return value.isUndefined() || (side >= 0 && side <= kLargestSide);
}

bool isPanel(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull() ||
           (value.isString() && value.toString().size() <= kLongestPanel);
}

QSize sizeOf(const QJsonObject &object)
{
    const QSize size(object[kWidth].toInt(), object[kHeight].toInt());
    return size.isEmpty() ? QSize() : size;
}

} // namespace

RememberedPrinter rememberedPrinter(const QString &queue, const PpdDocument &printer)
{
    return queue.isNull() ? RememberedPrinter{RememberedPrinter::By::Model, modelOf(printer)}
                          : RememberedPrinter{RememberedPrinter::By::Queue, queue};
}

QByteArray writtenWindow(const WindowMemory &window)
{
    QJsonObject object = fileHead(kWindowFormat, kMemoryFileVersion);
    if (window.size.isValid()) {
        object.insert(kWidth, window.size.width());
        object.insert(kHeight, window.size.height());
    }
    object.insert(kPanel, textJson(window.panel));
    return QJsonDocument(object).toJson();
}

Parsed<WindowMemory> parseWindow(const QByteArray &bytes)
{
    const auto [object, health] = readObject(bytes, kWindowFormat, kMemoryFileVersion);
    if (health != FileHealth::Sound)
        return {.health = health};
    if (!isSide(object[kWidth]) || !isSide(object[kHeight]) || !isPanel(object[kPanel]))
        return {.health = FileHealth::Damaged};
    return {{sizeOf(object), object[kPanel].toString()}};
}

QByteArray writtenSettings(const RememberedPrinter &printer, const PresetContent &content)
{
    QJsonObject object = fileHead(kSettingsFormat, kMemoryFileVersion);
    object.insert(printer.by == RememberedPrinter::By::Queue ? kQueue : kModel, printer.name);
    insertContent(object, content);
    return QJsonDocument(object).toJson();
}

Parsed<PresetContent> parseSettings(const QByteArray &bytes)
{
    const auto [object, health] = readObject(bytes, kSettingsFormat, kMemoryFileVersion);
    if (health != FileHealth::Sound)
        return {.health = health};
    std::optional<PresetContent> content = readContent(object);
    if (!content)
        return {.health = FileHealth::Damaged};
    return {std::move(*content)};
}

} // namespace dialog
