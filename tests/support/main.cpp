#include "platform/console.h"
#include "platform/values.h"
#include "tests/support/warnings.h"

#include <QApplication>

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

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    test::installWarningWatch();
    testing::UnitTest::GetInstance()->listeners().Append(new PlatformReset);
    return RUN_ALL_TESTS();
}
