#include "tests/quality/panel.h"

#include "platform/values.h"

#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

using namespace test;

namespace {

enum class State { Start, Open, ClosedAgain };

/// One look of the panel.
struct Look
{
    bool isToner;
    bool hasTray2;
    State state;
    const char *language;
    double fontScale;
};

PpdText printerOf(const Look &look)
{
    PpdText text = look.isToner ? p3() : p1();
    return text.withDefault("Tray2Option", look.hasTray2 ? "True" : "False");
}

/// The application's font, larger while this lives.
class LargerFont
{
public:
    explicit LargerFont(double factor) : former_(QApplication::font())
    {
        QFont larger = former_;
        larger.setPointSizeF(former_.pointSizeF() * factor);
        QApplication::setFont(larger);
    }
    ~LargerFont() { QApplication::setFont(former_); }

private:
    QFont former_;
};

void bring(QualityPanel &panel, State state)
{
    panel.life();
    panel.controls().ibPDEView->show();
    if (state != State::Start)
        panel.click(panel.controls().ibDisclosure);
    if (state == State::ClosedAgain)
        panel.click(panel.controls().ibDisclosure);
    QCoreApplication::sendPostedEvents();
}

/// The panel's visible controls, top to bottom as in the file.
QList<QWidget *> visibleControls(const QWidget *panel)
{
    QList<QWidget *> found;
    for (QWidget *widget : panel->findChildren<QWidget *>())
        if (widget->objectName().startsWith(u"ib") && !qobject_cast<FrameView *>(widget) &&
            widget->isVisible())
            found.append(widget);
    return found;
}

QRect inPanel(const QWidget *panel, const QWidget *control)
{
    return {control->mapTo(panel, QPoint()), control->size()};
}

void expectInsideAndApart(const QWidget *panel)
{
    const QList<QWidget *> controls = visibleControls(panel);
    for (qsizetype i = 0; i < controls.size(); ++i) {
        const QRect frame = inPanel(panel, controls[i]);
        const std::string name = controls[i]->objectName().toStdString();
        EXPECT_TRUE(panel->rect().contains(frame)) << name;
        EXPECT_GE(frame.height(), controls[i]->minimumSizeHint().height()) << name;
        EXPECT_GE(frame.width(), controls[i]->minimumSizeHint().width()) << name;
        if (qobject_cast<QComboBox *>(controls[i])) {
            EXPECT_GE(frame.width(), controls[i]->sizeHint().width()) << name;
        }
        for (qsizetype j = 0; j < i; ++j)
            EXPECT_FALSE(frame.intersects(inPanel(panel, controls[j])))
                << name << " and " << controls[j]->objectName().toStdString();
    }
}

/// No gap between two neighbouring rows of a column is as high as a row.
void expectNoHole(const QWidget *panel, const QWidget *column)
{
    QList<QRect> rows;
    for (const QWidget *control : visibleControls(panel))
        if (column->isAncestorOf(control))
            rows.append(inPanel(panel, control));
    std::sort(rows.begin(), rows.end(), [](QRect a, QRect b) { return a.top() < b.top(); });
    int bottom = rows.isEmpty() ? 0 : rows.first().top();
    for (const QRect &row : rows) {
        EXPECT_LT(row.top() - bottom, row.height());
        bottom = std::max(bottom, row.bottom());
    }
}

std::vector<Look> everyLook()
{
    std::vector<Look> looks;
    for (const bool isToner : {false, true})
        for (const bool hasTray2 : {true, false})
            for (const State state : {State::Start, State::Open, State::ClosedAgain})
                for (const char *language : {"en", "de", "ja"})
                    for (const double scale : {1.0, 1.5})
                        looks.push_back({isToner, hasTray2, state, language, scale});
    return looks;
}

} // namespace

TEST(Geometry, NothingIsCutOffOrOverlapsInAnyState)
{
    for (const Look &look : everyLook()) {
        SCOPED_TRACE(testing::Message()
                     << (look.isToner ? "toner" : "ink") << " tray2 " << look.hasTray2 << " state "
                     << int(look.state) << " " << look.language << " x" << look.fontScale);
        const LargerFont font(look.fontScale);
        platform::setPreferredLanguages({q(look.language)});
        QualityPanel panel(printerOf(look), {.version = 0x105F});
        bring(panel, look.state);
        const QWidget *view = panel.controls().ibPDEView;
        expectInsideAndApart(view);
        expectNoHole(view, panel.controls().ibHeaderView);
        EXPECT_GE(view->width(), 440);
        EXPECT_EQ(view->height(), view->sizeHint().height());
    }
}

