#include "tests/cups/queue_session.h"
#include "tests/dialog/program_run.h"
#include "tests/queues/user_folders.h"
#include "tests/support/print_to.h"

#include <cups/cups.h>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <set>

using namespace test;

namespace {

constexpr int kPatience = 30'000;
const QString kDocument = q(KORVANE_SAMPLE_DOCUMENT);

QStringList linesOf(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).split(u'\n', Qt::SkipEmptyParts);
}

/// The program's faults, without its name before them.
QStringList faults(const ProgramRun &run)
{
    QStringList lines;
    for (const QString &line : linesOf(run.errors)) {
        if (line.startsWith(q("korvane-print: ")))
            lines.append(line.section(q(": "), 1));
    }
    return lines;
}

/// A private server with a queue for each sample printer, and a user with empty folders.
class ScriptPrinting : public testing::Test
{
protected:
    void SetUp() override
    {
        server_.addQueue(q("ink"), samplePpd("Korvane-S300.ppd"));
        server_.addQueue(q("toner"), samplePpd("Korvane-T500.ppd"));
        const int plain = server_.printPlainly(q("ink"), kDocument);
        ASSERT_TRUE(server_.waitForJob(plain));
        for (const auto &[name, value] : server_.options(plain))
            serversOwn_.insert(name);
    }
    [[nodiscard]] QStringList words(const QStringList &more) const
    {
        return QStringList{q("--root"), q(KORVANE_ROOT_DIR), q("--language"),
                           q("en"),     q("--job-folder"),   user_.path("jobs")} +
               more;
    }
    [[nodiscard]] ProgramRun run(const QStringList &more) const { return runPrint(words(more)); }
    /// Options that arrived at the filter, sorted; those that the server gives to every job only
    /// where one of these lines names them.
    [[nodiscard]] QStringList arrived(int job, const QStringList &told) const
    {
        QStringList options;
        for (const auto &[name, value] : server_.options(job)) {
            const QString start = name + u'=';
            const bool isTold = std::any_of(told.begin(), told.end(), [&](const QString &line) {
                return line.startsWith(start);
            });
            if (isTold || !serversOwn_.contains(name))
                options.append(start + value);
        }
        options.sort();
        return options;
    }
    /// Expects one job number and nothing else.
    static int jobOf(const ProgramRun &run)
    {
        EXPECT_EQ(run.status, 0) << run.errors.constData();
        const QStringList told = linesOf(run.output);
        EXPECT_EQ(told.size(), 1) << run.output.constData();
        return told.value(0).toInt();
    }
    [[nodiscard]] QJsonObject onlyTicket() const
    {
        const QDir jobs(user_.path("jobs"));
        const QStringList folders = jobs.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        EXPECT_EQ(folders.size(), 1);
        return readJson(jobs.filePath(folders.value(0) + q("/ticket.json")));
    }

    UserFolders user_;
    PrivateCupsd server_;
    std::set<QString> serversOwn_;
};

/// A program that is still running.
class Running
{
public:
    explicit Running(const QStringList &words, const QProcessEnvironment &environment =
                                                   QProcessEnvironment::systemEnvironment())
    {
        process_.setProcessEnvironment(environment);
        process_.start(q(KORVANE_PRINT), words);
        EXPECT_TRUE(process_.waitForStarted());
    }
    void send(int signalNumber) { ::kill(static_cast<pid_t>(process_.processId()), signalNumber); }
    /// The exit status; -1 when it crashed or did not end.
    [[nodiscard]] int end()
    {
        const bool hasEnded =
            process_.state() == QProcess::NotRunning || process_.waitForFinished(kPatience);
        return hasEnded && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }
    [[nodiscard]] QByteArray output() { return process_.readAllStandardOutput(); }
    [[nodiscard]] QByteArray errors() { return process_.readAllStandardError(); }

private:
    QProcess process_;
};

} // namespace

