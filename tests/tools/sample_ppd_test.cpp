#include "tests/tools/sample_ppd.h"

#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char *inkEditions[] = {"Korvane-S300", "Korvane-S300-de", "Korvane-S300-ja"};
constexpr const char *allEditions[] = {"Korvane-S300", "Korvane-S300-de", "Korvane-S300-ja",
                                       "Korvane-T500"};

class SamplePpd : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override { ASSERT_NE(ppd(), nullptr) << qPrintable(sample::pathOf(GetParam())); }
    [[nodiscard]] ppd_file_t *ppd() const { return ppd_.get(); }

private:
    sample::Ppd ppd_ = sample::open(GetParam());
};

class InkPpd : public SamplePpd
{
};

std::string editionName(const testing::TestParamInfo<const char *> &info)
{
    std::string name = info.param;
    std::ranges::replace(name, '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Editions, SamplePpd, testing::ValuesIn(allEditions), editionName);
INSTANTIATE_TEST_SUITE_P(Editions, InkPpd, testing::ValuesIn(inkEditions), editionName);

std::vector<std::string> choiceKeywords(ppd_file_t *ppd, const char *option)
{
    std::vector<std::string> keywords;
    const ppd_option_t *record = ppdFindOption(ppd, option);
    for (int i = 0; record && i < record->num_choices; ++i)
        keywords.emplace_back(record->choices[i].choice);
    return keywords;
}

QString attribute(ppd_file_t *ppd, const char *name)
{
    const ppd_attr_t *found = ppdFindAttr(ppd, name, nullptr);
    return found ? QString::fromUtf8(found->value) : QString();
}

/// All texts that a person sees: the groups', options' and choices'.
QStringList shownTexts(const ppd_file_t *ppd)
{
    QStringList texts;
    for (const ppd_option_t *option : sample::optionsOf(ppd)) {
        texts.append(QString::fromUtf8(option->text));
        for (int i = 0; i < option->num_choices; ++i)
            texts.append(QString::fromUtf8(option->choices[i].text));
    }
    return texts;
}

QStringList keywordsOf(const ppd_file_t *ppd)
{
    QStringList keywords;
    for (const ppd_option_t *option : sample::optionsOf(ppd)) {
        keywords.append(QStringLiteral("%1 %2 %3")
                            .arg(QString::fromLatin1(option->keyword), QString::number(option->ui),
                                 QString::fromLatin1(option->defchoice)));
        for (int i = 0; i < option->num_choices; ++i)
            keywords.append(QString::fromLatin1(option->choices[i].choice));
    }
    return keywords;
}

struct CheckerRun
{
    int status = -1;
    QStringList complaints; ///< lines with FAIL or WARN
};

CheckerRun runChecker(const QString &path)
{
    QProcess checker;
    checker.start(QStringLiteral(CUPSTESTPPD_PROGRAM), {QStringLiteral("-v"), path});
    if (!checker.waitForFinished())
        return {};
    CheckerRun run{.status = checker.exitCode(), .complaints = {}};
    const QStringList lines = QString::fromUtf8(checker.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.contains(QStringLiteral("FAIL")) || line.contains(QStringLiteral("WARN")))
            run.complaints.append(line.trimmed());
    }
    return run;
}

/// The rules of the panels know these sizes by their keyword.
bool isAboutAKeywordThatThePanelsKnow(const QString &complaint)
{
    static const QRegularExpression known(QStringLiteral(
        "^WARN +Size \"(B5JIS|EnvelopeDL|Envelope10|LetterBanner|A4Banner)\" should be the "));
    return known.match(complaint).hasMatch();
}

TEST_P(SamplePpd, PassesTheCheckerOfCups)
{
    CheckerRun run = runChecker(sample::pathOf(GetParam()));
    run.complaints.removeIf(isAboutAKeywordThatThePanelsKnow);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.complaints, QStringList());
}

TEST(SamplePpdChecker, ComplainsAboutADamagedPpd)
{
    QTemporaryDir directory;
    QFile source(sample::pathOf("Korvane-S300"));
    ASSERT_TRUE(source.open(QFile::ReadOnly));
    QFile damaged(directory.filePath(QStringLiteral("damaged.ppd")));
    ASSERT_TRUE(damaged.open(QFile::WriteOnly));
    damaged.write(
        source.readAll().replace("*DefaultMediaType: Automatic", "*DefaultMediaType: Felt"));
    damaged.close();

    const CheckerRun run = runChecker(damaged.fileName());
    EXPECT_NE(run.status, 0);
    EXPECT_FALSE(run.complaints.isEmpty());
}

TEST_P(SamplePpd, HasDefaultsWithoutConflict)
{
    EXPECT_EQ(ppdConflicts(ppd()), 0);
}

