#include "tests/dialog/program_run.h"
#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/printing.h"
#include "tests/support/print_to.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// What the built program reports of the one job of the scenario.
class IronOnScenario : public testing::Test
{
protected:
    QJsonObject play(const QStringList &printer)
    {
        const ProgramRun run = runPrint(
            QStringList{q("replay"), q(KORVANE_SCENARIOS "/iron-on.scenario"), sampleDocument(),
                        q("--root"), q(KORVANE_ROOT_DIR), q("--language"), q("en"),
                        q("--system-version"), q("0x1060"), q("--job-folder"),
                        folder_.filePath(q("jobs")), q("--report"), report()} +
            printer);
        EXPECT_EQ(run.status, 0) << run.errors.toStdString();
        QJsonObject job;
        for (const QJsonValue &event : readJson(report())[q("events")].toArray()) {
            if (event[q("event")] == q("job"))
                job = event.toObject();
        }
        EXPECT_FALSE(job.isEmpty());
        return job;
    }

    [[nodiscard]] QString report() const { return folder_.filePath(q("report.json")); }
    [[nodiscard]] QString jobFolderOf(const QJsonObject &job) const
    {
        return QFileInfo(job[q("ticket")].toString()).path();
    }

    // What it chose, and what iron-on paper brings.
    const QJsonObject options_{
        {q("MediaType"), q("IronOn")}, {q("PrintQuality"), q("Best")}, {q("mirror"), q("true")}};

private:
    QTemporaryDir folder_;
};

} // namespace

TEST_F(IronOnScenario, ReachesTheFilterAsTheTicketHasIt)
{
    const Printing printing(kEnglish);
    const QJsonObject job = play({q("--queue"), Printing::queue()});
    EXPECT_EQ(job[q("options")].toObject(), options_);
    const QJsonObject ticket = readJson(job[q("ticket")].toString());
    EXPECT_EQ(ticket[q("options")].toObject(), options_);
    const int number = ticket[q("jobId")].toInt();
    ASSERT_TRUE(printing.server().waitForJob(number));
    QJsonObject arrived;
    for (const auto &[name, value] : printing.arrivedOptions(number))
        arrived.insert(name, value);
    EXPECT_EQ(arrived, options_);
    EXPECT_EQ(printing.server().document(number), fileBytes(sampleDocument()));
}

TEST_F(IronOnScenario, LeavesAJobFolderWithTheSameOptionsAndTheDocument)
{
    const QJsonObject job = play({q("--ppd"), samplePpd(kEnglish.ppd)});
    EXPECT_EQ(job[q("options")].toObject(), options_);
    EXPECT_EQ(readJson(job[q("ticket")].toString())[q("options")].toObject(), options_);
    EXPECT_EQ(fileBytes(jobFolderOf(job) + q("/document.pdf")), fileBytes(sampleDocument()));
}
