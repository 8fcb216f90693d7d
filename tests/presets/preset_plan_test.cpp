#include "dialog/presets/preset_messages.h"
#include "dialog/presets/preset_plan.h"
#include "dialog/printers/standard_options.h"
#include "tests/presets/preset_printer.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace dialog {
void PrintTo(const Choice &choice, std::ostream *out)
{
    *out << choice.option.toStdString() << ' ' << choice.choice.toStdString();
}
void PrintTo(const SettingDifference &difference, std::ostream *out)
{
    *out << difference.title.toStdString() << ": " << difference.here.toStdString() << " / "
         << difference.there.toStdString();
}
} // namespace dialog

namespace {

class PresetPlanning : public testing::Test
{
protected:
    [[nodiscard]] ChoiceState state() const { return {printer->marks(), {}, {}, {}}; }
    [[nodiscard]] PresetPlan plan(const PresetContent &content) const
    {
        return planPreset(content, *printer, state());
    }

    std::unique_ptr<PpdDocument> printer = test::opened(test::presetPrinter());
};

TEST_F(PresetPlanning, AContentIsWhatDiffersFromThePrinterAndIsOfNoOneDocument)
{
    EXPECT_TRUE(contentOf(state(), *printer).isEmpty());
    printer->mark({q("MediaType"), q("IronOn")});
    ChoiceState changed = state();
    changed.settings = {{q("copies"), 3}, {q("page-ranges"), q("1-2")}, {q("mirror"), q("true")}};
    changed.chosen = {{q("PrintQuality"), q("Normal")}};
    EXPECT_EQ(contentOf(changed, *printer),
              (PresetContent{{{q("MediaType"), {q("IronOn")}}}, {{q("mirror"), q("true")}}, {}}));
}

TEST_F(PresetPlanning, WhatIsAppliedIsTheContentAgain)
{
    const PresetContent content{
        {{q("MediaType"), {q("IronOn")}}, {q("Finishing"), {q("Punch"), q("Staple")}}},
        {{q("mirror"), q("true")}},
        {}};
    const PresetPlan made = plan(content);
    EXPECT_EQ(contentOf(made.state, *printer), content);
    EXPECT_THAT(made.missing, IsEmpty());
    EXPECT_THAT(made.conflicts, IsEmpty());
}

TEST_F(PresetPlanning, EverythingElseIsAsThePrinterHasIt)
{
    printer->mark({q("MediaType"), q("IronOn")});
    const ChoiceState set = plan({{{q("Mirror"), {q("On")}}}, {}, {}}).state;
    EXPECT_THAT(set.marks, Not(Contains(Choice{q("MediaType"), q("IronOn")})));
    EXPECT_THAT(set.marks, Contains(Choice{q("Mirror"), q("On")}));
    EXPECT_EQ(set.chosen, (std::map<QString, QString>{{q("Mirror"), q("On")}}));
}

TEST_F(PresetPlanning, CopiesAndPagesStayAsTheyAre)
{
    ChoiceState present = state();
    present.settings = {{q("copies"), 3}, {q("number-up"), 4}};
    const PresetPlan made = planPreset({{}, {{q("mirror"), q("true")}}, {}}, *printer, present);
    EXPECT_EQ(made.state.settings,
              (std::map<QString, QVariant>{{q("copies"), 3}, {q("mirror"), q("true")}}));
}

TEST_F(PresetPlanning, NamesCountInAnyCase)
{
    const PresetPlan made = plan({{{q("mediatype"), {q("IRONON")}}}, {}, {}});
    EXPECT_THAT(made.state.marks, Contains(Choice{q("MediaType"), q("IronOn")}));
    EXPECT_THAT(made.missing, IsEmpty());
}

TEST_F(PresetPlanning, WhatThePrinterDoesNotHaveIsListedAndTheRestApplies)
{
    const PresetPlan made = plan({{{q("Lamination"), {q("On")}},
                                   {q("MediaType"), {q("Parchment")}},
                                   {q("Finishing"), {q("Fold"), q("Staple")}},
                                   {q("Mirror"), {q("On")}}},
                                  {},
                                  q("A0")});
    EXPECT_THAT(made.missing,
                ElementsAre(Choice{q("Finishing"), q("Fold")}, Choice{q("Lamination"), q("On")},
                            Choice{q("MediaType"), q("Parchment")},
                            Choice{q("PageSize"), q("A0")}));
    EXPECT_THAT(made.state.marks, Contains(Choice{q("Finishing"), q("Staple")}));
    EXPECT_THAT(made.state.marks, Contains(Choice{q("Mirror"), q("On")}));
    EXPECT_NULL(made.state.paperName);
}

TEST_F(PresetPlanning, WhatCannotBeTogetherHereIsNamed)
{
    const PresetPlan made =
        plan({{{q("MediaType"), {q("IronOn")}}, {q("PrintQuality"), {q("Draft")}}}, {}, {}});
    ASSERT_EQ(made.conflicts.size(), 1U);
    const QString told = PresetMessages::remarks(q("Mine"), made, *printer);
    EXPECT_TRUE(told.contains(q("“Paper Type: Iron-On Transfer” and “Print Quality: Quick”")) ||
                told.contains(q("“Print Quality: Quick” and “Paper Type: Iron-On Transfer”")))
        << told.toStdString();
}

TEST_F(PresetPlanning, RemarksNameThePresetAndWhatIsMissing)
{
    const QString told = PresetMessages::remarks(
        q("Mine"), plan({{{q("Lamination"), {q("On")}}, {q("MediaType"), {q("Felt")}}}, {}, {}}),
        *printer);
    EXPECT_TRUE(told.contains(q("“Mine”"))) << told.toStdString();
    EXPECT_TRUE(told.contains(q("\nLamination: On\nPaper Type: Felt"))) << told.toStdString();
    EXPECT_NULL(PresetMessages::remarks(q("Mine"), plan({}), *printer));
}

TEST_F(PresetPlanning, APresetOfTheSameContentHasNoDifferences)
{
    const PresetContent content{{{q("MediaType"), {q("IronOn")}}}, {{q("mirror"), q("true")}}, {}};
    EXPECT_THAT(differencesBetween(content, content, *printer, test::plainWords()), IsEmpty());
}

TEST_F(PresetPlanning, DifferencesAreInThePersonsWords)
{
    const PresetContent here{
        {{q("MediaType"), {q("IronOn")}}}, {{q("mirror"), q("true")}, {q("number-up"), 2}}, {}};
    const PresetContent there{
        {{q("Finishing"), {q("Punch"), q("Staple")}}, {q("Lamination"), {q("On")}}},
        {{q("number-up"), 4}},
        {}};
    EXPECT_THAT(
        differencesBetween(here, there, *printer, test::plainWords()),
        ElementsAre(SettingDifference{q("Paper Type"), q("Iron-On Transfer"), q("Plain Paper")},
                    SettingDifference{q("Finishing"), q("None"), q("Punch Holes, Staple")},
                    SettingDifference{q("Lamination"), {}, q("On")},
                    SettingDifference{q("mirror"), q("true"), {}},
                    SettingDifference{q("number-up"), q("2"), q("4")}));
}

TEST_F(PresetPlanning, WhatPagesPerSheetBringAlongIsNoDifferenceOfItsOwn)
{
    const PresetContent four{{}, {{q("number-up"), q("4")}, {columnsKey(), q("2")}}, {}};
    const PresetContent columns{{}, {{columnsKey(), q("2")}}, {}};
    EXPECT_THAT(differencesBetween(four, {}, *printer, test::plainWords()),
                ElementsAre(SettingDifference{q("number-up"), q("4"), {}}));
    EXPECT_THAT(differencesBetween(columns, {}, *printer, test::plainWords()),
                ElementsAre(SettingDifference{columnsKey(), q("2"), {}}));
}

TEST_F(PresetPlanning, APresetThatNamesADefaultDoesNotDifferByIt)
{
    const QString usual = printer->marked(q("MediaType"));
    EXPECT_THAT(
        differencesBetween({}, {{{q("MediaType"), {usual}}}, {}, {}}, *printer, test::plainWords()),
        IsEmpty());
}

} // namespace