TEST_P(SamplePpd, HasADefaultChoiceForEveryOption)
{
    for (const ppd_option_t *option : sample::optionsOf(ppd()))
        EXPECT_NE(ppdFindMarkedChoice(ppd(), option->keyword), nullptr) << option->keyword;
}

TEST_P(SamplePpd, StatesEveryConstraintInBothDirectionsAndOfChoicesThatExist)
{
    const QList<QByteArray> constraints = sample::constraintsOf(ppd());
    EXPECT_FALSE(constraints.isEmpty());
    for (const QByteArray &constraint : constraints) {
        const QList<QByteArray> word = constraint.split(' ');
        EXPECT_EQ(constraints.count(word[2] + ' ' + word[3] + ' ' + word[0] + ' ' + word[1]), 1)
            << constraint.constData();
        EXPECT_FALSE(sample::choiceText(ppd(), word[0], word[1]).isNull())
            << constraint.constData();
        EXPECT_FALSE(sample::choiceText(ppd(), word[2], word[3]).isNull())
            << constraint.constData();
    }
}

TEST_P(SamplePpd, LetsEveryConflictFreeCombinationBeReachedOneSettingAtATime)
{
    const sample::Reach reach = sample::reachFromDefaults(ppd());
    EXPECT_THAT(reach.unreachedChoices, IsEmpty());
    EXPECT_GT(reach.conflictFree, 1);
    EXPECT_EQ(reach.reached, reach.conflictFree);
}

TEST(SampleReach, FindsAChoiceThatConstraintsLockOut)
{
    test::PpdText locked = test::p1();
    for (const char *sharpening : {"Off", "Low", "High"})
        locked.withLine(QByteArray("*UIConstraints: *Mirror On *Sharpen ") + sharpening);
    const test::OpenPpd ppd(locked);
    EXPECT_THAT(sample::reachFromDefaults(ppd.get()).unreachedChoices, ElementsAre("Mirror On"));
}

TEST_P(SamplePpd, HasTextsThatLibcupsReadsWholeAndOptionTextsThatDiffer)
{
    QStringList optionTexts;
    for (const ppd_option_t *option : sample::optionsOf(ppd()))
        optionTexts.append(QString::fromUtf8(option->text));
    EXPECT_EQ(optionTexts.removeDuplicates(), 0);

    for (const QString &text : shownTexts(ppd())) {
        EXPECT_FALSE(text.isEmpty());
        EXPECT_FALSE(text.contains(QChar(QChar::ReplacementCharacter))) << qPrintable(text);
        EXPECT_LT(text.toUtf8().size(), 80) << qPrintable(text);
    }
}

TEST_P(SamplePpd, HasChoiceTextsThatDifferWithinAnOption)
{
    for (const ppd_option_t *option : sample::optionsOf(ppd())) {
        QStringList texts;
        for (int i = 0; i < option->num_choices; ++i)
            texts.append(QString::fromUtf8(option->choices[i].text));
        EXPECT_EQ(texts.removeDuplicates(), 0) << option->keyword;
    }
}

TEST_P(SamplePpd, NamesThePlugInAndTakesPdfWithoutAFilter)
{
    EXPECT_TEXT(attribute(ppd(), "APDialogExtension"),
                "/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle");
    ASSERT_GT(ppd()->num_filters, 0);
    EXPECT_STREQ(ppd()->filters[0], "application/pdf 0 -");
}

TEST_P(InkPpd, KeepsTheTextsThatThePanelsCompare)
{
    EXPECT_TEXT(sample::choiceText(ppd(), "ColorOutput", "Color"), "Color");
    EXPECT_TEXT(sample::choiceText(ppd(), "Mirror", "Off"), "Off");
    EXPECT_TEXT(sample::choiceText(ppd(), "Sharpen", "Off"), "Off");
    EXPECT_TEXT(sample::choiceText(ppd(), "ICCTestChartProcess", "Off"), "Off");
}

TEST_P(InkPpd, ListsTheInksInTheOrderThatThePanelChoosesByPosition)
{
    EXPECT_THAT(choiceKeywords(ppd(), "InkToUse"),
                ElementsAre("Automatic", "ColorOnly", "BlackOnly", "ColorBlack", "BlackColor"));
    EXPECT_THAT(choiceKeywords(ppd(), "ColorOutput"), ElementsAre("Color", "Black"));
}

