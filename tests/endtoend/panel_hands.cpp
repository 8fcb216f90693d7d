#include "tests/endtoend/panel_hands.h"

#include "dialog/replay/input.h"
#include "platform/controls/modal_session.h"
#include "platform/controls/radio_matrix.h"
#include "platform/controls/stepper.h"
#include "tests/support/print_to.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace test {

using dialog::Choice;
namespace input = dialog::replay::input;

namespace {

constexpr const char *kQuality = "com.korvane.print.pde.KorvanePDEKind";
constexpr const char *kOther = "com.Others.print.pde.BramoPDEKind";

struct ControlOfOption
{
    const char *option;
    const char *control;
    const char *panelKind;
};

// clang-format off
constexpr ControlOfOption kControls[] = {
    {"PrintQuality",        "ibPrintQuality",        kQuality},
    {"MediaType",           "ibPaperType",           kQuality},
    {"PaperSource",         "ibPaperSource",         kQuality},
    {"ColorOutput",         "ibColorOutput",         kQuality},
    {"InkToUse",            "ibInkToUse",            kQuality},
    {"TonerSave",           "ibTonerSave",           kQuality},
    {"Sharpen",             "ibSharpen",             kQuality},
    {"Mirror",              "ibMIrror",              kQuality},
    {"ColorPreferences",    "ibColorPreferences",    kQuality},
    {kTypedThreshold,       "ibThresholdTextFeild",  kQuality},
    {"Threshold",           "ibThresholdStepper",    kQuality},
    {"HalftoneLevel",       "ibHalftone",            kQuality},
    {"ICCTestChartProcess", "ibUseICCTestChart",     kQuality},
    {"DupDryTime",          "ibDryTimePopUp",        kQuality},
    {"DupDryTime",          "ibDryTimeCheckBox",     kQuality}, // where the other one is hidden
    {"ImprovementSettings", "ibImprovementSettings", kOther},
    {"ImprovePrintQuality", "ibImprovePrintQuality", kOther},
    {"ReduceGhosting",      "ibReduceGhosting",      kOther},
    {"PrintDensity",        "ibImprovePrintDensity", kOther},
};

/// The rows of the matrix.
constexpr const char *kImprovements[] = {"ReducePaperCurl", "ImproveTonerFixing",
                                         "ImproveWrinklesorCreases"};
// clang-format on

bool meansOn(const QString &word)
{
    return word == q("On") || word == q("True");
}

QRadioButton *rowOf(const RadioMatrix &matrix, const QString &improvement)
{
    const auto found = std::find_if(std::begin(kImprovements), std::end(kImprovements),
                                    [&](const char *row) { return improvement == q(row); });
    return matrix.button(static_cast<int>(found - std::begin(kImprovements)));
}

void expectDone(const QString &obstacle)
{
    EXPECT_NULL(obstacle);
    QCoreApplication::processEvents(); // what a person does next is another action
}

void clickBox(QCheckBox *box, bool isOn)
{
    if (box->isChecked() == isOn)
        expectDone(input::click(box));
    if (box->isChecked() != isOn) // no click has been refused
        expectDone(input::click(box));
}

void stepTo(Stepper *stepper, int value)
{
    const int away = value < stepper->maximum() ? value + 1 : value - 1;
    const auto step = [&](int target) {
        while (stepper->value() != target && !testing::Test::HasFatalFailure()) {
            const int before = stepper->value();
            expectDone(input::click(before < target ? stepper->upButton() : stepper->downButton()));
            ASSERT_NE(stepper->value(), before) << "the stepper stays";
        }
    };
    if (stepper->value() == value)
        step(away);
    step(value);
}

/// The window itself closes what it has opened: a pop-up's list, or a conflict window's loop.
void pickItem(QComboBox *popUp, const QString &keyword)
{
    expectDone(input::choose(popUp, popUp->findData(keyword)));
}

bool isBehindDisclosure(const QWidget *window, const QWidget *control)
{
    const auto *advanced = window->findChild<QWidget *>(q("ibAdvancedView"));
    return advanced && advanced->isAncestorOf(control) && advanced->isHidden();
}

void disclose(const QWidget *window)
{
    expectDone(input::click(window->findChild<QToolButton *>(q("ibDisclosure"))));
}

} // namespace