TEST(Geometry, ClosingGivesTheHeightBack)
{
    QualityPanel start(p1());
    bring(start, State::Start);
    QualityPanel closed(p1());
    bring(closed, State::ClosedAgain);
    EXPECT_EQ(start.controls().ibPDEView->size(), closed.controls().ibPDEView->size());
}

TEST(Geometry, OpeningChangesTheHeightAlone)
{
    QualityPanel start(p1());
    bring(start, State::Start);
    QualityPanel open(p1());
    bring(open, State::Open);
    EXPECT_EQ(start.controls().ibPDEView->width(), open.controls().ibPDEView->width());
    EXPECT_LT(start.controls().ibPDEView->height(), open.controls().ibPDEView->height());
}

TEST(Geometry, TheRowsOfTheTwoColumnsStandSideBySide)
{
    QualityPanel ink(p1());
    QualityPanel toner(p3());
    for (QualityPanel *panel : {&ink, &toner})
        bring(*panel, State::Open);
    const std::pair<QWidget *, QWidget *> neighbours[] = {
        {ink.controls().ibColorOutput, ink.controls().ibColorPreferences},
        {ink.controls().ibInkToUse, ink.controls().ibUseICCTestChart},
        {ink.controls().ibSharpen, ink.controls().ibDryTimePopUp},
        {toner.controls().ibColorOutput, toner.controls().ibThresholdTextFeild},
        {toner.controls().ibTonerSave, toner.controls().ibHalftone},
        {toner.controls().ibSharpen, toner.controls().ibDryTimePopUp},
    };
    for (const auto &[left, right] : neighbours)
        EXPECT_NEAR(inPanel(left->window(), left).center().y(),
                    inPanel(right->window(), right).center().y(), 1)
            << left->objectName().toStdString();
}

TEST(Geometry, AMissingTrayTakesItsRowAway)
{
    PpdText text = p1();
    QualityPanel with(p1());
    bring(with, State::Start);
    QualityPanel without(text.withDefault("Tray2Option", "False"));
    bring(without, State::Start);
    EXPECT_LT(without.controls().ibPDEView->height(), with.controls().ibPDEView->height());
}

TEST(Geometry, AHigherPanelKeepsTheHeaderOnTopAndTheRestAtTheBottom)
{
    QualityPanel panel(p1());
    bring(panel, State::Open);
    QWidget *view = panel.controls().ibPDEView;
    view->resize(view->width(), view->height() + 100);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(panel.controls().ibHeaderView->y(), 0);
    EXPECT_EQ(panel.controls().ibAdvancedView->geometry().bottom(), view->rect().bottom());
}

TEST(Geometry, TheTabKeyGoesDownEachColumn)
{
    QualityPanel panel(p3(), {.version = 0x105F});
    bring(panel, State::Open);
    QStringList order;
    QWidget *first = panel.controls().ibPrintQuality;
    QWidget *next = first;
    do {
        if (next->objectName().startsWith(u"ib") && next->isVisible() &&
            (next->focusPolicy() & Qt::TabFocus) != 0)
            order.append(next->objectName());
        next = next->nextInFocusChain();
    } while (next != first);
    EXPECT_EQ(order, QStringList({q("ibPrintQuality"), q("ibPaperType"), q("ibPaperSource"),
                                  q("ibDisclosure"), q("ibColorOutput"), q("ibTonerSave"),
                                  q("ibSharpen"), q("ibMIrror"), q("ibThresholdTextFeild"),
                                  q("ibThresholdStepper"), q("ibHalftone"), q("ibDryTimePopUp")}));
}

TEST(Geometry, ShipsAsTheInterfaceFileSays)
{
    QualityPanel panel(p1(), {.year = 2010});
    ASSERT_TRUE(panel.controller().mainView());
    QualityOutlets &c = panel.controls();
    for (const QPointer<PopUpButton> &popUp :
         {c.ibPrintQuality, c.ibPaperType, c.ibPaperSource, c.ibColorOutput, c.ibColorPreferences,
          c.ibInkToUse, c.ibHalftone, c.ibSharpen, c.ibDryTimePopUp})
        EXPECT_EQ(popUp->count(), 0) << popUp->objectName().toStdString();
    EXPECT_TRUE(c.ibPaperSource->isHidden());
    EXPECT_TRUE(c.ibPaperSourceLabel->isHidden());
    EXPECT_EQ(c.ibThresholdStepper->minimum(), 1);
    EXPECT_EQ(c.ibThresholdStepper->maximum(), 5);
    EXPECT_EQ(c.ibThresholdStepper->increment(), 1);
    EXPECT_EQ(c.ibThresholdStepper->value(), 3);
    EXPECT_TEXT(c.ibThresholdTextFeild->text(), "3");
    EXPECT_TRUE(c.ibBlackAndWhite->isHidden());
}
