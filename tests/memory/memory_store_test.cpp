#include "dialog/memory/memory.h"
#include "dialog/memory/memory_messages.h"
#include "tests/queues/user_folders.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace dialog;
using test::q;

namespace {

using By = RememberedPrinter::By;

class MemoryFolder : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const { return user.path("state") + q("/korvane-print"); }
    [[nodiscard]] QString windowFile() const { return folder() + q("/window.json"); }
    static QStringList entries(const QString &path, const char *pattern)
    {
        return QDir(path).entryList({q(pattern)},
                                    QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    static void write(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly)) << path.toStdString();
        file.write(bytes);
    }
    static QString told(const StoreResult &result)
    {
        return MemoryMessages::of({.windowResult = result}).join(u'\n');
    }

    test::UserFolders user;
    const WindowMemory window{{900, 700}, q("summary")};
    const RememberedPrinter ink{By::Queue, q("ink")};
    const PresetContent content{{{q("MediaType"), {q("IronOn")}}}, {}, {}};
};

TEST_F(MemoryFolder, IsEmptyAtFirst)
{
    EXPECT_FALSE(recallWindow().value);
    EXPECT_FALSE(recallSettings(ink).value);
    EXPECT_TRUE(recallWindow().result.isOk());
}

TEST_F(MemoryFolder, KeepsFilesForTheUserAlone)
{
    ASSERT_TRUE(keepWindow(window).isOk());
    ASSERT_TRUE(keepSettings(ink, content).isOk());
    EXPECT_EQ(recallWindow().value, window);
    EXPECT_EQ(recallSettings(ink).value, content);
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(windowFile()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
    EXPECT_EQ(entries(folder(), "*.new.*"), QStringList());
}

TEST_F(MemoryFolder, KeepsEachPrinterApart)
{
    const RememberedPrinter others[] = {
        {By::Model, q("ink")}, {By::Queue, q("Ink")}, {By::Queue, q("../ink")}, {By::Queue, q("")}};
    ASSERT_TRUE(keepSettings(ink, content).isOk());
    for (const RememberedPrinter &other : others) {
        EXPECT_FALSE(recallSettings(other).value) << other.name.toStdString();
        EXPECT_TRUE(keepSettings(other, {}).isOk());
    }
    EXPECT_EQ(recallSettings(ink).value, content);
    EXPECT_EQ(entries(folder() + q("/last-settings"), "*.json").size(), 5);
}

TEST_F(MemoryFolder, LeavesWhatIsNotKeptAnew)
{
    ASSERT_TRUE(keepWindow(window).isOk());
    ASSERT_TRUE(keepWindow({{}, q("layout")}).isOk());
    EXPECT_EQ(recallWindow().value, (WindowMemory{{900, 700}, q("layout")}));
    ASSERT_TRUE(keepWindow({{800, 600}, {}}).isOk());
    EXPECT_EQ(recallWindow().value, (WindowMemory{{800, 600}, q("layout")}));
}

TEST_F(MemoryFolder, SetsADamagedFileAsideAndSaysWhere)
{
    for (const QByteArray &bytes : {QByteArray("{"), QByteArray(kLargestMemoryFile + 1, ' ')}) {
        write(windowFile(), bytes);
        const auto recalled = recallWindow();
        EXPECT_FALSE(recalled.value);
        ASSERT_FALSE(recalled.result.setAside.isNull());
        EXPECT_EQ(test::fileBytes(recalled.result.setAside), bytes);
        EXPECT_TRUE(told(recalled.result).contains(recalled.result.setAside));
        EXPECT_FALSE(QFileInfo::exists(windowFile()));
    }
    EXPECT_EQ(entries(folder(), "*.damaged-*").size(), 2) << "none took the place of another";
}

TEST_F(MemoryFolder, LosesNoDamagedFileThatItWritesOver)
{
    write(windowFile(), "{");
    const StoreResult kept = keepWindow(window);
    EXPECT_TRUE(kept.isOk());
    EXPECT_EQ(test::fileBytes(kept.setAside), "{");
    EXPECT_EQ(recallWindow().value, window);
}

TEST_F(MemoryFolder, LeavesTheFileOfANewerVersionAlone)
{
    const QByteArray newer = R"({"format": "korvane-print window", "version": 7})";
    write(windowFile(), newer);
    EXPECT_EQ(recallWindow().result.fault, StoreFault::Newer);
    EXPECT_EQ(keepWindow(window).fault, StoreFault::Newer);
    EXPECT_EQ(test::fileBytes(windowFile()), newer);
    EXPECT_TRUE(told(recallWindow().result).contains(windowFile()));
}

TEST_F(MemoryFolder, FollowsNoLinkInPlaceOfAFile)
{
    const QString target = user.path("state") + q("/elsewhere");
    write(target, writtenWindow(window));
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(target, windowFile()));
    EXPECT_FALSE(recallWindow().value) << "what an attacker has written is not read";
    ASSERT_TRUE(QFile::link(target, windowFile()));
    ASSERT_TRUE(keepWindow({{}, q("layout")}).isOk());
    EXPECT_EQ(test::fileBytes(target), writtenWindow(window)) << "nor written";
    EXPECT_FALSE(QFileInfo(windowFile()).isSymLink());
}

TEST_F(MemoryFolder, FollowsNoLinkInPlaceOfAFolder)
{
    const QString target = user.path("state") + q("/elsewhere");
    QDir().mkpath(target);
    ASSERT_TRUE(QFile::link(target, folder()));
    EXPECT_EQ(keepWindow(window).fault, StoreFault::Untrusted);
    EXPECT_EQ(recallWindow().result.fault, StoreFault::Untrusted);
    EXPECT_TRUE(told(recallWindow().result).contains(folder()));
    EXPECT_TRUE(QDir(target).isEmpty());
}

TEST_F(MemoryFolder, ThatOthersMayWriteIsNotUsed)
{
    ASSERT_TRUE(keepWindow(window).isOk());
    ASSERT_EQ(::chmod(QFile::encodeName(folder()).constData(), 0777), 0);
    EXPECT_EQ(recallWindow().result.fault, StoreFault::Untrusted);
    EXPECT_FALSE(recallWindow().value);
}

/// Not even root may make a folder there.
TEST_F(MemoryFolder, ThatIsReadOnlyRemembersNothingAndSaysSoWhenItWrites)
{
    qputenv("XDG_STATE_HOME", "/sys/kernel");
    EXPECT_TRUE(recallWindow().result.isOk());
    EXPECT_FALSE(recallWindow().value);
    EXPECT_EQ(keepWindow(window).fault, StoreFault::NotAllowed);
}

TEST_F(MemoryFolder, SaysSomethingOfEveryFault)
{
    for (int fault = 1; fault <= static_cast<int>(StoreFault::SystemError); ++fault)
        EXPECT_FALSE(told(StoreResult{static_cast<StoreFault>(fault)}).isEmpty()) << fault;
    EXPECT_EQ(MemoryMessages::of({.isInTime = false}).size(), 1);
    EXPECT_TRUE(MemoryMessages::of({}).isEmpty());
}

TEST_F(MemoryFolder, TellsOnceWhatIsWrongWithBothFiles)
{
    const StoreResult result{StoreFault::Untrusted, q("/home/x")};
    EXPECT_EQ(MemoryMessages::of({.windowResult = result, .settingsResult = result}).size(), 1);
}

} // namespace
