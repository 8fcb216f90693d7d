#include "platform/notification_center.h"
#include "platform/property_list.h"
#include "tests/plugin/life.h"
#include "tests/plugin/panel_test_access.h"
#include "tests/support/console_capture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/stderr_capture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <gtest/gtest.h>

using namespace test;

namespace {

const QString kModelList =
    q("/Library/Printers/Korvane/Drivers/.Config/Korvane S300.bundle/Contents/Resources/"
      "Korvane S300.plist");

QVariantMap otherPanelSupport(const QVariant &value)
{
    return {{q("Features"), QVariantMap{{q("OtherPDE Support"), value}}}};
}

/// {"Features": {"OtherPDE Support": true}} as a binary property list, byte by byte.
QByteArray binaryList()
{
    QByteArray bytes("bplist00");
    QByteArray offsets;
    const auto add = [&](const QByteArray &object) {
        offsets.append(char(bytes.size()));
        bytes.append(object);
    };
    add(QByteArray("\xd1\x01\x02", 3));                   // {1: 2}
    add(QByteArray("\x58") + "Features");                 // 1
    add(QByteArray("\xd1\x03\x04", 3));                   // 2 = {3: 4}
    add(QByteArray("\x5f\x10\x10") + "OtherPDE Support"); // 3
    add(QByteArray("\x09", 1));                           // 4 = true
    const char table = char(bytes.size());
    bytes.append(offsets);
    QByteArray trailer(32, '\0');
    trailer[6] = 1; // bytes of an offset
    trailer[7] = 1; // bytes of a reference
    trailer[15] = char(offsets.size());
    trailer[31] = table;
    return bytes + trailer;
}

/// A plug-in that is asked about a printer, with a driver root of its own.
struct Factory
{
    explicit Factory(const PpdText &text = p1()) : ppd(text), host(ppd.get())
    {
        EXPECT_TRUE(plugIn.initWithBundle(pluginBundle()));
    }

    [[nodiscard]] std::shared_ptr<PDEPanelList>
    panels(const QString &type = kPDEPrintDialogType.toString())
    {
        return plugIn.PDEPanelsForType(type, &host);
    }
    [[nodiscard]] QStringList kinds()
    {
        QStringList kinds;
        const auto list = panels();
        for (const auto &panel : list ? *list : PDEPanelList{})
            kinds.append(panel->panelKind());
        return kinds;
    }
    [[nodiscard]] bool supportsOther() const { return plugIn.supportOthersPDE(ppd.get()); }

    DriverRoot root;
    OpenPpd ppd;
    FakeHost host;
    KorPDEPlugin2 plugIn;
};

const QString kQualityKind = q("com.korvane.print.pde.KorvanePDEKind");
const QString kOtherKind = q("com.Others.print.pde.BramoPDEKind");

} // namespace

TEST(Factory, Factory_01_MakesTheFirstPanelForThePrintDialog)
{
    Factory factory;
    const auto panels = factory.panels(q("BDB091F4-E57F-11D3-B5CC-0050E4603277"));
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 1U);
    EXPECT_TRUE(dynamic_cast<MainPDE2 *>(panels->front().get()));
    EXPECT_GT(factory.host.ppdFileCalls, 0);
}

TEST(Factory, Factory_02_HasNoListForAnyOtherType)
{
    Factory factory;
    const int observers = platform::NotificationCenter::defaultCenter().observerCount();
    for (const QString &type : {q("BDB091F4-E57F-11D3-B5CC-0050E4603278"),
                                q("bdb091f4-e57f-11d3-b5cc-0050e4603277"), QString(), q("")}) {
        EXPECT_FALSE(factory.panels(type)) << testing::PrintToString(type);
        EXPECT_EQ(factory.host.ppdFileCalls, 0) << "no panel was begun";
    }
    EXPECT_EQ(platform::NotificationCenter::defaultCenter().observerCount(), observers);
}

TEST(Factory, Factory_03_AddsTheOtherPanelWhereTheModelsListAsksForIt)
{
    Factory factory;
    factory.root.writeOtherPanelSupport(true, q("Korvane S300"));
    const auto panels = factory.panels();
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 2U);
    EXPECT_TRUE(dynamic_cast<MainPDE2 *>((*panels)[0].get()));
    EXPECT_TRUE(dynamic_cast<MainPDE3 *>((*panels)[1].get()));
    EXPECT_SAME((*panels)[0]->panelKind(), kQualityKind);
    EXPECT_SAME((*panels)[1]->panelKind(), kOtherKind);
}

