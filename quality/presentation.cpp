// KorPDEController2: the view, its labels, the summary and help.

#include "diag/debug_log.h"
#include "diag/trace.h"
#include "model/pop_up_filling.h"
#include "model/ppd_records.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/help_viewer.h"
#include "platform/strings.h"
#include "platform/values.h"
#include "quality/geometry.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

#include <QEvent>
#include <QFile>
#include <QJsonArray>
#include <QMouseEvent>

#include <algorithm>

using namespace quality;

namespace {

struct DisclosureText
{
    const char *languagePiece;
    const char16_t *label;
    const char *languageInConsole;
};

// clang-format off
/// Fixed in the program. Each is tested on its own, so that the last match wins; the panel's own title,
/// by contrast, takes the first one.
constexpr DisclosureText kDisclosureTexts[] = {
    {"ja",      u"追加オプション",         "ja"},
    {"fr",      u"Options avancées",       "fr"},
    {"es",      u"Opciones avanzadas",     "es"},
    {"zh-Hans", u"高级选项",               "zh-Hans"},
    {"zh_CN",   u"高级选项",               "zh_CN"},
    {"it",      u"Opzioni avanzate",       "it"},
    {"pt",      u"Opções avançadas",       "pt"},
    {"de",      u"Erweiterte Optionen",    "pt"}, // the Portuguese line, as it has always been
};

/// In the order of the entries. Paper source and threshold have none.
constexpr Setting kSummary[] = {
    Setting::PrintQuality,
    Setting::ColorOutput,
    Setting::MediaType,
    Setting::Mirror,     // the text of the ticket's choice, not the value
    Setting::Sharpen,
    Setting::DupDryTime, // by year, under the title of either option
    Setting::ColorPreferences,
    Setting::InkToUse,
    Setting::ICCTestChartProcess,
    Setting::TonerSave,
    Setting::HalftoneLevel,
};
// clang-format on

/// Entries with a null part are left out; a title that is there already gets the later value.
void addEntry(SummaryInfo &info, const QString &title, const QString &value)
{
    if (title.isNull() || value.isNull())
        return;
    const auto same = std::find_if(info.begin(), info.end(),
                                   [&](const auto &entry) { return entry.first == title; });
    if (same != info.end())
        same->second = value;
    else
        info.emplace_back(title, value);
}

QString bookName(const QVariantMap &information)
{
    const QVariant name = information.value(QStringLiteral("CFBundleHelpBookName"));
    return name.typeId() == QMetaType::QString ? name.toString() : QString();
}

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
    using Self = KorPDEController2;
    using Action = void (Self::*)(QWidget *);
    static constexpr struct
    {
        QPointer<PopUpButton> QualityOutlets::*popUp;
        Action action;
    } kPopUps[] = {
        {&Self::ibPrintQuality, &Self::printQualityAction},
        {&Self::ibPaperType, &Self::paperTypeAction},
        {&Self::ibPaperSource, &Self::paperSourceAction},
        {&Self::ibColorOutput, &Self::colorOutputAction},
        {&Self::ibColorPreferences, &Self::colorPreferencesAction},
        {&Self::ibInkToUse, &Self::inkToUseAction},
        {&Self::ibHalftone, &Self::halftoneAction},
        {&Self::ibSharpen, &Self::sharpenAction},
        {&Self::ibDryTimePopUp, &Self::dryTimePopUpAction},
    };
    static constexpr struct
    {
        QPointer<QCheckBox> QualityOutlets::*box;
        Action action;
    } kBoxes[] = {
        {&Self::ibMIrror, &Self::mirrorAction},
        {&Self::ibTonerSave, &Self::tonerSaveAction},
        {&Self::ibUseICCTestChart, &Self::ICCTestChartAction},
        {&Self::ibDryTimeCheckBox, &Self::dryTimeCheckBoxAction},
    };
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
                act(ibThresholdStepper, &Self::thresholdStepperAction));
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

// Labels --------------------------------------------------------------------------------

