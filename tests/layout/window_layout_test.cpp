#include "dialog/print_dialog.h"
#include "dialog/window/print_window.h"
#include "tests/layout/desktop.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"

#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using testing::IsEmpty;

namespace {

/// The sample printer in the language where there is one, else in English.
QString ppdIn(const char *language)
{
    const QString path = q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-S300-%1.ppd").arg(q(language));
    return QFile::exists(path) ? path : q(KORVANE_SOURCE_DIR "/driver/ppd/Korvane-S300.ppd");
}

std::unique_ptr<dialog::PrintDialog> openIn(const Look &look)
{
    dialog::PrintCase printCase;
    printCase.ppd = ppdIn(look.language);
    printCase.root = q(KORVANE_ROOT_DIR);
    printCase.language = q(look.language);
    auto opened = dialog::PrintDialog::open(printCase);
    auto *made = std::get_if<std::unique_ptr<dialog::PrintDialog>>(&opened);
    if (!made)
        return nullptr;
    (*made)->showPanels();
    return std::move(*made);
}

/// Pop-ups whose items are new take their width by a timer of 20 ms.
void settle()
{
    constexpr int kMilliseconds = 50;
    QTest::qWait(kMilliseconds);
    QCoreApplication::sendPostedEvents();
}

class WindowLayout : public testing::TestWithParam<Look>
{
};

TEST_P(WindowLayout, CutsNoTextWhicheverPanelIsInFront)
{
    const Desktop desktop(GetParam());
    const auto opened = openIn(GetParam());
    ASSERT_TRUE(opened);
    QWidget &window = *opened->window();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    for (int i = 0; i < opened->panels().count(); ++i) {
        SCOPED_TRACE(opened->panels().title(i).toStdString());
        opened->panels().bringForward(i);
        settle();
        keepPicture(&window, QStringLiteral("window-%1-%2-%3")
                                 .arg(q(GetParam().language), QString::number(GetParam().fontScale),
                                      opened->panels().kind(i)));
        EXPECT_THAT(layout::clipped(window), IsEmpty());
        EXPECT_THAT(layout::outside(window), IsEmpty());
        EXPECT_THAT(layout::overlapping(window), IsEmpty());
        EXPECT_THAT(layout::nameless(window), IsEmpty());
    }
}

std::vector<Look> lightLooks()
{
    std::vector<Look> looks = allLooks();
    std::erase_if(looks, [](const Look &look) { return look.shade == Shade::Dark; });
    return looks;
}

INSTANTIATE_TEST_SUITE_P(Looks, WindowLayout, testing::ValuesIn(lightLooks()),
                         [](const auto &look) {
                             return std::string(look.param.language) +
                                    (look.param.fontScale > 1 ? "LargeFont" : "");
                         });

} // namespace
