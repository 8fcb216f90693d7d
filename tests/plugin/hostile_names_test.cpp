#include "platform/property_list.h"
#include "platform/values.h"
#include "tests/plugin/life.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// What a PPD says about its printer, and the literal path of the driver's list for it.
struct Names
{
    QByteArray manufacturer;
    QByteArray model;

    [[nodiscard]] PpdText ppd() const
    {
        return p1().withAttribute("Manufacturer", manufacturer).withAttribute("ModelName", model);
    }
    [[nodiscard]] QString path() const
    {
        return q("/Library/Printers/") + QString::fromUtf8(manufacturer) + q("/Drivers/.Config/") +
               QString::fromUtf8(model) + q(".bundle/Contents/Resources/") +
               QString::fromUtf8(model) + q(".plist");
    }
};

void PrintTo(const Names &names, std::ostream *out)
{
    *out << names.manufacturer.toStdString() << " / " << names.model.toStdString();
}

const QVariantMap kSwitchedOn{{q("Features"), QVariantMap{{q("OtherPDE Support"), true}}}};

/// A driver root inside a folder of the test's own, with room for files beside it.
class RootInAFolder
{
public:
    RootInAFolder()
    {
        platform::setDriverRoot(folder_.filePath(q("root")));
        make(q("root/Library/Printers"));
    }

    /// Makes a folder, relative to the one around the root.
    void make(const QString &path) const { ASSERT_TRUE(QDir(folder_.path()).mkpath(path)); }
    void writeList(const QString &path) const
    {
        make(QFileInfo(path).path());
        QFile file(folder_.filePath(path));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(platform::propertyListXml(kSwitchedOn));
    }
    [[nodiscard]] QString realPath(const QString &path) const { return folder_.filePath(path); }

private:
    QTemporaryDir folder_;
};

bool supportsOther(const Names &names)
{
    const OpenPpd ppd(names.ppd());
    return KorPDEPlugin2().supportOthersPDE(ppd.get());
}

class LiteralNames : public testing::TestWithParam<Names>
{
};

} // namespace

TEST_P(LiteralNames, FindTheListUnderThePathAsItIsWritten)
{
    const DriverRoot root;
    EXPECT_FALSE(supportsOther(GetParam()));
    root.writeList(GetParam().path(), kSwitchedOn);
    EXPECT_TRUE(supportsOther(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Factory, LiteralNames,
    testing::Values(Names{"Korvane", "Korvane S300"}, Names{"Kor  vane ", " S300 "},
                    Names{"Kor%20vane", "100% %@ %s %n"}, Names{"Köhler & Söhne", "印刷機 300"},
                    Names{"Kor*?[a]", "S$HOME~`x`'"}, Names{"Kor.vane", ".S300."},
                    Names{"Kor/vane", "S/300"}, Names{"~", "-rf"}, Names{"(null)", "(null)"},
                    Names{"K\xc3", "S\xff 300"}));

TEST(HostileNames, ReachTheirListThroughParentFoldersOnlyInsideTheDriversFolder)
{
    const RootInAFolder root;
    const Names inside{"Korvane/../Korvane", "../.Config/S300"};
    const QString drivers = q("root/Library/Printers/Korvane/Drivers/.Config/");
    root.writeList(drivers + q("S300.bundle/Contents/.Config/S300.plist"));
    root.make(drivers + q("S300.bundle/Contents/Resources"));
    EXPECT_TRUE(supportsOther(inside));
}

TEST(HostileNames, NeverReachAListOutsideTheDriverRoot)
{
    const RootInAFolder root;
    const Names outside{"Korvane", "../../../../../Elsewhere/S300"};
    root.make(q("root/Library/Printers/Korvane/Drivers/.Config"));
    root.make(q("root/Elsewhere/S300.bundle/Contents/Resources"));
    root.writeList(q("Elsewhere/S300.plist"));
    ASSERT_TRUE(QFile::exists(platform::resolved(outside.path()))) << "the trap is set";
    EXPECT_FALSE(supportsOther(outside));
}

TEST(HostileNames, NeverReachAListBesideTheDriversFolder)
{
    const RootInAFolder root;
    const Names beside{"../../Users/Shared", "S300"};
    root.writeList(
        q("root/Users/Shared/Drivers/.Config/S300.bundle/Contents/Resources/S300.plist"));
    ASSERT_TRUE(QFile::exists(platform::resolved(beside.path()))) << "the trap is set";
    EXPECT_FALSE(supportsOther(beside));

    const Names sameBeginning{"../PrintersToo", "S300"};
    root.writeList(q("root/Library/PrintersToo/Drivers/.Config/S300.bundle/Contents/Resources/"
                     "S300.plist"));
    ASSERT_TRUE(QFile::exists(platform::resolved(sameBeginning.path()))) << "the trap is set";
    EXPECT_FALSE(supportsOther(sameBeginning));
}

TEST(HostileNames, FollowLinksOnlyInsideTheDriversFolder)
{
    const RootInAFolder root;
    const Names names{"Korvane", "S300"};
    const QString list = platform::resolved(names.path());
    root.make(q("root/Library/Printers/Korvane/Drivers/.Config/S300.bundle/Contents/Resources"));
    root.writeList(q("Elsewhere/S300.plist"));
    root.writeList(q("root/Library/Printers/Shared/S300.plist"));

    ASSERT_TRUE(QFile::link(root.realPath(q("Elsewhere/S300.plist")), list));
    EXPECT_FALSE(supportsOther(names));
    ASSERT_TRUE(QFile::remove(list));
    ASSERT_TRUE(QFile::link(root.realPath(q("root/Library/Printers/Shared/S300.plist")), list));
    EXPECT_TRUE(supportsOther(names));
}

TEST(HostileNames, MayStandUnderADriverRootThatIsALink)
{
    const RootInAFolder root;
    const Names names{"Korvane", "S300"};
    root.writeList(q("root") + names.path());
    ASSERT_TRUE(QFile::link(root.realPath(q("root")), root.realPath(q("linked"))));
    platform::setDriverRoot(root.realPath(q("linked")));
    EXPECT_TRUE(supportsOther(names));
}
