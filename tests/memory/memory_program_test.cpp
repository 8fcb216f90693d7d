#include "dialog/memory/memory_store.h"
#include "dialog/presets/preset_store.h"
#include "tests/dialog/program_run.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

const QString kPpd = q(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-S300.ppd");
const QString kRoot = q(KORVANE_ROOT_DIR);

/// The built program, run by the user of this process, whose folders are empty at first.
class RememberingProgram : public testing::Test
{
protected:
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }
    [[nodiscard]] int replay(const QByteArray &steps) const
    {
        write(q("case.scenario"),
              "printer " + kPpd.toUtf8() + "\nroot " + kRoot.toUtf8() + "\nlanguage en\n" + steps);
        return test::runPrint({q("replay"), folder.filePath(q("case.scenario")), q("--job-folder"),
                               folder.filePath(q("jobs"))})
            .status;
    }
    static QString stateFolder()
    {
        return QFile::decodeName(qgetenv("XDG_STATE_HOME")) + q("/korvane-print");
    }
    /// Makes a window's file that whoever reads it sets aside.
    static void damageTheWindowsFile()
    {
        ASSERT_TRUE(keepWindow({{}, q("layout")}).isOk());
        QFile file(stateFolder() + q("/window.json"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("damaged");
    }
    static bool isSetAside()
    {
        return !QDir(stateFolder()).entryList({q("window.json.damaged-*")}).isEmpty();
    }

    QTemporaryDir folder;
    const QString model = q("Korvane S300");
};

TEST_F(RememberingProgram, ReadsWhatItRemembersWhenItOpensItsWindow)
{
    damageTheWindowsFile();
    QProcess program;
    program.start(q(KORVANE_PRINT), {q("--ppd"), kPpd, q("--root"), kRoot});
    ASSERT_TRUE(program.waitForStarted());
    constexpr int kPatience = 60'000;
    QElapsedTimer timer;
    timer.start();
    while (!isSetAside() && program.state() == QProcess::Running && timer.elapsed() < kPatience)
        program.waitForFinished(20);
    EXPECT_TRUE(isSetAside());
    program.kill();
    program.waitForFinished();
}

TEST_F(RememberingProgram, NeitherReadsNorWritesItWithoutAPerson)
{
    damageTheWindowsFile();
    EXPECT_EQ(replay("mark MediaType IronOn\nprint\n"), 0);
    EXPECT_EQ(test::runPrint({q("--ppd"), kPpd, q("--root"), kRoot, q("--set"),
                              q("MediaType=IronOn"), q("--dry-run")})
                  .status,
              0);
    EXPECT_FALSE(isSetAside());
    EXPECT_FALSE(QFileInfo::exists(stateFolder() + q("/last-settings")));
}

TEST_F(RememberingProgram, PlaysScenariosWithoutThePresetsOfWhoeverPlaysThem)
{
    ASSERT_TRUE(PresetStore(model).save({q("Mine"), model, {}, {}}).isOk());
    EXPECT_EQ(replay("show layout\n"), 0);
    EXPECT_EQ(replay("choose presetPopUp Mine\n"), 1);
    EXPECT_EQ(replay("click presetMenu\nclick presetSave\ntype presetName Played\n"
                     "click presetNameOk\nchoose presetPopUp Played\n"),
              0);
    const std::vector<Preset> presets = PresetStore(model).list().presets;
    ASSERT_EQ(presets.size(), 1U) << "nor does it keep any";
    EXPECT_EQ(presets.front().name, q("Mine"));
}

} // namespace
