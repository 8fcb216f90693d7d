#include "dialog/settings/setting_words.h"

#include "dialog/printers/standard_options.h"

#include <QCoreApplication>

#include <algorithm>

namespace dialog {
namespace {

class SettingWords
{
    Q_DECLARE_TR_FUNCTIONS(SettingWords)
};

// In the order in which a person reads them.
struct TitleLine
{
    const char *key;
    const char *title;
    const char *usual; ///< what the printer does without it; null: not known
};

// clang-format off
constexpr TitleLine kTitles[] = {
    {"copies",                QT_TRANSLATE_NOOP("SettingWords", "Copies"),            "1"},
    {"multiple-document-handling",
                              QT_TRANSLATE_NOOP("SettingWords", "Collate"),           nullptr},
    {"collate",               QT_TRANSLATE_NOOP("SettingWords", "Collate"),           nullptr},
    {"outputorder",           QT_TRANSLATE_NOOP("SettingWords", "Order of sheets"),   "normal"},
    {"page-ranges",           QT_TRANSLATE_NOOP("SettingWords", "Pages"),             nullptr},
    {"page-set",              QT_TRANSLATE_NOOP("SettingWords", "Odd or even pages"), "all"},
    {"media",                 QT_TRANSLATE_NOOP("SettingWords", "Paper"),             nullptr},
    {"orientation-requested", QT_TRANSLATE_NOOP("SettingWords", "Orientation"),       nullptr},
    {"sides",                 QT_TRANSLATE_NOOP("SettingWords", "Two-sided"),         "one-sided"},
    {"number-up",             QT_TRANSLATE_NOOP("SettingWords", "Pages per sheet"),   "1"},
    {"number-up-layout",      QT_TRANSLATE_NOOP("SettingWords", "Layout order"),      "lrtb"},
    {"page-border",           QT_TRANSLATE_NOOP("SettingWords", "Border"),            "none"},
    {"print-scaling",         QT_TRANSLATE_NOOP("SettingWords", "Scaling"),           "auto"},
    {"print-color-mode",      QT_TRANSLATE_NOOP("SettingWords", "Color"),             nullptr},
    {"print-quality",         QT_TRANSLATE_NOOP("SettingWords", "Quality"),           nullptr},
    {"output-bin",            QT_TRANSLATE_NOOP("SettingWords", "Output tray"),       nullptr},
    {"mirror",                QT_TRANSLATE_NOOP("SettingWords", "Flip horizontally"), "false"},
};

struct ValueLine
{
    const char *key; ///< null: of any setting
    const char *value;
    const char *words;
};

// Beside the lists of the job's own settings.
constexpr ValueLine kValues[] = {
    {nullptr,       "true",       QT_TRANSLATE_NOOP("SettingWords", "On")},
    {nullptr,       "false",      QT_TRANSLATE_NOOP("SettingWords", "Off")},
    {"multiple-document-handling", "separate-documents-collated-copies",
                                  QT_TRANSLATE_NOOP("SettingWords", "On")},
    {"multiple-document-handling", "separate-documents-uncollated-copies",
                                  QT_TRANSLATE_NOOP("SettingWords", "Off")},
    {"outputorder", "normal",     QT_TRANSLATE_NOOP("SettingWords", "First page first")},
    {"outputorder", "reverse",    QT_TRANSLATE_NOOP("SettingWords", "Last page first")},
    {"sides", "one-sided",            QT_TRANSLATE_NOOP("SettingWords", "Off")},
    {"sides", "two-sided-long-edge",  QT_TRANSLATE_NOOP("SettingWords", "Turn on the long edge")},
    {"sides", "two-sided-short-edge", QT_TRANSLATE_NOOP("SettingWords", "Turn on the short edge")},
    {"print-color-mode", "color",      QT_TRANSLATE_NOOP("SettingWords", "Color")},
    {"print-color-mode", "monochrome", QT_TRANSLATE_NOOP("SettingWords", "Grayscale")},
    {"print-quality", "3", QT_TRANSLATE_NOOP("SettingWords", "Draft")},
    {"print-quality", "4", QT_TRANSLATE_NOOP("SettingWords", "Normal")},
    {"print-quality", "5", QT_TRANSLATE_NOOP("SettingWords", "High")},
};
// clang-format on

const TitleLine *lineOf(const QString &key)
{
    const auto *const found =
        std::find_if(std::begin(kTitles), std::end(kTitles),
                     [&](const TitleLine &line) { return key == QLatin1String(line.key); });
    return found == std::end(kTitles) ? nullptr : found;
}

/// Null for a setting without a list, or a value outside it.
const JobListItem *listItem(const QString &key, const QString &value)
{
    for (int i = 0; i <= static_cast<int>(JobList::Scaling); ++i) {
        const JobListRow &row = jobList(static_cast<JobList>(i));
        const int item = jobListIndex(row.list, {{key, value}});
        if (key == QLatin1String(row.key) && item >= 0)
            return &row.items[static_cast<std::size_t>(item)];
    }
    return nullptr;
}

} // namespace

QString groupTitle(const OptionGroup &group)
{
    if (group.kind == GroupKind::Installable)
        return SettingWords::tr("Installed Options");
    if (group.text != group.name)
        return group.text;
    if (group.name == QLatin1String("General"))
        return SettingWords::tr("General");
    if (group.name == QLatin1String("JCL"))
        return SettingWords::tr("Job Control");
    return group.name == QLatin1String("Extra") ? SettingWords::tr("More Options") : group.text;
}

QString settingTitle(const QString &key)
{
    if (key == columnsKey())
        return SettingWords::tr("Pages side by side");
    const TitleLine *const line = lineOf(key);
    return line ? SettingWords::tr(line->title) : key;
}

QString settingValue(const QString &key, const QString &value)
{
    if (const JobListItem *const item = listItem(key, value))
        return jobListItemText(*item);
    for (const ValueLine &line : kValues) {
        if ((!line.key || key == QLatin1String(line.key)) && value == QLatin1String(line.value))
            return SettingWords::tr(line.words);
    }
    return value;
}

bool isUsualSetting(const QString &key, const QString &value)
{
    if (key == columnsKey())
        return value == QLatin1String("1");
    const TitleLine *const line = lineOf(key);
    return line && line->usual && value == QLatin1String(line->usual);
}

QStringList inReadingOrder(const PrintSettingsMap &settings)
{
    QStringList keys;
    for (const TitleLine &line : kTitles) {
        if (settings.contains(QLatin1String(line.key)))
            keys.append(QLatin1String(line.key));
    }
    for (const auto &[key, value] : settings) {
        if (!lineOf(key))
            keys.append(key);
    }
    return keys;
}

} // namespace dialog
