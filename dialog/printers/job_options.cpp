#include "dialog/printers/job_options.h"

#include "platform/strings.h"

#include <algorithm>

namespace dialog {
namespace {

// Values of this many bytes make a job vanish with the answer "success".
constexpr int kTooManyBytes = 32 * 1024;

bool isSameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool contains(const Choices &choices, const Choice &wanted)
{
    return std::find(choices.begin(), choices.end(), wanted) != choices.end();
}

/// A mirror setting other than the text "true" means nothing.
bool takesEffect(const QString &key, const QVariant &value)
{
    if (key != QLatin1String("mirror"))
        return true;
    return value.typeId() == QMetaType::QString && value.toString() == QLatin1String("true");
}

JobOptions effectiveSettings(const JobSettings &settings)
{
    JobOptions options;
    for (const auto &[key, value] : settings.printSettings) {
        if (takesEffect(key, value))
            options.emplace_back(key, value.toString());
    }
    return options;
}

bool isReplaced(const Choice &mark, const JobOptions &printSettings)
{
    return std::any_of(printSettings.begin(), printSettings.end(),
                       [&](const auto &setting) { return isSameName(setting.first, mark.option); });
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
    const JobOptions printSettings = effectiveSettings(settings);
    JobOptions options;
    for (const Choice &marked : settings.marks) {
        const Choice mark = withPaper(marked, settings.paperName);
        if (isSent(mark, settings) && !isReplaced(mark, printSettings))
            add(options, mark);
    }
    options.insert(options.end(), printSettings.begin(), printSettings.end());
    return options;
}

Choices replacedMarks(const JobSettings &settings)
{
    const JobOptions printSettings = effectiveSettings(settings);
    Choices replaced;
    std::copy_if(settings.marks.begin(), settings.marks.end(), std::back_inserter(replaced),
                 [&](const Choice &mark) { return isReplaced(mark, printSettings); });
    return replaced;
}

QString unsendableReason(const JobOptions &options)
{
    for (const auto &[name, value] : options) {
        if (value.startsWith(u'{'))
            return name + QStringLiteral(": a value cannot begin with \"{\"");
        if (value.toUtf8().size() >= kTooManyBytes)
            return name + QStringLiteral(": the value is too long");
    }
    return {};
}

} // namespace dialog
