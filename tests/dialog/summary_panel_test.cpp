#include "dialog/panels/summary_panel.h"

#include "dialog/print_dialog.h"
#include "dialog/replay/input.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// "Section" and "Section: setting = value", as a person reads them from top to bottom.
QStringList shownIn(const QTreeWidget &rows)
{
    QStringList lines;
    for (int i = 0; i < rows.topLevelItemCount(); ++i) {
        const QTreeWidgetItem *section = rows.topLevelItem(i);
        lines.append(section->text(0));
        for (int row = 0; row < section->childCount(); ++row)
            lines.append(section->text(0) + q(": ") + section->child(row)->text(0) + q(" = ") +
                         section->child(row)->text(1));
    }
    return lines;
}

/// A panel by itself, in front.
struct SummaryPanelTest : testing::Test
{
    std::unique_ptr<PpdDocument> printer = PpdDocument::withoutOptions(q("Printer"));
    DialogHost host{*printer};
    PanelStack panels{host};
    SummaryPanel view{panels, host, {[] { return OptionGroups(); }, [] { return JobSettings(); }}};
    QTreeWidget *rows = nullptr;
    QLineEdit *find = nullptr;
    QLabel *nothing = nullptr;

    SummaryPanelTest()
    {
        view.refresh();
        rows = view.findChild<QTreeWidget *>(q("summaryRows"));
        find = view.findChild<QLineEdit *>(q("summaryFind"));
        nothing = view.findChild<QLabel *>(q("summaryNothing"));
        view.show(
            {{q("Paper"), {{q("Size"), q("A4")}, {q("Type"), q("Glossy"), Standing::Changed}}},
             {q("Ink"), {{q("Amount"), q("Low"), Standing::Replaced}}}});
        view.show();
        view.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&view));
    }
};

TEST_F(SummaryPanelTest, ShowsARowForEachSettingBelowItsSection)
{
    EXPECT_EQ(shownIn(*rows),
              QStringList({q("Paper"), q("Paper: Size = A4"), q("Paper: Type = Glossy"), q("Ink"),
                           q("Ink: Amount = Low")}));
    view.show(Summary{{q("Three"), {{q("a"), q("b")}}}});
    EXPECT_EQ(shownIn(*rows), QStringList({q("Three"), q("Three: a = b")}));
}

TEST_F(SummaryPanelTest, TellsWhatIsChangedByTheFontAndInWords)
{
    const QTreeWidgetItem *usual = rows->topLevelItem(0)->child(0);
    const QTreeWidgetItem *changed = rows->topLevelItem(0)->child(1);
    const QTreeWidgetItem *replaced = rows->topLevelItem(1)->child(0);
    EXPECT_FALSE(usual->font(1).bold());
    EXPECT_FALSE(usual->data(1, Qt::AccessibleTextRole).isValid());
    EXPECT_TRUE(changed->font(1).bold());
    EXPECT_TEXT(changed->data(1, Qt::AccessibleTextRole).toString(), "Glossy (changed)");
    EXPECT_FALSE(changed->toolTip(1).isEmpty());
    EXPECT_TRUE(replaced->font(1).strikeOut());
    EXPECT_TEXT(replaced->data(1, Qt::AccessibleTextRole).toString(),
                "Low (replaced by a setting of the job)");
}

TEST_F(SummaryPanelTest, FindsWhileAPersonTypes)
{
    rows->setFocus();
    QTest::keySequence(&view, QKeySequence::Find);
    ASSERT_TRUE(find->hasFocus());
    QTest::keyClicks(find, q("glo"));
    EXPECT_EQ(shownIn(*rows), QStringList({q("Paper"), q("Paper: Type = Glossy")}));
    EXPECT_TRUE(nothing->isHidden());
    QTest::keyClicks(find, q("ss!"));
    EXPECT_TRUE(shownIn(*rows).isEmpty());
    EXPECT_FALSE(nothing->isHidden());
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_TEXT(find->text(), "");
    EXPECT_EQ(shownIn(*rows).size(), 5);
}

TEST_F(SummaryPanelTest, KeepsWhatWasTypedWhenTheSettingsChange)
{
    QTest::keyClicks(find, q("size"));
    view.show(Summary{{q("Paper"), {{q("Size"), q("A5")}, {q("Type"), q("Plain")}}}});
    EXPECT_EQ(shownIn(*rows), QStringList({q("Paper"), q("Paper: Size = A5")}));
}

