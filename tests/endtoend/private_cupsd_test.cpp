#include "tests/dialog/staged_driver.h"
#include "tests/endtoend/dialog_run.h"
#include "tests/support/print_to.h"
#include "tests/support/private_cupsd.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <algorithm>

#include <sys/stat.h>
#include <unistd.h>

using namespace test;

namespace {

const QString kQueue = QStringLiteral("ink");

uid_t ownerOf(const QString &path)
{
    struct stat status
    {
    };
    EXPECT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status.st_uid;
}

} // namespace

class PrivateServer : public testing::TestWithParam<PrivateCupsd::User>
{
};

TEST_P(PrivateServer, KeepsOptionsCopiesAndDocumentOfAJob)
{
    PrivateCupsd server(GetParam());
    ASSERT_TRUE(server.isRunning());
    server.addQueue(kQueue, fileBytes(samplePpd("Korvane-S300.ppd")));
    server.run(q("lp"), {q("-d"), kQueue, q("-n"), q("3"), q("-o"), q("MediaType=IronOn"), q("-o"),
                         q("mirror"), sampleDocument()});
    ASSERT_TRUE(server.waitForJob(1));
    const FilterOptions options = server.options(1);
    const auto has = [&](const char *name, const char *value) {
        return std::count(options.begin(), options.end(), std::pair(q(name), q(value))) == 1;
    };
    EXPECT_TRUE(has("MediaType", "IronOn")) << server.optionString(1).toStdString();
    EXPECT_TRUE(has("mirror", "true")) << server.optionString(1).toStdString();
    EXPECT_EQ(server.copies(1), 3);
    EXPECT_EQ(server.document(1), fileBytes(sampleDocument()));
}

TEST_P(PrivateServer, ComesBackAtTheSameAddressWithItsQueuesAndJobs)
{
    PrivateCupsd server(GetParam());
    server.addQueue(kQueue, fileBytes(samplePpd("Korvane-S300.ppd")));
    server.run(q("cupsdisable"), {kQueue});
    const int job = server.printPlainly(kQueue, sampleDocument());
    const QString address = server.address();
    server.stop();
    EXPECT_FALSE(server.isRunning());
    server.restart();
    EXPECT_SAME(server.address(), address);
    EXPECT_FALSE(server.hasArrived(job));
    server.run(q("cupsenable"), {kQueue});
    ASSERT_TRUE(server.waitForJob(job));
    EXPECT_EQ(server.document(job), fileBytes(sampleDocument()));
}

TEST_P(PrivateServer, RunsAsThatUserAndLeavesNothingBehind)
{
    QString folder;
    {
        const PrivateCupsd server(GetParam());
        ASSERT_TRUE(server.isRunning());
        folder = server.folder();
        EXPECT_SAME(q(qgetenv("CUPS_SERVER")), server.address());
        const bool isOrdinary = GetParam() == PrivateCupsd::User::Ordinary || ::geteuid() != 0;
        EXPECT_EQ(ownerOf(folder + q("/log/error")) == 0, !isOrdinary);
    }
    EXPECT_FALSE(QFileInfo::exists(folder));
    EXPECT_FALSE(qEnvironmentVariableIsSet("CUPS_SERVER"));
}

INSTANTIATE_TEST_SUITE_P(Users, PrivateServer,
                         testing::Values(PrivateCupsd::User::Own, PrivateCupsd::User::Ordinary),
                         [](const auto &user) {
                             return user.param == PrivateCupsd::User::Own ? "OwnUser"
                                                                          : "OrdinaryUser";
                         });

TEST(PrivateServer, AddsNothingOfItsOwnThatIsASettingOfThePanels)
{
    PrivateCupsd server;
    server.addQueue(kQueue, fileBytes(samplePpd("Korvane-S300.ppd")));
    const int job = server.printPlainly(kQueue, sampleDocument());
    ASSERT_GT(job, 0);
    ASSERT_TRUE(server.waitForJob(job));
    const FilterOptions options = server.options(job);
    EXPECT_FALSE(options.empty());
    for (const auto &[name, value] : options) {
        const bool isSetting =
            name.at(0).isUpper() || name == q("mirror"); // as keywords are written
        EXPECT_FALSE(isSetting) << name.toStdString();
    }
}

TEST(FilterOptionString, IsReadAsCupsReadsIt)
{
    FilterOptions options = parseFilterOptions("A=b nomirror collate C='d e' F=g\\ h");
    std::sort(options.begin(), options.end());
    const FilterOptions expected{{q("A"), q("b")},
                                 {q("C"), q("d e")},
                                 {q("F"), q("g h")},
                                 {q("collate"), q("true")},
                                 {q("mirror"), q("false")}};
    EXPECT_EQ(options, expected);
}
