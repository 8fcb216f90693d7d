#include "other/kor_pde_controller3.h"

#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "platform/notification_center.h"
#include "platform/strings.h"

using namespace other;
using enum other::Setting;

namespace {

const QString kOn = QStringLiteral("On");
const QString kOff = QStringLiteral("Off");

QString improvement(int row)
{
    return QString::fromLatin1(kImprovements[static_cast<std::size_t>(row)].choice);
}

constexpr int kLastImprovement = static_cast<int>(kImprovements.size()) - 1;

QStringList improvements()
{
    QStringList choices;
    for (int row = 0; row <= kLastImprovement; ++row)
        choices.append(improvement(row));
    return choices;
}

/// Null and unknown tickets read as the last row.
int rowOfTicket(const QString &ticket)
{
    int row = 0;
    while (row < kLastImprovement && !platform::isEqual(ticket, improvement(row)))
        ++row;
    return row;
}

} // namespace

KorPDEController3::KorPDEController3(ppd_file_t *ppd, unsigned long encoding,
                                     PMPrintSettings printSetting, PMPageFormat pageFormat,
                                     const Bundle *bundle)
    : mLOcPPD(ppd), mLocEncoding(encoding), mPrintSetting(printSetting), mPageFormat(pageFormat),
      bundle_(bundle)
{
    KV_TRACE("-[KorPDEController3 initWithPPD:encoding:printSetting:andPageFormat:]");
    setSupportedPPDOptionsToPDEModel(mLOcPPD);
    setDefaultsToPDEModel();
}

KorPDEController3::~KorPDEController3()
{
    KV_TRACE("-[KorPDEController3 dealloc]");
    platform::NotificationCenter::defaultCenter().removeObserver(this);
    delete ibOthersView;
}

/// The session would go on to a conflict controller; this panel has none.
void KorPDEController3::setPrintSession(PMPrintSession session)
{
    KV_TRACE("-[KorPDEController3 setPrintSession:]");
    mPrintSession = session;
}

void KorPDEController3::setPDEPluginCallbackObject(PDEPlugInCallback *callbackObject)
{
    KV_TRACE("-[KorPDEController3 setPDEPluginCallbackObject:]");
    mPDEPluginCallbackObject = callbackObject;
}

QWidget *KorPDEController3::mainView()
{
    KV_TRACE("-[KorPDEController3 mainView]");
    if (ibOthersView)
        return ibOthersView;
    if (!platform::loadInterfaceFile(bundle_, QStringLiteral("Other"), table()).empty())
        connectActions();
    if (ibCustomView)
        ibCustomView->update();
    return ibOthersView;
}

void KorPDEController3::connectActions()
{
    using Action = void (KorPDEController3::*)(QWidget *);
    const auto connectTo = [this](auto *control, auto signal, Action action) {
        if (control)
            connect(control, signal, this, [=, this] { (this->*action)(control); });
    };
    using This = KorPDEController3;
    connectTo(box(ImprovementSettings), &QCheckBox::clicked, &This::improvementSettingAction);
    connectTo(box(ReduceGhosting), &QCheckBox::clicked, &This::reduceGhostingAction);
    connectTo(box(PrintDensity), &QCheckBox::clicked, &This::ImprovePrintDensityAction);
    connectTo(ibImprovePrintQuality.data(), &RadioMatrix::rowClicked,
              &This::improvePrintQualityAction);
}

QStringList KorPDEController3::supportedOptions() const
{
    KV_TRACE("-[KorPDEController3 supportedOptions]");
    QStringList keywords;
    for (const Setting setting :
         {ReduceGhosting, ImprovementSettings, PrintDensity, ImprovePrintQuality}) {
        if (option(setting))
            keywords.append(keyword(setting));
    }
    return keywords;
}

SummaryInfo KorPDEController3::infoForSummaryPanel() const
{
    KV_TRACE("-[KorPDEController3 infoForSummaryPanel]");
    SummaryInfo info;
    for (const Setting setting : {ImprovementSettings, PrintDensity, ReduceGhosting}) {
        if (!value(setting).isNull())
            setSummaryEntry(info, ppd::optionText(option(setting)), value(setting));
    }
    return info;
}

bool KorPDEController3::shouldShowDefaultHelp(const QString &) const
{
    KV_TRACE("-[KorPDEController3 shouldShowDefaultHelp:]");
    return true;
}

PDEModel2 *KorPDEController3::pdeModel()
{
    KV_TRACE("-[KorPDEController3 pdeModel]");
    return &pdeModel_;
}

bool KorPDEController3::isFinishedInited() const
{
    KV_TRACE("-[KorPDEController3 isFinishedInited]");
    return doneInitialized;
}

