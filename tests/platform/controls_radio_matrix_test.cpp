#include "platform/controls/radio_matrix.h"
#include "tests/support/print_to.h"

#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using test::q;

namespace {

/// A matrix of three rows on screen.
class RadioMatrices : public testing::Test
{
protected:
    RadioMatrices()
    {
        matrix.setRows(3);
        for (int row = 0; row < 3; ++row)
            matrix.setRowTitle(row, q("Row %1").arg(row));
        matrix.show();
        matrix.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&matrix));
    }

    void click(int row) { QTest::mouseClick(matrix.button(row), Qt::LeftButton, {}, QPoint(8, 8)); }

    RadioMatrix matrix;
    QSignalSpy clicks{&matrix, &RadioMatrix::rowClicked};
};

} // namespace

TEST_F(RadioMatrices, ShipWithNoRowSelected)
{
    EXPECT_EQ(matrix.rows(), 3);
    EXPECT_EQ(matrix.selectedRow(), -1);
}

TEST_F(RadioMatrices, SelectByTheProgramWithoutAClick)
{
    matrix.selectRow(1);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_TRUE(matrix.button(1)->isChecked());
    matrix.selectRow(2);
    EXPECT_EQ(matrix.selectedRow(), 2);
    EXPECT_FALSE(matrix.button(1)->isChecked());
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(RadioMatrices, SelectNoneForARowOutside)
{
    for (const int row : {-1, -2, 3, 100}) {
        matrix.selectRow(1);
        matrix.selectRow(row);
        EXPECT_EQ(matrix.selectedRow(), -1) << row;
        EXPECT_FALSE(matrix.button(1)->isChecked());
    }
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(RadioMatrices, StayExclusiveAfterSelectingNone)
{
    matrix.selectRow(1);
    matrix.selectRow(-1);
    click(0);
    click(2);
    EXPECT_FALSE(matrix.button(0)->isChecked());
    EXPECT_EQ(matrix.selectedRow(), 2);
}

TEST_F(RadioMatrices, ReportEveryClickOfAPerson)
{
    click(2);
    click(2);
    click(0);
    ASSERT_EQ(clicks.count(), 3);
    EXPECT_EQ(clicks[0][0].toInt(), 2);
    EXPECT_EQ(clicks[1][0].toInt(), 2);
    EXPECT_EQ(clicks[2][0].toInt(), 0);
    EXPECT_EQ(matrix.selectedRow(), 0);
}

TEST_F(RadioMatrices, FollowTheArrowKeys)
{
    matrix.selectRow(0);
    matrix.button(0)->setFocus();
    QTest::keyClick(matrix.button(0), Qt::Key_Down);
    EXPECT_EQ(matrix.selectedRow(), 1);
    QTest::keyClick(matrix.button(1), Qt::Key_Down);
    EXPECT_EQ(matrix.selectedRow(), 2);
    QTest::keyClick(matrix.button(2), Qt::Key_Up);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(RadioMatrices, TakeSpaceWhenNoneIsSelected)
{
    matrix.button(1)->setFocus();
    QTest::keyClick(matrix.button(1), Qt::Key_Space);
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(RadioMatrices, TakeNoClickWhileDisabled)
{
    matrix.selectRow(0);
    matrix.setEnabled(false);
    click(2);
    EXPECT_EQ(matrix.selectedRow(), 0);
    EXPECT_EQ(clicks.count(), 0);
    matrix.selectRow(1);
    EXPECT_EQ(matrix.selectedRow(), 1);
}

TEST_F(RadioMatrices, ShowTitlesLiterally)
{
    matrix.setRowTitle(0, q("R&D <b>"));
    EXPECT_TEXT(matrix.rowTitle(0), "R&D <b>");
    EXPECT_TRUE(matrix.button(0)->shortcut().isEmpty());
    matrix.setRowTitle(0, QString());
    EXPECT_TEXT(matrix.rowTitle(0), "");
}

TEST_F(RadioMatrices, IgnoreTitlesOfRowsOutside)
{
    matrix.setRowTitle(3, q("x"));
    matrix.setRowTitle(-1, q("x"));
    EXPECT_NULL(matrix.rowTitle(3));
    EXPECT_NULL(matrix.rowTitle(-1));
    EXPECT_EQ(matrix.button(-1), nullptr);
    EXPECT_EQ(matrix.button(3), nullptr);
}

TEST_F(RadioMatrices, KeepTheirFirstRowsWhenTheirNumberChanges)
{
    matrix.selectRow(2);
    matrix.setRows(2);
    EXPECT_EQ(matrix.rows(), 2);
    EXPECT_EQ(matrix.selectedRow(), -1);
    matrix.setRows(4);
    EXPECT_EQ(matrix.rows(), 4);
    EXPECT_TEXT(matrix.rowTitle(1), "Row 1");
    EXPECT_TEXT(matrix.rowTitle(3), "");
    matrix.selectRow(3);
    EXPECT_EQ(matrix.selectedRow(), 3);
    matrix.setRows(-1);
    EXPECT_EQ(matrix.rows(), 0);
    EXPECT_EQ(matrix.selectedRow(), -1);
}

TEST_F(RadioMatrices, HaveAsManyRowsAsTitles)
{
    matrix.selectRow(1);
    matrix.setTitles({q("Off"), q("R&D")});
    EXPECT_EQ(matrix.rows(), 2);
    EXPECT_EQ(matrix.titles(), QStringList({q("Off"), q("R&D")}));
    EXPECT_EQ(matrix.selectedRow(), 1);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(RadioMatrices, CanBeDestroyedByTheirOwnClick)
{
    auto doomed = std::make_unique<RadioMatrix>();
    doomed->setRows(1);
    doomed->show();
    QRadioButton *const button = doomed->button(0);
    QObject::connect(doomed.get(), &RadioMatrix::rowClicked, doomed.get(),
                     [&doomed] { doomed.release()->deleteLater(); });
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(doomed, nullptr);
}

TEST(MissingRadioMatrices, HaveNoSelectedRow)
{
    controls::selectRow(nullptr, 1);
    controls::setRowTitle(nullptr, 0, q("x"));
    EXPECT_EQ(controls::selectedRow(nullptr), -1);
}
