#include "model/pde_model.h"
#include "tests/support/console_capture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <array>

using test::ConsoleCapture;
using test::q;

namespace {

struct OptionAccess
{
    const char *name;
    ppd_option_t *(PDEModel2::*get)() const;
    void (PDEModel2::*set)(ppd_option_t *);
};

struct StringAccess
{
    const char *name;
    QString (PDEModel2::*get)() const;
    void (PDEModel2::*set)(const QString &);
};

#define KV_OPTION(field, getter, setter) {#getter, &PDEModel2::getter, &PDEModel2::setter},
#define KV_STRING(field, getter, setter)
constexpr OptionAccess kOptions[] = {
#include "model/pde_model_fields.h"
};
#undef KV_OPTION
#undef KV_STRING
#define KV_OPTION(field, getter, setter)
#define KV_STRING(field, getter, setter) {#getter, &PDEModel2::getter, &PDEModel2::setter},
constexpr StringAccess kStrings[] = {
#include "model/pde_model_fields.h"
};
#undef KV_OPTION
#undef KV_STRING

static_assert(std::size(kOptions) == 18);
static_assert(std::size(kStrings) == 34);

TEST(PDEModel, Model_01_ANewModelAnswersNullForAllGetters)
{
    const PDEModel2 model;
    ConsoleCapture console;
    for (const OptionAccess &access : kOptions)
        EXPECT_EQ((model.*access.get)(), nullptr) << access.name;
    for (const StringAccess &access : kStrings)
        EXPECT_PRED_FORMAT2(test::sameText, (model.*access.get)(), QString()) << access.name;
    EXPECT_EQ(console.lines(),
              QStringList({q("mReduceGhostingTicket is (null)"), q("printDensityTicket is (null)"),
                           q("improvementSettingsTicket is (null)"),
                           q("mImprovePrintQualityTicket is (null)")}));
}

TEST(PDEModel, EveryAccessorPairHoldsItsOwnField)
{
    PDEModel2 model;
    std::array<ppd_option_t, std::size(kOptions)> records{};
    for (std::size_t i = 0; i < std::size(kOptions); ++i)
        (model.*kOptions[i].set)(&records[i]);
    for (const StringAccess &access : kStrings)
        (model.*access.set)(q(access.name));
    for (std::size_t i = 0; i < std::size(kOptions); ++i)
        EXPECT_EQ((model.*kOptions[i].get)(), &records[i]) << kOptions[i].name;
    for (const StringAccess &access : kStrings)
        EXPECT_TEXT((model.*access.get)(), access.name);
}

TEST(PDEModel, Model_02_ATicketIsAnnouncedOnlyWhenTheStringObjectIsAnother)
{
    PDEModel2 model;
    const QString a = QString::fromLatin1("5");
    const QString b = QString::fromLatin1("5");
    const QString line = q("PDEModel2 - setThresholdTicket- mThresholdTicket=5\n");
    ConsoleCapture console;
    model.setThresholdTicket(a);
    EXPECT_EQ(console.lines(), QStringList({line}));
    model.setThresholdTicket(a);
    EXPECT_EQ(console.lines(), QStringList({line}));
    model.setThresholdTicket(b);
    EXPECT_EQ(console.lines(), QStringList({line, line}));
}

TEST(PDEModel, Model_03_PrintDensityNamesTheGhostingSetterInItsLine)
{
    PDEModel2 model;
    ConsoleCapture console;
    model.setPrintDensity(q("On"));
    EXPECT_EQ(console.lines(),
              QStringList({q("PDEModel2 - setReduceGhosting- mPrintDensity=On\n")}));
}

TEST(PDEModel, EverySpeakingSetterHasItsOwnLine)
{
    struct Line
    {
        void (PDEModel2::*set)(const QString &);
        const char *text;
    };
    // clang-format off
    constexpr Line lines[] = {
        {&PDEModel2::setThreshold,               "PDEModel2 - setThreshold- mThreshold=x\n"},
        {&PDEModel2::setReduceGhosting,          "PDEModel2 - setReduceGhosting- mReduceGhosting=x\n"},
        {&PDEModel2::setPrintDensity,            "PDEModel2 - setReduceGhosting- mPrintDensity=x\n"},
        {&PDEModel2::setImprovementSettings,     "PDEModel2 - setReduceGhosting- mImprovementSettings=x\n"},
        {&PDEModel2::setImprovePrintQuality,     "PDEModel2 - setReduceGhosting- mImprovePrintQuality=x\n"},
        {&PDEModel2::setThresholdTicket,         "PDEModel2 - setThresholdTicket- mThresholdTicket=x\n"},
        {&PDEModel2::setReduceGhostingTicket,    "PDEModel2 - setReduceGhostingTicket- mReduceGhostingTicket=x\n"},
        {&PDEModel2::setPrintDensityTicket,      "PDEModel2 - setPrintDensityTicket- mPrintDensityTicket=x\n"},
        {&PDEModel2::setImprovementSettingsTicket, "PDEModel2 - setImprovementSettingsTicket- mImprovementSettingsTicket=x\n"},
        {&PDEModel2::setImprovePrintQualityTicket, "PDEModel2 - setImprovePrintQualityTicket- mImprovePrintQualityTicket=x\n"},
    };
    // clang-format on
    QStringList expected;
    PDEModel2 model;
    ConsoleCapture console;
    for (const StringAccess &access : kStrings)
        (model.*access.set)(q("x"));
    for (const Line &line : lines)
        expected.append(q(line.text));
    EXPECT_EQ(console.lines(), expected) << "the other setters are silent";
}

TEST(PDEModel, Model_04_ANullTicketIsHeldAndPrintedAsAWord)
{
    PDEModel2 model;
    model.setThresholdTicket(q("5"));
    ConsoleCapture console;
    model.setThresholdTicket(QString());
    EXPECT_EQ(console.lines(),
              QStringList({q("PDEModel2 - setThresholdTicket- mThresholdTicket=(null)\n")}));
    EXPECT_NULL(model.thresoldTicket());
}

TEST(PDEModel, NullAndEmptyAreDifferentStrings)
{
    PDEModel2 model;
    model.setPaperType(q(""));
    EXPECT_TEXT(model.paperType(), "");
    model.setPaperType(QString());
    EXPECT_NULL(model.paperType());
}

TEST(PDEModel, Model_05_TheTwoDryTimeOptionsShareOneValue)
{
    PDEModel2 model;
    ppd_option_t popUp{};
    ppd_option_t checkBox{};
    model.setDryTimePopUpOption(&popUp);
    model.setDryTimeCheckBoxOption(&checkBox);
    model.setDryTime(q("x"));
    EXPECT_EQ(model.dryTimePopUpOption(), &popUp);
    EXPECT_EQ(model.dryTimeCheckBoxOption(), &checkBox);
    EXPECT_TEXT(model.dryTime(), "x");
}

TEST(PDEModel, Model_06_TheMirrorTicketComesBackFromItsOtherwiseNamedGetter)
{
    PDEModel2 model;
    model.setMIrrorTicket(q("On"));
    EXPECT_TEXT(model.mirrorTicket(), "On");
}

TEST(PDEModel, Model_07_OnlySettersOfTheFirstPanelAreTraced)
{
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    PDEModel2 model;
    model.setPrintQuality(q("Best"));
    EXPECT_TEXT(model.printQuality(), "Best");
    model.setReduceGhosting(q("On"));
    model.setPrintQualityOption(nullptr);
    EXPECT_EQ(log.traces(), QStringList({q("{ -[PDEModel2 setPrintQuality:]"),
                                         q("} -[PDEModel2 setPrintQuality:]"),
                                         q("{ -[PDEModel2 setPrintQualityOption:]"),
                                         q("} -[PDEModel2 setPrintQualityOption:]")}));
}

TEST(PDEModel, FortySettersAreTraced)
{
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    PDEModel2 model;
    for (const OptionAccess &access : kOptions)
        (model.*access.set)(nullptr);
    for (const StringAccess &access : kStrings)
        (model.*access.set)(q("x"));
    EXPECT_EQ(log.traces().size(), 2 * 40);
}

TEST(PDEModel, Model_08_HandingOverTheHeldStringIsTracedAndSaysNothing)
{
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    PDEModel2 model;
    const QString text = q("4");
    model.setThreshold(text);
    ConsoleCapture console;
    model.setThreshold(text);
    EXPECT_TRUE(console.lines().isEmpty());
    EXPECT_EQ(log.traces(),
              QStringList({q("{ -[PDEModel2 setThreshold:]"), q("} -[PDEModel2 setThreshold:]"),
                           q("{ -[PDEModel2 setThreshold:]"), q("} -[PDEModel2 setThreshold:]")}));
}

TEST(PDEModel, Model_09_TheModelKeepsItsTextWhenTheCallerChangesItsOwn)
{
    PDEModel2 model;
    QString text = q("Plain Paper");
    model.setPaperType(text);
    text.append(q(" (changed)"));
    EXPECT_TEXT(model.paperType(), "Plain Paper");
}

TEST(PDEModel, Model_10_ASpeakingGetterSpeaksAtEveryCall)
{
    const PDEModel2 model;
    ConsoleCapture console;
    for (int i = 0; i < 3; ++i)
        EXPECT_NULL(model.reduceGhostingTicket());
    EXPECT_EQ(console.lines().size(), 3);
}

} // namespace