std::vector<PDEOptionControl> KorPDEController3::optionControls() const
{
    std::vector<PDEOptionControl> list;
    for (const SettingRow &row : kSettings) {
        const QWidget *control =
            row.box ? static_cast<QWidget *>(box(row.setting)) : ibImprovePrintQuality.data();
        if (!control || !option(row.setting))
            continue;
        QStringList choices;
        for (const QString &word : row.box ? QStringList{kOff, kOn} : improvements())
            choices.append(ppd::choiceKeyword(option(row.setting), qUtf8Printable(word)));
        list.push_back({keyword(row.setting), control->objectName(), choices});
    }
    return list;
}

void KorPDEController3::initializeControls()
{
    KV_TRACE("-[KorPDEController3 initializeControls]");
    if (doneInitialized)
        LogInfoBody("-[KorPDEController3 initializeControls]", __LINE__,
                    "KorPDEController3 - initializeControls - Others PDE is already Initialized");
    else
        startBoxes();
    doneInitialized = true;
}

/// The states last until updateControls(), which the panel calls next.
void KorPDEController3::startBoxes()
{
    for (const Setting setting : {ImprovementSettings, PrintDensity, ReduceGhosting}) {
        if (!option(setting))
            continue;
        const bool isOff =
            platform::isEqual(pdeTools.getOptionsDefault(keyword(setting), mLOcPPD), kOff);
        const bool onWhenOff = row(setting).start == Start::OnWhenOff;
        controls::setState(box(setting), isOff == onWhenOff ? 1 : 0);
    }
}

/// Titles are the PPD's own texts. A box without an option, and a row without a text, keep what the
/// interface file says; such a box is disabled.
void KorPDEController3::localizeLabels()
{
    KV_TRACE("-[KorPDEController3 localizeLabels]");
    for (const Setting setting : {ImprovementSettings, ReduceGhosting, PrintDensity}) {
        controls::setEnabled(box(setting), option(setting) != nullptr);
        if (option(setting))
            controls::setTitle(box(setting), ppd::optionText(option(setting)));
    }
    localizeMatrix();
}

void KorPDEController3::localizeMatrix()
{
    for (int i = 0; i <= kLastImprovement; ++i) {
        const QString text = improvementText(i);
        LogInfoBody("-[KorPDEController3 localizeLabels]", __LINE__, "%s is %s",
                    kImprovements[static_cast<std::size_t>(i)].logName,
                    qUtf8Printable(platform::described(text)));
        if (!text.isNull())
            controls::setRowTitle(ibImprovePrintQuality, i, text);
    }
}

/// From the tickets alone, whatever options there are.
void KorPDEController3::updateControls()
{
    KV_TRACE("-[KorPDEController3 updateControls]");
    const bool improves = showTicket(ImprovementSettings);
    controls::setEnabled(ibImprovePrintQuality, improves);
    controls::selectRow(ibImprovePrintQuality,
                        improves ? rowOfTicket(ticket(ImprovePrintQuality)) : 0);
    showTicket(PrintDensity);
    showTicket(ReduceGhosting);
}

/// Leaves the matrix as it is, enabled or not, whatever the keyword.
void KorPDEController3::updateControl(const QString &keyword)
{
    KV_TRACE("-[KorPDEController3 updateControl:]");
    const SettingRow *found = rowOfKeyword(kSettings, keyword);
    if (found && found->box)
        showTicket(found->setting);
}

void KorPDEController3::processMarkedPPDChoices()
{
    KV_TRACE("-[KorPDEController3 processMarkedPPDChoices]");
    updatePDEModelwithMarkedChoices(findMarkedChoicesinPPD());
    updateControls();
}

/// Switching off brings back the first improvement on screen and as value; its ticket stays.
void KorPDEController3::improvementSettingAction(QWidget *)
{
    KV_TRACE("-[KorPDEController3 improvementSettingAction:]");
    if (!option(ImprovementSettings))
        return;
    const bool on = controls::state(ibImprovementSettings) == 1;
    controls::setEnabled(ibImprovePrintQuality, on);
    if (!on) {
        controls::selectRow(ibImprovePrintQuality, 0);
        pdeModel_.setImprovePrintQuality(improvementText(0));
    }
    takeStateOfBox(ImprovementSettings);
}

void KorPDEController3::improvePrintQualityAction(QWidget *)
{
    KV_TRACE("-[KorPDEController3 improvePrintQualityAction:]");
    if (!option(ImprovePrintQuality))
        return;
    const int selected = controls::selectedRow(ibImprovePrintQuality);
    if (selected >= 0 && selected <= kLastImprovement)
        setToChoice(ImprovePrintQuality, improvement(selected));
    offer(ImprovePrintQuality);
}

void KorPDEController3::reduceGhostingAction(QWidget *)
{
    KV_TRACE("-[KorPDEController3 reduceGhostingAction:]");
    if (option(ReduceGhosting))
        takeStateOfBox(ReduceGhosting);
}

