#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "platform/controls/pop_up_button.h"
#include "tests/support/print_to.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

std::vector<Queue> manyQueues(int count)
{
    std::vector<Queue> queues;
    for (int i = 1; i <= count; ++i)
        queues.push_back({QStringLiteral("printer%1").arg(i), QStringLiteral("Office %1").arg(i)});
    return queues;
}

class Picker : public testing::Test
{
protected:
    Picker() { window.show(); }

    QLineEdit *filter() { return picker->findChild<QLineEdit *>(q("printerFilter")); }
    PopUpButton *popUp() { return picker->findChild<PopUpButton *>(q("printerPopUp")); }
    QString state() { return picker->findChild<QLabel *>(q("printerState"))->text(); }

    PrinterPicker *picker = new PrinterPicker; ///< the window's
    PrintWindow window{picker, {}};
};

} // namespace

TEST_F(Picker, OffersQueuesByNameDescriptionAndState)
{
    picker->setQueues({{q("ink")}, {q("toner"), q("A & B"), {}, {}, QueueState::Paused, q("jam")}});
    EXPECT_EQ(popUp()->count(), 2);
    EXPECT_EQ(popUp()->currentIndex(), -1) << "nothing is selected by itself";
    EXPECT_TEXT(popUp()->itemText(0), "ink");
    EXPECT_TEXT(popUp()->itemText(1), "A & B (toner) – Paused: jam");
    EXPECT_FALSE(filter()->isVisible());
}

TEST_F(Picker, SelectsWithoutTellingAndTellsAPersonsPick)
{
    QSignalSpy picked(picker, &PrinterPicker::picked);
    picker->select(q("toner"));
    EXPECT_EQ(picker->offered(), QStringList{q("toner")}) << "before the queues are known";
    picker->setQueues({{q("ink")}, {q("toner"), {}, q("Cellar")}});
    EXPECT_EQ(popUp()->currentIndex(), 1);
    EXPECT_TEXT(state(), "Idle · Cellar");
    EXPECT_TRUE(picked.isEmpty());
    popUp()->setFocus();
    QTest::keyClick(popUp(), Qt::Key_Up);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_TEXT(picked.first().first().toString(), "ink");
    EXPECT_TEXT(picker->selected(), "ink");
}

TEST_F(Picker, KeepsWhatIsSelectedWhenQueuesComeAndGo)
{
    picker->setQueues({{q("ink")}, {q("toner")}});
    picker->select(q("toner"));
    picker->setQueues({{q("new")}, {q("ink")}});
    EXPECT_EQ(picker->offered(), (QStringList{q("toner"), q("new"), q("ink")}));
    EXPECT_TEXT(popUp()->currentData().toString(), "toner");
    EXPECT_TRUE(state().isEmpty());
}

TEST_F(Picker, LeavesAnOpenListAlone)
{
    picker->setQueues({{q("ink")}});
    popUp()->showPopup();
    picker->setQueues({{q("ink")}, {q("toner")}});
    EXPECT_EQ(popUp()->count(), 1);
    popUp()->hidePopup();
    picker->setQueues({{q("ink")}, {q("toner")}});
    EXPECT_EQ(popUp()->count(), 2);
}

TEST_F(Picker, HasAFilterForMoreThanAFewQueues)
{
    picker->setQueues(manyQueues(PrinterPicker::kFew));
    EXPECT_FALSE(filter()->isVisible());
    picker->setQueues(manyQueues(PrinterPicker::kFew + 1));
    EXPECT_TRUE(filter()->isVisible());
}

TEST_F(Picker, FindsOneAmongFiveHundred)
{
    picker->setQueues(manyQueues(500));
    picker->select(q("printer7"));
    EXPECT_EQ(popUp()->count(), 500);
    filter()->setFocus();
    QTest::keyClicks(filter(), q("OFFICE 49"));
    // 49, 149, ... 449 and 490 to 499, beside the selected one.
    EXPECT_EQ(popUp()->count(), 16);
    EXPECT_TRUE(picker->offered().contains(q("printer495")));
    EXPECT_TEXT(popUp()->currentData().toString(), "printer7") << "what will print stays selected";
    QTest::keyClicks(filter(), q("3"));
    EXPECT_EQ(picker->offered(), (QStringList{q("printer7"), q("printer493")}));
    filter()->clear();
    EXPECT_EQ(popUp()->count(), 500);
}

TEST_F(Picker, ReturnInTheFilterPicksTheFirstMatchAndPrintsNothing)
{
    QSignalSpy picked(picker, &PrinterPicker::picked);
    QSignalSpy printed(&window, &PrintWindow::printRequested);
    picker->setQueues(manyQueues(500));
    filter()->setFocus();
    QTest::keyClicks(filter(), q("Office 321"));
    QTest::keyClick(filter(), Qt::Key_Return);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_TEXT(picked.first().first().toString(), "printer321");
    QTest::keyClicks(filter(), q(" nothing"));
    QTest::keyClick(filter(), Qt::Key_Return);
    EXPECT_EQ(picked.size(), 1);
    EXPECT_TRUE(printed.isEmpty());
}

TEST_F(Picker, ThereIsNothingToPrintWhileTheWindowWaits)
{
    auto *print = window.findChild<QPushButton *>(q("printButton"));
    auto *waiting = window.findChild<QLabel *>(q("waiting"));
    EXPECT_TRUE(print->isEnabled());
    window.setWaiting(q("Connecting to <b>ink</b>…"));
    EXPECT_FALSE(print->isEnabled());
    EXPECT_TRUE(waiting->isVisible());
    EXPECT_EQ(waiting->textFormat(), Qt::PlainText);
    window.setWaiting(q(""));
    EXPECT_FALSE(print->isEnabled());
    EXPECT_FALSE(waiting->isVisible());
    window.setWaiting({});
    EXPECT_TRUE(print->isEnabled());
    window.setSending(true);
    EXPECT_FALSE(picker->isEnabled()) << "a job on its way keeps its printer";
    window.setSending(false);
    EXPECT_TRUE(picker->isEnabled());
    EXPECT_TRUE(print->isEnabled());
}