TEST_F(ScriptPrinting, WhatArrivesIsWhatTheDryRunAndTheTicketSay)
{
    const QStringList chosen{q("--queue"), q("ink"),
                             q("--set"),   q("MediaType=IronOn"),
                             q("--set"),   q("PrintQuality=Best"),
                             q("--set"),   q("ColorOutput=Black"),
                             q("--set"),   q("InkToUse=BlackOnly"),
                             q("--set"),   q("Sharpen=High"),
                             q("--set"),   q("number-up=2"),
                             q("--set"),   q("page-ranges=1-3")};
    const ProgramRun dry = run(chosen + QStringList{q("--dry-run")});
    EXPECT_EQ(dry.status, 0) << dry.errors.constData();
    QStringList told = linesOf(dry.output);
    told.sort();
    EXPECT_TRUE(told.contains(q("mirror=true"))) << "iron-on paper's rule";
    EXPECT_EQ(told.size(), 8);

    const int job = jobOf(run(chosen + QStringList{q("--print"), kDocument}));
    ASSERT_TRUE(server_.waitForJob(job));
    EXPECT_EQ(arrived(job, told), told) << server_.optionString(job).constData();
    EXPECT_EQ(server_.document(job), fileBytes(kDocument));
    QStringList ticketed;
    const QJsonObject options = onlyTicket()[q("options")].toObject();
    for (auto option = options.begin(); option != options.end(); ++option)
        ticketed.append(option.key() + u'=' + option.value().toString());
    ticketed.sort();
    EXPECT_EQ(ticketed, told);
}

TEST_F(ScriptPrinting, CopiesAreTheJobsAndNoOption)
{
    const int job = jobOf(run({q("--queue"), q("toner"), q("--set"), q("copies=3"), q("--set"),
                               q("ImprovementSettings=On"), q("--print"), kDocument}));
    ASSERT_TRUE(server_.waitForJob(job));
    EXPECT_EQ(server_.copies(job), 3);
    EXPECT_TRUE(arrived(job, {}).contains(q("ImprovementSettings=On")));
}

TEST_F(ScriptPrinting, ALostValueSendsNothingAndWithPrintAnywayTheRest)
{
    const QStringList chosen{q("--queue"),          q("ink"),   q("--set"),
                             q("MediaType=IronOn"), q("--set"), q("PrintQuality=Draft"),
                             q("--print"),          kDocument};
    const ProgramRun refused = run(chosen);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.output, "");
    const QStringList fault{q("PrintQuality: Draft was chosen, Automatic will print, because "
                              "MediaType=IronOn forbids it")};
    EXPECT_EQ(faults(refused), fault);
    const ProgramRun printed = run(chosen + QStringList{q("--print-anyway")});
    EXPECT_EQ(jobOf(printed), 2) << "the job after the plain one";
    EXPECT_EQ(faults(printed), fault);
}

TEST_F(ScriptPrinting, AnUnknownQueueIsComparedWithTheOthers)
{
    const ProgramRun near = run({q("--queue"), q("toner2"), q("--print"), kDocument});
    EXPECT_EQ(near.status, 2);
    EXPECT_EQ(faults(near), QStringList{q("no queue toner2; did you mean toner?")});
    const ProgramRun far = run({q("--queue"), q("basement"), q("--print"), kDocument});
    EXPECT_EQ(faults(far),
              QStringList{q("no queue basement; korvane-print --list shows those that there are")});
}

TEST_F(ScriptPrinting, AQueueThatRejectsJobsGetsNone)
{
    server_.run(q("cupsreject"), {q("ink")});
    const ProgramRun rejected = run({q("--queue"), q("ink"), q("--print"), kDocument});
    EXPECT_EQ(rejected.status, 1);
    EXPECT_EQ(rejected.output, "");
    EXPECT_EQ(faults(rejected).size(), 1) << rejected.errors.constData();
}

TEST_F(ScriptPrinting, APausedQueueTakesTheJobOverAndItsStateIsTold)
{
    server_.run(q("cupsdisable"), {q("ink")});
    const ProgramRun waiting = run({q("--queue"), q("ink"), q("--print"), kDocument});
    const int job = jobOf(waiting);
    EXPECT_EQ(faults(waiting).size(), 1) << waiting.errors.constData();
    server_.run(q("cupsenable"), {q("ink")});
    EXPECT_TRUE(server_.waitForJob(job));
}

TEST_F(ScriptPrinting, AQueueWithoutAPpdPrintsWithItsOwnSettings)
{
    server_.run(q("lpadmin"),
                {q("-p"), q("plain"), q("-E"), q("-v"), q("keep:/x"), q("-m"), q("raw")});
    const ProgramRun unknown =
        run({q("--queue"), q("plain"), q("--set"), q("MediaType=IronOn"), q("--print"), kDocument});
    EXPECT_EQ(unknown.status, 2);
    EXPECT_EQ(faults(unknown), QStringList{q("no option MediaType")});
    EXPECT_GT(
        jobOf(run({q("--queue"), q("plain"), q("--set"), q("copies=2"), q("--print"), kDocument})),
        0);
}