void KorPDEController3::ImprovePrintDensityAction(QWidget *)
{
    KV_TRACE("-[KorPDEController3 ImprovePrintDensityAction:]");
    if (option(PrintDensity))
        takeStateOfBox(PrintDensity);
}

/// Looks the options up; the three on/off settings get the ticket "Off", the improvement none.
void KorPDEController3::setSupportedPPDOptionsToPDEModel(ppd_file_t *ppd)
{
    KV_TRACE("-[KorPDEController3 setSupportedPPDOptionsToPDEModel:]");
    for (const SettingRow &row : kSettings)
        (pdeModel_.*row.slots.setOption)(pdeTools.getPPDOption(row.keyword, ppd));
    for (const Setting setting : {ReduceGhosting, PrintDensity, ImprovementSettings})
        (pdeModel_.*row(setting).slots.setTicket)(
            pdeTools.getOptionsChoice(kOff, option(setting), ChoiceString::Keyword));
}

/// All values first, then all tickets.
void KorPDEController3::setDefaultsToPDEModel()
{
    KV_TRACE("-[KorPDEController3 setDefaultsToPDEModel]");
    const auto defaultOf = [this](const SettingRow &row, ChoiceString string) {
        return pdeTools.getOptionsChoice(QString::fromLatin1(row.defaultChoice),
                                         option(row.setting), string);
    };
    for (const SettingRow &row : kSettings)
        (pdeModel_.*row.slots.setValue)(defaultOf(row, ChoiceString::Text));
    for (const SettingRow &row : kSettings)
        (pdeModel_.*row.slots.setTicket)(defaultOf(row, ChoiceString::Keyword));
}

PDEModel2 KorPDEController3::findMarkedChoicesinPPD() const
{
    KV_TRACE("-[KorPDEController3 findMarkedChoicesinPPD]");
    PDEModel2 marked;
    for (const SettingRow &row : kSettings)
        storeMarkedChoice(marked, row.slots, pdeTools, keyword(row.setting), mLOcPPD);
    return marked;
}

void KorPDEController3::updatePDEModelwithMarkedChoices(const PDEModel2 &markedChoices)
{
    KV_TRACE("-[KorPDEController3 updatePDEModelwithMarkedChoices:]");
    for (const Setting setting :
         {ImprovementSettings, PrintDensity, ReduceGhosting, ImprovePrintQuality})
        copyTicketed(pdeModel_, markedChoices, row(setting).slots);
}

void KorPDEController3::setPDEModelItemToDefault(const QString &keyword)
{
    KV_TRACE("-[KorPDEController3 setPDEModelItemToDefault:]");
    const SettingRow *found = rowOfKeyword(kSettings, keyword);
    if (found && found->box)
        setToChoice(found->setting, kOff);
}

/// The system version is never assigned here, so this always answers true and the dialog is not
/// asked: the panel hands the choices over when it saves.
bool KorPDEController3::changePPDOptionKeyValue(const QString &keyword, const QString &choice)
{
    KV_TRACE("-[KorPDEController3 changePPDOptionKeyValue:ppdChoice:]");
    constexpr qint64 kFirstVersionThatAsks = 0x1050;
    if (mOSVersion < kFirstVersionThatAsks)
        return true;
    return mPDEPluginCallbackObject->willChangePPDOptionKeyValue(keyword, choice);
}

QCheckBox *KorPDEController3::box(Setting setting) const
{
    return this->*row(setting).box;
}

ppd_option_t *KorPDEController3::option(Setting setting) const
{
    return (pdeModel_.*row(setting).slots.option)();
}

QString KorPDEController3::value(Setting setting) const
{
    return (pdeModel_.*row(setting).slots.value)();
}

QString KorPDEController3::ticket(Setting setting) const
{
    return (pdeModel_.*row(setting).slots.ticket)();
}

QString KorPDEController3::improvementText(int row) const
{
    return pdeTools.getOptionsChoice(improvement(row), option(ImprovePrintQuality),
                                     ChoiceString::Text);
}

void KorPDEController3::setToChoice(Setting setting, const QString &choice)
{
    storeChoice(pdeModel_, row(setting).slots, pdeTools, choice);
}

bool KorPDEController3::showTicket(Setting setting)
{
    const bool on = platform::isEqual(ticket(setting), kOn);
    controls::setState(box(setting), on ? 1 : 0);
    return on;
}

void KorPDEController3::takeStateOfBox(Setting setting)
{
    setToChoice(setting, controls::state(box(setting)) == 1 ? kOn : kOff);
    offer(setting);
}

void KorPDEController3::offer(Setting setting)
{
    (void)changePPDOptionKeyValue(keyword(setting), ticket(setting));
}