TEST_P(InkPpd, HasTheMediaSizesAndQualitiesThatTheConflictRulesKnow)
{
    EXPECT_THAT(choiceKeywords(ppd(), "PrintQuality"),
                ElementsAre("Automatic", "Draft", "Normal", "Best"));
    EXPECT_THAT(choiceKeywords(ppd(), "MediaType"),
                ElementsAre("Automatic", "Plain", "IronOn", "Transparency", "Greeting",
                            "PremiumGlossy", "InkjetGlossyBrochure", "InkjetGlossyLight",
                            "Envelope"));
    EXPECT_THAT(choiceKeywords(ppd(), "PageSize"),
                ElementsAre("Letter", "A4", "A5", "B5JIS", "4x6", "EnvelopeDL", "Envelope10",
                            "LetterBanner", "A4Banner"));
    EXPECT_EQ(ppdFindOption(ppd(), "DupDryTime")->ui, PPD_UI_PICKONE);
}

TEST_P(InkPpd, DiffersFromTheEnglishEditionInItsTextsOnly)
{
    const sample::Ppd english = sample::open("Korvane-S300");
    EXPECT_EQ(keywordsOf(ppd()), keywordsOf(english.get()));
    EXPECT_EQ(sample::constraintsOf(ppd()), sample::constraintsOf(english.get()));
    for (const char *name :
         {"NickName", "ModelName", "Manufacturer", "APPrinterIconPath", "KorDriverPath"})
        EXPECT_SAME(attribute(ppd(), name), attribute(english.get(), name)) << name;
}

class TranslatedPpd : public testing::TestWithParam<std::pair<const char *, QStringList>>
{
};

/// Per edition the texts that are the same words in both languages, beside those that are compared.
INSTANTIATE_TEST_SUITE_P(Editions, TranslatedPpd,
                         testing::Values(std::pair{"Korvane-S300-de",
                                                   QStringList{QStringLiteral("US Letter"),
                                                               QStringLiteral("JIS B5"),
                                                               QStringLiteral("Normal")}},
                                         std::pair{"Korvane-S300-ja", QStringList()}),
                         [](const auto &edition) {
                             return std::string(edition.param.first).substr(8).replace(4, 1, "_");
                         });

TEST_P(TranslatedPpd, LeavesNoEnglishTextButThoseThatAreCompared)
{
    const auto &[edition, sameWords] = GetParam();
    const QStringList kept =
        sameWords + QStringList{QStringLiteral("Color"), QStringLiteral("Off"),
                                QStringLiteral("On"), QStringLiteral("A4"), QStringLiteral("A5")};
    const QStringList english = shownTexts(sample::open("Korvane-S300").get());
    const QStringList translated = shownTexts(sample::open(edition).get());
    ASSERT_EQ(translated.size(), english.size());
    for (qsizetype i = 0; i < english.size(); ++i)
        EXPECT_TRUE(translated[i] != english[i] || kept.contains(english[i]))
            << qPrintable(english[i]);
}

TEST(TranslatedTexts, AreReadInTheEncodingOfTheirEdition)
{
    const sample::Ppd german = sample::open("Korvane-S300-de");
    const sample::Ppd japanese = sample::open("Korvane-S300-ja");
    EXPECT_STREQ(ppdFindOption(german.get(), "PrintQuality")->text, "Druckqualität");
    EXPECT_STREQ(ppdFindOption(japanese.get(), "PrintQuality")->text, "印刷品質");
    EXPECT_TEXT(attribute(german.get(), "LanguageEncoding"), "ISOLatin1");
    EXPECT_TEXT(attribute(japanese.get(), "LanguageEncoding"), "UTF-8");
}

TEST(TonerPpd, KeepsTheTextsThatThePanelsCompare)
{
    const sample::Ppd ppd = sample::open("Korvane-T500");
    EXPECT_TEXT(sample::choiceText(ppd.get(), "ColorOutput", "Gray"), "Grayscale");
    EXPECT_TEXT(sample::choiceText(ppd.get(), "HalftoneLevel", "Dither"), "Dither");
    EXPECT_TEXT(sample::choiceText(ppd.get(), "TonerSave", "Off"), "Off");
}

TEST(TonerPpd, HasTheOptionsOfBothPanels)
{
    const sample::Ppd ppd = sample::open("Korvane-T500");
    EXPECT_THAT(choiceKeywords(ppd.get(), "Threshold"), ElementsAre("1", "2", "3", "4", "5"));
    EXPECT_THAT(choiceKeywords(ppd.get(), "ColorOutput"), ElementsAre("Gray", "Mono"));
    EXPECT_THAT(choiceKeywords(ppd.get(), "ImprovePrintQuality"),
                ElementsAre("ReducePaperCurl", "ImproveTonerFixing", "ImproveWrinklesorCreases"));
    for (const char *option :
         {"TonerSave", "ImprovementSettings", "ReduceGhosting", "PrintDensity"})
        EXPECT_THAT(choiceKeywords(ppd.get(), option), ElementsAre("Off", "On")) << option;
}

} // namespace
