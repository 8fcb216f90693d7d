#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "tests/layout/sample_window.h"
#include "tests/layout/scene.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

constexpr QSize kSmallestScreen(1024, 768);

void expectNothingCutOff(const QWidget &window)
{
    EXPECT_THAT(layout::clipped(window), IsEmpty());
    EXPECT_THAT(layout::outside(window), IsEmpty());
    EXPECT_THAT(layout::hiddenSideways(window), IsEmpty());
    EXPECT_THAT(layout::overlapping(window), IsEmpty());
    EXPECT_THAT(layout::nameless(window), IsEmpty());
}

class WindowLayout : public testing::TestWithParam<Look>
{
};

TEST_P(WindowLayout, CutsNoTextWhicheverPanelIsInFront)
{
    const Desktop desktop(GetParam());
    const auto opened = openSample(GetParam());
    ASSERT_TRUE(opened);
    QWidget &window = *opened->window();
    for (int i = 0; i < opened->panels().count(); ++i) {
        SCOPED_TRACE(opened->panels().title(i).toStdString());
        opened->panels().bringForward(i);
        window.resize(kSmallestScreen); // that of the tests is smaller
        settle();
        keepPicture(&window, QStringLiteral("window-%1-%2-%3")
                                 .arg(q(GetParam().language), QString::number(GetParam().fontScale),
                                      opened->panels().kind(i)));
        expectNothingCutOff(window);
    }
}

TEST(WindowAtFirst, IsAsLargeAsItWouldBeLater)
{
    const Look look;
    const Desktop desktop(look);
    const auto opened = openSample(look);
    ASSERT_TRUE(opened);
    const QSize first = opened->window()->size();
    settle();
    opened->window()->fitContents();
    EXPECT_EQ(opened->window()->size(), first);
}

class NoticeLayout : public testing::TestWithParam<double>
{
};

TEST_P(NoticeLayout, CutsOffNoPathHoweverLong)
{
    const Look look{"en", GetParam()};
    const Desktop desktop(look);
    const auto opened = openSample(look);
    ASSERT_TRUE(opened);
    dialog::PrintWindow &window = *opened->window();
    const QString name = q("minutes_of_the_meeting_about_printers_").repeated(3);
    window.notices().show({q("save"),
                           dialog::Severity::Critical,
                           q("/srv/%1/%2.pdf could not be saved.").arg(QString(60, u'x'), name),
                           {}});
    EXPECT_LE(window.minimumSizeHint().width(), kSmallestScreen.width());
    window.resize(kSmallestScreen);
    settle();
    keepPicture(&window, QStringLiteral("long-path-%1").arg(look.fontScale));
    expectNothingCutOff(window);
}

INSTANTIATE_TEST_SUITE_P(Fonts, NoticeLayout, testing::Values(1, 1.5));

std::vector<Look> lightLooks()
{
    std::vector<Look> looks = allLooks();
    std::erase_if(looks, [](const Look &look) { return look.shade == Shade::Dark; });
    return looks;
}

class PartLayout : public testing::TestWithParam<PartInLook>
{
};

TEST_P(PartLayout, CutsNoTextOnASmallScreen)
{
    const auto &[part, look] = GetParam();
    const Desktop desktop(look);
    const Scene scene(part, look);
    QWidget &window = scene.window();
    EXPECT_LE(window.minimumSizeHint().width(), kSmallestScreen.width());
    EXPECT_LE(window.minimumSizeHint().height(), kSmallestScreen.height());
    window.resize(kSmallestScreen);
    settle();
    keepPicture(&window,
                QStringLiteral("part-%1-%2-%3-%4")
                    .arg(q(nameOf(part)), q(look.language), QString::number(look.fontScale),
                         look.shade == Shade::Dark ? q("dark") : q("light")));
    expectNothingCutOff(window);
}

INSTANTIATE_TEST_SUITE_P(Parts, PartLayout,
                         testing::Combine(testing::ValuesIn(kParts),
                                          testing::ValuesIn(lightLooks())),
                         caseName);

INSTANTIATE_TEST_SUITE_P(Looks, WindowLayout, testing::ValuesIn(lightLooks()),
                         [](const auto &look) {
                             return std::string(look.param.language) +
                                    (look.param.fontScale > 1 ? "LargeFont" : "");
                         });

} // namespace
