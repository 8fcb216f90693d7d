#include "dialog/panels/summary.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// "Section", "  title = value" and "* title = value" where it is changed, "- " where replaced.
QStringList linesOf(const Summary &summary)
{
    QStringList lines;
    for (const SummarySection &section : summary) {
        lines.append(section.title);
        for (const SummaryRow &row : section.rows) {
            const QString sign = row.standing == Standing::Usual     ? q("  ")
                                 : row.standing == Standing::Changed ? q("* ")
                                                                     : q("- ");
            lines.append(sign + row.title + q(" = ") + row.value);
        }
    }
    return lines;
}

PrinterOption option(const char *keyword, const char *text, const QStringList &defaults)
{
    return {q(keyword),
            q(text),
            OptionKind::PickOne,
            {{q("Off"), q("Not at all")}, {q("On"), q("Yes, please")}},
            defaults};
}

const QString kMirrorOff = q("  Flip horizontally = Off");

/// A printer of two groups, of whose options the panel "Maker" stands for two.
struct SummaryOf : testing::Test
{
    OptionGroups groups{
        {q("General"),
         q("General"),
         GroupKind::Usual,
         {option("Gloss", "Gloss", {q("Off")}), option("Mirror", "Mirror Image", {q("Off")})}},
        {q("Finishing"),
         q("Finishing"),
         GroupKind::Usual,
         {option("Staple", "Staple:", {q("Off")})}}};
    PanelSummary maker{q("Maker"), {}, {q("Gloss"), q("Staple")}};
    JobSettings job;

    SummaryOf()
    {
        for (const OptionGroup &group : groups)
            for (const PrinterOption &each : group.options)
                job.defaults.push_back({each.keyword, q("Off")});
        job.marks = job.defaults;
    }

    [[nodiscard]] QStringList lines() const { return linesOf(summaryOf({maker}, groups, job)); }
};

TEST_F(SummaryOf, SaysMarksThatNoPanelNamesByTheGroupsOfThePrinter)
{
    EXPECT_EQ(lines(), QStringList({q("Job"), kMirrorOff, q("General"), q("  Gloss = Not at all"),
                                    q("  Mirror Image = Not at all"), q("Finishing"),
                                    q("  Staple: = Not at all")}));
}

TEST_F(SummaryOf, LeavesOutTheMarksThatAPanelNames)
{
    maker.entries = {{q("Gloss"), q("Not at all")}, {q("Staple"), q("Not at all")}};
    EXPECT_EQ(lines(), QStringList({q("Job"), kMirrorOff, q("Maker"), q("  Gloss = Not at all"),
                                    q("  Staple = Not at all"), q("General"),
                                    q("  Mirror Image = Not at all")}));
}

TEST_F(SummaryOf, SaysAMarkThatAnEntryNamesOnlyByHalf)
{
    maker.entries = {{q("Gloss"), q("Yes, please")}, {q("Shine"), q("Not at all")}};
    const QStringList said = lines();
    EXPECT_TRUE(said.contains(q("  Gloss = Yes, please"))) << "the panel's words stand";
    EXPECT_TRUE(said.contains(q("  Shine = Not at all")));
    EXPECT_TRUE(said.contains(q("  Gloss = Not at all"))) << "and so does the mark";
}

TEST_F(SummaryOf, SaysAMarkOfAnOptionThatThePanelDoesNotStandFor)
{
    maker.entries = {{q("Mirror Image"), q("Not at all")}};
    EXPECT_EQ(lines().count(q("  Mirror Image = Not at all")), 2);
}

TEST_F(SummaryOf, TakesOneEntryForOneMark)
{
    groups[1].options[0].text = q("Gloss");
    maker.entries = {{q("Gloss"), q("Not at all")}};
    EXPECT_EQ(lines().count(q("  Gloss = Not at all")), 2) << "two options of the same text";
}

TEST_F(SummaryOf, MarksWhatDiffersFromTheDefault)
{
    maker.entries = {{q("Gloss"), q("Yes, please")}};
    job.marks[0].choice = q("On");
    job.marks[2].choice = q("On");
    const QStringList said = lines();
    EXPECT_TRUE(said.contains(q("* Gloss = Yes, please")));
    EXPECT_TRUE(said.contains(q("* Staple: = Yes, please")));
    EXPECT_TRUE(said.contains(q("  Mirror Image = Not at all")));
}

