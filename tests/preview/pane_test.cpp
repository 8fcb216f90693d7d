#include "dialog/preview/preview_pane.h"
#include "dialog/preview/sheet_view.h"
#include "tests/preview/sample_documents.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"
#include "tests/support/user.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace dialog {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

class Pane : public testing::Test
{
protected:
    Pane()
    {
        look.paper = {test::kA4Points, QMarginsF(18, 18, 18, 18)};
        look.paperText = QStringLiteral("A4");
        pane.resize(260, 420);
        pane.setLook(look);
        pane.show();
    }

    /// Waits until the document stands in the pane.
    void show(const QString &path)
    {
        pane.setDocument(path);
        settle();
    }
    void settle()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return pane.isCurrent(); }));
    }
    void change(const std::function<void(SheetLook &)> &edit)
    {
        edit(look);
        pane.setLook(look);
        settle();
    }

    template <class Widget>
    Widget *find(const char *name)
    {
        return pane.findChild<Widget *>(QLatin1String(name));
    }
    QToolButton *button(const char *name) { return find<QToolButton>(name); }
    SheetView *view() { return pane.findChild<SheetView *>(); }
    QString message() { return find<QLabel>("previewMessage")->text(); }
    std::string description() { return view()->accessibleDescription().toStdString(); }
    int shownPage()
    {
        const auto &pages = view()->side().layout.pages;
        return pages.empty() ? -1 : pages[0].page;
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(view(), static_cast<Qt::Key>(key), modifiers);
        settle();
    }
    void turnWheel(int degrees, Qt::KeyboardModifiers modifiers = {})
    {
        const QPointF middle = QRectF(view()->viewport()->rect()).center();
        QWheelEvent event(middle, view()->viewport()->mapToGlobal(middle), {}, {0, degrees * 8}, {},
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view()->viewport(), &event);
        settle();
    }

    test::SampleDocuments documents;
    SheetLook look;
    PreviewPane pane;
};

TEST_F(Pane, ShowsTheFirstSheetAndTellsHowManyPagesThereAre)
{
    QSignalSpy known(&pane, &PreviewPane::pageCountKnown);
    show(documents.pdf(3));
    ASSERT_EQ(known.size(), 1);
    EXPECT_EQ(known[0][0].toInt(), 3);
    EXPECT_EQ(shownPage(), 0);
    EXPECT_FALSE(view()->side().image.isNull());
    EXPECT_EQ(find<QSpinBox>("previewSheet")->text(), QStringLiteral("Sheet 1 of 3"));
    EXPECT_EQ(message(), QString());
}

TEST_F(Pane, ButtonsTurnSheetsAndStopAtTheEnds)
{
    show(documents.pdf(2));
    EXPECT_FALSE(button("previewPrevious")->isEnabled());
    test::user::click(button("previewNext"));
    settle();
    EXPECT_EQ(shownPage(), 1);
    EXPECT_FALSE(button("previewNext")->isEnabled());
    test::user::click(button("previewPrevious"));
    settle();
    EXPECT_EQ(shownPage(), 0);
}

TEST_F(Pane, KeysTurnSheets)
{
    show(documents.pdf(5));
    press(Qt::Key_PageDown);
    EXPECT_EQ(shownPage(), 1);
    press(Qt::Key_End);
    EXPECT_EQ(shownPage(), 4);
    press(Qt::Key_PageDown);
    EXPECT_EQ(shownPage(), 4);
    press(Qt::Key_PageUp);
    EXPECT_EQ(shownPage(), 3);
    press(Qt::Key_Home);
    EXPECT_EQ(shownPage(), 0);
}

