#include "tests/endtoend/printing.h"

#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/panel_hands.h"
#include "tests/support/print_to.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <algorithm>

namespace test {
namespace {

/// An object of texts, in a form that failures show.
Values valuesOf(const QJsonValue &object)
{
    Values values;
    const QJsonObject texts = object.toObject();
    for (auto entry = texts.begin(); entry != texts.end(); ++entry)
        values[entry.key()] = entry.value().toString();
    return values;
}

/// The choices that the ticket names as not in the job; each must have a reason in the marks.
Values refusedIn(const QJsonObject &ticket, const ExpectedJob &expected)
{
    Values refused;
    for (const QJsonValue &difference : ticket[q("differences")].toArray()) {
        const QString option = difference[q("option")].toString();
        refused[option] = difference[q("chosen")].toString();
        EXPECT_SAME(difference[q("marked")].toString(), expected.stands(option));
    }
    return refused;
}

OptionPairs pairs(const Values &values)
{
    return {values.begin(), values.end()};
}

/// CUPS carries "True" and "False" as a boolean.
Values asTheyArrive(const Values &options)
{
    Values arriving = options;
    for (auto &[name, value] : arriving) {
        if (value == q("True") || value == q("False"))
            value = value.toLower();
    }
    return arriving;
}

// No rule leaves these pop-ups at another choice than the job's.
constexpr const char *kAlwaysInLine[] = {"PrintQuality", "MediaType", "PaperSource", "ColorOutput"};

void expectShown(const DialogRun &run, const QString &option, const ExpectedJob &expected)
{
    if (expected.marked.contains(option)) {
        EXPECT_SAME(run.shown(option), expected.stands(option));
    }
}

void expectTicket(const PrintedJob &job, const ExpectedJob &expected)
{
    EXPECT_EQ(sorted(job.options), pairs(expected.options));
    EXPECT_EQ(valuesOf(job.ticket[q("options")]), expected.options);
    EXPECT_EQ(valuesOf(job.ticket[q("marked")]), expected.marked);
    EXPECT_EQ(valuesOf(job.ticket[q("replaced")]), expected.replaced);
    EXPECT_EQ(valuesOf(job.ticket[q("settings")]), expected.printSettings);
    EXPECT_EQ(refusedIn(job.ticket, expected), expected.refused);
    EXPECT_EQ(job.wasReviewed, expected.isReviewed);
}

} // namespace

void PrintTo(const Edition &edition, std::ostream *out)
{
    *out << edition.name;
}

OptionPairs sorted(OptionPairs options)
{
    std::sort(options.begin(), options.end());
    return options;
}

Printing::Printing(const Edition &edition, PrivateCupsd::User user)
    : Printing(fileBytes(samplePpd(edition.ppd)), edition.language, user)
{
}

Printing::Printing(const QByteArray &ppd, const char *language, PrivateCupsd::User user)
    : language_(q(language)), server_(user)
{
    server_.addQueue(queue(), ppd);
    const int plain = server_.printPlainly(queue(), sampleDocument());
    if (!server_.waitForJob(plain))
        return;
    for (const auto &[name, value] : server_.options(plain))
        serversOwn_.insert(name);
}

Printing::~Printing()
{
    expectArrivals();
}

std::unique_ptr<DialogRun> Printing::open(int systemVersion,
                                          const dialog::ServerLimits &limits) const
{
    dialog::PrintCase printCase;
    printCase.queue = queue();
    printCase.language = language_;
    printCase.systemVersion = systemVersion;
    printCase.serverLimits = limits;
    return std::make_unique<DialogRun>(printCase);
}

void Printing::print(DialogRun &run, const ExpectedJob &expected, const QString &description)
{
    const std::optional<PrintedJob> job = run.print();
    if (job)
        expect(*job, expected, description);
}

void Printing::expect(const PrintedJob &job, const ExpectedJob &expected,
                      const QString &description)
{
    ASSERT_GT(job.id, 0);
    expectTicket(job, expected);
    sent_.push_back({job.id, expected.options, description});
}

void Printing::play(const Story &story)
{
    SCOPED_TRACE(described(story).toStdString());
    const std::unique_ptr<DialogRun> run = open(story.systemVersion);
    const ExpectedJob expected = expectedJob(run->dialog().printer().defaults(), story);
    run->preset(story.preset);
    run->showPanels();
    const ConflictAnswers answers(story.answer);
    for (const dialog::Choice &picked : story.chosen)
        run->choose(picked);
    EXPECT_EQ(answers.windows(), expected.windows);
    for (const char *option : kAlwaysInLine)
        expectShown(*run, q(option), expected);
    print(*run, expected, described(story));
}

OptionPairs Printing::arrivedOptions(int job) const
{
    OptionPairs options = server_.options(job);
    std::erase_if(options, [&](const auto &option) { return serversOwn_.contains(option.first); });
    return sorted(options);
}

std::vector<OptionPairs> Printing::expectArrivals()
{
    std::vector<OptionPairs> arrived;
    const QByteArray document = fileBytes(sampleDocument());
    for (const Sent &sent : std::exchange(sent_, {})) {
        SCOPED_TRACE(sent.description.toStdString());
        if (!server_.waitForJob(sent.job))
            break;
        arrived.push_back(arrivedOptions(sent.job));
        EXPECT_EQ(arrived.back(), pairs(asTheyArrive(sent.options)))
            << server_.optionString(sent.job).toStdString();
        EXPECT_EQ(server_.document(sent.job), document);
    }
    return arrived;
}

} // namespace test
