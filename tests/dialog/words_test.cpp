#include "dialog/replay/nearest_name.h"
#include "dialog/replay/shell_words.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using dialog::replay::nearestName;
using dialog::replay::noSuchName;
using dialog::replay::shellWords;
using test::q;

namespace {

struct LineCase
{
    const char *line;
    QStringList words;
};

void PrintTo(const LineCase &lineCase, std::ostream *out)
{
    *out << '"' << lineCase.line << '"';
}

class Words : public testing::TestWithParam<LineCase>
{
};

TEST_P(Words, AreSplitAsAShellSplitsThem)
{
    const auto read = shellWords(q(GetParam().line));
    EXPECT_NULL(read.error);
    EXPECT_EQ(read.words, GetParam().words) << GetParam().line;
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lines, Words, testing::Values(
    LineCase{"", {}},
    LineCase{" \t \r", {}},
    LineCase{"# a comment", {}},
    LineCase{"tick ibA # a comment", {q("tick"), q("ibA")}},
    LineCase{"tick ib#A", {q("tick"), q("ib#A")}},
    LineCase{"choose ibA 'Plain Paper'", {q("choose"), q("ibA"), q("Plain Paper")}},
    LineCase{"choose ibA \"Plain Paper\"", {q("choose"), q("ibA"), q("Plain Paper")}},
    LineCase{"choose ibA Plain\\ Paper", {q("choose"), q("ibA"), q("Plain Paper")}},
    LineCase{"choose ibA #2", {q("choose"), q("ibA"), q("#2")}},
    LineCase{"choose ibA '#2'", {q("choose"), q("ibA"), q("#2")}},
    LineCase{"choose ibA #2nd", {q("choose"), q("ibA")}},
    LineCase{"type ibA #2", {q("type"), q("ibA")}},
    LineCase{"type ibA ''", {q("type"), q("ibA"), q("")}},
    LineCase{"type ibA 'it'\\''s'", {q("type"), q("ibA"), q("it's")}},
    LineCase{"type ibA \"say \\\"hi\\\" \\n\"", {q("type"), q("ibA"), q("say \"hi\" \\n")}},
    LineCase{"type ibA a'b'\"c\"d", {q("type"), q("ibA"), q("abcd")}},
    LineCase{"job text 日本語", {q("job"), q("text"), q("日本語")}}));
// clang-format on

TEST(Words, ThatAreQuotedAndNotClosedAreErrors)
{
    EXPECT_TEXT(shellWords(q("type ibA 'x")).error, "a ' is not closed");
    EXPECT_TEXT(shellWords(q("type ibA \"x")).error, "a \" is not closed");
    EXPECT_TEXT(shellWords(q("type ibA \"x\\\"")).error, "a \" is not closed");
    EXPECT_TEXT(shellWords(q("type ibA x\\")).error,
                "nothing follows the \\ at the end of the line");
}

TEST(NearestName, FindsWhatASlipOfTheFingerMeant)
{
    const QStringList names{q("ibPaperType"), q("ibPaperSource"), q("ibMirror")};
    EXPECT_TEXT(nearestName(q("ibPapertype"), names), "ibPaperType");
    EXPECT_TEXT(nearestName(q("ibPaprSource"), names), "ibPaperSource");
    EXPECT_TEXT(nearestName(q("ibMirorr"), names), "ibMirror");
}

TEST(NearestName, IsNullWhereNothingIsNear)
{
    EXPECT_NULL(nearestName(q("ibHalftone"), {q("ibX")}));
    EXPECT_NULL(nearestName(q("ibX"), {}));
    EXPECT_NULL(nearestName(q("x"), {q("wholly")}));
}

TEST(NearestName, StandsInTheMessage)
{
    EXPECT_TEXT(noSuchName(q("control"), q("ibPapertype"), {q("ibPaperType")}),
                "no control ibPapertype; did you mean ibPaperType?");
    EXPECT_TEXT(noSuchName(q("control"), q("ibPapertype"), {q("zebra")}), "no control ibPapertype");
}

} // namespace
