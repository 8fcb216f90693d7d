#include "dialog/printers/constraints.h"
#include "dialog/printers/ppd_document.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <cups/ppd.h>

#include <QFile>

#include <gtest/gtest.h>

#include <random>

using namespace dialog;
using test::q;

namespace {

const Choices kMarks{{q("A"), q("On")}, {q("B"), q("two")}, {q("C"), q("Off")}};

TEST(Constraints, OfTwoChoicesHoldBothWays)
{
    const Constraints constraints{{{q("A"), q("On")}, {q("B"), q("one")}}};
    EXPECT_EQ(conflictsWith({q("B"), q("one")}, kMarks, constraints), Choices({{q("A"), q("On")}}));
    EXPECT_EQ(conflictsWith({q("A"), q("On")}, {{q("B"), q("one")}}, constraints),
              Choices({{q("B"), q("one")}}));
    EXPECT_TRUE(conflictsWith({q("B"), q("two")}, kMarks, constraints).empty());
}

TEST(Constraints, WithoutAChoiceMeanAnythingThatSwitchesOn)
{
    const Constraints constraints{{{q("A"), {}}, {q("C"), {}}}};
    EXPECT_TRUE(activeConflicts(kMarks, constraints).empty());
    EXPECT_EQ(conflictsWith({q("C"), q("On")}, kMarks, constraints), Choices({{q("A"), q("On")}}));
    EXPECT_TRUE(conflictsWith({q("C"), q("none")}, kMarks, constraints).empty());
    EXPECT_TRUE(conflictsWith({q("C"), q("False")}, kMarks, constraints).empty());
}

TEST(Constraints, OfThreeChoicesNeedAllThree)
{
    const Constraints constraints{parseConstraint(q("*A On *B two *C On"))};
    EXPECT_TRUE(activeConflicts(kMarks, constraints).empty());
    EXPECT_EQ(conflictsWith({q("C"), q("On")}, kMarks, constraints),
              Choices({{q("A"), q("On")}, {q("B"), q("two")}}));
}

TEST(Constraints, IgnoreCase)
{
    const Constraints constraints{parseConstraint(q("*a on *b TWO"))};
    EXPECT_EQ(activeConflicts(kMarks, constraints).size(), 1U);
}

TEST(Constraints, ThatSayTheSameTwiceCountOnce)
{
    const Constraints constraints{parseConstraint(q("*A On *B two")),
                                  parseConstraint(q("*B two *A On"))};
    EXPECT_EQ(activeConflicts(kMarks, constraints).size(), 1U);
}

TEST(Constraints, InTheGeneralFormReplaceTheOldOnes)
{
    test::StagedDriver driver;
    const QString path =
        driver.write(q("general.ppd"), test::constrained()
                                           .withLine("*cupsUIConstraints keep: \"*MediaType "
                                                     "Envelope *PageSize Letter *Mirror On\"")
                                           .bytes());
    auto opened = PpdDocument::open(path);
    const auto &printer = std::get<std::unique_ptr<PpdDocument>>(opened);
    printer->mark({q("PrintQuality"), q("Draft")});
    EXPECT_TRUE(printer->conflictsWith({q("MediaType"), q("IronOn")}).empty());
    printer->mark({q("Mirror"), q("On")});
    EXPECT_EQ(printer->conflictsWith({q("MediaType"), q("Envelope")}).size(), 2U);
}

QStringList marksText(const PpdDocument &printer)
{
    QStringList texts;
    for (const Choice &mark : printer.marks())
        texts.append(mark.option + u'=' + mark.choice);
    return texts;
}

/// libcups is asked only for the number of conflicts, which must be none exactly when ours are
/// none.
TEST(Constraints, AgreeWithLibcupsOnRandomMarksOfTheSamplePrinters)
{
    std::mt19937 random(1);
    int conflicting = 0;
    for (const char *name : {"Korvane-S300.ppd", "Korvane-T500.ppd"}) {
        auto opened = PpdDocument::open(q(KORVANE_SOURCE_DIR "/driver/ppd/") + q(name));
        const auto &printer = std::get<std::unique_ptr<PpdDocument>>(opened);
        const QStringList options = printer->options();
        for (int i = 0; i < 2000; ++i) {
            const QString option = options[static_cast<int>(random() % options.size())];
            const QStringList choices = printer->choices(option);
            printer->mark({option, choices[static_cast<int>(random() % choices.size())]});
            const bool libcupsHasSome = ppdConflicts(printer->handle()) > 0;
            ASSERT_EQ(!printer->conflicts().empty(), libcupsHasSome)
                << name << " step " << i << ": " << testing::PrintToString(marksText(*printer));
            conflicting += libcupsHasSome ? 1 : 0;
        }
    }
    EXPECT_GT(conflicting, 100) << "the walk met no conflicts worth the name";
}

} // namespace
