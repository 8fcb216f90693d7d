#include "dialog/window/conflict_sheet.h"

#include "tests/support/print_to.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// The sheet in a window whose default button prints, between a setting and that button.
class ConflictSheets : public testing::Test
{
protected:
    ConflictSheets()
    {
        auto *column = new QVBoxLayout(&window);
        for (QWidget *part : {static_cast<QWidget *>(setting), static_cast<QWidget *>(sheet),
                              static_cast<QWidget *>(print)})
            column->addWidget(part);
        print->setDefault(true);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        setting->setFocus();
    }
    void ask(const QStringList &ways) const
    {
        sheet->ask({q("Two settings."), ways, q("Nothing can be done.")});
    }
    [[nodiscard]] QRadioButton *way(int index) const
    {
        return sheet->findChild<QRadioButton *>(q("resolution%1").arg(index));
    }
    [[nodiscard]] QWidget *part(const char *name) const
    {
        return sheet->findChild<QWidget *>(q(name));
    }
    static void press(Qt::Key key)
    {
        ASSERT_TRUE(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), key);
    }
    [[nodiscard]] QList<int> picks() const
    {
        QList<int> indexes;
        for (const QList<QVariant> &arguments : picked)
            indexes.append(arguments.first().toInt());
        return indexes;
    }

    QDialog window;
    QPushButton *setting = new QPushButton(q("A setting"));
    ConflictSheet *sheet = new ConflictSheet;
    QPushButton *print = new QPushButton(q("Print"));
    QSignalSpy picked{sheet, &ConflictSheet::wayPicked};
    QSignalSpy kept{sheet, &ConflictSheet::kept};
    QSignalSpy printed{print, &QPushButton::clicked};
};

} // namespace

TEST_F(ConflictSheets, TakeNoRoomWhileNothingIsAsked)
{
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_FALSE(sheet->isAsking());
    sheet->withdraw();
    EXPECT_TRUE(picked.empty() && kept.empty());
}

TEST_F(ConflictSheets, ListEachWayWithAllThatItChanges)
{
    ask({q("One change"), q("One change\nand another")});
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TEXT(way(1)->accessibleName(), "One change\nand another");
    QStringList shown;
    for (const QLabel *label : sheet->findChildren<QLabel *>())
        shown.append(label->text());
    EXPECT_TRUE(shown.contains(q("One change\nand another"))) << "by eye as well as by ear";
    EXPECT_TRUE(way(0)->isChecked());
    EXPECT_FALSE(shown.contains(q("Nothing can be done.")));
}

TEST_F(ConflictSheets, MakeTheFirstWayByReturnAlone)
{
    ask({q("First"), q("Second")});
    EXPECT_EQ(QApplication::focusWidget(), way(0));
    press(Qt::Key_Return);
    EXPECT_EQ(picks(), QList<int>{0});
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_TRUE(printed.empty());
}

TEST_F(ConflictSheets, MakeAnotherWayByArrowKeysAndReturn)
{
    ask({q("First"), q("Second"), q("Third")});
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_TRUE(way(2)->isChecked());
    press(Qt::Key_Return);
    EXPECT_EQ(picks(), QList<int>{2});
}

TEST_F(ConflictSheets, AreWalkedByTabFromTheWaysToTheButtons)
{
    ask({q("First"), q("Second")});
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), part("keepChoice"));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), part("applyResolution"));
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), print) << "the sheet is no trap";
    press(Qt::Key_Backtab);
    press(Qt::Key_Space);
    EXPECT_EQ(picks(), QList<int>{0});
}

TEST_F(ConflictSheets, KeepByEscapeOrByReturnOnTheButton)
{
    ask({q("First")});
    press(Qt::Key_Escape);
    EXPECT_EQ(kept.size(), 1);
    EXPECT_TRUE(window.isVisible());
    ask({q("First")});
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(kept.size(), 2);
    EXPECT_TRUE(picked.empty());
}

TEST_F(ConflictSheets, OfferNothingButToKeepWhereThereIsNoWay)
{
    ask({});
    EXPECT_FALSE(part("applyResolution")->isVisible());
    EXPECT_TEXT(sheet->findChild<QLabel *>(q("conflictAdvice"))->text(), "Nothing can be done.");
    EXPECT_EQ(QApplication::focusWidget(), part("keepChoice"));
    press(Qt::Key_Return);
    EXPECT_EQ(kept.size(), 1);
    EXPECT_TRUE(printed.empty());
}

TEST_F(ConflictSheets, GiveTheFocusBackToWhatHadIt)
{
    ask({q("First")});
    ask({q("Second")}); // a second conflict before the first is answered
    press(Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), setting);
}

TEST_F(ConflictSheets, LeaveTheFocusAloneWhileAPersonTypes)
{
    auto *field = new QLineEdit;
    window.layout()->addWidget(field);
    field->show();
    field->setFocus();
    ask({q("First")});
    EXPECT_EQ(QApplication::focusWidget(), field);
    sheet->withdraw();
    EXPECT_EQ(QApplication::focusWidget(), field);
}

TEST_F(ConflictSheets, AnswerOnceHoweverOftenTheyArePressed)
{
    ask({q("First")});
    auto *apply = qobject_cast<QPushButton *>(part("applyResolution"));
    apply->click();
    apply->click();
    qobject_cast<QPushButton *>(part("keepChoice"))->click();
    EXPECT_EQ(picks(), QList<int>{0});
    EXPECT_TRUE(kept.empty());
}
