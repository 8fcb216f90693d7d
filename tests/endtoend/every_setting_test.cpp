// All settings of both panels, from a person's choices to the printer's filter: every pair of
// choices of two settings. What arrives is what was chosen, but for the tables of rules in
// expected_job.cpp.

#include "tests/endtoend/covered_settings.h"
#include "tests/endtoend/every_setting.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

using namespace test;

class EverySetting : public testing::TestWithParam<AnyPrinter>
{
};

TEST_P(EverySetting, ReachesThePrinterBesideEveryOtherSetting)
{
    expectEveryPairToArrive(GetParam(), 0);
}

TEST_P(EverySetting, IsOutOfReachWhereARuleSaysSo)
{
    const Printing printing(GetParam().ppd());
    const auto probe = printing.open();
    for (const ClosedChoice &closed : closedChoices(probe->dialog().printer())) {
        SCOPED_TRACE(
            (described(closed.story) + u' ' + closed.choice.option + u'=' + closed.choice.choice)
                .toStdString());
        const auto run = printing.open(closed.story.systemVersion);
        run->showPanels();
        for (const dialog::Choice &picked : closed.story.chosen)
            run->choose(picked);
        EXPECT_FALSE(run->obstacleTo(closed.choice).isNull());
    }
}

TEST_P(EverySetting, IsHiddenWhereAnotherTakesItsPlace)
{
    const Printing printing(GetParam().ppd());
    const auto run = printing.open();
    run->showPanels();
    for (const QString &option : hiddenSettings(run->dialog().printer()))
        EXPECT_TEXT(run->obstacleTo({option, {}}), "the control is hidden") << option.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Printers, EverySetting, testing::ValuesIn(kPrinters),
                         [](const auto &printer) { return printer.param.name; });
