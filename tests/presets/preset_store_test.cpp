#include "dialog/presets/preset_file.h"
#include "dialog/presets/preset_messages.h"
#include "dialog/presets/preset_store.h"
#include "tests/queues/user_folders.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace dialog;
using test::q;
using testing::ElementsAre;

namespace {

class PresetFolder : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const
    {
        return user.path("config") + q("/korvane-print/presets");
    }
    /// Of the only model with presets.
    [[nodiscard]] QString file() const
    {
        const QStringList names = QDir(folder()).entryList({q("*.json")});
        return names.size() == 1 ? folder() + u'/' + names.first() : QString();
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList all;
        for (const Preset &preset : store.list().presets)
            all.append(preset.name);
        return all;
    }
    [[nodiscard]] QStringList setAsideFiles() const
    {
        return QDir(folder()).entryList({q("*.damaged-*")},
                                        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    void overwrite(const QByteArray &bytes) const
    {
        QFile written(file());
        ASSERT_TRUE(written.open(QFile::WriteOnly));
        written.write(bytes);
    }
    [[nodiscard]] static Preset preset(const char *name, const char *media = "IronOn")
    {
        return {q(name), q("Korvane S300"), q("1"), {{{q("MediaType"), {q(media)}}}, {}, {}}};
    }
    void saveSome(std::initializer_list<const char *> some) const
    {
        for (const char *name : some)
            ASSERT_TRUE(store.save(preset(name)).isOk()) << name;
    }

    test::UserFolders user;
    PresetStore store{q("Korvane S300")};
};

TEST_F(PresetFolder, IsNotMadeBeforeAPresetIsSaved)
{
    EXPECT_TRUE(store.list().result.isOk());
    EXPECT_TRUE(names().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(folder()));
}

TEST_F(PresetFolder, KeepsPresetsInTheOrderOfTheirNames)
{
    saveSome({"photo 10", "Photo 2", "Ärger", "zoo"});
    EXPECT_EQ(names().last(), q("zoo"));
    EXPECT_LT(names().indexOf(q("Photo 2")), names().indexOf(q("photo 10")));
    EXPECT_EQ(store.list().presets.back(), preset("zoo"));
}

TEST_F(PresetFolder, IsForTheUserAlone)
{
    saveSome({"A"});
    struct stat status = {};
    ASSERT_EQ(::stat(QFile::encodeName(file()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(::stat(QFile::encodeName(folder()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(PresetFolder, HasAFileForEachModelWhateverItsName)
{
    const PresetStore other(q("../../../Korvane S300"));
    ASSERT_TRUE(other.save(preset("B")).isOk());
    saveSome({"A"});
    EXPECT_EQ(names(), QStringList(q("A")));
    EXPECT_EQ(other.list().presets.size(), 1U);
    EXPECT_EQ(QDir(folder()).entryList({q("*.json")}).size(), 2);
    EXPECT_EQ(QDir(user.path("config")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList(q("korvane-print")));
}

TEST_F(PresetFolder, TakesANameOnce)
{
    saveSome({"Photo"});
    EXPECT_EQ(store.save(preset(" PHOTO ")).fault, StoreFault::NameTaken);
    EXPECT_EQ(names(), QStringList(q("Photo")));
}

TEST_F(PresetFolder, UpdatesAPresetAndAnswersTheFormerOne)
{
    saveSome({"Photo"});
    const StoreResult result = store.update(preset("Photo", "Glossy"));
    EXPECT_EQ(result.preset, preset("Photo"));
    EXPECT_EQ(store.list().presets.front(), preset("Photo", "Glossy"));
}

TEST_F(PresetFolder, AddsAPresetThatIsUpdatedAfterAnotherDialogDeletedIt)
{
    saveSome({"Photo"});
    ASSERT_TRUE(store.remove(q("photo")).isOk());
    EXPECT_TRUE(store.update(preset("Photo", "Glossy")).isOk());
    EXPECT_EQ(names(), QStringList(q("Photo")));
}

TEST_F(PresetFolder, RenamesAlsoToAnotherCase)
{
    saveSome({"Photo", "Draft"});
    EXPECT_TRUE(store.rename(q("Photo"), q(" PHOTO ")).isOk());
    EXPECT_EQ(store.rename(q("photo"), q("draft")).fault, StoreFault::NameTaken);
    EXPECT_EQ(store.rename(q("Nothing"), q("x")).fault, StoreFault::Gone);
    EXPECT_EQ(names(), QStringList({q("Draft"), q("PHOTO")}));
}

TEST_F(PresetFolder, RemovesAndRestores)
{
    saveSome({"Photo"});
    const StoreResult removed = store.remove(q("PHOTO"));
    ASSERT_TRUE(removed.preset);
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(store.remove(q("Photo")).fault, StoreFault::Gone);
    EXPECT_TRUE(store.restore(*removed.preset).isOk());
    EXPECT_EQ(store.list().presets, std::vector<Preset>{preset("Photo")});
}

TEST_F(PresetFolder, RestoresUnderAnotherNameWhereTheOldOneIsTaken)
{
    saveSome({"Photo"});
    const StoreResult result = store.restore(preset("photo", "Glossy"));
    ASSERT_TRUE(result.preset);
    EXPECT_TEXT(result.preset->name, "photo 2");
    EXPECT_EQ(names(), QStringList({q("Photo"), q("photo 2")}));
}

TEST_F(PresetFolder, LosesNothingOfAnotherDialogs)
{
    const PresetStore other(q("Korvane S300"));
    saveSome({"Mine"});
    ASSERT_TRUE(other.save(preset("Other")).isOk());
    saveSome({"Mine too"});
    EXPECT_EQ(names(), QStringList({q("Mine"), q("Mine too"), q("Other")}));
}

TEST_F(PresetFolder, IsLeftAloneWhileAnotherProgramHoldsIt)
{
    saveSome({"Photo"});
    QLockFile lock(file() + q(".lock"));
    lock.setStaleLockTime(0);
    ASSERT_TRUE(lock.tryLock());
    const StoreResult result = store.save(preset("Draft"));
    EXPECT_EQ(result.fault, StoreFault::Busy);
    EXPECT_FALSE(PresetMessages::fault(result).isEmpty());
    lock.unlock();
    EXPECT_TRUE(store.save(preset("Draft")).isOk());
}

TEST_F(PresetFolder, SetsADamagedFileAsideAndSaysWhere)
{
    saveSome({"Photo"});
    overwrite("{ \"presets\": ");
    const PresetListing listing = store.list();
    EXPECT_TRUE(listing.presets.empty());
    ASSERT_FALSE(listing.result.setAside.isNull());
    EXPECT_EQ(test::fileBytes(listing.result.setAside), "{ \"presets\": ");
    EXPECT_TRUE(
        PresetMessages::setAside(listing.result.setAside).contains(listing.result.setAside));
    EXPECT_NULL(store.list().result.setAside);
    saveSome({"New"});
    EXPECT_EQ(names(), QStringList(q("New")));
    EXPECT_EQ(setAsideFiles().size(), 1);
}

TEST_F(PresetFolder, KeepsWhatIsWholeOfADamagedFile)
{
    saveSome({"Photo", "Draft"});
    overwrite(test::fileBytes(file()).replace("\"Draft\"", "17"));
    EXPECT_EQ(names(), QStringList(q("Photo")));
    EXPECT_EQ(setAsideFiles().size(), 1);
    EXPECT_EQ(names(), QStringList(q("Photo")));
}

TEST_F(PresetFolder, SetsADamagedFileAsideBeforeItWrites)
{
    saveSome({"Photo"});
    overwrite("damaged");
    const StoreResult result = store.save(preset("New"));
    EXPECT_TRUE(result.isOk());
    EXPECT_EQ(test::fileBytes(result.setAside), "damaged");
    EXPECT_EQ(names(), QStringList(q("New")));
}

TEST_F(PresetFolder, SetsTwoDamagedFilesAsideUnderTwoNames)
{
    saveSome({"A"});
    overwrite("first");
    static_cast<void>(store.list());
    saveSome({"B"});
    overwrite("second");
    static_cast<void>(store.list());
    EXPECT_EQ(setAsideFiles().size(), 2);
}

TEST_F(PresetFolder, SetsAFolderInTheFilesPlaceAside)
{
    saveSome({"A"});
    const QString path = file();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path + q("/precious")));
    const StoreResult result = store.save(preset("B"));
    EXPECT_TRUE(result.isOk());
    EXPECT_TRUE(QFileInfo(result.setAside + q("/precious")).isDir());
    EXPECT_EQ(names(), QStringList(q("B")));
}

TEST_F(PresetFolder, FollowsNoLink)
{
    saveSome({"A"});
    const QString path = file();
    const QString target = user.path("target.json");
    ASSERT_TRUE(QFile::rename(path, target));
    const QByteArray before = test::fileBytes(target);
    ASSERT_TRUE(QFile::link(target, path));
    EXPECT_TRUE(names().isEmpty());
    saveSome({"B"});
    EXPECT_EQ(test::fileBytes(target), before);
    EXPECT_FALSE(QFileInfo(path).isSymLink());
}

TEST_F(PresetFolder, ThatIsALinkIsNotUsed)
{
    ASSERT_TRUE(QDir().mkpath(user.path("elsewhere")));
    ASSERT_TRUE(QDir().mkpath(user.path("config") + q("/korvane-print")));
    ASSERT_EQ(
        ::chmod(QFile::encodeName(user.path("config") + q("/korvane-print")).constData(), 0700), 0);
    ASSERT_TRUE(QFile::link(user.path("elsewhere"), folder()));
    const StoreResult result = store.save(preset("A"));
    EXPECT_EQ(result.fault, StoreFault::Untrusted);
    EXPECT_TRUE(PresetMessages::fault(result).contains(folder()))
        << PresetMessages::fault(result).toStdString();
    EXPECT_EQ(store.list().result.fault, StoreFault::Untrusted);
    EXPECT_TRUE(QDir(user.path("elsewhere")).isEmpty());
}

TEST_F(PresetFolder, DoesNotWaitForAFifo)
{
    saveSome({"A"});
    const QString path = file();
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(setAsideFiles().size(), 1);
}

TEST_F(PresetFolder, LeavesAFileOfANewerVersionAlone)
{
    saveSome({"A"});
    const QByteArray newer = R"({"format": "korvane-print presets", "version": 2})";
    overwrite(newer);
    EXPECT_EQ(store.list().result.fault, StoreFault::Newer);
    EXPECT_EQ(store.save(preset("B")).fault, StoreFault::Newer);
    EXPECT_EQ(test::fileBytes(file()), newer);
}

TEST_F(PresetFolder, SetsAFileBeyondAllMeasureAside)
{
    saveSome({"A"});
    overwrite(QByteArray(kLargestPresetFile + 1, ' '));
    EXPECT_TRUE(names().isEmpty());
    EXPECT_EQ(setAsideFiles().size(), 1);
}

TEST_F(PresetFolder, TakesNoMorePresetsThanItReads)
{
    std::vector<Preset> many;
    for (std::size_t i = 0; i < kMostPresets; ++i)
        many.push_back({QString::number(i), {}, {}, {}});
    saveSome({"A"});
    overwrite(writtenPresets(q("Korvane S300"), many));
    const StoreResult result = store.save(preset("B"));
    EXPECT_EQ(result.fault, StoreFault::TooMany);
    EXPECT_TRUE(PresetMessages::fault(result).contains(q("500")));
}

/// The first write beyond the limit fails as a write to a full disk does.
TEST_F(PresetFolder, ThatIsFullKeepsTheOldPresets)
{
    saveSome({"A"});
    Preset large = preset("B");
    for (int i = 0; i < 200; ++i)
        large.content.settings[QString::number(i)] = QString(100, u'x');
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit former = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &former), 0);
    const rlimit small{4096, former.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const StoreResult result = store.save(large);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &former), 0);
    EXPECT_EQ(result.fault, StoreFault::NoRoom);
    EXPECT_TRUE(PresetMessages::fault(result).contains(q("Free some space")));
    EXPECT_EQ(names(), QStringList(q("A")));
    EXPECT_TRUE(store.save(large).isOk()) << "nothing that was left behind is in the way";
}

TEST_F(PresetFolder, ThatCannotBeMadeIsToldWithItsName)
{
    QDir().mkpath(user.path(""));
    QFile inTheWay(user.path("config"));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    const StoreResult result = store.save(preset("A"));
    EXPECT_FALSE(result.isOk());
    EXPECT_TRUE(PresetMessages::fault(result).contains(user.path("config")))
        << PresetMessages::fault(result).toStdString();
}

/// Not even root may make a folder there.
TEST_F(PresetFolder, ThatIsReadOnlyIsToldWithTheRemedy)
{
    qputenv("XDG_CONFIG_HOME", "/sys/kernel");
    const StoreResult result = store.save(preset("A"));
    EXPECT_EQ(result.fault, StoreFault::NotAllowed);
    EXPECT_TRUE(PresetMessages::fault(result).contains(q("Allow it")));
    qputenv("XDG_CONFIG_HOME", "");
}

TEST_F(PresetFolder, SaysSomethingOfEveryFault)
{
    for (int fault = 1; fault <= static_cast<int>(StoreFault::SystemError); ++fault)
        EXPECT_FALSE(PresetMessages::fault(StoreResult{static_cast<StoreFault>(fault)}).isEmpty())
            << fault;
}

} // namespace
