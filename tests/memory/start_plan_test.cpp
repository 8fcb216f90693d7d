#include "dialog/memory/start_plan.h"
#include "tests/presets/preset_printer.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;

namespace dialog {
void PrintTo(const Choice &choice, std::ostream *out)
{
    *out << choice.option.toStdString() << ' ' << choice.choice.toStdString();
}
} // namespace dialog

namespace {

/// Of a printer where iron-on paper excludes draft quality.
class Start : public testing::Test
{
protected:
    [[nodiscard]] StartPlan plan(const std::optional<PresetContent> &lastUsed = {},
                                 const Carried &carried = {}) const
    {
        return planStart({printer->marks(), lastUsed, carried}, *printer);
    }
    static Choice choice(const char *option, const char *keyword)
    {
        return {q(option), q(keyword)};
    }
    static Carried carrying(const char *option, const char *keyword,
                            const PrintSettingsMap &settings = {})
    {
        return {{{q(option), {q(keyword), q(option), q(keyword)}}}, settings};
    }
    static PresetContent last(const char *option, const char *keyword,
                              const PrintSettingsMap &settings = {})
    {
        return {{{q(option), {q(keyword)}}}, settings, {}};
    }

    const std::unique_ptr<PpdDocument> printer = test::opened(test::presetPrinter());
    const QString draft = q("Draft");
};

TEST_F(Start, IsThePrintersDefaultsWhenNobodyElseHasAWord)
{
    const StartPlan start = plan();
    EXPECT_EQ(start.state, (ChoiceState{printer->defaults(), {}, {}}));
    EXPECT_EQ(start.state, start.defaults);
    EXPECT_FALSE(start.lastUsed);
    EXPECT_EQ(start.leftBehind, Carried());
}

TEST_F(Start, HasWhatIsSavedForTheQueueAmongTheDefaults)
{
    printer->mark(choice("MediaType", "IronOn"));
    const StartPlan start = plan();
    EXPECT_THAT(start.defaults.marks, Contains(choice("MediaType", "IronOn")));
    EXPECT_EQ(start.defaults.chosen, (std::map<QString, QString>{{q("MediaType"), q("IronOn")}}));
}

TEST_F(Start, IsWhatTheLastJobHadWithTheDefaultsBeside)
{
    const StartPlan start = plan(last("MediaType", "IronOn", {{q("mirror"), q("true")}}));
    EXPECT_THAT(start.state.marks, Contains(choice("MediaType", "IronOn")));
    EXPECT_EQ(start.state.settings, (PrintSettingsMap{{q("mirror"), q("true")}}));
    EXPECT_EQ(start.state.chosen.at(q("MediaType")), q("IronOn"));
    EXPECT_EQ(start.defaults.marks, printer->defaults());
    EXPECT_TRUE(start.lastUsed);
}

TEST_F(Start, HasTheLastWordOfTheLastJobOverWhatIsSavedForTheQueue)
{
    printer->mark(choice("MediaType", "IronOn"));
    const StartPlan start = plan(PresetContent());
    EXPECT_THAT(start.state.marks, Not(Contains(choice("MediaType", "IronOn"))));
    EXPECT_THAT(start.defaults.marks, Contains(choice("MediaType", "IronOn")));
}

TEST_F(Start, KnowsNoLastSettingsThatAreTheDefaults)
{
    EXPECT_FALSE(plan(PresetContent()).lastUsed);
}

TEST_F(Start, ListsWhatThePrinterNoLongerHas)
{
    const StartPlan start = plan(last("MediaType", "Parchment"));
    EXPECT_EQ(start.base.missing, (Choices{choice("MediaType", "Parchment")}));
    EXPECT_EQ(start.state.marks, printer->defaults());
    EXPECT_TRUE(start.lastUsed) << "or nobody is told";
}

TEST_F(Start, PutsWhatIsCarriedOnTopOfTheLastSettings)
{
    const StartPlan start = plan(last("Mirror", "On", {{q("number-up"), q("2")}}),
                                 carrying("MediaType", "IronOn", {{q("copies"), q("3")}}));
    EXPECT_THAT(start.state.marks, Contains(choice("Mirror", "On")));
    EXPECT_THAT(start.state.marks, Contains(choice("MediaType", "IronOn")));
    EXPECT_EQ(start.state.settings.at(q("number-up")), q("2"));
    EXPECT_EQ(start.state.settings.at(q("copies")), q("3"));
    EXPECT_THAT(start.base.state.marks, Not(Contains(choice("MediaType", "IronOn"))));
}

TEST_F(Start, LeavesBehindWhatThePrinterDoesNotHaveAndItsMirrorWithIt)
{
    const Carried carried = carrying("Fuser", "Hot", {{q("mirror"), q("true")}});
    const StartPlan start = plan({}, carried);
    EXPECT_EQ(start.state, start.defaults);
    EXPECT_EQ(start.leftBehind, carried);
    EXPECT_EQ(start.leftBehindLines().size(), 2);
    EXPECT_EQ(start.leftBehindLines().first(), q("Fuser: Hot"));
}

TEST_F(Start, LeavesBehindWhatCannotBeCombinedWithTheLastSettings)
{
    const QStringList qualities = printer->choices(q("PrintQuality"));
    ASSERT_TRUE(qualities.contains(draft)) << qualities.join(u' ').toStdString();
    const StartPlan start = plan(last("PrintQuality", "Draft"), carrying("MediaType", "IronOn"));
    EXPECT_THAT(start.state.marks, Contains(choice("PrintQuality", "Draft")));
    EXPECT_THAT(start.state.marks, Not(Contains(choice("MediaType", "IronOn"))));
    EXPECT_EQ(start.leftBehind.choices.size(), 1U);
}

TEST_F(Start, DropsTheMirrorOfAPaperThatIsReplaced)
{
    const PresetContent ironOn = last("MediaType", "IronOn", {{q("mirror"), q("true")}});
    EXPECT_THAT(plan(ironOn, carrying("MediaType", "Automatic")).state.settings, IsEmpty());
    EXPECT_EQ(plan(ironOn, carrying("Mirror", "On")).state.settings.size(), 1U);
}

TEST_F(Start, TakesAPaperOfTheSessionForTheLastOne)
{
    PresetContent custom;
    custom.paperName = q("Letter");
    const StartPlan start = plan(custom, carrying("PageSize", "EnvelopeDL"));
    ASSERT_EQ(start.leftBehind, Carried());
    EXPECT_TRUE(start.state.paperName.isNull());
}

TEST_F(Start, CarriesSeveralChoicesOfOneOption)
{
    const StartPlan start = plan({}, carrying("Finishing", "Punch,Staple"));
    EXPECT_THAT(start.state.marks, Contains(choice("Finishing", "Punch")));
    EXPECT_THAT(start.state.marks, Contains(choice("Finishing", "Staple")));
    EXPECT_EQ(plan({}, carrying("Finishing", "Punch,Glue")).leftBehind.choices.size(), 1U);
}

class GoingAlong : public Start
{
protected:
    [[nodiscard]] Carried from(const StartPlan &start, const Carried &before = {}) const
    {
        return carriedFrom(before, start, now, *printer);
    }