TEST_F(SummaryPanelTest, CopiesWhatIsShownByButtonAndByKey)
{
    QTest::keyClicks(find, q("paper"));
    const QString text = q("Paper\n  Size  A4\n  Type  Glossy (changed)\n");
    QGuiApplication::clipboard()->clear();
    QTest::mouseClick(view.findChild<QPushButton *>(q("summaryCopyButton")), Qt::LeftButton);
    EXPECT_SAME(QGuiApplication::clipboard()->text(), text);
    QGuiApplication::clipboard()->clear();
    rows->setFocus();
    QTest::keySequence(rows, QKeySequence::Copy);
    EXPECT_SAME(QGuiApplication::clipboard()->text(), text);
}

std::unique_ptr<PrintDialog> openSample(const char *ppd)
{
    PrintCase printCase;
    printCase.ppd = q(KORVANE_SOURCE_DIR "/driver/ppd/") + q(ppd);
    printCase.root = q(KORVANE_ROOT_DIR);
    PrintDialog::Opened opened = PrintDialog::open(printCase);
    auto *made = std::get_if<std::unique_ptr<PrintDialog>>(&opened);
    if (!made)
        return nullptr;
    (*made)->showPanels();
    return std::move(*made);
}

TEST(Summary, OfTheTonerPrinterSaysPanelsMarksAndJob)
{
    const auto print = openSample("Korvane-T500.ppd");
    ASSERT_TRUE(print);
    PrintWindow &window = *print->window();
    const PanelStack &panels = print->panels();
    EXPECT_NULL(replay::input::choose(window.panelPopUp(),
                                      panels.indexOf(q("com.Others.print.pde.BramoPDEKind"))));
    EXPECT_NULL(replay::input::click(window.findChild<QCheckBox *>(q("ibReduceGhosting"))));
    EXPECT_NULL(replay::input::choose(window.panelPopUp(), panels.indexOf(q("summary"))));
    EXPECT_EQ(panels.frontIndex(), panels.indexOf(q("summary")));
    const auto *rows = window.findChild<QTreeWidget *>(q("summaryRows"));
    const QStringList lines = shownIn(*rows);
    EXPECT_TRUE(lines.contains(q("Quality & Media: Color Output = Grayscale")));
    EXPECT_TRUE(lines.contains(q("Other: Reduce Ghosting = On")));
    EXPECT_TRUE(lines.contains(q("Job: Flip horizontally = Off")));
    EXPECT_TRUE(lines.contains(q("General: Reduce Ghosting = Off"))) << "marked when printed";
    EXPECT_EQ(lines.filter(q(": Color Output")).size(), 1) << "the panel names the mark";
    EXPECT_EQ(lines.filter(q("Two-Sided Printing")).size(), 1) << "no panel names it";
}

TEST(Summary, FollowsASettingThatChangesWhileItIsInFront)
{
    const auto print = openSample("Korvane-S300.ppd");
    ASSERT_TRUE(print);
    PrintWindow &window = *print->window();
    EXPECT_NULL(replay::input::choose(window.panelPopUp(), print->panels().indexOf(q("summary"))));
    print->host().setSetting(q("mirror"), q("true"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(shownIn(*window.findChild<QTreeWidget *>(q("summaryRows")))
                    .contains(q("Job: Flip horizontally = On")));
}

class SummaryOfPrinter : public testing::TestWithParam<const char *>
{
};

TEST_P(SummaryOfPrinter, SaysEveryChoiceThatCanBeMarked)
{
    const auto print = openSample(GetParam());
    ASSERT_TRUE(print);
    PpdDocument &printer = print->printer();
    auto *view = print->window()->findChild<SummaryPanel *>();
    view->refresh();
    const auto *rows = view->findChild<QTreeWidget *>(q("summaryRows"));
    for (const QString &option : printer.options())
        for (const QString &choice : printer.choices(option)) {
            printer.mark({option, choice});
            view->refresh();
            EXPECT_FALSE(shownIn(*rows)
                             .filter(q(": ") + printer.optionText(option) + q(" = ") +
                                     printer.choiceText({option, choice}))
                             .isEmpty())
                << option.toStdString() << ' ' << choice.toStdString();
        }
}

INSTANTIATE_TEST_SUITE_P(Samples, SummaryOfPrinter,
                         testing::Values("Korvane-S300.ppd", "Korvane-S300-de.ppd",
                                         "Korvane-S300-ja.ppd", "Korvane-T500.ppd"));

} // namespace
