// Each check finds what it is there for, on a view that is broken in one way, and nothing else.

#include "tests/support/layout_check.h"

#include "platform/controls/stepper.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace test;
using layout::Findings;
using testing::IsEmpty;

namespace {

/// A form as it should be: two rows with labels, a box, a button.
struct View : QWidget
{
    View()
    {
        setObjectName(q("view"));
        form.addRow(&paperLabel, &paper);
        form.addRow(&copiesLabel, &copies);
        form.addRow(&mirror);
        form.addRow(&print);
        name(&paperLabel, "paperLabel");
        name(&paper, "paper");
        name(&copiesLabel, "copiesLabel");
        name(&copies, "copies");
        name(&mirror, "mirror");
        name(&print, "print");
        paper.addItems({q("Plain"), q("Thick")});
        paperLabel.setBuddy(&paper);
        copiesLabel.setBuddy(&copies);
        for (QWidget *control : std::initializer_list<QWidget *>{&paper, &copies, &mirror, &print})
            control->setToolTip(q("What it does"));
    }

    View &shown()
    {
        resize(sizeHint());
        show();
        form.activate();
        return *this;
    }

    static void name(QWidget *widget, const char *objectName)
    {
        widget->setObjectName(q(objectName));
    }

    QFormLayout form{this};
    QLabel paperLabel{q("Paper:")};
    QComboBox paper;
    QLabel copiesLabel{q("Copies:")};
    QLineEdit copies{q("1")};
    QCheckBox mirror{q("Mirror")};
    QPushButton print{q("Print")};
};

using Check = Findings (*)(const QWidget &);

QStringList blamed(const Findings &findings)
{
    QStringList names;
    for (const layout::Finding &finding : findings)
        if (!names.contains(finding.control))
            names.append(finding.control);
    return names;
}

TEST(LayoutCheck, FindsNothingInAGoodView)
{
    View view;
    view.shown();
    EXPECT_EQ(layout::controlsOf(view).size(), 6u);
    EXPECT_THAT(layout::findings(view), IsEmpty());
    EXPECT_THAT(layout::withoutToolTip(view), IsEmpty());
    EXPECT_THAT(layout::faint(view), IsEmpty());
}

TEST(LayoutCheck, LooksOnlyAtWhatIsVisible)
{
    View view;
    view.mirror.hide();
    view.shown();
    view.mirror.setGeometry(-50, -50, 1, 1);
    EXPECT_THAT(layout::findings(view), IsEmpty());
}

TEST(LayoutCheck, FindsAControlThatLeavesTheView)
{
    View view;
    view.shown();
    view.print.move(view.width() - 1, view.print.y());
    EXPECT_EQ(blamed(layout::outside(view)), QStringList({q("print")}));
    EXPECT_FALSE(layout::findings(view).empty());
}

TEST(LayoutCheck, FindsContentsThatNobodyCanScrollTo)
{
    View view;
    auto *area = new QScrollArea;
    View::name(area, "area");
    area->setWidget(new QPushButton(q("A long title of a button in a small place")));
    area->setFixedWidth(40);
    view.form.addRow(area);
    view.shown();
    EXPECT_THAT(layout::hiddenSideways(view), IsEmpty()) << "it scrolls";
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    EXPECT_EQ(blamed(layout::hiddenSideways(view)), QStringList({q("area")}));
}

TEST(LayoutCheck, FindsControlsThatShareAPixel)
{
    View view;
    view.shown();
    EXPECT_THAT(layout::overlapping(view), IsEmpty());
    view.mirror.move(view.mirror.x(), view.copies.geometry().bottom());
    EXPECT_EQ(blamed(layout::overlapping(view)), QStringList({q("copiesLabel"), q("copies")}));
}

TEST(LayoutCheck, FindsALabelWithoutRoomForItsText)
{
    View view;
    view.shown();
    view.paperLabel.resize(view.paperLabel.width(), 5);
    view.copiesLabel.resize(view.copiesLabel.sizeHint().width() - 1, view.copiesLabel.height());
    EXPECT_EQ(blamed(layout::clipped(view)), QStringList({q("paperLabel"), q("copiesLabel")}));
}

TEST(LayoutCheck, FindsAWrappedLabelThatIsTooLowOrTooNarrow)
{
    QWidget view;
    QLabel text(q("Several words that need more than one line"), &view);
    text.setWordWrap(true);
    view.show();
    text.resize(100, text.heightForWidth(100));
    EXPECT_THAT(layout::clipped(view), IsEmpty());
    text.resize(100, text.heightForWidth(100) - 1);
    EXPECT_EQ(layout::clipped(view).size(), 1u);
    text.resize(10, 1000);
    EXPECT_EQ(layout::clipped(view).size(), 1u);
}

TEST(LayoutCheck, FindsButtonsAndFieldsThatAreTooSmall)
{
    View view;
    view.shown();
    view.mirror.resize(view.mirror.sizeHint().width() - 1, view.mirror.height());
    view.print.resize(view.print.width(), view.print.sizeHint().height() - 1);
    view.copies.resize(8, view.copies.height());
    EXPECT_EQ(blamed(layout::clipped(view)), QStringList({q("copies"), q("mirror"), q("print")}));
}

TEST(LayoutCheck, FindsAPopUpThatHidesItsSelection)
{
    View view;
    view.paper.addItem(q("A very long kind of paper"));
    view.shown();
    view.paper.setFixedWidth(80);
    view.paper.setCurrentIndex(0);
    EXPECT_THAT(layout::clipped(view), IsEmpty());
    view.paper.setToolTip(QString());
    EXPECT_EQ(blamed(layout::clipped(view)), QStringList({q("paper")}));
    view.paper.setToolTip(q("The paper"));
    view.paper.setCurrentIndex(2);
    EXPECT_EQ(blamed(layout::clipped(view)), QStringList({q("paper")}));
}

TEST(LayoutCheck, FindsAHoleAboveBetweenAndBelow)
{
    for (const int row : {0, 2, 4}) {
        View view;
        view.form.insertRow(row, new QWidget);
        view.form.itemAt(row, QFormLayout::SpanningRole)->widget()->setFixedHeight(40);
        view.shown();
        EXPECT_EQ(blamed(layout::holes(view)), QStringList({q("view")})) << row;
    }
}

TEST(LayoutCheck, FindsLeftEdgesThatAlmostMeet)
{
    View view;
    view.shown();
    view.copies.move(view.copies.x() + 2, view.copies.y());
    EXPECT_EQ(blamed(layout::ragged(view)), QStringList({q("copies")}));
}

TEST(LayoutCheck, FindsWhatHasNoLabelInFrontOfIt)
{
    View view;
    view.paperLabel.setBuddy(nullptr);
    view.copiesLabel.setText(QString());
    view.shown();
    EXPECT_EQ(blamed(layout::unlabelled(view)), QStringList({q("paper"), q("copies")}));

    View crossed;
    crossed.paperLabel.setBuddy(&crossed.copies);
    crossed.copiesLabel.setBuddy(&crossed.paper);
    crossed.shown();
    EXPECT_EQ(layout::unlabelled(crossed).size(), 2u);
}

TEST(LayoutCheck, FindsWhatAScreenReaderCannotName)
{
    View view;
    view.mirror.setText(QString());
    view.copiesLabel.setBuddy(nullptr);
    auto *stepper = new Stepper;
    stepper->setObjectName(q("stepper"));
    view.form.addRow(stepper);
    view.shown();
    EXPECT_EQ(blamed(layout::nameless(view)),
              QStringList({q("copies"), q("mirror"), q("stepper")}));
}

TEST(LayoutCheck, FindsWhatHasNoToolTip)
{
    View view;
    view.mirror.setToolTip(QString());
    view.shown();
    EXPECT_EQ(blamed(layout::withoutToolTip(view)), QStringList({q("mirror")}));
    view.setToolTip(q("The whole view"));
    EXPECT_THAT(layout::withoutToolTip(view), IsEmpty());
}

TEST(LayoutCheck, FindsATabThatGoesUp)
{
    View view;
    QWidget::setTabOrder(&view.mirror, &view.copies);
    view.shown();
    EXPECT_EQ(blamed(layout::againstReadingOrder(view)), QStringList({q("copies")}));
}

TEST(LayoutCheck, MeasuresContrastAsReadersDo)
{
    EXPECT_NEAR(layout::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(layout::contrast(Qt::white, Qt::white), 1, 0.01);
    EXPECT_NEAR(layout::contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(LayoutCheck, FindsTextThatHardlyStandsOut)
{
    View view;
    QPalette palette = view.palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Window).darker(130));
    view.copiesLabel.setPalette(palette);
    view.mirror.setPalette(palette);
    view.paperLabel.setPalette(palette);
    view.paperLabel.setEnabled(false);
    view.shown();
    EXPECT_EQ(blamed(layout::faint(view)), QStringList({q("copiesLabel"), q("mirror")}));
}

TEST(LayoutCheck, PassesEveryCheckOn)
{
    View view;
    view.paperLabel.setBuddy(nullptr);
    view.shown();
    view.print.move(view.width() - 1, view.print.y());
    view.copies.move(view.copies.x() + 2, view.copies.y());
    const Findings all = layout::findings(view);
    for (const Check check : {&layout::outside, &layout::ragged, &layout::unlabelled})
        for (const layout::Finding &finding : check(view))
            EXPECT_THAT(all, testing::Contains(finding));
}

} // namespace