    ChoiceState now;
};

TEST_F(GoingAlong, IsWhatAPersonChoseWithItsWords)
{
    const StartPlan start = plan();
    now = start.state;
    now.chosen[q("MediaType")] = q("IronOn");
    now.settings[q("copies")] = q("3");
    const Carried carried = from(start);
    EXPECT_EQ(carried.settings, now.settings);
    ASSERT_EQ(carried.choices.size(), 1U);
    EXPECT_EQ(carried.choices.at(q("MediaType")).choiceText,
              printer->choiceText(choice("MediaType", "IronOn")));
}

TEST_F(GoingAlong, IsNotWhatThePrinterStartedWithItself)
{
    const StartPlan start = plan(last("MediaType", "IronOn", {{q("number-up"), q("2")}}));
    now = start.state;
    EXPECT_EQ(from(start), Carried());
    now.settings[q("number-up")] = q("4");
    EXPECT_EQ(from(start).settings, (PrintSettingsMap{{q("number-up"), q("4")}}));
}

TEST_F(GoingAlong, IsWhatCameAlongEvenWhereThePrinterHasItItself)
{
    const Carried before = carrying("MediaType", "IronOn", {{q("outputorder"), q("reverse")}});
    const StartPlan start =
        plan(last("MediaType", "IronOn", {{q("outputorder"), q("reverse")}}), before);
    now = start.state;
    EXPECT_EQ(from(start, before).settings, before.settings);
    EXPECT_EQ(from(start, before).choices.size(), 1U);
}

TEST_F(GoingAlong, IsWhatWasLeftBehindForTheWayBack)
{
    const Carried before = carrying("Fuser", "Hot", {{q("mirror"), q("true")}});
    const StartPlan start = plan({}, before);
    now = start.state;
    EXPECT_EQ(from(start, before), before);
}

TEST_F(GoingAlong, IsNotWhatHasBeenResetSince)
{
    const Carried before = carrying("MediaType", "IronOn", {{q("copies"), q("3")}});
    const StartPlan start = plan({}, before);
    now = start.defaults;
    EXPECT_EQ(from(start, before), Carried());
}

} // namespace