void KorPDEController2::localizeLabels()
{
    KV_TRACE("-[KorPDEController2 localizeLabels]");
    const SettingSet options = optionsOfPrinter();
    carryOut(requiredRowsPlan(options));
    if (!options.contains(Setting::ColorOutput))
        controls::setEnabled(ibInkToUse, false); // what its indices mean hangs on colour output
    if (options.contains(Setting::PaperSource))
        titleRow(Setting::PaperSource);
    localizeDisclosureLabel();
    carryOut(sharedPlacesPlan(options));
    if (ibSharpen && options.contains(Setting::Sharpen))
        titleRow(Setting::Sharpen);
    if (options.contains(Setting::Mirror))
        titleRow(Setting::Mirror);
    projectFrames(ibPDEView);
}

void KorPDEController2::carryOut(const std::vector<RowPlan> &plans)
{
    for (const RowPlan &plan : plans) {
        if (plan.fate == RowFate::Titled)
            titleRow(plan.row);
        else
            hideRow(plan.row);
    }
}

QLabel *KorPDEController2::labelOf(Setting setting) const
{
    const auto label = row(setting).label;
    return label ? (this->*label).data() : nullptr;
}

/// A label ends with a colon; a check box without one bears the title itself.
void KorPDEController2::titleRow(Setting setting)
{
    const QString text = ppd::optionText(optionOf(setting));
    controls::setText(labelOf(setting), text + u':');
    if (!row(setting).label)
        controls::setTitle(boxOf(setting), text);
}

void KorPDEController2::hideRow(Setting setting)
{
    controls::setHidden(labelOf(setting), true);
    for (QWidget *control : controlsOf(setting))
        controls::setHidden(control, true);
}

void KorPDEController2::localizeDisclosureLabel()
{
    if (!ibDisclosureLabel || !bundle_)
        return;
    const QString language = platform::firstPreferredLanguage();
    platform::writeConsole(QStringLiteral("Current locale: ") +
                           platform::described(platform::localeIdentifier()) + u'\n');
    for (const DisclosureText &text : kDisclosureTexts) {
        if (!platform::containsText(language, QLatin1String(text.languagePiece)))
            continue;
        controls::setText(ibDisclosureLabel, QString::fromUtf16(text.label));
        platform::writeConsole(QStringLiteral("Inside the loop of the ") +
                               QLatin1String(text.languageInConsole) + QStringLiteral(" locale\n"));
    }
}

// Summary -------------------------------------------------------------------------------

SummaryInfo KorPDEController2::infoForSummaryPanel()
{
    KV_TRACE("-[KorPDEController2 infoForSummaryPanel]");
    SummaryInfo info;
    for (const Setting setting : kSummary) {
        if (setting == Setting::DupDryTime)
            addDryTime(info);
        else
            addEntry(info, ppd::optionText(optionOf(setting)),
                     setting == Setting::Mirror ? textOfMirrorTicket() : valueOf(setting));
    }
    return info;
}

QString KorPDEController2::textOfMirrorTicket() const
{
    return pdeTools->getOptionsChoice(pdeModel_->mirrorTicket(), optionOf(Setting::Mirror),
                                      ChoiceString::Text);
}

void KorPDEController2::addDryTime(SummaryInfo &info) const
{
    if (mProductYear >= kFirstYearWithoutDryTime)
        return;
    addEntry(info, ppd::optionText(pdeModel_->dryTimePopUpOption()), pdeModel_->dryTime());
    addEntry(info, ppd::optionText(pdeModel_->dryTimeCheckBoxOption()), pdeModel_->dryTime());
}

// Help ----------------------------------------------------------------------------------

bool KorPDEController2::shouldShowDefaultHelp(const QString &helpPath)
{
    static constexpr char kSelector[] = "-[KorPDEController2 shouldShowDefaultHelp:]";
    KV_TRACE(kSelector);
    LogInfoBody(kSelector, __LINE__, "helpPath: %s", qUtf8Printable(platform::described(helpPath)));
    const QString realPath = platform::resolved(helpPath);
    const std::unique_ptr<Bundle> book = Bundle::bundleWithPath(realPath);
    const QVariantMap information = book ? book->infoDictionary() : QVariantMap();
    if (information.isEmpty())
        LogErrorBody(kSelector, __LINE__, "Error: No Dictionary for help path");
    helpDirectory_.reset(opendir(QFile::encodeName(realPath).constData()));
    if (!helpDirectory_) {
        LogErrorBody(kSelector, __LINE__, "Error: No Help Path in directory");
        return true;
    }
    AHGotoPage(bookName(information), QString(), QString());
    return false;
}
