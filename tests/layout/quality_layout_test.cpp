#include "tests/layout/desktop.h"
#include "tests/layout/quality_window.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

/// The panel's states in the order in which a person goes through them.
struct State
{
    const char *name;
    std::pair<double, double> withTray; ///< header's y and panel's height of the records
    std::pair<double, double> withoutTray;
};

constexpr State kStates[] = {
    {"start", {123, 160}, {88, 160}},
    {"open", {123, 283}, {123, 243}},
    {"closed", {123, 160}, {123, 160}},
};

class QualityLayout : public testing::TestWithParam<Printer>
{
protected:
    /// Goes through the three states; @p check sees each.
    template <class Check>
    void walk(QualityWindow &window, Check check)
    {
        for (const State &state : kStates) {
            SCOPED_TRACE(state.name);
            if (&state != kStates)
                window.clickDisclosure();
            check(state);
        }
    }

    QString pictureName(const Look &look, const State &state) const
    {
        return QStringLiteral("%1-%2-%3-%4-%5-%6")
            .arg(q(GetParam().name),
                 GetParam().tray == SecondTray::Installed ? q("tray") : q("none"), q(look.language))
            .arg(look.fontScale)
            .arg(look.shade == Shade::Dark ? q("dark") : q("light"), q(state.name));
    }
};

TEST_P(QualityLayout, LooksRightInEveryStateLanguageFontAndShade)
{
    for (const Look &look : allLooks()) {
        SCOPED_TRACE(testing::PrintToString(look));
        const Desktop desktop(look);
        QualityWindow window(GetParam());
        walk(window, [&](const State &state) {
            keepPicture(&window.window(), pictureName(look, state));
            EXPECT_THAT(layout::findings(window.view()), IsEmpty());
            EXPECT_THAT(layout::withoutToolTip(window.view()), IsEmpty());
        });
    }
}

INSTANTIATE_TEST_SUITE_P(Printers, QualityLayout, testing::ValuesIn(printers()),
                         [](const auto &printer) { return std::to_string(printer.index); });

} // namespace
