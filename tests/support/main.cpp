#include "platform/console.h"
#include "platform/values.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// Gives every test the same platform values, whatever the machine's are: English, 10.6, no root.
class PlatformReset : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo &) override
    {
        platform::setDriverRoot(QString());
        platform::setSystemVersion(0x1060);
        platform::setPreferredLanguages({QStringLiteral("en")});
        platform::setLocaleIdentifier(QStringLiteral("en_US"));
        platform::setConsoleSink([](const QString &) {});
    }
};

/// What the dialog keeps for its user (jobs, journal, last printer) goes to a folder of this
/// process. The cache stays the user's: fontconfig would read every font anew without it.
void leaveTheUsersFoldersAlone(const QTemporaryDir &folder)
{
    for (const char *variable : {"XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, folder.filePath(QString::fromLatin1(variable)).toUtf8());
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    leaveTheUsersFoldersAlone(home);
    QApplication application(argc, argv);
    test::installWarningWatch();
    testing::UnitTest::GetInstance()->listeners().Append(new PlatformReset);
    return RUN_ALL_TESTS();
}