QString panelKindOf(const QString &option)
{
    const auto found =
        std::find_if(std::begin(kControls), std::end(kControls),
                     [&](const ControlOfOption &row) { return option == q(row.option); });
    return found == std::end(kControls) ? QString() : q(found->panelKind);
}

QWidget *controlOf(const QWidget *window, const QString &option)
{
    QWidget *control = nullptr;
    for (const ControlOfOption &row : kControls) {
        if (option == q(row.option) && (!control || control->isHidden()))
            control = window->findChild<QWidget *>(q(row.control));
    }
    return control;
}

QString shownChoice(const QWidget *window, const QString &option)
{
    const QWidget *control = controlOf(window, option);
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return popUp->currentData().toString();
    if (const auto *box = qobject_cast<const QCheckBox *>(control))
        return box->isChecked() ? q("On") : q("Off");
    if (const auto *stepper = qobject_cast<const Stepper *>(control))
        return QString::number(stepper->value());
    if (const auto *field = qobject_cast<const QLineEdit *>(control))
        return field->text();
    if (const auto *matrix = qobject_cast<const RadioMatrix *>(control))
        return q(kImprovements[matrix->selectedRow()]);
    return {};
}

QString obstacleTo(const QWidget *window, const Choice &choice)
{
    const QWidget *control = controlOf(window, choice.option);
    if (!control)
        return q("there is no control");
    if (control->isHidden())
        return q("the control is hidden");
    if (!control->isEnabled())
        return q("the control is disabled");
    const auto *popUp = qobject_cast<const QComboBox *>(control);
    return popUp && popUp->findData(choice.choice) < 0 ? q("the item is missing") : QString();
}

void choose(QWidget *window, const Choice &choice)
{
    SCOPED_TRACE((choice.option + u'=' + choice.choice).toStdString());
    ASSERT_TRUE(obstacleTo(window, choice).isNull()) << obstacleTo(window, choice).toStdString();
    QWidget *control = controlOf(window, choice.option);
    if (isBehindDisclosure(window, control))
        disclose(window);
    if (auto *popUp = qobject_cast<QComboBox *>(control))
        pickItem(popUp, choice.choice);
    else if (auto *box = qobject_cast<QCheckBox *>(control))
        clickBox(box, meansOn(choice.choice));
    else if (auto *stepper = qobject_cast<Stepper *>(control))
        stepTo(stepper, choice.choice.toInt());
    else if (auto *field = qobject_cast<QLineEdit *>(control))
        expectDone(input::type(field, choice.choice));
    else if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        expectDone(input::click(rowOf(*matrix, choice.choice)));
    else
        ADD_FAILURE() << "an unknown kind of control";
}

ConflictAnswers::ConflictAnswers(Answer answer) : answer_(answer)
{
    connect(&platform::ModalSessions::shared(), &platform::ModalSessions::opened, this,
            [this](QDialog *window) {
                windows_.append(window->objectName());
                QTimer::singleShot(0, window, [this, window] { this->answer(window); });
            });
}

void ConflictAnswers::answer(QDialog *window) const
{
    if (window->objectName() == q("ibInstructionWindow")) {
        window->close();
        return;
    }
    const QString suffix = window->objectName().mid(2).remove(q("Window")); // "MsgOne", "MsgFive"
    constexpr const char *kButtons[] = {"ibFirstButton_", "ibSecondButton_", "ibThirdButton_"};
    const QString picked = q(kButtons[static_cast<std::size_t>(answer_)]) + suffix;
    EXPECT_NULL(input::click(window->findChild<QRadioButton *>(picked)));
    EXPECT_NULL(input::click(window->findChild<QPushButton *>(q("ibOkButton_") + suffix)));
}

} // namespace test