TEST_F(Pane, TheWheelTurnsSheetsStepByStep)
{
    show(documents.pdf(5));
    turnWheel(-15);
    EXPECT_EQ(shownPage(), 1);
    turnWheel(-5);
    turnWheel(-5);
    EXPECT_EQ(shownPage(), 1) << "two thirds of a step";
    turnWheel(-5);
    EXPECT_EQ(shownPage(), 2);
    turnWheel(15);
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(Pane, ATypedNumberShowsThatSheet)
{
    show(documents.pdf(12));
    auto *sheet = find<QSpinBox>("previewSheet");
    sheet->selectAll();
    QTest::keyClicks(sheet, QStringLiteral("11"));
    QTest::keyClick(sheet, Qt::Key_Return);
    settle();
    EXPECT_EQ(shownPage(), 10);
}

TEST_F(Pane, ReturnBehindANumberPressesNoButtonOfTheWindow)
{
    QDialog window;
    auto *column = new QVBoxLayout(&window);
    auto *print = new QPushButton;
    print->setDefault(true);
    int presses = 0;
    QObject::connect(print, &QPushButton::clicked, [&presses] { ++presses; });
    auto *inside = new PreviewPane;
    column->addWidget(inside);
    column->addWidget(print);
    inside->setDocument(documents.pdf(3));
    window.show();
    auto *sheet = inside->findChild<QSpinBox *>(QStringLiteral("previewSheet"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet->isEnabled(); }, 30'000));
    QTest::keyClick(sheet, Qt::Key_Return);
    QTest::keyClick(sheet, Qt::Key_Enter);
    EXPECT_EQ(presses, 0);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(presses, 1);
}

TEST_F(Pane, ManyQuickTurnsEndAtTheLastOne)
{
    show(documents.pdf(40));
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(view(), Qt::Key_PageDown);
    settle();
    EXPECT_EQ(shownPage(), 30);
}

TEST_F(Pane, TheFormerPictureStaysUntilTheNewOneIsThere)
{
    show(documents.pdf(2));
    look.isGrayscale = true;
    pane.setLook(look);
    EXPECT_FALSE(pane.isCurrent());
    EXPECT_FALSE(view()->side().image.isNull());
    EXPECT_FALSE(view()->side().image.isGrayscale());
    settle();
    EXPECT_TRUE(view()->side().image.isGrayscale());
}

TEST_F(Pane, TheSameLookAgainDrawsNothing)
{
    show(documents.pdf(2));
    pane.setLook(look);
    EXPECT_TRUE(pane.isCurrent());
}

TEST_F(Pane, SheetsFollowThePagesPerSheetAndStayWithinTheirNumber)
{
    show(documents.pdf(8));
    press(Qt::Key_End);
    change([](SheetLook &changed) { changed.pagesPerSheet = 4; });
    EXPECT_EQ(find<QSpinBox>("previewSheet")->text(), QStringLiteral("Sheet 2 of 2"));
    EXPECT_EQ(shownPage(), 4);
    EXPECT_EQ(view()->side().layout.pages.size(), 4u);
}

TEST_F(Pane, TheFitButtonShowsTheSheetAsLargeAsOnPaperAndWhole)
{
    show(documents.pdf(1));
    const double whole = view()->shownZoom();
    EXPECT_LT(whole, 0.5);
    EXPECT_TRUE(button("previewFit")->isChecked());
    test::user::click(button("previewFit"));
    settle();
    EXPECT_DOUBLE_EQ(view()->shownZoom(), 1.0);
    EXPECT_GT(view()->verticalScrollBar()->maximum(), 0);
    test::user::click(button("previewFit"));
    settle();
    EXPECT_DOUBLE_EQ(view()->shownZoom(), whole);
    EXPECT_EQ(view()->verticalScrollBar()->maximum(), 0);
}

TEST_F(Pane, ButtonsKeysAndWheelZoom)
{
    show(documents.pdf(1));
    const double whole = view()->shownZoom();
    test::user::click(button("previewZoomIn"));
    settle();
    const double once = view()->shownZoom();
    EXPECT_GT(once, whole);
    EXPECT_FALSE(button("previewFit")->isChecked());
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view()->shownZoom(), once);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view()->shownZoom(), once);
    turnWheel(15, Qt::ControlModifier);
    EXPECT_GT(view()->shownZoom(), once);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view()->shownZoom(), whole);
    test::user::click(button("previewZoomOut"));
    EXPECT_LT(view()->shownZoom(), whole);
}

TEST_F(Pane, ZoomHasEnds)
{
    show(documents.pdf(1));
    for (int i = 0; i < 30; ++i)
        press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view()->shownZoom(), 4.0);
    EXPECT_FALSE(button("previewZoomIn")->isEnabled());
    for (int i = 0; i < 30; ++i)
        press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view()->shownZoom(), 0.1);
    EXPECT_FALSE(button("previewZoomOut")->isEnabled());
}

TEST_F(Pane, ALargerZoomGetsASharperPicture)
{
    show(documents.pdf(1));
    const int small = view()->side().image.width();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(view()->side().image.width(), small * 1.2);
}

TEST_F(Pane, TheWheelScrollsAZoomedSheetAndTurnsAtItsEnd)
{
    show(documents.pdf(2));
    test::user::click(button("previewFit"));
    settle();
    auto *bar = view()->verticalScrollBar();
    bar->setValue(0);
    turnWheel(-15);
    EXPECT_GT(bar->value(), 0);
    EXPECT_EQ(shownPage(), 0);
    bar->setValue(bar->maximum());
    turnWheel(-15);
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(Pane, SomebodyWhoDoesNotSeeItIsToldWhatIsShown)
{
    show(documents.pdf(5));
    EXPECT_EQ(description(), "Sheet 1 of 5, Page 1, A4, portrait");
    change([](SheetLook &changed) {
        changed.pagesPerSheet = 2;
        changed.isGrayscale = true;
        changed.isMirrored = true;
    });
    EXPECT_EQ(description(), "Sheet 1 of 3, Pages 1 and 2, A4, portrait, grayscale, flipped");
    change([](SheetLook &changed) {
        changed.orientation = SheetOrientation::Landscape;
        changed.sides = Sides::Two;
        changed.copies = 3;
    });
    press(Qt::Key_PageDown);
    EXPECT_EQ(description(),
              "Sheet 1 of 2, back, Pages 3 and 4, A4, landscape, grayscale, flipped, 3 copies");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(view())->text(QAccessible::Name),
              QStringLiteral("Preview"));
}

