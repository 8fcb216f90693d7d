// The scenarios of tests/scenarios/cases have every step, every event and every error of the format
// in them.

#include "dialog/replay/report.h"
#include "dialog/replay/scenario.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using test::q;

namespace {

const QString kCases = QStringLiteral(KORVANE_CASES_DIR);

/// The files of that name, one per case.
std::vector<QByteArray> filesOfCases(const char *name)
{
    std::vector<QByteArray> files;
    const QStringList folders = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        QFile file(kCases + u'/' + folder + u'/' + q(name));
        if (file.open(QIODevice::ReadOnly))
            files.push_back(file.readAll());
    }
    EXPECT_GT(files.size(), 20u);
    return files;
}

QSet<QString> stepsOfCases()
{
    QSet<QString> words;
    for (const QByteArray &file : filesOfCases("case.scenario")) {
        for (const QByteArray &line : file.split('\n'))
            words.insert(QString::fromUtf8(line.trimmed().split(' ').first()));
    }
    return words;
}

QSet<QString> eventsOfCases()
{
    QSet<QString> names;
    for (const QByteArray &file : filesOfCases("expected.json")) {
        const QJsonArray events = QJsonDocument::fromJson(file).object()[q("events")].toArray();
        for (const QJsonValue &event : events)
            names.insert(event.toObject()[q("event")].toString());
    }
    return names;
}

/// One pattern per message of scenario.cpp, shell_words.cpp and player.cpp, of input.cpp's what a
/// scenario can meet.
constexpr const char *kErrors[] = {
    "no step \\S+",
    "wrong number of words; write: ",
    "a ' is not closed",
    "a \" is not closed",
    "nothing follows the \\\\ at the end of the line",
    " is no system version",
    " is no number from 0 on",
    "no direction \\S+",
    "no key \\S+",
    " is no name of a file",
    " is no JSON Pointer; it begins with \"/\"",
    " must stand before any other step",
    "no option \\S+",
    "no choice \\S+",
    "no panel .*",
    "no control \\S+",
    "; did you mean \\S+\\?",
    "no item .*",
    "it is hidden",
    "it is disabled",
    "it is no pop-up",
    "it is no box that can be ticked",
    "it is no radio matrix",
    "it is no stepper",
    "it is no text field",
    "it is ticked already",
    "it is not ticked",
    "it has no row \\d+, only 0 to \\d+",
    "it goes no further",
    " must be closed first",
    " is not the window in front, \\S+ is",
    ": expected .*, found ",
    "found nothing",
    "the dialog has been left before",
    " could not be saved. ",
    "no printer; name one with",
    "there is no such file; ",
    "There is no document ",
};

/// What stands in backquotes in the last column of a table of cases; a name may end in "*".
std::vector<QRegularExpression> casesOfTheMap()
{
    QFile file(kCases + q("/../README.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    static const QRegularExpression name(q("`([a-z0-9-]+\\*?)`"));
    std::vector<QRegularExpression> cases;
    for (const QString &line : text.mid(text.indexOf(q("| part |"))).split(u'\n')) {
        for (auto match = name.globalMatch(line.section(u'|', 2)); match.hasNext();)
            cases.emplace_back(
                QRegularExpression::wildcardToRegularExpression(match.next().captured(1)));
    }
    EXPECT_GT(cases.size(), 20u);
    return cases;
}

} // namespace

TEST(MapOfCases, NamesEveryCaseAndNoOther)
{
    const QStringList folders = QDir(kCases).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QStringList unnamed = folders;
    for (const QRegularExpression &named : casesOfTheMap()) {
        EXPECT_FALSE(folders.filter(named).isEmpty()) << named.pattern().toStdString();
        for (const QString &folder : folders.filter(named))
            unnamed.removeAll(folder);
    }
    EXPECT_EQ(unnamed, QStringList());
}

class EveryStep : public testing::TestWithParam<QString>
{
};

TEST_P(EveryStep, StandsInACase)
{
    EXPECT_TRUE(stepsOfCases().contains(GetParam())) << GetParam().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Format, EveryStep, testing::ValuesIn(dialog::replay::stepWords()),
                         [](const auto &step) {
                             return QString(step.param).remove(u'-').toStdString();
                         });

class EveryEvent : public testing::TestWithParam<QString>
{
};

TEST_P(EveryEvent, HappensInACase)
{
    EXPECT_TRUE(eventsOfCases().contains(GetParam())) << GetParam().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Report, EveryEvent, testing::ValuesIn(dialog::replay::eventNames()),
                         [](const auto &event) {
                             return QString(event.param).remove(u'-').toStdString();
                         });

TEST(EveryCase, HasOnlyEventsOfTheFormat)
{
    const QStringList names = dialog::replay::eventNames();
    const QSet<QString> happened = eventsOfCases();
    for (const QString &name : happened)
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
}

class EveryError : public testing::TestWithParam<const char *>
{
};

TEST_P(EveryError, IsToldInACase)
{
    const QRegularExpression pattern(q("^korvane-print: .*") + q(GetParam()),
                                     QRegularExpression::MultilineOption);
    ASSERT_TRUE(pattern.isValid());
    bool isTold = false;
    for (const QByteArray &message : filesOfCases("message"))
        isTold = isTold || pattern.match(QString::fromUtf8(message)).hasMatch();
    EXPECT_TRUE(isTold) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Format, EveryError, testing::ValuesIn(kErrors));
