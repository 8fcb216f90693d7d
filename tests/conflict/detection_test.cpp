#include "conflict/paper_classes.h"
#include "quality/kor_pde_controller.h"
#include "tests/conflict/conflict_fixture.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/plugin_bundle.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using test::q;

namespace {

const char *const kPreferences =
    "/Library/Printers/Korvane/Preferences/com.korvane.prefs.2009.plist";

class Detection : public test::ConflictFixture
{
protected:
    [[nodiscard]] std::vector<int> found() { return controller->validateConflict(); }
};

TEST_F(Detection, Detection_01_IronOnInDraftOnAnEnvelopeIsThreeConflicts)
{
    make();
    setTickets("IronOn", "Draft");
    setPaper("EnvDL");
    EXPECT_EQ(found(), list({0, 2, 13}));
}

TEST_F(Detection, Detection_02_IronOnOnABanner)
{
    make();
    setTickets("IronOn");
    setPaper("A4Banner");
    EXPECT_EQ(found(), list({1}));
}

TEST_F(Detection, Detection_03_TransparencyOnBannerAndEnvelope)
{
    make();
    setTickets("Transparency");
    setPaper("A4Banner");
    EXPECT_EQ(found(), list({4}));
    setPaper("EnvDL");
    EXPECT_EQ(found(), list({5, 13}));
}

TEST_F(Detection, Detection_04_PhotoPaperOnABannerIsAConflictUpTo2009)
{
    const std::pair<quint16, std::vector<int>> cases[] = {{2009, {7}}, {2010, {}}};
    for (const auto &[year, expected] : cases) {
        make(test::p1(), year);
        setTickets("PremiumGlossy");
        setPaper("A4Banner");
        EXPECT_EQ(found(), expected) << year;
    }
    QFile::remove(root.realPath(q("/Library/Printers/Korvane/.Config/Korvane S300.plist")));
    make(test::p1(), 65535);
    setTickets("PremiumGlossy");
    setPaper("A4Banner");
    EXPECT_EQ(found(), list({})) << "unknown year";
}

TEST_F(Detection, Detection_05_Case14StandsBefore11AndAfter7)
{
    root.writeCartridges(q("Color Standard"), q("Not installed"));
    make();
    setTickets("PremiumGlossy");
    setInk("BlackOnly");
    setColorOutput("Black");
    setPaper("A4Banner");
    EXPECT_EQ(found(), list({7, 14, 11}));
}

TEST_F(Detection, Case14StandsBefore9)
{
    make();
    model.setPaperTypeTicket(q("Greeting"));
    setPaper("BA");
    ASSERT_EQ(found(), list({9}));
    // One ticket cannot be photo and greeting at once: the order is that of the rules' table.
    conflict::Situation situation;
    situation.paperType = q("Greeting");
    situation.photoMedia = true;
    situation.bannerSize = true;
    EXPECT_EQ(conflict::findConflicts(situation), list({14, 9}));
}

TEST_F(Detection, Detection_06_GreetingCardOnABanner)
{
    make();
    setTickets("Greeting");
    setPaper("BA");
    EXPECT_EQ(found(), list({9}));
}

TEST_F(Detection, Detection_07_NoPaperTypeOnAnEnvelope)
{
    make();
    model.setPaperTypeTicket(QString());
    setPaper("EnvDL");
    EXPECT_EQ(found(), list({13}));
}

TEST_F(Detection, Detection_08_ATicketCanBeEnvelopeAndAutomaticAtOnce)
{
    make();
    model.setPaperTypeTicket(q("EnvelopeAutomatic"));
    setPaper("EnvDL");
    EXPECT_EQ(found(), list({}));
    setPaper("Letter");
    EXPECT_EQ(found(), list({13}));
}

TEST_F(Detection, Detection_09_EnvelopePaperOnLetter)
{
    make();
    setTickets("Envelope");
    EXPECT_EQ(found(), list({13}));
}

TEST_F(Detection, Detection_10_OnlyTheTicketBlackMindsTheCartridge)
{
    root.writeCartridges(q("Color Standard"), q("Not installed"));
    make();
    setColorOutput("Mono");
    EXPECT_EQ(found(), list({}));
    setColorOutput("Black");
    EXPECT_EQ(found(), list({11}));
}

TEST_F(Detection, APhotoCartridgeMindsBlackToo)
{
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    make();
    setColorOutput("Black");
    EXPECT_EQ(found(), list({12}));
}

TEST_F(Detection, Detection_11_PaperNamesAreSpelledAsThePpdSpellsThem)
{
    make();
    const std::pair<const char *, const char *> cases[] = {
        {"B5", "B5JIS"},         {"ISOB5", "EnvelopeB5"},         {"Env10", "Envelope10"},
        {"EnvDL", "EnvelopeDL"}, {"EnvChou3", "EnvelopeChokei3"}, {"b5", "b5"},
        {"Letter", "Letter"}};
    for (const auto &[name, mapped] : cases) {
        setPaper(name);
        EXPECT_TEXT(controller->selectedPaperSize(), mapped);
    }
    format.setPaperName(QString());
    EXPECT_NULL(controller->selectedPaperSize());
    EXPECT_NULL(controller->selectedPaperSizeOnTiger());
    EXPECT_NULL(controller->directSelectedPaperSize());
}

struct Answer
{
    const char *text; ///< nullptr is null
    bool expected;
};

void expectAnswers(KorConflictController2 &controller,
                   bool (KorConflictController2::*predicate)(const QString &),
                   std::initializer_list<Answer> answers)
{
    for (const Answer &answer : answers) {
        const QString text = answer.text ? q(answer.text) : QString();
        EXPECT_EQ((controller.*predicate)(text), answer.expected) << testing::PrintToString(text);
    }
}

TEST_F(Detection, Detection_12_ABannerIsKnownByTheEndOfItsName)
{
    make();
    expectAnswers(*controller, &KorConflictController2::isPaperSizeBanner,
                  {{"XBA", true},
                   {"Banner", true},
                   {"LetterBanner", true},
                   {"banner", false},
                   {"Banner2", false},
                   {nullptr, false}});
}

TEST_F(Detection, Detection_13_AnEnvelopeSizeBeginsOrEndsWithEnv)
{
    make();
    expectAnswers(*controller, &KorConflictController2::isPaperSizeEnvelope,
                  {{"EnvX", true},
                   {"MyEnv", true},
                   {"ISOB5", true},
                   {"env10", false},
                   {"B5", false},
                   {"", false},
                   {nullptr, false}});
}

TEST_F(Detection, Detection_14_PhotoPaperIsGlossyButForTwo)
{
    make();
    expectAnswers(*controller, &KorConflictController2::isMediaTypePhoto,
                  {{"Glossy", true},
                   {"PremiumGlossy", true},
                   {"InkjetGlossyBrochure", false},
                   {"InkjetGlossyLight", false},
                   {"InkjetGlossyLightX", true},
                   {"glossy", false},
                   {nullptr, false}});
    expectAnswers(
        *controller, &KorConflictController2::isMediaTypeEnvelope,
        {{"Envelope", true}, {"XEnvelopeX", true}, {"envelope", false}, {nullptr, false}});
    expectAnswers(
        *controller, &KorConflictController2::isMediaTypeAutomatic,
        {{"Automatic", true}, {"EnvelopeAutomatic", true}, {"Auto", false}, {nullptr, false}});
}

TEST_F(Detection, Detection_15_PagesPerSheetAreTwoColumnsOrMore)
{
    make();
    const QString key = q("com.apple.print.PrintSettings.PMLayoutColumns");
    EXPECT_FALSE(controller->hasPagesPerSheet()) << "missing";
    const std::pair<QVariant, bool> cases[] = {{2, true},        {q("2"), true}, {1, false},
                                               {q("02x"), true}, {2.9, true},    {true, false}};
    for (const auto &[value, expected] : cases) {
        settings.setValue(key, value);
        EXPECT_EQ(controller->hasPagesPerSheet(), expected) << testing::PrintToString(value);
    }
}

TEST_F(Detection, Detection_16_WithoutAGoodPreferencesFileNoCartridgeIsKnown)
{
    make();
    const auto expectNone = [this](const char *what) {
        EXPECT_FALSE(controller->isColorCartOnly()) << what;
        EXPECT_FALSE(controller->isPhotoCartInstalled()) << what;
    };
    expectNone("no file");
    root.write(q(kPreferences), "<plist version=\"1.0\"><dict><key>Korv");
    expectNone("broken file");
    root.writeCartridges(q("Color Standard"), q("Photo Standard"), q("Korvane S301"));
    expectNone("another model");
    root.writeList(q(kPreferences), QVariantMap{{q("Korvane S300"), QVariantMap{}}});
    expectNone("no Current");
    const QVariantMap number{{q("CartName"), qlonglong{1}}};
    const QVariantMap current{{q("Cart1"), number}, {q("Cart2"), number}};
    root.writeList(q(kPreferences),
                   QVariantMap{{q("Korvane S300"), QVariantMap{{q("Current"), current}}}});
    expectNone("CartName is a number");
}

TEST_F(Detection, EveryWrongTypeAtEveryLevelOfThePreferencesReadsAsMissing)
{
    make();
    const QVariant wrong[] = {q("text"), qlonglong{1},    1.5,
                              true,      QByteArray("x"), QVariantList{q("Current")}};
    const QString keys[] = {q("Korvane S300"), q("Current"), q("Cart2"), q("CartName")};
    for (const QVariant &value : wrong) {
        for (int level = 0; level <= 4; ++level) {
            if (level == 4 && value.typeId() == QMetaType::QString)
                continue; // a cartridge of another name
            QVariant list = value;
            for (int i = level - 1; i >= 0; --i)
                list = QVariantMap{{keys[i], list}};
            root.writeList(q(kPreferences), list);
            EXPECT_FALSE(controller->isPhotoCartInstalled())
                << "level " << level << ": " << testing::PrintToString(value);
        }
    }
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    EXPECT_TRUE(controller->isPhotoCartInstalled()) << "the right file is read";
}

TEST_F(Detection, APreferencesFileThatIsNoFileNeitherBlocksNorCounts)
{
    make();
    const QByteArray path = root.realPath(q(kPreferences)).toUtf8();
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    ASSERT_TRUE(controller->isPhotoCartInstalled());
    QFile::remove(QString::fromUtf8(path));
    ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
    EXPECT_FALSE(controller->isPhotoCartInstalled()) << "a FIFO without a writer";
    QFile::remove(QString::fromUtf8(path));
    ASSERT_EQ(::mkdir(path.constData(), 0700), 0);
    EXPECT_FALSE(controller->isPhotoCartInstalled()) << "a directory";
    ASSERT_EQ(::rmdir(path.constData()), 0);
    root.write(q(kPreferences), QByteArray(2 * 1024 * 1024, ' '));
    EXPECT_FALSE(controller->isPhotoCartInstalled()) << "a huge file";
}

TEST_F(Detection, Detection_17_ThePreferencesFileIsNamedByTheModelYear)
{
    EXPECT_TEXT(conflict::cartridgePreferencesPath(q("2009")),
                "/Library/Printers/Korvane/Preferences/com.korvane.prefs.2009.plist");
    EXPECT_TEXT(conflict::cartridgePreferencesPath(QString()),
                "/Library/Printers/Korvane/Preferences/com.korvane.prefs.(null).plist");
    make();
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    EXPECT_TRUE(controller->isPhotoCartInstalled());
    ASSERT_TRUE(QFile::rename(
        root.realPath(q(kPreferences)),
        root.realPath(q("/Library/Printers/Korvane/Preferences/com.korvane.prefs.(null).plist"))));
    EXPECT_FALSE(controller->isPhotoCartInstalled());
    make(test::p1().withoutAttribute("KorDriverPath"));
    EXPECT_TRUE(controller->isPhotoCartInstalled()) << "no model year";
}

TEST_F(Detection, PreferencesOutsideTheDriversFolderAreMissing)
{
    make();
    root.writeCartridges(q("Color Standard"), q("Photo Standard"));
    ASSERT_TRUE(controller->isPhotoCartInstalled());
    const QString folder = root.realPath(q("/Library/Printers/Korvane/Preferences"));
    const QString elsewhere = root.realPath(q("/elsewhere"));
    ASSERT_TRUE(QDir().rename(folder, elsewhere));
    ASSERT_TRUE(QFile::link(elsewhere, folder));
    EXPECT_FALSE(controller->isPhotoCartInstalled());
}

TEST_F(Detection, Detection_18_WithoutAPaperNameOnlyTheMediaCounts)
{
    make();
    ConflictTestAccess::setRunning1050OrLater(*controller, false);
    setPaper("EnvDL");
    setTickets("Envelope");
    EXPECT_EQ(found(), list({13}));
    setTickets("IronOn", "Draft");
    EXPECT_EQ(found(), list({0}));
}

TEST_F(Detection, Detection_19_AnIgnoredDraftIsNoConflict)
{
    make();
    IGNORE_IRONON_DRAFT_CONFLICT = true;
    setTickets("IronOn", "Draft");
    EXPECT_EQ(found(), list({}));
}

TEST_F(Detection, Detection_20_InstructionsSilenceEveryPaperSizeCase)
{
    make();
    HAS_PAPERSIZE_INSTRUCTION = true;
    setTickets("IronOn", "Draft");
    setPaper("EnvDL");
    EXPECT_EQ(found(), list({0}));
}

TEST_F(Detection, InputsAreGatheredInAFixedOrder)
{
    make();
    const test::DebugLog log;
    log.switchOn(test::DebugLog::kInfo);
    EXPECT_EQ(found(), list({}));
    QStringList entered;
    for (const QString &line : log.traces()) {
        if (line.startsWith(q("{ -[KorConflictController2")))
            entered.append(line.mid(27).chopped(1));
    }
    EXPECT_EQ(entered, QStringList({q("validateConflict"), q("selectedPaperSize"),
                                    q("hasPagesPerSheet"), q("isMediaTypePhoto:"),
                                    q("isPaperSizeBanner:"), q("isPaperSizeEnvelope:"),
                                    q("isColorCartOnly"), q("isPhotoCartInstalled"),
                                    q("isMediaTypeEnvelope:"), q("isMediaTypeAutomatic:")}));
    EXPECT_TRUE(log.infoMessages().contains(q("paperName: Letter")));
}

TEST_F(Detection, Detection_21_OnlySystemsBefore0x1050CheckForConflicts)
{
    root.writeProductYear(qlonglong{2009});
    const test::OpenPpd printer(test::p1());
    const std::pair<int, int> cases[] = {{0x1050, 0}, {0x104F, 1}};
    for (const auto &[version, windows] : cases) {
        platform::setSystemVersion(version);
        KorPDEController2 panel(printer.get(), platform::encoding::utf8, &settings, &format,
                                test::pluginBundle());
        panel.pdeModel()->setPaperTypeTicket(q("IronOn"));
        panel.pdeModel()->setPrintQualityTicket(q("Draft"));
        test::ModalScript person(
            std::vector<test::ModalScript::Step>(static_cast<std::size_t>(windows), okAtOnce()));
        panel.customConstraintOSControl();
        EXPECT_EQ(person.opened().size(), windows) << std::hex << version;
    }
}

} // namespace
