#include "dialog/presets/printer_presets.h"

#include "dialog/presets/preset_name.h"
#include "dialog/printers/ppd_document.h"

#include <QRegularExpression>

#include <algorithm>

namespace dialog {
namespace {

/// Keywords stand for themselves where the PPD has no text.
QString nameOf(const PpdAttribute &line)
{
    const QString text = cleanPresetName(line.text);
    return text.isEmpty() ? QString(line.specifier).replace(u'_', u' ') : text;
}

bool namesOptionOf(const PpdDocument &printer, const OptionChoices &choices)
{
    return std::any_of(choices.begin(), choices.end(),
                       [&](const auto &entry) { return printer.hasOption(entry.first); });
}

bool hasPreset(const std::vector<Preset> &presets, const QString &name)
{
    return std::any_of(presets.begin(), presets.end(),
                       [&](const Preset &preset) { return isSamePresetName(preset.name, name); });
}

} // namespace

OptionChoices parsePrinterPreset(const QString &value)
{
    static const QRegularExpression separators(QStringLiteral("[\\s;]+"));
    const QStringList words = value.split(separators, Qt::SkipEmptyParts);
    OptionChoices choices;
    for (qsizetype i = 0; i + 1 < words.size(); ++i) {
        const bool isPair = !words[i + 1].startsWith(u'*');
        if (words[i].size() > 1 && words[i].startsWith(u'*') && isPair)
            choices[words[i].mid(1)] = QStringList{words[i + 1]};
        if (isPair)
            ++i; // the value of an option or of another key
    }
    return choices;
}

std::vector<Preset> printerPresets(const PpdDocument &printer)
{
    std::vector<Preset> presets;
    for (const PpdAttribute &line : printer.attributes("APPrinterPreset")) {
        Preset preset{nameOf(line), modelOf(printer), {}, {parsePrinterPreset(line.value), {}, {}}};
        if (!preset.name.isEmpty() && namesOptionOf(printer, preset.content.choices) &&
            !hasPreset(presets, preset.name))
            presets.push_back(std::move(preset));
    }
    return presets;
}

} // namespace dialog
