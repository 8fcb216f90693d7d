// KorPDEController2: the view, its geometry and its connections.

#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "platform/strings.h"
#include "quality/geometry.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

#include <QEvent>
#include <QJsonArray>
#include <QMouseEvent>

using namespace quality;

namespace {

using Action = void (KorPDEController2::*)(QWidget *);

struct PopUpConnection
{
    QPointer<PopUpButton> QualityOutlets::*popUp;
    Action action;
};

struct BoxConnection
{
    QPointer<QCheckBox> QualityOutlets::*box;
    Action action;
};

// clang-format off
constexpr PopUpConnection kPopUps[] = {
    {&QualityOutlets::ibPrintQuality,     &KorPDEController2::printQualityAction},
    {&QualityOutlets::ibPaperType,        &KorPDEController2::paperTypeAction},
    {&QualityOutlets::ibPaperSource,      &KorPDEController2::paperSourceAction},
    {&QualityOutlets::ibColorOutput,      &KorPDEController2::colorOutputAction},
    {&QualityOutlets::ibColorPreferences, &KorPDEController2::colorPreferencesAction},
    {&QualityOutlets::ibInkToUse,         &KorPDEController2::inkToUseAction},
    {&QualityOutlets::ibHalftone,         &KorPDEController2::halftoneAction},
    {&QualityOutlets::ibSharpen,          &KorPDEController2::sharpenAction},
    {&QualityOutlets::ibDryTimePopUp,     &KorPDEController2::dryTimePopUpAction},
};

constexpr BoxConnection kBoxes[] = {
    {&QualityOutlets::ibMIrror,          &KorPDEController2::mirrorAction},
    {&QualityOutlets::ibTonerSave,       &KorPDEController2::tonerSaveAction},
    {&QualityOutlets::ibUseICCTestChart, &KorPDEController2::ICCTestChartAction},
    {&QualityOutlets::ibDryTimeCheckBox, &KorPDEController2::dryTimeCheckBoxAction},
};
// clang-format on

QJsonArray numbers(const QRectF &frame)
{
    return {frame.x(), frame.y(), frame.width(), frame.height()};
}

} // namespace

// View ----------------------------------------------------------------------------------

QWidget *KorPDEController2::mainView()
{
    KV_TRACE("-[KorPDEController2 mainView]");
    if (ibPDEView)
        return ibPDEView;
    loadInterface();
    headerViewRect = controls::frameRecord(ibHeaderView);
    advancedViewRect = controls::frameRecord(ibAdvancedView);
    if (!hasTray2Support)
        removePaperSourceRow();
    advancedViewRect.setHeight(advancedViewRect.height() + headerViewRect.height());
    if (!isRunning1050OrLater) {
        displayAdvancedOptions(true);
        controls::setState(ibDisclosure, 1);
        controls::setEnabled(ibDisclosure, false);
    } else {
        displayAdvancedOptions(false);
    }
    return ibPDEView;
}

void KorPDEController2::loadInterface()
{
    const std::vector<QWidget *> windows =
        platform::loadInterfaceFile(bundle_, QStringLiteral("QualityAndMedia"), table());
    for (QWidget *window : windows)
        if (window != ibPDEView)
            delete window;
    showDryTime();
    connectControls();
}

void KorPDEController2::removePaperSourceRow()
{
    controls::setHidden(ibPaperSourceLabel, true);
    controls::setHidden(ibPaperSource, true);
    headerViewRect.translate(0, -kHeaderDropWithoutTray2);
    advancedViewRect.setHeight(advancedViewRect.height() - kPanelLossWithoutTray2);
    controls::setFrameRecord(ibHeaderView, headerViewRect);
}

/// Part of loading the interface file, as the rest of the panel knows nothing of dry time's
/// controls: shows the one that the printer has, with its choices in the PPD's order and the marked
/// one selected.
void KorPDEController2::showDryTime()
{
    if (const ppd_option_t *option = pdeModel_->dryTimePopUpOption()) {
        fillPopUp(Setting::DupDryTime);
        controls::selectItemWithTitle(ibDryTimePopUp, markedDryTime(ChoiceString::Text));
        controls::setText(ibDryTimeLabel, ppd::optionText(option) + u':');
        controls::setHidden(ibDryTimePopUp, false);
        controls::setHidden(ibDryTimeLabel, false);
    } else if (const ppd_option_t *box = pdeModel_->dryTimeCheckBoxOption()) {
        controls::setTitle(ibDryTimeCheckBox, ppd::optionText(box));
        const bool isOn =
            platform::isEqual(markedDryTime(ChoiceString::Keyword), QLatin1String(kTrueFalse.on));
        controls::setState(ibDryTimeCheckBox, isOn ? 1 : 0);
        controls::setHidden(ibDryTimeCheckBox, false);
    }
}

QString KorPDEController2::markedDryTime(ChoiceString flag) const
{
    return pdeTools->getPPDMarkedChoice(keyword(Setting::DupDryTime), mLOcPPD, flag);
}

void KorPDEController2::displayAdvancedOptions(bool show)
{
    KV_TRACE("-[KorPDEController2 displayAdvancedOptions:]");
    if (show)
        headerViewRect.moveTop(kOpenHeaderY);
    controls::setHidden(ibAdvancedView, !show);
    controls::setFrameSize(ibPDEView, show ? advancedViewRect.size() : headerViewRect.size());
    // Hiding deliberately leaves the header where it is.
    if (show)
        controls::setFrameOrigin(ibHeaderView, headerViewRect.topLeft());
    projectFrames(ibPDEView);
    if (ibPDEView)
        ibPDEView->update();
}

QJsonObject KorPDEController2::frames() const
{
    return {
        {QStringLiteral("ibPDEView"), numbers(controls::frameRecord(ibPDEView))},
        {QStringLiteral("ibHeaderView"), numbers(controls::frameRecord(ibHeaderView))},
        {QStringLiteral("ibAdvancedView"), numbers(controls::frameRecord(ibAdvancedView))},
    };
}

// Connections ---------------------------------------------------------------------------

/// A person's input only: none of these signals comes from a change by the program.
void KorPDEController2::connectControls()
{
    const auto act = [this](QWidget *sender, Action action) {
        return [this, sender, action] { (this->*action)(sender); };
    };
    for (const auto &[popUp, action] : kPopUps)
        if (PopUpButton *control = this->*popUp)
            connect(control, &PopUpButton::activated, this, act(control, action));
    for (const auto &[box, action] : kBoxes)
        if (QCheckBox *control = this->*box)
            connect(control, &QCheckBox::clicked, this, act(control, action));
    if (ibThresholdStepper)
        connect(ibThresholdStepper, &Stepper::stepped, this,
                act(ibThresholdStepper, &KorPDEController2::thresholdStepperAction));
    beDelegateOfThresholdField();
    connectDisclosure();
}

/// A click on the triangle's label counts as one on it.
void KorPDEController2::connectDisclosure()
{
    if (!ibDisclosure)
        return;
    connect(ibDisclosure, &QToolButton::clicked, this, [this] { disclosureAction(ibDisclosure); });
    if (ibDisclosureLabel)
        ibDisclosureLabel->installEventFilter(this);
}

bool KorPDEController2::eventFilter(QObject *watched, QEvent *event)
{
    // The type first: a widget that is being destroyed sends events, too, and is no label any more.
    if (event->type() == QEvent::MouseButtonRelease && watched == ibDisclosureLabel &&
        ibDisclosure && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        ibDisclosure->click();
    return QObject::eventFilter(watched, event);
}