TEST(Factory, Factory_04_ReadsEveryTrueValue)
{
    Factory factory;
    const QVariantList values{q("YES"), q("true"), q("Yes"), q("t"), q("1"), q(" 1"),
                              q("-1"),  q("0009"), 1,        -1,     0.5,    true};
    for (const QVariant &value : values) {
        factory.root.writeList(kModelList, otherPanelSupport(value));
        EXPECT_TRUE(factory.supportsOther()) << testing::PrintToString(value);
    }
}

TEST(Factory, ReadsEveryFalseValue)
{
    Factory factory;
    const QVariantList values{false,
                              0,
                              0.0,
                              q(""),
                              q("NO"),
                              q("no"),
                              q("0"),
                              q("-0"),
                              q("on"),
                              q("+y"),
                              q("0y"),
                              q("0.5"),
                              q("x1"),
                              QByteArray("YES"),
                              QVariantList{true},
                              QDateTime::fromSecsSinceEpoch(1),
                              QVariantMap{{q("OtherPDE Support"), true}}};
    for (const QVariant &value : values) {
        factory.root.writeList(kModelList, otherPanelSupport(value));
        EXPECT_FALSE(factory.supportsOther()) << testing::PrintToString(value);
    }
    EXPECT_EQ(factory.kinds(), QStringList{kQualityKind});
}

TEST(Factory, Factory_05_TakesADamagedListForNone)
{
    Factory factory;
    const ConsoleCapture console;
    const StderrCapture errors;
    const auto expectNone = [&](const char *damage) {
        EXPECT_FALSE(factory.supportsOther()) << damage;
    };
    expectNone("no file");
    factory.root.writeList(kModelList, QVariantMap{{q("General"), QVariantMap{}}});
    expectNone("Features missing");
    factory.root.writeList(kModelList, QVariantMap{{q("OtherPDE Support"), true}});
    expectNone("the value a level too high");
    factory.root.writeList(kModelList, QVariantMap{{q("Features"), q("YES")}});
    expectNone("Features a string");
    factory.root.writeList(
        kModelList, QVariantMap{{q("features"), QVariantMap{{q("OtherPDE Support"), true}}}});
    expectNone("another key");
    factory.root.writeList(kModelList, QVariantList{otherPanelSupport(true)});
    expectNone("root an array");
    factory.root.write(kModelList, "");
    expectNone("an empty file");
    const QByteArray list = platform::propertyListXml(otherPanelSupport(true));
    for (qsizetype length = 1; length < list.lastIndexOf('<'); length += 7) {
        factory.root.write(kModelList, list.left(length));
        expectNone("a file cut short");
    }
    for (qsizetype length = 0; length < binaryList().size(); ++length) {
        factory.root.write(kModelList, binaryList().left(length));
        expectNone("a binary file cut short");
    }
    ASSERT_TRUE(QFile::remove(factory.root.realPath(kModelList)));
    factory.root.makeDirectory(kModelList);
    expectNone("a directory");
    ASSERT_TRUE(QDir().rmdir(factory.root.realPath(kModelList)));
    ASSERT_EQ(::mkfifo(factory.root.realPath(kModelList).toUtf8().constData(), 0600), 0);
    expectNone("a pipe that nobody writes to");
    EXPECT_EQ(console.lines(), QStringList());
    EXPECT_EQ(errors.text(), QByteArray());
}

TEST(Factory, Factory_05_TakesAnUnreadableListForNone)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "the superuser reads every file";
    Factory factory;
    factory.root.writeList(kModelList, otherPanelSupport(true));
    ASSERT_TRUE(factory.supportsOther());
    QFile::setPermissions(factory.root.realPath(kModelList), {});
    EXPECT_FALSE(factory.supportsOther());
}

TEST(Factory, Factory_06_ReadsABinaryList)
{
    Factory factory;
    factory.root.write(kModelList, binaryList());
    EXPECT_TRUE(factory.supportsOther());
    QByteArray switchedOff = binaryList();
    switchedOff.replace('\x09', '\x08');
    factory.root.write(kModelList, switchedOff);
    EXPECT_FALSE(factory.supportsOther());
}

