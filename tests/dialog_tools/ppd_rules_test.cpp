#include "dialog/check/ppd_lines.h"
#include "dialog/check/reach.h"
#include "dialog/check/text_rules.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace dialog::check;
using dialog::Choice;
using dialog::Choices;
using dialog::Constraints;
using test::q;

namespace {

const QByteArray kSmall = "*PPD-Adobe: \"4.3\"\r\n"
                          "*% *OpenUI *No: PickOne\r\n"
                          "*LanguageEncoding: UTF-8\r\n"
                          "*OpenUI *Ink/Ink To Use: PickOne\r\n"
                          "*DefaultInk: A\r\n"
                          "*Ink A/All: \"one\r\n"
                          "*Ink B/two: inside the quotes\r\n"
                          "\"\r\n"
                          "*Ink B/Black: \"\"\r\n"
                          "*CloseUI: *Ink\r\n";

/// "LINE what" of every finding.
QStringList said(const Findings &findings)
{
    QStringList lines;
    for (const Finding &finding : findings)
        lines.append(QString::number(finding.line) + u' ' + finding.finding.what);
    return lines;
}

QStringList textProblems(const QByteArray &ppd)
{
    return said(textFindings(PpdLines(ppd)));
}

/// A PPD with one option of these choices.
QByteArray withChoices(const QByteArray &choices, const QByteArray &encoding = "UTF-8")
{
    return "*LanguageEncoding: " + encoding + "\n*OpenUI *X/Ex: PickOne\n" + choices +
           "*CloseUI: *X\n";
}

TEST(PpdLines, AreFoundByOptionAndChoice)
{
    const PpdLines lines(kSmall);
    EXPECT_EQ(lines.lineOf(q("Ink")), 4);
    EXPECT_EQ(lines.lineOf(q("Ink"), q("A")), 6);
    EXPECT_EQ(lines.lineOf(q("Ink"), q("B")), 9);
    EXPECT_EQ(lines.lineOf(q("Ink"), q("C")), 4);
    EXPECT_EQ(lines.lineOf(q("LanguageEncoding")), 3);
    EXPECT_EQ(lines.lineOf(q("No")), 1);
    EXPECT_EQ(lines.valueOf("LanguageEncoding"), "UTF-8");
    EXPECT_EQ(lines.valueOf("PPD-Adobe"), "4.3");
}

TEST(PpdLines, CountAlikeWhateverEndsALine)
{
    for (const char *end : {"\n", "\r", "\r\n"}) {
        const PpdLines lines(QByteArray(kSmall).replace("\r\n", end));
        EXPECT_EQ(lines.lineOf(q("Ink"), q("B")), 9);
    }
}

TEST(PpdLines, SurviveAnything)
{
    for (const char *odd : {"", "*", "*:", "* ", "*A", "*A B", "*A/", "*A B/<", "*A B/<zz>: ", "\r",
                            "*OpenUI", "*OpenUI *", "*A: \"", "*A B/<4>:", "\"\"\""}) {
        const PpdLines lines{QByteArray(odd)};
        EXPECT_EQ(lines.lineOf(q("Nothing")), 1) << odd;
    }
}

TEST(PpdLines, DecodeHexPieces)
{
    const PpdLines lines("*X A/Gr<FC>n <zz> <4>: \"\"\n");
    ASSERT_EQ(lines.all().size(), 1U);
    EXPECT_EQ(lines.all()[0].text, "Gr\xFCn <zz> <4>");
}

TEST(PpdTexts, AreCleanWhenTheyAreInTheFilesEncoding)
{
    EXPECT_EQ(textProblems(withChoices("*X A/Gr\xC3\xBCn: \"\"\n*X B/Rot: \"\"\n")), QStringList());
    EXPECT_EQ(textProblems(withChoices("*X A/Gr\xFCn: \"\"\n", "ISOLatin1")), QStringList());
    EXPECT_EQ(textProblems(withChoices("*X A/\x83v: \"\"\n", "JIS83-RKSJ")), QStringList());
}

TEST(PpdTexts, OutsideTheFilesEncodingAreReported)
{
    EXPECT_EQ(textProblems(withChoices("*X A/Gr\xFCn: \"\"\n")),
              QStringList{q("3 the text of X A is not in the file's encoding")});
    EXPECT_EQ(textProblems(withChoices("*X A/\x83: \"\"\n", "JIS83-RKSJ")),
              QStringList{q("3 the text of X A is not in the file's encoding")});
}

TEST(PpdTexts, NeedAKnownEncoding)
{
    EXPECT_EQ(textProblems("*OpenUI *X/Ex: PickOne\n*X A/A: \"\"\n"),
              QStringList{q("1 no encoding of texts is named")});
    EXPECT_EQ(textProblems(withChoices("*X A/A: \"\"\n", "EBCDIC")),
              QStringList{q("1 the encoding EBCDIC is not known, texts are shown as they stand")});
}

TEST(PpdTexts, OfMoreThanEightyBytesAreCut)
{
    const auto problems = [](const QByteArray &text) {
        return textProblems(withChoices("*X A/" + text + ": \"\"\n"));
    };
    EXPECT_EQ(problems(QByteArray(80, 'a')), QStringList());
    EXPECT_EQ(problems(QByteArray(81, 'a')),
              QStringList{q("3 the text of X A is cut after 80 bytes")});
    EXPECT_EQ(
        problems(QByteArray(79, 'a') + "\xC3\xBC"),
        QStringList{q("3 the text of X A is cut after 80 bytes, in the middle of a character")});
    // As UTF-8, whatever the file is written in.
    EXPECT_EQ(textProblems(withChoices("*X A/" + QByteArray(41, '\xFC') + ": \"\"\n", "ISOLatin1")),
              QStringList{q("3 the text of X A is cut after 80 bytes")});
}

TEST(PpdTexts, ThatAreEqualAreReportedOnceAsTheyAreShown)
{
    EXPECT_EQ(textProblems(withChoices("*X A/Same: \"\"\n*X B/Same: \"\"\n*X C/Other: \"\"\n")),
              QStringList{q("4 X B has the same text as A")});
    // A choice without a text shows its keyword.
    EXPECT_EQ(textProblems(withChoices("*X A: \"\"\n*X B/A: \"\"\n")),
              QStringList{q("4 X B has the same text as A")});
    const QByteArray start(80, 'a');
    EXPECT_TRUE(textProblems(withChoices("*X A/" + start + "1: \"\"\n*X B/" + start + "2: \"\"\n"))
                    .contains(q("4 X B has the same text as A")));
}

TEST(PpdTexts, MayBeEqualInDifferentOptionsButNotOfThem)
{
    const QByteArray one = "*OpenUI *X/Same: PickOne\n*X A/On: \"\"\n*CloseUI: *X\n";
    const QByteArray two = "*OpenUI *Y/Same: PickOne\n*Y A/On: \"\"\n*CloseUI: *Y\n";
    EXPECT_EQ(textProblems("*LanguageEncoding: UTF-8\n" + one + two),
              QStringList{q("5 Y has the same text as X")});
}

// Reach.

const std::vector<OptionChoices> kOptions{
    {q("A"), {q("1"), q("2"), q("3")}, false},
    {q("B"), {q("1"), q("2")}, false},
    {q("C"), {q("Off"), q("On")}, false},
};

Constraints constraints(std::initializer_list<const char *> lines)
{
    Constraints all;
    for (const char *line : lines)
        all.push_back(dialog::parseConstraint(q(line)));
    return all;
}

QStringList unreachable(std::initializer_list<const char *> lines)
{
    QStringList names;
    for (const Choice &choice : reachOfChoices(kOptions, constraints(lines)).unreachable)
        names.append(choice.option + choice.choice);
    return names;
}

TEST(Reach, EveryChoiceIsReachedWithoutConstraints)
{
    const Reach reach = reachOfChoices(kOptions, {});
    EXPECT_EQ(reach.unreachable, Choices());
    EXPECT_EQ(reach.undecided, Choices());
}

TEST(Reach, AChoiceThatExcludesAllOfAnotherOptionIsUnreachable)
{
    EXPECT_EQ(unreachable({"*A 2 *B 1"}), QStringList());
    EXPECT_EQ(unreachable({"*A 2 *B 1", "*A 2 *B 2"}), QStringList{q("A2")});
}

TEST(Reach, SeveralStepsAreFollowed)
{
    // A2 needs B2, B2 needs C Off, C Off excludes A2.
    EXPECT_EQ(unreachable({"*A 2 *B 1", "*B 2 *C On", "*A 2 *C Off"}), QStringList{q("A2")});
}

TEST(Reach, APartWithoutAChoiceMeansSwitchedOn)
{
    EXPECT_EQ(unreachable({"*A 2 *C", "*A 2 *C Off"}), QStringList{q("A2")});
    EXPECT_EQ(unreachable({"*A 2 *C"}), QStringList());
}

TEST(Reach, ConstraintsOfThreePartsAreJudgedAsAWhole)
{
    EXPECT_EQ(unreachable({"*A 2 *B 1 *C On", "*A 2 *B 2 *C On"}), QStringList());
    EXPECT_EQ(unreachable({"*A 2 *B 1 *C On", "*A 2 *B 2 *C On", "*A 2 *C Off"}),
              QStringList{q("A2")});
}

TEST(Reach, UnknownNamesForbidNothing)
{
    EXPECT_EQ(unreachable({"*A 2 *Z 1", "*A 2 *B 7", ""}), QStringList());
}

TEST(Reach, APickManyOptionCanBeEmpty)
{
    std::vector<OptionChoices> options = kOptions;
    options[1].mayBeEmpty = true;
    const Constraints both = constraints({"*A 2 *B 1", "*A 2 *B 2"});
    EXPECT_EQ(reachOfChoices(options, both).unreachable, Choices());
}

TEST(Reach, TheSearchIsGivenUpWhenTheBudgetIsSpent)
{
    // Pigeons and holes: no combination, and no short proof of it.
    std::vector<OptionChoices> options{{q("Start"), {q("Go")}, false}};
    Constraints all;
    for (int pigeon = 0; pigeon < 9; ++pigeon) {
        options.push_back({q("P%1").arg(pigeon), {}, false});
        for (int hole = 0; hole < 8; ++hole)
            options.back().choices.append(QString::number(hole));
        all.push_back({{q("Start"), q("Go")}, {options.back().option, q("x")}});
        for (int former = 0; former < pigeon; ++former)
            for (int hole = 0; hole < 8; ++hole)
                all.push_back({{q("P%1").arg(former), QString::number(hole)},
                               {q("P%1").arg(pigeon), QString::number(hole)}});
    }
    const Reach reach = reachOfChoices(options, all, 500);
    EXPECT_EQ(reach.unreachable, Choices());
    EXPECT_EQ(reach.undecided.size(), 9U * 8U);
}

} // namespace