TEST_F(ScriptPrinting, NoWindowComesUpOnADisplay)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(q("DISPLAY"), q(":987"));
    environment.insert(q("WAYLAND_DISPLAY"), q("nowhere"));
    environment.insert(q("QT_QPA_PLATFORM"), q("xcb"));
    Running program(
        words({q("--queue"), q("ink"), q("--set"), q("MediaType=IronOn"), q("--dry-run")}),
        environment);
    EXPECT_EQ(program.end(), 0) << program.errors().constData();
    EXPECT_EQ(program.output(), "MediaType=IronOn\nmirror=true\n");
}

namespace {

/// A large document on its way through a server that stops listening in the middle of it.
class Interrupted : public testing::TestWithParam<int>
{
protected:
    [[nodiscard]] QStringList words() const
    {
        return {q("--root"),  q(KORVANE_ROOT_DIR),   q("--job-folder"), user_.path("jobs"),
                q("--queue"), QueueSession::queue(), q("--print"),      large()};
    }
    [[nodiscard]] QString large() const
    {
        constexpr int kBytes = 8 * 1024 * 1024;
        QFile file(user_.path("large.pdf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("%PDF-1.4\n" + QByteArray(kBytes, 'x'));
        return file.fileName();
    }
    [[nodiscard]] bool waitUntilItMisbehaves()
    {
        QElapsedTimer timer;
        timer.start();
        while (!session_.faults().hasMisbehaved() && timer.elapsed() < kPatience)
            QThread::msleep(5);
        return session_.faults().hasMisbehaved();
    }
    [[nodiscard]] int jobsThatPrint() const
    {
        const auto jobs = session_.jobs();
        return static_cast<int>(std::count_if(jobs.begin(), jobs.end(), [](const auto &job) {
            return job.second.state < IPP_JSTATE_CANCELED ||
                   job.second.state == IPP_JSTATE_COMPLETED;
        }));
    }

    UserFolders user_;
    QueueSession session_;
};

} // namespace

TEST_P(Interrupted, WhileTheDocumentIsOnItsWayLeavesNoJob)
{
    constexpr int kMiddle = 1024 * 1024;
    session_.faults().misbehave({FaultKind::Deafness, kMiddle});
    Running program(words());
    ASSERT_TRUE(waitUntilItMisbehaves());
    program.send(GetParam());
    EXPECT_EQ(program.end(), 128 + GetParam()) << program.errors().constData();
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(jobsThatPrint(), 0);
}

TEST_P(Interrupted, WhileThePrinterIsAwaitedLeavesNoJob)
{
    session_.faults().misbehave({FaultKind::Silence, 0});
    Running program(words());
    ASSERT_TRUE(waitUntilItMisbehaves());
    program.send(GetParam());
    EXPECT_EQ(program.end(), 128 + GetParam()) << program.errors().constData();
    EXPECT_EQ(jobsThatPrint(), 0);
}

INSTANTIATE_TEST_SUITE_P(, Interrupted, testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto &instance) {
                             return std::string(instance.param == SIGINT    ? "ByInt"
                                                : instance.param == SIGTERM ? "ByTerm"
                                                                            : "ByHup");
                         });

TEST_F(ScriptPrinting, AServerThatNeverAnswersIsTold)
{
    FaultServer silent(server_.address());
    silent.misbehave({FaultKind::Silence, 0});
    const ProgramRun told = run({q("--queue"), q("ink"), q("--print"), kDocument});
    EXPECT_EQ(told.status, 2);
    EXPECT_EQ(faults(told).size(), 1) << told.errors.constData();
    EXPECT_TRUE(faults(told).value(0).contains(silent.address())) << told.errors.constData();
}

TEST_F(ScriptPrinting, AServerThatWantsAPasswordAsksNobody)
{
    FaultServer strict(server_.address());
    strict.demand("clerk", "secret");
    const ProgramRun withPpd =
        run({q("--queue"), q("ink"), q("--ppd"),
             q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-S300.ppd"), q("--print"),
             kDocument});
    EXPECT_EQ(withPpd.status, 1);
    EXPECT_EQ(faults(withPpd).size(), 1) << withPpd.errors.constData();
    EXPECT_GT(strict.refusals(), 0);
    EXPECT_EQ(run({q("--queue"), q("ink"), q("--print"), kDocument}).status, 2);
}

// Lost answers.

namespace {

/// Loses the answer that matters: the job is made by then.
const Fault kSilentOnceTheDocumentIsThere{.kind = FaultKind::Silence, .afterRequest = "%PDF-"};

/// A queue whose server loses answers.
class LostAnswers : public testing::Test
{
protected:
    [[nodiscard]] QStringList words() const
    {
        return {q("--root"),  q(KORVANE_ROOT_DIR),   q("--job-folder"), user_.path("jobs"),
                q("--queue"), QueueSession::queue(), q("--print"),      kDocument};
    }
    /// Jobs that have printed or will.
    [[nodiscard]] int goodJobs() const
    {
        const auto jobs = session_.jobs();
        return static_cast<int>(std::count_if(jobs.begin(), jobs.end(), [](const auto &job) {
            return job.second.state == IPP_JSTATE_COMPLETED ||
                   job.second.state < IPP_JSTATE_CANCELED;
        }));
    }
    /// Bytes of all answers of a run without a fault, the PPD already in the cache.
    [[nodiscard]] std::int64_t healthyBytes()
    {
        EXPECT_EQ(runPrint(words()).status, 0);
        const std::int64_t before = session_.faults().answerBytes();
        EXPECT_EQ(runPrint(words()).status, 0);
        return session_.faults().answerBytes() - before;
    }