TEST(Factory, Factory_07_FindsTheListAtItsExactPathOnly)
{
    const QString folder = q("/Library/Printers/Korvane/Drivers/.Config/");
    for (const QString &elsewhere :
         {folder + q("Korvane S300.bundle/Contents/Resources/korvane s300.plist"),
          folder + q("korvane S300.bundle/Contents/Resources/Korvane S300.plist"),
          folder + q("KorvaneS300.bundle/Contents/Resources/KorvaneS300.plist"),
          folder + q("Korvane%20S300.bundle/Contents/Resources/Korvane%20S300.plist"),
          folder + q("Korvane S300.plist"),
          q("/Library/Printers/korvane/Drivers/.Config/Korvane S300.bundle/Contents/Resources/"
            "Korvane S300.plist"),
          q("/Library/Printers/Korvane/.Config/Korvane S300.bundle/Contents/Resources/"
            "Korvane S300.plist")}) {
        Factory factory;
        factory.root.writeList(elsewhere, otherPanelSupport(true));
        EXPECT_FALSE(factory.supportsOther()) << elsewhere.toStdString();
        factory.root.writeList(kModelList, otherPanelSupport(true));
        EXPECT_TRUE(factory.supportsOther());
    }
}

TEST(Factory, Factory_08_WritesNullForAPrinterWithoutNames)
{
    PpdText text = p1();
    text.withoutAttribute("Manufacturer").withoutAttribute("ModelName");
    Factory factory(text);
    EXPECT_EQ(factory.kinds(), QStringList{kQualityKind});
    factory.root.writeList(q("/Library/Printers/(null)/Drivers/.Config/(null).bundle/Contents/"
                             "Resources/(null).plist"),
                           otherPanelSupport(true));
    EXPECT_EQ(factory.kinds(), (QStringList{kQualityKind, kOtherKind}));
}

TEST(Factory, Factory_09_MakesAFreshListAndLeavesTheFormerOneAlive)
{
    Factory factory;
    const auto first = factory.panels();
    const auto second = factory.panels();
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    ASSERT_EQ(first->size(), 1U);
    EXPECT_NE(first->front(), second->front());
    EXPECT_SAME(first->front()->panelKind(), kQualityKind);
    EXPECT_EQ(PanelTestAccess::pdes(factory.plugIn), second);
}

TEST(Factory, Factory_10_ForgetsItsListForAnUnknownTypeWhileTheDialogKeepsIts)
{
    Factory factory;
    const auto kept = factory.panels();
    ASSERT_TRUE(kept);
    EXPECT_FALSE(factory.panels(q("PageSetup")));
    EXPECT_FALSE(PanelTestAccess::pdes(factory.plugIn));
    ASSERT_EQ(kept->size(), 1U);
    EXPECT_TRUE(kept->front()->panelView());
    EXPECT_TRUE(kept->front()->supportedPPDOptionKeys().contains(q("PrintQuality")));
    EXPECT_TRUE(kept->front()->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(factory.host.offers.size(), 14U - 1U) << "dry time needs a product year";
}

TEST(Factory, Factory_11_TracesNothingOfItsOwn)
{
    DebugLog log;
    log.switchOn(DebugLog::kInfo);
    const auto questions = [&log] {
        return log.traces().count(q("{ -[PDETools2 isRunningOn105OrLater]"));
    };
    {
        Factory factory;
        factory.root.writeOtherPanelSupport(true, q("Korvane S300"));
        EXPECT_EQ(factory.panels()->size(), 2U);
        EXPECT_GT(questions(), 0);
        const auto before = questions();
        EXPECT_FALSE(factory.panels(q("another type")));
        EXPECT_EQ(questions(), before + 1) << "asked for an empty list, too";
    }
    EXPECT_FALSE(log.bytes().contains("KorPDEPlugin2"));
}

TEST(Factory, LeavesOutPanelsThatCannotBegin)
{
    const DriverRoot root;
    KorPDEPlugin2 plugIn;
    EXPECT_TRUE(plugIn.initWithBundle(nullptr));
    FakeHost hostWithoutPrinter;
    EXPECT_FALSE(plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), &hostWithoutPrinter));
    EXPECT_FALSE(plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), nullptr));
    EXPECT_FALSE(plugIn.supportOthersPDE(nullptr));
}

TEST(Factory, DestroysPanelsThatNobodyHolds)
{
    auto factory = std::make_unique<Factory>();
    const std::weak_ptr<PDEPanel> dropped = factory->panels()->front();
    EXPECT_FALSE(dropped.expired()) << "the factory keeps its last list";
    (void)factory->panels();
    EXPECT_TRUE(dropped.expired());
    const auto held = factory->panels()->front();
    factory.reset();
    EXPECT_EQ(held.use_count(), 1);
}
