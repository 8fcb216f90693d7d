#include "tests/tools/sample_ppd.h"

#include "model/pde_tools.h"
#include "platform/property_list.h"
#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

namespace {

using platform::resolved;
using test::q;

struct Sample
{
    const char *edition;
    const char *model;
    int productYear;
    const char *yearFolder;
    bool secondPanel;
};

// clang-format off
constexpr Sample samples[] = {
    {"Korvane-S300",    "Korvane S300", 2009, "2009", false},
    {"Korvane-S300-de", "Korvane S300", 2009, "2009", false},
    {"Korvane-S300-ja", "Korvane S300", 2009, "2009", false},
    {"Korvane-T500",    "Korvane T500", 2008, "2008", true},
};
// clang-format on

void PrintTo(const Sample &sample, std::ostream *out)
{
    *out << sample.edition;
}

class SampleLists : public testing::TestWithParam<Sample>
{
protected:
    void SetUp() override
    {
        platform::setDriverRoot(q(KORVANE_ROOT_DIR));
        ASSERT_NE(ppd(), nullptr);
    }
    [[nodiscard]] ppd_file_t *ppd() const { return ppd_.get(); }

    const PDETools2 tools_;

private:
    sample::Ppd ppd_ = sample::open(GetParam().edition);
};

INSTANTIATE_TEST_SUITE_P(Printers, SampleLists, testing::ValuesIn(samples),
                         [](const auto &instance) {
                             std::string name = instance.param.edition;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

QVariant valueAt(QVariant value, std::initializer_list<const char *> keys)
{
    for (const char *key : keys)
        value = platform::valueForKey(value, q(key));
    return value;
}

TEST_P(SampleLists, GiveTheProductYearOfThePrinter)
{
    EXPECT_EQ(tools_.getProductYear(tools_.getPlistPath(ppd())), GetParam().productYear);
    EXPECT_TEXT(tools_.getModelYear(ppd()), GetParam().yearFolder);
    EXPECT_TEXT(tools_.getModelName(ppd()), GetParam().model);
}

TEST_P(SampleLists, OfferTheSecondPanelForTonerOnly)
{
    const QString path =
        QStringLiteral(
            "/Library/Printers/Korvane/Drivers/.Config/%1.bundle/Contents/Resources/%1.plist")
            .arg(q(GetParam().model));
    const QVariant support =
        valueAt(platform::readPropertyList(resolved(path)), {"Features", "OtherPDE Support"});
    ASSERT_TRUE(support.isValid());
    EXPECT_EQ(platform::booleanValue(support), GetParam().secondPanel);
}

TEST_P(SampleLists, AreBesideAnIconWhoseLargestPictureCanBeShown)
{
    QFile icon(
        resolved(tools_.getComponentPath(q("APPrinterIconPath"), ppd(), platform::encoding::utf8)));
    ASSERT_TRUE(icon.open(QFile::ReadOnly)) << qPrintable(icon.fileName());
    const QByteArray container = icon.readAll();
    EXPECT_EQ(container.first(4), "icns");
    EXPECT_EQ(qFromBigEndian<quint32>(container.constData() + 4), container.size());

    const qsizetype entry = container.indexOf("ic08");
    ASSERT_GT(entry, 0);
    const auto length = qFromBigEndian<quint32>(container.constData() + entry + 4);
    EXPECT_EQ(QImage::fromData(container.mid(entry + 8, length - 8), "PNG").size(),
              QSize(256, 256));
}

TEST_P(SampleLists, LeadToThePlugInsBundleWithItsNames)
{
    const QString bundle = tools_.copyHelpLinkPath(ppd());
    EXPECT_SAME(bundle,
                tools_.getComponentPath(q("APDialogExtension"), ppd(), platform::encoding::utf8));
    EXPECT_SAME(resolved(bundle), q(KORVANE_BUNDLE_DIR));
    const QVariant info = platform::readPropertyList(resolved(bundle) + q("/Contents/Info.plist"));
    EXPECT_TEXT(valueAt(info, {"CFBundleHelpBookName"}).toString(), "Korvane Quality & Media Help");
    EXPECT_TEXT(valueAt(info, {"CFBundleExecutable"}).toString(), "libkorvane-panels.so");
    EXPECT_TEXT(valueAt(info, {"CFBundleIdentifier"}).toString(),
                "com.korvane.print.pde.QualityAndMedia");
}

TEST(SampleCartridges, AreAColorAndABlackOne)
{
    platform::setDriverRoot(q(KORVANE_ROOT_DIR));
    const QVariant cartridges =
        valueAt(platform::readPropertyList(resolved(
                    q("/Library/Printers/Korvane/Preferences/com.korvane.prefs.2009.plist"))),
                {"Korvane S300", "Current"});
    EXPECT_TEXT(valueAt(cartridges, {"Cart1", "CartName"}).toString(), "Color Standard");
    EXPECT_TEXT(valueAt(cartridges, {"Cart2", "CartName"}).toString(), "Black Standard");
}

TEST(StagedRoot, IsWritableByItsOwnerOnlyAndHasNoLinks)
{
    const QFile::Permissions others = QFile::WriteGroup | QFile::WriteOther;
    QDirIterator entries(q(KORVANE_ROOT_DIR "/Library"),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    int seen = 0;
    for (; entries.hasNext(); ++seen) {
        const QFileInfo entry(entries.next());
        EXPECT_FALSE(entry.permissions() & others) << qPrintable(entry.filePath());
        EXPECT_FALSE(entry.isSymLink()) << qPrintable(entry.filePath());
    }
    EXPECT_GT(seen, 20);
}

} // namespace
