#include "dialog/printers/job_options.h"

#include "dialog/printers/standard_options.h"
#include "platform/strings.h"

#include <algorithm>

namespace dialog {
namespace {

const QString kNumberUp = QStringLiteral("number-up");

bool contains(const Choices &choices, const Choice &wanted)
{
    return std::find(choices.begin(), choices.end(), wanted) != choices.end();
}

/// A mirror setting other than the text "true" means nothing.
bool takesEffect(const QString &key, const QVariant &value)
{
    if (key == columnsKey())
        return false;
    if (key != QLatin1String("mirror"))
        return true;
    return value.typeId() == QMetaType::QString && value.toString() == QLatin1String("true");
}

/// In the place of an option of that name.
void set(JobOptions &options, const QString &name, const QString &value)
{
    std::erase_if(options, [&](const auto &option) { return isSameOption(option.first, name); });
    options.emplace_back(name, value);
}

/// Of a sheet that has at least so many columns, as far as there is one.
int pagesOfColumns(int columns)
{
    for (const SharedSheet &sheet : kSharedSheets) {
        if (sheet.columns >= columns)
            return sheet.pages;
    }
    return std::end(kSharedSheets)[-1].pages;
}

JobOptions effectiveSettings(const std::map<QString, QVariant> &settings)
{
    JobOptions options;
    for (const auto &[key, value] : settings) {
        if (takesEffect(key, value))
            set(options, key, value.toString());
    }
    const auto columns = settings.find(columnsKey());
    const int pages =
        columns == settings.end() ? 1 : pagesOfColumns(platform::integerValue(columns->second));
    if (pages > 1 && !settings.contains(kNumberUp))
        set(options, kNumberUp, QString::number(pages));
    return options;
}

/// The print settings as they are sent, and what they stand for.
Meaning meaningOfSettings(const JobSettings &settings)
{
    Meaning whole;
    for (const auto &[key, value] : effectiveSettings(settings.printSettings)) {
        const Meaning meaning = meaningOf(key, value, settings.counterparts);
        whole.standsFor += meaning.standsFor;
        for (const auto &[name, word] : meaning.said) {
            set(whole.said, name, word);
            whole.standsFor.append(name);
        }
    }
    return whole;
}

bool isReplaced(const Choice &mark, const Meaning &printSettings)
{
    return printSettings.standsFor.contains(mark.option, Qt::CaseInsensitive);
}

bool says(const JobOptions &options, const Choice &mark)
{
    return std::any_of(options.begin(), options.end(), [&](const auto &option) {
        return isSameOption(option.first, mark.option) && option.second == mark.choice;
    });
}

/// The page format's paper stands above the marked page size.
Choice withPaper(const Choice &mark, const QString &paperName)
{
    const bool isSize = mark.option == QLatin1String("PageSize");
    return isSize && !paperName.isNull() ? Choice{mark.option, paperName} : mark;
}

bool isSent(const Choice &mark, const JobSettings &settings)
{
    return !contains(settings.defaults, mark) || settings.chosen.contains(mark.option);
}

/// A pick-many option sends its choices as one value.
void add(JobOptions &options, const Choice &mark)
{
    if (!options.empty() && options.back().first == mark.option)
        options.back().second += u',' + mark.choice;
    else
        options.emplace_back(mark.option, mark.choice);
}

} // namespace

JobOptions jobOptions(const JobSettings &settings)
{
    const Meaning printSettings = meaningOfSettings(settings);
    JobOptions options;
    for (const Choice &marked : settings.marks) {
        const Choice mark = withPaper(marked, settings.paperName);
        if (isSent(mark, settings) && !isReplaced(mark, printSettings))
            add(options, mark);
    }
    options.insert(options.end(), printSettings.said.begin(), printSettings.said.end());
    return options;
}

Choices replacedMarks(const JobSettings &settings)
{
    const Meaning printSettings = meaningOfSettings(settings);
    Choices replaced;
    std::copy_if(settings.marks.begin(), settings.marks.end(), std::back_inserter(replaced),
                 [&](const Choice &mark) {
                     return isReplaced(mark, printSettings) && !says(printSettings.said, mark);
                 });
    return replaced;
}

} // namespace dialog