    UserFolders user_;
    QueueSession session_;
};

} // namespace

TEST_F(LostAnswers, AtAnyByteNeverPrintTwiceAndTheStatusIsTrue)
{
    constexpr int kCuts = 16;
    const std::int64_t whole = healthyBytes();
    int done = 0;
    for (int cut = 0; cut < kCuts; ++cut) {
        SCOPED_TRACE(cut);
        const int before = goodJobs();
        session_.faults().misbehave({FaultKind::CutAnswers, whole * cut / kCuts});
        const ProgramRun run = runPrint(words());
        EXPECT_TRUE(run.status == 0 || run.status == 1 || run.status == 2)
            << run.status << run.errors.constData();
        EXPECT_EQ(goodJobs() - before, run.status == 0 ? 1 : 0) << run.errors.constData();
        done += run.status == 0;
    }
    EXPECT_GT(done, 0) << "a cut that comes after the job was made is healed";
}

TEST_F(LostAnswers, AreLookedForBeforeAnythingIsSentAgain)
{
    const int before = goodJobs();
    session_.faults().misbehave(kSilentOnceTheDocumentIsThere);
    const ProgramRun run = runPrint(words());
    EXPECT_EQ(run.status, 0) << run.errors.constData();
    EXPECT_TRUE(session_.faults().hasMisbehaved());
    EXPECT_EQ(goodJobs() - before, 1);
}

TEST_F(LostAnswers, OfAServerThatDoesNotComeBackLeaveTheStatusOpen)
{
    session_.faults().misbehave(kSilentOnceTheDocumentIsThere);
    Running program(words());
    QElapsedTimer timer;
    timer.start();
    while (!session_.faults().hasMisbehaved() && timer.elapsed() < kPatience)
        QThread::msleep(5);
    session_.server().stop();
    EXPECT_EQ(program.end(), 3);
    EXPECT_EQ(program.output(), "");
    EXPECT_EQ(session_.journal().size(), 1) << "for the next start";
}

// README.

TEST_F(ScriptPrinting, TheLinesOfTheReadmeWork)
{
    server_.addQueue(q("Office"), samplePpd("Korvane-S300.ppd"));
    const QString readme = QString::fromUtf8(fileBytes(q(KORVANE_SOURCE_DIR "/README.md")));
    static const QRegularExpression block(q("### Printing from a script\\n.*?```sh\\n(.*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    const QStringList lines = block.match(readme).captured(1).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3);
    for (QString line : lines) {
        SCOPED_TRACE(line.toStdString());
        line.replace(q("build/dev"), q(KORVANE_BINARY_DIR)).replace(q("document.pdf"), kDocument);
        QProcess shell;
        shell.start(q("sh"), {q("-c"), line});
        ASSERT_TRUE(shell.waitForFinished(kPatience));
        EXPECT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().constData();
    }
    ASSERT_TRUE(server_.waitForJob(2));
    EXPECT_TRUE(arrived(2, {}).contains(q("MediaType=IronOn")));
}
