#include "dialog/record/step_line.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using dialog::record::lineOf;
using dialog::record::quoted;
using dialog::replay::Step;
using dialog::replay::StepKind;
using test::q;

TEST(StepLine, LeavesPlainWordsBare)
{
    EXPECT_EQ(quoted(q("Best")), q("Best"));
    EXPECT_EQ(quoted(q("../a/B-1_2.ppd")), q("../a/B-1_2.ppd"));
    EXPECT_EQ(quoted(q("#12")), q("#12"));
}

TEST(StepLine, QuotesWhatAShellWouldTakeApart)
{
    EXPECT_EQ(quoted(q("Plain Paper")), q("'Plain Paper'"));
    EXPECT_EQ(quoted(q("")), q("''"));
    EXPECT_EQ(quoted(q("it's")), q("'it'\\''s'"));
    EXPECT_EQ(quoted(q("#x")), q("'#x'"));
    EXPECT_EQ(quoted(q("a\tb$c")), q("'a\tb$c'"));
}

TEST(StepLine, ReadsAsTheSameStep)
{
    const QStringList words{q("ib X"), q("'\"\\$` #1 \u00e4\u7528")};
    const QString line = lineOf({StepKind::Choose, words, 0});
    const auto parsed = dialog::replay::parseScenario(q("case"), line.toUtf8());
    ASSERT_TRUE(std::holds_alternative<dialog::replay::Scenario>(parsed));
    const Step step = std::get<dialog::replay::Scenario>(parsed).steps.at(0);
    EXPECT_EQ(step.kind, StepKind::Choose);
    EXPECT_EQ(step.arguments, words);
}

TEST(StepLine, HasNoLineForATextOfSeveralLines)
{
    EXPECT_TRUE(lineOf({StepKind::Type, {q("ibX"), q("a\nb")}, 0}).isNull());
}