TEST_F(Pane, TwoSidedJobsCountTheirSidesAndNameThem)
{
    look.sides = Sides::Two;
    pane.setLook(look);
    show(documents.pdf(3));
    EXPECT_EQ(find<QSpinBox>("previewSheet")->text(), QStringLiteral("Side 1 of 3"));
    EXPECT_THAT(find<QLabel>("previewCaption")->text().toStdString(), HasSubstr("front"));
    press(Qt::Key_PageDown);
    EXPECT_THAT(find<QLabel>("previewCaption")->text().toStdString(), HasSubstr("back"));
}

TEST_F(Pane, WithoutADocumentAnEmptySheetIsShown)
{
    show({});
    EXPECT_THAT(message().toStdString(), HasSubstr("No document"));
    EXPECT_EQ(view()->side().layout.size, test::kA4Points);
    EXPECT_FALSE(button("previewNext")->isEnabled());
    EXPECT_FALSE(find<QSpinBox>("previewSheet")->isEnabled());
}

TEST_F(Pane, AnEmptySheetFollowsTheLookToo)
{
    show({});
    change([](SheetLook &changed) { changed.orientation = SheetOrientation::Landscape; });
    EXPECT_EQ(view()->side().layout.size, test::kA4Points.transposed());
}

struct ProblemCase
{
    const char *name;
    QByteArray contents;
    const char *remedy;
};

class PaneProblems : public Pane, public testing::WithParamInterface<ProblemCase>
{
};

TEST_P(PaneProblems, AreToldBesideAnEmptySheetWithTheirRemedy)
{
    QSignalSpy known(&pane, &PreviewPane::pageCountKnown);
    show(documents.file(GetParam().contents));
    EXPECT_THAT(message().toStdString(), HasSubstr(GetParam().remedy));
    EXPECT_THAT(description(), HasSubstr(GetParam().remedy));
    EXPECT_EQ(view()->side().layout.size, test::kA4Points);
    EXPECT_TRUE(view()->side().image.isNull());
    EXPECT_EQ(known[0][0].toInt(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    All, PaneProblems,
    testing::Values(ProblemCase{"damaged", "%PDF-1.4 and no more", "save it again"},
                    ProblemCase{"text", "Dear reader", "can be printed all the same"},
                    ProblemCase{"postScript", "%!PS\nshowpage", "can be printed all the same"}),
    [](const auto &test) { return std::string(test.param.name); });

TEST_F(Pane, AMessageGoesWithTheDocumentThatItIsOf)
{
    show(documents.file("Dear reader"));
    EXPECT_FALSE(message().isEmpty());
    show(documents.pdf(1));
    EXPECT_EQ(message(), QString());
    EXPECT_EQ(shownPage(), 0);
    show(documents.file("Dear reader"));
    EXPECT_TRUE(view()->side().image.isNull());
}

TEST_F(Pane, ADamagedPageIsNamed)
{
    show(documents.handMadePdf({"<</Type/Catalog/Pages 2 0 R>>",
                                "<</Type/Pages/Kids[3 0 R 4 0 R]/Count 2>>",
                                "<</Type/Page/Parent 2 0 R/MediaBox[0 0 1000000000 10]>>",
                                "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]>>"}));
    EXPECT_EQ(message(), QStringLiteral("Page 1 is damaged and stays empty."));
    press(Qt::Key_PageDown);
    EXPECT_EQ(message(), QString());
}

TEST_F(Pane, RangesBeyondTheDocumentLeaveNothingToPrint)
{
    show(documents.pdf(2));
    change([](SheetLook &changed) { changed.selection.ranges = {{7, 9}}; });
    EXPECT_THAT(message().toStdString(), HasSubstr("Nothing would be printed"));
    EXPECT_TRUE(view()->side().image.isNull());
    change([](SheetLook &changed) { changed.selection.ranges = {{2, 9}}; });
    EXPECT_EQ(message(), QString());
    EXPECT_EQ(shownPage(), 1);
}

TEST_F(Pane, AHiddenPaneDrawsAsSoonAsItIsShown)
{
    pane.hide();
    pane.setDocument(documents.pdf(1));
    QSignalSpy known(&pane, &PreviewPane::pageCountKnown);
    ASSERT_TRUE(known.wait());
    EXPECT_TRUE(view()->side().image.isNull());
    pane.show();
    settle();
    EXPECT_FALSE(view()->side().image.isNull());
}

TEST_F(Pane, FitsBesideTheSettingsAndHasNoFaultOfLayout)
{
    show(documents.pdf(12));
    pane.resize(pane.minimumSizeHint());
    settle();
    EXPECT_LE(pane.minimumSizeHint().width(), 260);
    EXPECT_LE(pane.minimumSizeHint().height(), 420);
    EXPECT_THAT(test::layout::outside(pane), IsEmpty());
    EXPECT_THAT(test::layout::overlapping(pane), IsEmpty());
    EXPECT_THAT(test::layout::clipped(pane), IsEmpty());
    EXPECT_THAT(test::layout::nameless(pane), IsEmpty());
    EXPECT_THAT(test::layout::againstReadingOrder(pane), IsEmpty());
}

} // namespace
} // namespace dialog
