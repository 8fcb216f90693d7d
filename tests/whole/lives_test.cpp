#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "platform/notification_center.h"
#include "tests/conflict/modal_script.h"
#include "tests/platform/controls/wheel.h"
#include "tests/plugin/life.h"
#include "tests/whole/damage.h"
#include "tests/whole/hands.h"
#include "tests/whole/many_lives.h"

#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace test;

namespace {

constexpr int kVersions[] = {0x1049, 0x1050, 0x1059, 0x1060};

std::vector<PpdText> allPrinters()
{
    return {p1(), p1c(), p1s(), p2(), p2m(), p3(), everything(), withoutEverything().ppd};
}

/// A life whose Other panel is there wherever its options are.
LifeOptions on(const PpdText &ppd, int version = 0x1060)
{
    return {.ppd = ppd, .hasOtherPanel = true, .systemVersion = version};
}

/// What the panels hold.
QJsonArray models(const Life &life)
{
    QJsonArray all;
    for (const auto &panel : *life.panels)
        all.append(panel->diagnostics()->model());
    return all;
}

QWidgetList allControls(const Life &life)
{
    QWidgetList controls;
    for (const auto &panel : *life.panels)
        controls += controlsOf(panel->panelView());
    return controls;
}

/// As a program changes a control: by its setters.
void changeByProgram(QWidget *control)
{
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        popUp->setCurrentIndex(popUp->currentIndex() == 0 ? popUp->count() - 1 : 0);
    else if (auto *stepper = qobject_cast<Stepper *>(control))
        stepper->setValue(stepper->value() == 5 ? 1 : 5);
    else if (auto *field = qobject_cast<QLineEdit *>(control))
        field->setText(q("5"));
    else if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        matrix->selectRow(2);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        button->setChecked(!button->isChecked());
}

QStringList statesOf(const Life &life)
{
    QStringList states;
    for (const auto &panel : *life.panels)
        states += controlStates(panel->panelView());
    return states;
}

} // namespace

TEST(Lives, CreationRestoringAndShowingOfferNothing)
{
    for (const PpdText &ppd : allPrinters()) {
        for (const int version : kVersions) {
            const ModalScript nobody({});
            Life life(on(ppd, version));
            life.show();
            EXPECT_EQ(lines(life.host.offers), QStringList());
            EXPECT_EQ(life.host.resizes, 0);
        }
    }
}

TEST(Lives, Actions_44_AProgramsChangeOfAnyControlOffersAndStoresNothing)
{
    for (const PpdText &ppd : {p1(), p1c(), everything()}) {
        for (const int version : kVersions) {
            const ModalScript nobody({});
            const Life life(on(ppd, version));
            const QJsonArray before = models(life);
            for (QWidget *control : allControls(life)) {
                changeByProgram(control);
                EXPECT_EQ(models(life), before) << control->objectName().toStdString();
            }
            EXPECT_EQ(lines(life.host.offers), QStringList());
        }
    }
}

TEST(Lives, TheWheelOverAnyControlWithoutTheFocusChangesNothing)
{
    int turned = 0;
    for (const PpdText &ppd : {p1(), p1c(), everything()}) {
        const Life life(on(ppd, 0x1059));
        for (const auto &panel : *life.panels)
            openAdvanced(panel->panelView());
        const QJsonArray before = models(life);
        const QStringList states = statesOf(life);
        for (QWidget *control : allControls(life)) {
            if (!isUsable(control) || control->hasFocus())
                continue;
            for (const int delta : {kNotch, -kNotch, -kNotch})
                turnWheel(control, delta);
            ++turned;
            EXPECT_EQ(models(life), before) << control->objectName().toStdString();
            EXPECT_EQ(statesOf(life), states) << control->objectName().toStdString();
        }
        EXPECT_EQ(lines(life.host.offers), QStringList());
    }
    EXPECT_GT(turned, 20);
}

TEST(Lives, AHundredKeepNoMemory)
{
    expectNoMemoryKeptAfter(100);
}

TEST(Lives, AHundredLeaveNothingBehind)
{
    expectNothingLeftAfter(100);
}

TEST(Lives, ADialogHearsNothingOfAnotherOnesOffers)
{
    Life one(on(p1()));
    Life other(on(everything()));
    const QJsonArray before = models(other);
    useEveryControl(one.panel().panelView());
    EXPECT_FALSE(one.host.offers.empty());
    EXPECT_EQ(lines(other.host.offers), QStringList());
    EXPECT_EQ(models(other), before);
}

TEST(Lives, PanelsThatTheDialogKeepsOutliveThePlugIn)
{
    const OpenPpd ppd(everything());
    const DriverRoot root;
    root.writeOtherPanelSupport(true, q("Korvane S300"));
    FakeHost host(ppd.get());
    std::shared_ptr<PDEPanelList> panels;
    {
        KorPDEPlugin2 plugIn;
        EXPECT_TRUE(plugIn.initWithBundle(pluginBundle()));
        panels = plugIn.PDEPanelsForType(kPDEPrintDialogType.toString(), &host);
    }
    ASSERT_EQ(panels->size(), 2U);
    for (const auto &panel : *panels) {
        useEveryControl(panel->panelView());
        EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
    }
    EXPECT_FALSE(host.offers.empty());
}
