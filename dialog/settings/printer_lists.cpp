#include "dialog/settings/printer_lists.h"

#include "dialog/printers/ppd_document.h"
#include "dialog/printers/standard_options.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

constexpr const char *kContext = "PrinterLists";
const QString kMedia = QStringLiteral("media");
const QString kSides = QStringLiteral("sides");
// Needs measures; picked in the printer's own features.
const QString kCustomSize = QStringLiteral("Custom");

// clang-format off
/// Print settings of the window's own, and what it shows without them; null: whatever is marked.
struct OwnSetting
{
    const char *key;
    const char *unset;
};
constexpr OwnSetting kOwnSettings[] = {
    {"sides",                      nullptr},
    {"multiple-document-handling", nullptr}, // several copies always say it
    {"outputorder",                "normal"},
    {"orientation-requested",      "3"},
    {"mirror",                     nullptr},
};

constexpr JobListItem kPapers[] = {
    {nullptr,                     QT_TRANSLATE_NOOP("PrinterLists", "As the printer is set")},
    {"iso_a4_210x297mm",          QT_TRANSLATE_NOOP("PrinterLists", "A4")},
    {"iso_a3_297x420mm",          QT_TRANSLATE_NOOP("PrinterLists", "A3")},
    {"iso_a5_148x210mm",          QT_TRANSLATE_NOOP("PrinterLists", "A5")},
    {"iso_a6_105x148mm",          QT_TRANSLATE_NOOP("PrinterLists", "A6")},
    {"jis_b5_182x257mm",          QT_TRANSLATE_NOOP("PrinterLists", "B5 (JIS)")},
    {"na_letter_8.5x11in",        QT_TRANSLATE_NOOP("PrinterLists", "US Letter")},
    {"na_legal_8.5x14in",         QT_TRANSLATE_NOOP("PrinterLists", "US Legal")},
    {"na_ledger_11x17in",         QT_TRANSLATE_NOOP("PrinterLists", "Tabloid")},
    {"na_index-4x6_4x6in",        QT_TRANSLATE_NOOP("PrinterLists", "Photo 10 × 15 cm")},
    {"iso_dl_110x220mm",          QT_TRANSLATE_NOOP("PrinterLists", "DL envelope")},
    {"na_number-10_4.125x9.5in",  QT_TRANSLATE_NOOP("PrinterLists", "No. 10 envelope")},
};

constexpr JobListItem kSidesOfPaper[] = {
    {nullptr,                QT_TRANSLATE_NOOP("PrinterLists", "As the printer is set")},
    {"one-sided",            QT_TRANSLATE_NOOP("PrinterLists", "Off")},
    {"two-sided-long-edge",  QT_TRANSLATE_NOOP("PrinterLists", "Turn on the long edge")},
    {"two-sided-short-edge", QT_TRANSLATE_NOOP("PrinterLists", "Turn on the short edge")},
};
// clang-format on

QString settingOf(const PrintSettingsMap &settings, const QString &key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? QString() : found->second.toString();
}

/// What is in no list shows all the same, at its end.
void select(PrinterList &list, const PrinterList::Item &current)
{
    const auto isCurrent = [&](const PrinterList::Item &item) {
        return item.value.isNull() == current.value.isNull() &&
               item.value.compare(current.value, Qt::CaseInsensitive) == 0;
    };
    if (!current.value.isNull() && std::none_of(list.items.begin(), list.items.end(), isCurrent))
        list.items.push_back(current);
    const auto found = std::find_if(list.items.begin(), list.items.end(), isCurrent);
    list.current = found == list.items.end() ? -1 : static_cast<int>(found - list.items.begin());
}

PrinterList standardList(const QString &key, std::span<const JobListItem> items,
                         const PrintSettingsMap &settings)
{
    PrinterList list;
    list.key = key;
    for (const JobListItem &item : items)
        list.items.push_back({QCoreApplication::translate(kContext, item.text),
                              item.value ? QString::fromLatin1(item.value) : QString()});
    const QString current = settingOf(settings, key);
    select(list, {current, current});
    return list;
}

/// What the print setting says in the words of that option, or as it stands; null without one that
/// stands for the option.
QString choiceOfSetting(const QString &option, const QString &key, const PpdDocument &printer,
                        const PrintSettingsMap &settings)
{
    const QString value = settingOf(settings, key);
    const Meaning meaning = meaningOf(key, value, standardCounterparts(printer));
    for (const auto &[name, choice] : meaning.said) {
        if (isSameOption(name, option))
            return choice;
    }
    return !value.isNull() && meaning.standsFor.contains(option) ? value : QString();
}

PrinterList printersList(const PpdDocument &printer, const QString &option, const QString &current)
{
    PrinterList list;
    list.option = option;
    for (const QString &choice : printer.choices(option)) {
        if (choice != kCustomSize)
            list.items.push_back({printer.choiceText({option, choice}), choice});
    }
    select(list, {printer.choiceText({option, current}), current});
    return list;
}

PrinterList listOf(const PpdDocument &printer, const QString &key, const QString &paperName,
                   const PrintSettingsMap &settings)
{
    const QString option = counterpartOf(key, standardCounterparts(printer));
    if (option.isNull())
        return {};
    QString current = choiceOfSetting(option, key, printer, settings);
    if (current.isNull())
        current = paperName.isNull() ? printer.marked(option) : paperName;
    PrinterList list = printersList(printer, option, current);
    list.key = key;
    return list;
}

} // namespace

PrinterList paperList(const PpdDocument &printer, const PrintSettingsMap &settings,
                      const QString &paperName)
{
    return printer.options().isEmpty() ? standardList(kMedia, kPapers, settings)
                                       : listOf(printer, kMedia, paperName, settings);
}

PrinterList sidesList(const PpdDocument &printer, const PrintSettingsMap &settings)
{
    return printer.options().isEmpty() ? standardList(kSides, kSidesOfPaper, settings)
                                       : listOf(printer, kSides, {}, settings);
}

QStringList optionsOfTheWindow(const PpdDocument &printer)
{
    const OptionChoices counterparts = standardCounterparts(printer);
    QStringList options{QStringLiteral("PageSize"), QStringLiteral("PageRegion")};
    for (const OwnSetting &own : kOwnSettings) {
        const QString key = QLatin1String(own.key);
        const QString option = counterpartOf(key, counterparts);
        if (option.isNull())
            continue;
        const JobOptions marked{{option, printer.marked(option)}};
        if (!own.unset || meaningOf(key, QLatin1String(own.unset), counterparts).said == marked)
            options.append(option);
    }
    return options;
}

} // namespace dialog