TEST_F(SummaryOf, JoinsTheChoicesOfAPickManyOption)
{
    groups[1].options[0].kind = OptionKind::PickMany;
    job.marks.push_back({q("Staple"), q("On")});
    EXPECT_TRUE(lines().contains(q("* Staple: = Not at all, Yes, please")));
}

TEST_F(SummaryOf, SaysPrintSettingsInWordsAndUnknownOnesAsTheyAre)
{
    job.printSettings = {{q("copies"), q("3")},
                         {q("number-up"), q("4")},
                         {q("outputorder"), q("reverse")},
                         {q("page-border"), q("none")},
                         {q("x-maker"), q("<b>&1</b>")}};
    EXPECT_EQ(lines().mid(0, 7),
              QStringList({q("Job"), q("* Copies = 3"), q("* Order of sheets = Last page first"),
                           q("* Pages per sheet = 4"), q("  Border = No border"),
                           q("* x-maker = <b>&1</b>"), kMirrorOff}));
}

TEST_F(SummaryOf, SaysThatTheJobsMirrorSettingReplacesTheMark)
{
    job.marks[1].choice = q("On");
    job.printSettings = {{q("mirror"), q("true")}};
    EXPECT_TRUE(lines().contains(q("* Flip horizontally = On")));
    EXPECT_TRUE(lines().contains(q("- Mirror Image = Yes, please")));
    job.printSettings = {{q("mirror"), q("1")}};
    EXPECT_TRUE(lines().contains(kMirrorOff)) << "only the text \"true\" mirrors";
    EXPECT_TRUE(lines().contains(q("* Mirror Image = Yes, please")));
}

TEST_F(SummaryOf, SaysThePagesPaperAboveTheMarkedSize)
{
    groups[0].options.push_back(
        {q("PageSize"), q("Paper Size"), OptionKind::PickOne, {{q("A4"), q("DIN A4")}}, {q("A5")}});
    job.marks.push_back({q("PageSize"), q("A5")});
    job.paperName = q("A4");
    EXPECT_EQ(lines().mid(0, 2), QStringList({q("Job"), q("* Paper Size = DIN A4")}));
    EXPECT_TRUE(lines().contains(q("- Paper Size = A5")));
}

TEST_F(SummaryOf, NamesTheGroupsOfTheLibraryInWordsOfItsOwn)
{
    groups[0].name = groups[0].text = q("JCL");
    groups[1].kind = GroupKind::Installable;
    EXPECT_TRUE(lines().contains(q("Job Control")));
    EXPECT_TRUE(lines().contains(q("Installed Options")));
    groups[0].text = q("Paper handling");
    EXPECT_TRUE(lines().contains(q("Paper handling"))) << "the printer's own words stand";
}

TEST_F(SummaryOf, SaysMarksOutsideEveryGroup)
{
    job.marks.push_back({q("Stray"), q("Word")});
    EXPECT_EQ(lines().mid(lines().size() - 2), QStringList({q("Others"), q("  Stray = Word")}));
}

const Summary kTwo{{q("Paper"), {{q("Size"), q("A4")}, {q("Type"), q("Glossy")}}},
                   {q("Ink"), {{q("Type"), q("Black")}}}};

TEST(MatchingRows, HaveEveryTypedWordInSomeOfTheirTexts)
{
    EXPECT_EQ(matchingRows(kTwo, q("  ")), kTwo);
    EXPECT_EQ(linesOf(matchingRows(kTwo, q("TYPE glo"))),
              QStringList({q("Paper"), q("  Type = Glossy")}));
    EXPECT_EQ(linesOf(matchingRows(kTwo, q("ink"))), QStringList({q("Ink"), q("  Type = Black")}));
    EXPECT_TRUE(matchingRows(kTwo, q("type a4")).empty());
}

TEST(SummaryText, StandsInColumnsAlsoWithWideCharacters)
{
    EXPECT_TRUE(plainText({}).isEmpty());
    EXPECT_TEXT(plainText({{q("Paper"),
                            {{q("Size"), q("A4"), Standing::Changed}, {q("用紙"), q("Glossy")}}},
                           {q("Ink"), {{q("Amount"), q("Little"), Standing::Replaced}}}}),
                "Paper\n"
                "  Size    A4 (changed)\n"
                "  用紙    Glossy\n"
                "\n"
                "Ink\n"
                "  Amount  Little (replaced by a setting of the job)\n");
}

} // namespace
