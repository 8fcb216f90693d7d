#include "tests/layout/desktop.h"
#include "tests/layout/quality_window.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"

#include <QEvent>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

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

/// Counts a widget's new sizes, and its sizes at the times when it was painted.
class Watch : public QObject
{
public:
    explicit Watch(QWidget *widget) : widget_(widget) { widget->installEventFilter(this); }

    int resizes = 0;
    std::set<int> paintedHeights;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        resizes += event->type() == QEvent::Resize;
        if (event->type() == QEvent::Paint)
            paintedHeights.insert(widget_->height());
        return false;
    }

private:
    QWidget *widget_;
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

TEST_P(QualityLayout, ShowsTheMirrorBoxToo)
{
    for (const Look &look : allLanguages()) {
        SCOPED_TRACE(testing::PrintToString(look));
        const Desktop desktop(look);
        QualityWindow window(GetParam(), 0x1049);
        walk(window,
             [&](const State &) { EXPECT_THAT(layout::findings(window.view()), IsEmpty()); });
    }
}

TEST_P(QualityLayout, TheRecordsAreExactWhateverTheScreenShows)
{
    const bool hasTray = GetParam().tray == SecondTray::Installed;
    for (const Look &look : allLooks()) {
        SCOPED_TRACE(testing::PrintToString(look));
        const Desktop desktop(look);
        QualityWindow window(GetParam());
        walk(window, [&](const State &state) {
            EXPECT_EQ(window.records(), hasTray ? state.withTray : state.withoutTray);
        });
    }
}

TEST_P(QualityLayout, TextsStandOutInLightAndDark)
{
    for (const Shade shade : {Shade::Light, Shade::Dark}) {
        const Desktop desktop({.shade = shade});
        QualityWindow window(GetParam());
        walk(window, [&](const State &) { EXPECT_THAT(layout::faint(window.view()), IsEmpty()); });
    }
}

/// Without flicker: one new size for the view, settled before the host hears of it, while the
/// header is seen in its one size only.
TEST_P(QualityLayout, OpeningAndClosingResizesOnceAndLeavesTheHeaderAlone)
{
    QualityWindow window(GetParam());
    QTest::qWait(0);
    Watch view(&window.view());
    Watch header(window.controls().ibHeaderView);
    for (const bool isOpen : {true, false, true, false}) {
        view.resizes = 0;
        const int width = window.window().width();
        window.clickDisclosure();
        EXPECT_EQ(window.heightWhenTold(), window.view().height());
        window.window().repaint();
        QTest::qWait(0);
        EXPECT_EQ(view.resizes, 1) << isOpen;
        EXPECT_EQ(window.heightWhenTold(), window.view().height());
        EXPECT_EQ(window.window().width(), width);
        EXPECT_EQ(window.controls().ibAdvancedView->isVisible(), isOpen);
    }
    EXPECT_EQ(header.paintedHeights.size(), 1u);
}

TEST_P(QualityLayout, AWiderDialogKeepsItsWidthAndResizesOnceToo)
{
    QualityWindow window(GetParam());
    window.widen(window.window().width() + 200);
    QTest::qWait(0);
    Watch view(&window.view());
    const int width = window.view().width();
    window.clickDisclosure();
    QTest::qWait(0);
    EXPECT_EQ(view.resizes, 1);
    EXPECT_EQ(window.view().width(), width);
    EXPECT_THAT(layout::findings(window.view()), IsEmpty());
}

TEST(QualityLayoutScale, IsTheOneThatTheRunAsksFor)
{
    const QWidget widget;
    EXPECT_EQ(widget.devicePixelRatio(),
              std::max(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR")));
}

INSTANTIATE_TEST_SUITE_P(Printers, QualityLayout, testing::ValuesIn(printers()),
                         [](const auto &printer) { return std::to_string(printer.index); });

} // namespace
