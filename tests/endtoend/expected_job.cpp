#include "tests/endtoend/expected_job.h"

#include "tests/support/print_to.h"

#include <QStringList>

#include <algorithm>
#include <set>

namespace test {

using dialog::Choice;
using dialog::Choices;

namespace {

struct KeywordPair
{
    const char *option;
    const char *choice;
};

enum class Effect {
    Excludes, ///< of both, in either order, the one that is chosen last is refused
    Brings,   ///< the job carries the other one too, while this one stands or where a preset had it
    Loses, ///< the other one, refused while this one was chosen, takes away what this one brought
};

struct Rule
{
    Effect effect;
    KeywordPair one;
    KeywordPair other;
    int firstVersion = 0;
    int lastVersion = 0xFFFF;
};

// Every difference between what a person chooses and what the job carries.
// clang-format off
constexpr Rule kRules[] = {
    {Effect::Excludes, {"PrintQuality", "Draft"},  {"MediaType", "IronOn"}},
    {Effect::Excludes, {"PrintQuality", "Draft"},  {"MediaType", "Transparency"}},
    {Effect::Excludes, {"PageSize", "Letter"},     {"MediaType", "Envelope"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "Plain"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "IronOn"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "Transparency"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "Greeting"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "PremiumGlossy"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "InkjetGlossyBrochure"}},
    {Effect::Excludes, {"PageSize", "EnvelopeDL"}, {"MediaType", "InkjetGlossyLight"}},
    {Effect::Brings,   {"MediaType", "IronOn"},    {"Mirror", "On"},   0,        kSystem105},
    {Effect::Brings,   {"MediaType", "IronOn"},    {"mirror", "true"}, kSystem106, 0xFFFF},
    {Effect::Brings,   {"Mirror", "On"},           {"mirror", "true"}, kSystem106, 0xFFFF},
    {Effect::Loses,    {"MediaType", "IronOn"},    {"MediaType", "Envelope"}},
};
// clang-format on

Choice choiceOf(const KeywordPair &pair)
{
    return choice(pair.option, pair.choice);
}

bool holds(const Values &values, const Choice &pair)
{
    const auto found = values.find(pair.option);
    return found != values.end() && found->second == pair.choice;
}

bool isExcluded(const Choice &picked, const Values &marks)
{
    return std::any_of(std::begin(kRules), std::end(kRules), [&](const Rule &rule) {
        const Choice one = choiceOf(rule.one);
        const Choice other = choiceOf(rule.other);
        return rule.effect == Effect::Excludes &&
               ((one == picked && holds(marks, other)) || (other == picked && holds(marks, one)));
    });
}

bool contains(const Choices &choices, const Choice &wanted)
{
    return std::find(choices.begin(), choices.end(), wanted) != choices.end();
}

/// Presets are marked whatever the constraints say. Answers which choices have lost what they
/// bring.
Choices follow(ExpectedJob &job, const Story &story)
{
    Choices losers;
    for (const Choice &marked : story.preset)
        job.marked[marked.option] = marked.choice;
    for (const Choice &picked : story.chosen) {
        const bool isRefused = isExcluded(picked, job.marked);
        job.refused.erase(picked.option);
        (isRefused ? job.refused : job.marked)[picked.option] = picked.choice;
        if (!isRefused)
            std::erase(losers, picked);
        for (const Rule &rule : kRules) {
            if (isRefused && rule.effect == Effect::Loses && choiceOf(rule.other) == picked)
                losers.push_back(choiceOf(rule.one));
        }
    }
    return losers;
}

bool isInForce(const Rule &rule, const Story &story, const Values &marks, const Choices &losers)
{
    const Choice one = choiceOf(rule.one);
    const bool stands = holds(marks, one) && !contains(losers, one);
    return rule.effect == Effect::Brings && (stands || contains(story.preset, one)) &&
           story.systemVersion >= rule.firstVersion && story.systemVersion <= rule.lastVersion;
}

void bring(ExpectedJob &job, const Story &story, const Choices &losers)
{
    for (const Rule &rule : kRules) {
        if (!isInForce(rule, story, job.marked, losers))
            continue;
        const Choice other = choiceOf(rule.other);
        (job.marked.contains(other.option) ? job.marked : job.printSettings)[other.option] =
            other.choice;
    }
}

/// To CUPS names that differ in case only are one.
void replace(ExpectedJob &job)
{
    for (const auto &[name, value] : job.printSettings) {
        const auto found =
            std::find_if(job.marked.begin(), job.marked.end(), [name = name](const auto &mark) {
                return mark.first.compare(name, Qt::CaseInsensitive) == 0;
            });
        if (found != job.marked.end())
            job.replaced.insert(job.marked.extract(found));
    }
}

/// The choices that differ from the printer's defaults or were made, then the print settings.
Values optionsOf(const ExpectedJob &job, const Values &defaults, const Story &story)
{
    std::set<QString> chosen;
    for (const Choice &picked : story.chosen)
        chosen.insert(picked.option);
    Values options = job.printSettings;
    for (const auto &[option, keyword] : job.marked) {
        if (keyword != defaults.at(option) || chosen.contains(option))
            options[option] = keyword;
    }
    return options;
}

} // namespace

Choice choice(const char *option, const char *keyword)
{
    return {q(option), q(keyword)};
}

QString described(const Story &story)
{
    QStringList words;
    for (const Choice &marked : story.preset)
        words << q("preset") << marked.option + u'=' + marked.choice;
    for (const Choice &picked : story.chosen)
        words << q("chosen") << picked.option + u'=' + picked.choice;
    return words.join(u' ');
}

QString ExpectedJob::stands(const QString &option) const
{
    return (replaced.contains(option) ? replaced : marked).at(option);
}

ExpectedJob expectedJob(const Choices &defaults, const Story &story)
{
    ExpectedJob job;
    for (const Choice &marked : defaults)
        job.marked[marked.option] = marked.choice;
    const Values before = job.marked;
    const Choices losers = follow(job, story);
    bring(job, story, losers);
    replace(job);
    job.options = optionsOf(job, before, story);
    return job;
}

} // namespace test
