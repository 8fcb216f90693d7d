#include "dialog/jobs/document.h"
#include "dialog/jobs/job_folder.h"
#include "dialog/printers/unsendable.h"
#include "tests/dialog/program_run.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace dialog;
using test::q;

namespace {

JobSettings settings()
{
    JobSettings made;
    made.defaults = {
        {q("PageSize"), q("Letter")}, {q("PrintQuality"), q("Normal")}, {q("Mirror"), q("Off")}};
    made.marks = made.defaults;
    return made;
}

TEST(JobOptions, LeaveOutWhatEqualsTheDefaultAndNobodyChose)
{
    EXPECT_EQ(jobOptions(settings()), JobOptions());
}

TEST(JobOptions, CarryMarksThatDifferAndMarksThatWereChosen)
{
    JobSettings made = settings();
    made.marks[1].choice = q("Draft");
    made.chosen = {q("PageSize")};
    const JobOptions expected{{q("PageSize"), q("Letter")}, {q("PrintQuality"), q("Draft")}};
    EXPECT_EQ(jobOptions(made), expected);
}

TEST(JobOptions, MirrorOfTheJobReplacesMirrorOfThePrinter)
{
    JobSettings made = settings();
    made.marks[2].choice = q("On");
    made.printSettings[q("mirror")] = q("true");
    EXPECT_EQ(jobOptions(made), JobOptions({{q("mirror"), q("true")}}));
    EXPECT_EQ(replacedMarks(made), Choices({{q("Mirror"), q("On")}}));
}

TEST(JobOptions, MirrorOfTheJobIsOnForTheTextTrueOnly)
{
    for (const QVariant &value :
         {QVariant(q("false")), QVariant(true), QVariant(1), QVariant(q("True"))}) {
        JobSettings made = settings();
        made.marks[2].choice = q("On");
        made.printSettings[q("mirror")] = value;
        EXPECT_EQ(jobOptions(made), JobOptions({{q("Mirror"), q("On")}}))
            << testing::PrintToString(value);
        EXPECT_TRUE(replacedMarks(made).empty());
    }
}

TEST(JobOptions, ANamedPaperStandsAboveTheMarkedSize)
{
    JobSettings made = settings();
    made.paperName = q("EnvelopeDL");
    EXPECT_EQ(jobOptions(made), JobOptions({{q("PageSize"), q("EnvelopeDL")}}));
}

TEST(JobOptions, JoinTheChoicesOfAPickManyOption)
{
    JobSettings made = settings();
    made.marks.push_back({q("Finish"), q("Staple")});
    made.marks.push_back({q("Finish"), q("Punch")});
    EXPECT_EQ(jobOptions(made), JobOptions({{q("Finish"), q("Staple,Punch")}}));
}

TEST(JobOptions, ThatWouldGetLostAreFoundBeforeSending)
{
    EXPECT_NULL(unsendableReason({{q("A"), q("x{")}, {q("B"), QString(32'767, u'x')}}));
    const std::pair<QString, QString> table[] = {
        {q("A"), q("{x")},
        {q("A"), QString(32'768, u'x')},
        {q("A"), QString(16'384, QChar(0xe4))},
        {q("A"), q("")},
        {q("A"), QString()},
        {q("A"), q("x\ny")},
        {q("A"), QString(u'x') + QChar(u'\0')},
        {QString(256, u'N'), q("x")},
        {q("A=B"), q("x")},
        {q("A B"), q("x")},
        {q("A/B"), q("x")},
        {q("A\tB"), q("x")},
        {q("normal"), q("TRUE")},
    };
    for (const auto &option : table) {
        const QString reason = unsendableReason({{q("Fine"), q("x")}, option});
        EXPECT_TRUE(reason.startsWith(option.first.left(1))) << testing::PrintToString(reason);
        EXPECT_LT(reason.size(), 130) << "a long name is cut";
    }
    EXPECT_FALSE(unsendableReason({{q(""), q("x")}}).isNull());
}

TEST(JobOptions, ThatAreTooLongTogetherAreFoundBeforeSending)
{
    JobOptions options;
    for (int i = 0; i < 5; ++i)
        options.emplace_back(q("Option%1").arg(i), QString(25'000, u'x'));
    EXPECT_NULL(unsendableReason(options));
    options.front().second += QString(1'000, u'"');
    EXPECT_FALSE(unsendableReason(options).isNull()) << "each quote counts twice";
}

Ticket ticketFor(const QString &id)
{
    Ticket ticket;
    ticket.id = id;
    ticket.time = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    ticket.printerName = q("Korvane S300");
    ticket.ppdFile = q("printer.ppd");
    ticket.settings = settings();
    return ticket;
}

TEST(JobFolder, HoldsTheTicketAndACopyOfTheDocument)
{
    test::StagedDriver driver;
    const QString document = driver.write(q("Letter to Ada.pdf"), "%PDF-1.4 text");
    Ticket ticket = ticketFor(q("korvane-job-1"));
    ticket.documentName = q("Letter to Ada.pdf");
    ticket.documentFile = q("document.pdf");
    ticket.settings.marks[1].choice = q("Draft");
    ticket.settings.printSettings[q("mirror")] = q("true");
    ticket.differences = {{q("PrintQuality"), q("Best"), q("Draft")}};
    const JobFolderResult written = writeJobFolder(driver.path(q("jobs")), ticket, document);
    ASSERT_TRUE(written.error.isNull()) << written.error.toStdString();
    EXPECT_SAME(written.ticketPath, driver.path(q("jobs/korvane-job-1/ticket.json")));
    EXPECT_EQ(test::fileBytes(driver.path(q("jobs/korvane-job-1/document.pdf"))), "%PDF-1.4 text");

    const QJsonObject json = test::readJson(written.ticketPath);
    EXPECT_EQ(json[q("version")], 1);
    EXPECT_EQ(json[q("time")], q("1970-01-01T00:00:00.000Z"));
    EXPECT_EQ(json[q("marked")].toObject(),
              QJsonObject({{q("PageSize"), q("Letter")}, {q("PrintQuality"), q("Draft")}}));
    EXPECT_EQ(json[q("replaced")].toObject(), QJsonObject({{q("Mirror"), q("Off")}}));
    EXPECT_EQ(json[q("options")].toObject(),
              QJsonObject({{q("PrintQuality"), q("Draft")}, {q("mirror"), q("true")}}));
    EXPECT_EQ(json[q("document")][q("name")], q("Letter to Ada.pdf"));
    EXPECT_TRUE(json[q("printer")][q("queue")].isNull());
    EXPECT_EQ(json[q("differences")][0][q("chosen")], q("Best"));
}

TEST(JobFolder, IsForThisUserOnlyAndLeavesNothingHalf)
{
    test::StagedDriver driver;
    ASSERT_TRUE(writeJobFolder(driver.path(q("jobs")), ticketFor(q("a")), {}).error.isNull());
    struct stat status
    {
    };
    ASSERT_EQ(stat(driver.path(q("jobs/a")).toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    const auto failed =
        writeJobFolder(driver.path(q("jobs")), ticketFor(q("b")), driver.path(q("none.pdf")));
    EXPECT_FALSE(failed.error.isNull());
    const auto all = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden;
    EXPECT_EQ(QDir(driver.path(q("jobs"))).entryList(all), QStringList({q("a")}));
}

TEST(JobFolder, GivenUpWhileItIsWrittenLeavesNothing)
{
    test::StagedDriver driver;
    const QString jobs = driver.path(q("jobs"));
    const QString document = driver.write(q("large.pdf"), QByteArray(5 * 1024 * 1024, 'x'));
    Ticket ticket = ticketFor(q("a"));
    ticket.documentFile = q("document.pdf");
    int looks = 0;
    qint64 copied = 0;
    const FolderWatch untilThird{[&](qint64 bytes, qint64 all) {
                                     copied = bytes;
                                     EXPECT_EQ(all, 5 * 1024 * 1024);
                                     return ++looks < 3;
                                 },
                                 [] { return true; }};
    const FolderWatch untilTheEnd{[](qint64, qint64) { return true; }, [] { return false; }};
    for (const FolderWatch &watch : {untilThird, untilTheEnd}) {
        const JobFolderResult result = writeJobFolder(jobs, ticket, document, watch);
        EXPECT_NULL(result.ticketPath);
        EXPECT_NULL(result.error);
        const auto all = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden;
        EXPECT_EQ(QDir(jobs).entryList(all), QStringList());
    }
    EXPECT_EQ(looks, 3);
    EXPECT_LT(copied, 5 * 1024 * 1024);
}

TEST(JobFolder, EveryJobOfAProgramHasANameOfItsOwn)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QString first = dialog::newJobId(now);
    const QString second = dialog::newJobId(now);
    const QString earlier = dialog::newJobId(now.addSecs(-60));
    EXPECT_TRUE(first.startsWith(q("korvane-job-")));
    EXPECT_LT(first, second) << "even within a millisecond";
    EXPECT_LT(second, earlier) << "even when the clock was put back";
}

TEST(JobFolder, NeverReplacesAnother)
{
    test::StagedDriver driver;
    Ticket ticket = ticketFor(q("a"));
    ASSERT_TRUE(writeJobFolder(driver.path(q("jobs")), ticket, {}).error.isNull());
    const QByteArray before = test::fileBytes(driver.path(q("jobs/a/ticket.json")));
    ticket.printerName = q("Another");
    EXPECT_FALSE(writeJobFolder(driver.path(q("jobs")), ticket, {}).error.isNull());
    EXPECT_EQ(test::fileBytes(driver.path(q("jobs/a/ticket.json"))), before);
}

TEST(JobFolder, ThatCannotBeMadeIsAnError)
{
    test::StagedDriver driver;
    const QString inTheWay = driver.write(q("file"), "x");
    EXPECT_FALSE(writeJobFolder(inTheWay + q("/jobs"), ticketFor(q("a")), {}).error.isNull());
}

TEST(JobsFolder, IsTheUsersUnlessAnotherIsNamed)
{
    EXPECT_TRUE(jobsFolder({}).endsWith(q("/korvane-print/jobs")));
    EXPECT_TEXT(jobsFolder(q("/tmp/x")), "/tmp/x");
}

TEST(Document, MustBeARegularFileThatCanBeRead)
{
    test::StagedDriver driver;
    EXPECT_NULL(documentProblem(driver.write(q("a.pdf"), "%PDF")));
    EXPECT_TRUE(documentProblem(driver.path(q("none.pdf"))).contains(q("There is no document")));
    EXPECT_TRUE(documentProblem(driver.root()).contains(q("cannot be read")));
    const QByteArray fifo = driver.path(q("fifo")).toUtf8();
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);
    EXPECT_TRUE(documentProblem(q(fifo.constData())).contains(q("cannot be read")));
}

} // namespace
