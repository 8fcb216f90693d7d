// KorPDEController2: construction, accessors, defaults, and the hand-over between PPD and model.

#include "diag/debug_log.h"
#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/controls/controls.h"
#include "platform/notification_center.h"
#include "platform/strings.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

namespace {

/// First system version whose host asks about choices and checks the PPD's constraints itself.
constexpr int kFirstVersionThatAsks = 0x1050;
constexpr quint16 kUnknownYear = 65535;

/// UI types that PDETools2::getPPDOptionUI() answers.
constexpr int kBooleanUI = 0;
constexpr int kPickOneUI = 1;

enum class WhenAbsent { StoreNull, Skip };

struct Default
{
    Setting setting;
    WhenAbsent whenAbsent;
};

/// Where the test for "the panel handles this option" looks.
enum class Presence { Option, Value };

struct Supported
{
    Setting setting;
    Presence presence;
};

// clang-format off
/// In the order of storing. Threshold and dry time get no default.
constexpr Default kDefaults[] = {
    {Setting::PrintQuality,        WhenAbsent::StoreNull},
    {Setting::MediaType,           WhenAbsent::StoreNull},
    {Setting::PaperSource,         WhenAbsent::Skip},
    {Setting::ColorPreferences,    WhenAbsent::StoreNull}, // see storeColorPreferencesDefault()
    {Setting::InkToUse,            WhenAbsent::StoreNull},
    {Setting::ICCTestChartProcess, WhenAbsent::StoreNull},
    {Setting::ColorOutput,         WhenAbsent::StoreNull},
    {Setting::TonerSave,           WhenAbsent::StoreNull},
    {Setting::HalftoneLevel,       WhenAbsent::StoreNull},
    {Setting::Mirror,              WhenAbsent::Skip},
    {Setting::Sharpen,             WhenAbsent::StoreNull},
};

/// In the order of the answer. Colour preferences and ink are tested by value, the others by option.
constexpr Supported kSupported[] = {
    {Setting::PrintQuality,        Presence::Option},
    {Setting::MediaType,           Presence::Option},
    {Setting::PaperSource,         Presence::Option},
    {Setting::ColorPreferences,    Presence::Value},
    {Setting::InkToUse,            Presence::Value},
    {Setting::ICCTestChartProcess, Presence::Option},
    {Setting::DupDryTime,          Presence::Option}, // by year, once for each of its two options
    {Setting::ColorOutput,         Presence::Option},
    {Setting::Threshold,           Presence::Option},
    {Setting::TonerSave,           Presence::Option},
    {Setting::HalftoneLevel,       Presence::Option},
    {Setting::Sharpen,             Presence::Option},
    {Setting::Mirror,              Presence::Option},
};

/// Order in which the marked choices are collected; the threshold comes from its text field.
constexpr Setting kMarkedOrder[] = {
    Setting::MediaType,   Setting::PrintQuality, Setting::ColorPreferences, Setting::InkToUse,
    Setting::PaperSource, Setting::ColorOutput,  Setting::Threshold,        Setting::Mirror,
    Setting::Sharpen,     Setting::DupDryTime,   Setting::ICCTestChartProcess,
    Setting::TonerSave,   Setting::HalftoneLevel,
};
// clang-format on
static_assert(std::size(kSupported) == kSettingCount);
static_assert(std::size(kMarkedOrder) == kSettingCount);

ChoiceList choicesOf(const ppd_option_t *option)
{
    return {ppd::choiceKeywords(option), ppd::choiceTexts(option)};
}

void reportMissing(Setting setting)
{
    LogErrorBody("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]", __LINE__,
                 "the printer lacks the option %s", row(setting).keyword);
}

void report(const std::optional<UnusualChoice> &unusual)
{
    if (unusual)
        LogErrorBody("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]",
                     __LINE__, "option %s: the choice %s is not what the panel's rules assume",
                     qUtf8Printable(unusual->option),
                     qUtf8Printable(platform::described(unusual->choice)));
}

} // namespace

KorPDEController2::KorPDEController2(ppd_file_t *ppd, unsigned long encoding,
                                     PMPrintSettings printSetting, PMPageFormat pageFormat,
                                     const Bundle *bundle)
    : pdeModel_(std::make_shared<PDEModel2>()), conflictModel_(pdeModel_), mLOcPPD(ppd),
      mLocEncoding(encoding), mPrintSetting(printSetting), mPageFormat(pageFormat), bundle_(bundle)
{
    KV_TRACE("-[KorPDEController2 initWithPPD:encoding:printSetting:andPageFormat:]");
    pdeTools = std::make_unique<PDETools2>();
    isRunning1050OrLater = pdeTools->isRunningOn105OrLater();
    mProductYear = ppd ? pdeTools->getProductYear(pdeTools->getPlistPath(ppd)) : kUnknownYear;
    mOSVersion = pdeTools->OSVersion();
    setSupportedPPDOptionsToPDEModel(ppd);
    setDefaultsToPDEModel();
    hasTray2Support = platform::isEqual(
        pdeTools->getPPDMarkedChoice(QStringLiteral("Tray2Option"), ppd, ChoiceString::Keyword),
        QStringLiteral("True"));
    conflictController = std::make_unique<KorConflictController2>(
        mPrintSetting, mPageFormat, mLOcPPD, conflictModel_.get(), bundle_);
    platform::NotificationCenter::defaultCenter().addObserver(
        this, ConflictControllerChangeNotification,
        [this](const platform::Notification &) { updateControls(); });
    reportUnusualPPD();
}

KorPDEController2::~KorPDEController2()
{
    KV_TRACE("-[KorPDEController2 dealloc]");
    pdeTools.reset();
    conflictController.reset();
    platform::NotificationCenter::defaultCenter().removeObserver(this);
    delete ibPDEView.data();
}

/// One error record for each option whose absence or choices the rules do not expect. The rules
/// stay as they are.
void KorPDEController2::reportUnusualPPD() const
{
    for (const RowPlan &plan : requiredRowsPlan(optionsOfPrinter()))
        if (plan.fate == RowFate::Hidden)
            reportMissing(plan.row);
    for (const Setting setting :
         {Setting::Mirror, Setting::TonerSave, Setting::ICCTestChartProcess})
        if (hasOption(setting))
            report(unusualSwitch(keyword(setting), choicesOf(optionOf(setting))));
    if (hasOption(Setting::InkToUse))
        report(unusualInk(choicesOf(optionOf(Setting::InkToUse))));
    if (hasOption(Setting::ColorOutput))
        report(unusualColorOutput(choicesOf(optionOf(Setting::ColorOutput)), hostGrayscale()));
    reportUnusualLabels();
}

/// Labels that are compared with a fixed word: mirror's and toner save's "Off", halftone's
/// "Dither".
void KorPDEController2::reportUnusualLabels() const
{
    for (const Setting setting : {Setting::Mirror, Setting::TonerSave, Setting::HalftoneLevel})
        if (hasOption(setting))
            report(unusualLabel(keyword(setting), defaultChoice(setting), defaultChoice(setting),
                                choicesOf(optionOf(setting))));
}

// Accessors
// ----------------------------------------------------------------------------------------

void KorPDEController2::setPrintSession(PMPrintSession session)
{
    KV_TRACE("-[KorPDEController2 setPrintSession:]");
    mPrintSession = session;
    if (session)
        conflictController->setPrintSession(session);
}

void KorPDEController2::setPDEPluginCallbackObject(PDEPlugInCallback *callback)
{
    KV_TRACE("-[KorPDEController2 setPDEPluginCallbackObject:]");
    mPDEPluginCallbackObject = callback;
}

PDEModel2 *KorPDEController2::pdeModel()
{
    KV_TRACE("-[KorPDEController2 pdeModel]");
    return pdeModel_.get();
}

void KorPDEController2::setPDEModel(std::shared_ptr<PDEModel2> model)
{
    KV_TRACE("-[KorPDEController2 setPDEModel:]");
    pdeModel_ = std::move(model);
}

bool KorPDEController2::isFinishedInited()
{
    KV_TRACE("-[KorPDEController2 isFinishedInited]");
    return doneInitialized;
}

bool KorPDEController2::isMirrorManuallySet()
{
    KV_TRACE("-[KorPDEController2 isMirrorManuallySet]");
    return isMirrorManuallySet_;
}

void KorPDEController2::setIsMirrorManuallySet(bool isSet)
{
    KV_TRACE("-[KorPDEController2 setIsMirrorManuallySet:]");
    isMirrorManuallySet_ = isSet;
}

bool KorPDEController2::isMirrorSetDuringPreset()
{
    KV_TRACE("-[KorPDEController2 isMirrorSetDuringPreset]");
    return isMirrorSetDuringPreset_;
}

void KorPDEController2::setIsMirrorSetDuringPreset(bool isSet)
{
    KV_TRACE("-[KorPDEController2 setIsMirrorSetDuringPreset:]");
    isMirrorSetDuringPreset_ = isSet;
}

int KorPDEController2::osVersionOnUse()
{
    KV_TRACE("-[KorPDEController2 osVersionOnUse]");
    return mOSVersion;
}

void KorPDEController2::setOSVersion(int version)
{
    KV_TRACE("-[KorPDEController2 setOSVersion:]");
    mOSVersion = version;
}

quint16 KorPDEController2::productYearOnUse()
{
    KV_TRACE("-[KorPDEController2 productYearOnUse]");
    return mProductYear;
}

void KorPDEController2::setProductYear(quint16 year)
{
    KV_TRACE("-[KorPDEController2 setProductYear:]");
    mProductYear = year;
}

// The model's settings
// -----------------------------------------------------------------------------

ppd_option_t *KorPDEController2::optionOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.option)();
}

bool KorPDEController2::hasOption(Setting setting) const
{
    return optionOf(setting) != nullptr;
}

SettingSet KorPDEController2::optionsOfPrinter() const
{
    SettingSet options;
    for (const SettingRow &row : kSettings)
        if (hasOption(row.setting))
            options.insert(row.setting);
    return options;
}

QString KorPDEController2::valueOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.value)();
}

QString KorPDEController2::ticketOf(Setting setting) const
{
    return (pdeModel_.get()->*row(setting).slots.ticket)();
}

void KorPDEController2::storeSetting(Setting setting, const QString &choice)
{
    storeChoice(*pdeModel_, row(setting).slots, *pdeTools, choice);
}

void KorPDEController2::storeStrings(Setting setting, const QString &value, const QString &ticket)
{
    (pdeModel_.get()->*row(setting).slots.setValue)(value);
    (pdeModel_.get()->*row(setting).slots.setTicket)(ticket);
}

// Options and defaults
// -----------------------------------------------------------------------------

void KorPDEController2::setSupportedPPDOptionsToPDEModel(ppd_file_t *ppd)
{
    KV_TRACE("-[KorPDEController2 setSupportedPPDOptionsToPDEModel:]");
    for (const SettingRow &row : kSettings)
        if (row.setting != Setting::DupDryTime)
            (pdeModel_.get()->*row.slots.setOption)(pdeTools->getPPDOption(row.keyword, ppd));
    if (mProductYear < kFirstYearWithoutDryTime)
        setDryTimeOption(ppd);
}

/// Dry time has two slots; its UI type says which of them the printer's option goes to.
void KorPDEController2::setDryTimeOption(ppd_file_t *ppd)
{
    const SettingRow &dryTime = row(Setting::DupDryTime);
    const int ui = pdeTools->getPPDOptionUI(keyword(Setting::DupDryTime), ppd);
    if (ui == kPickOneUI)
        pdeModel_->setDryTimePopUpOption(pdeTools->getPPDOption(dryTime.keyword, ppd));
    else if (ui == kBooleanUI)
        pdeModel_->setDryTimeCheckBoxOption(pdeTools->getPPDOption(dryTime.keyword, ppd));
}

void KorPDEController2::setDefaultsToPDEModel()
{
    KV_TRACE("-[KorPDEController2 setDefaultsToPDEModel]");
    for (const Default &entry : kDefaults) {
        if (entry.whenAbsent == WhenAbsent::Skip && !hasOption(entry.setting))
            continue;
        if (entry.setting == Setting::ColorPreferences)
            storeColorPreferencesDefault();
        else
            storeSetting(entry.setting, defaultChoice(entry.setting));
    }
}

/// The value is colour preferences' own; the ticket is deliberately print quality's.
void KorPDEController2::storeColorPreferencesDefault()
{
    const QString choice = defaultChoice(Setting::ColorPreferences);
    storeStrings(
        Setting::ColorPreferences,
        pdeTools->getOptionsChoice(choice, optionOf(Setting::ColorPreferences), ChoiceString::Text),
        pdeTools->getOptionsChoice(choice, optionOf(Setting::PrintQuality), ChoiceString::Keyword));
}

void KorPDEController2::setPDEModelItemToDefault(const QString &name)
{
    KV_TRACE("-[KorPDEController2 setPDEModelItemToDefault:]");
    const std::optional<Setting> setting = settingOf(name);
    if (!setting || (setting == Setting::PaperSource && !hasOption(*setting)))
        return;
    switch (*setting) {
    case Setting::DupDryTime:
        return resetDryTime();
    case Setting::Threshold:
        return storeStrings(*setting, defaultChoice(*setting), defaultChoice(*setting));
    default:
        return storeSetting(*setting, defaultChoice(*setting));
    }
}

/// A check box gets the value of its "False" choice, but the ticket of the pop-up's "Automatic",
/// which such a printer does not have: null, deliberately.
void KorPDEController2::resetDryTime()
{
    if (hasOption(Setting::DupDryTime))
        return storeSetting(Setting::DupDryTime, defaultChoice(Setting::DupDryTime));
    ppd_option_t *box = pdeModel_->dryTimeCheckBoxOption();
    if (!box)
        return;
    storeStrings(Setting::DupDryTime,
                 pdeTools->getOptionsChoice(QStringLiteral("False"), box, ChoiceString::Text),
                 pdeTools->getOptionsChoice(defaultChoice(Setting::DupDryTime),
                                            optionOf(Setting::DupDryTime), ChoiceString::Keyword));
}

QStringList KorPDEController2::supportedOptions()
{
    KV_TRACE("-[KorPDEController2 supportedOptions]");
    QStringList keywords;
    for (const Supported &entry : kSupported) {
        const bool isPresent = entry.presence == Presence::Value ? !valueOf(entry.setting).isNull()
                                                                 : hasOption(entry.setting);
        if (entry.setting == Setting::DupDryTime)
            keywords.append(supportedDryTime());
        else if (isPresent)
            keywords.append(keyword(entry.setting));
    }
    return keywords;
}

QStringList KorPDEController2::supportedDryTime() const
{
    QStringList keywords;
    if (mProductYear >= kFirstYearWithoutDryTime)
        return keywords;
    if (pdeModel_->dryTimePopUpOption())
        keywords.append(keyword(Setting::DupDryTime));
    if (pdeModel_->dryTimeCheckBoxOption())
        keywords.append(keyword(Setting::DupDryTime));
    return keywords;
}

// Marked choices
// -----------------------------------------------------------------------------------

void KorPDEController2::processMarkedPPDChoices()
{
    KV_TRACE("-[KorPDEController2 processMarkedPPDChoices]");
    updatePDEModelwithMarkedChoices(findMarkedChoicesinPPD());
    updateControls();
}

PDEModel2 KorPDEController2::findMarkedChoicesinPPD()
{
    KV_TRACE("-[KorPDEController2 findMarkedChoicesinPPD]");
    PDEModel2 marked;
    for (const Setting setting : kMarkedOrder) {
        if (setting != Setting::Threshold)
            storeMarkedChoice(marked, row(setting).slots, *pdeTools, keyword(setting), mLOcPPD);
        else if (const QString text = controls::stringValue(ibThresholdTextFeild); !text.isNull()) {
            marked.setThreshold(text);
            marked.setThresholdTicket(text);
        }
    }
    return marked;
}

void KorPDEController2::updatePDEModelwithMarkedChoices(const PDEModel2 &marked)
{
    KV_TRACE("-[KorPDEController2 updatePDEModelwithMarkedChoices:]");
    const auto takeOver = [&](Setting setting) {
        copyTicketed(*pdeModel_, marked, row(setting).slots);
    };
    takeOver(Setting::PrintQuality);
    takeOverColorPreferences(marked);
    takeOverInkToUse(marked);
    takeOver(Setting::MediaType);
    takeOver(Setting::PaperSource);
    takeOverColorOutput(marked);
    takeOverMirror(marked);
    for (const Setting setting :
         {Setting::Sharpen, Setting::DupDryTime, Setting::ICCTestChartProcess, Setting::TonerSave,
          Setting::HalftoneLevel, Setting::Threshold})
        takeOver(setting);
}

/// Tested by its value; its ticket is deliberately the marked print quality's.
void KorPDEController2::takeOverColorPreferences(const PDEModel2 &marked)
{
    if (!marked.colorPreferences().isNull())
        storeStrings(Setting::ColorPreferences, marked.colorPreferences(),
                     marked.printQualityTicket());
}

/// Tested by its value.
void KorPDEController2::takeOverInkToUse(const PDEModel2 &marked)
{
    if (marked.inkToUse().isNull())
        return;
    fillInkToUse(kBlackModeInks);
    storeStrings(Setting::InkToUse, marked.inkToUse(), marked.inkToUseTicket());
}

void KorPDEController2::takeOverColorOutput(const PDEModel2 &marked)
{
    if (marked.colorOutputTicket().isNull())
        return;
    copyTicketed(*pdeModel_, marked, row(Setting::ColorOutput).slots);
    const bool isColor = platform::isEqual(marked.colorOutput(), QStringLiteral("Color"));
    controls::setState(ibUseICCTestChart, isColor ? 1 : 0);
    controls::setEnabled(ibColorPreferences, isColor);
    controls::setEnabled(ibUseICCTestChart, isColor);
}

/// A PPD without a marked mirror choice resets mirror.
void KorPDEController2::takeOverMirror(const PDEModel2 &marked)
{
    if (marked.mirrorTicket().isNull())
        return storeMirrorWord(QStringLiteral("Off"));
    copyTicketed(*pdeModel_, marked, row(Setting::Mirror).slots);
    isMirrorSetDuringPreset_ = platform::isEqual(pdeModel_->mirrorTicket(), QStringLiteral("On"));
}

// The host
// -----------------------------------------------------------------------------------------

bool KorPDEController2::changePPDOptionKeyValue(const QString &name, const QString &choice)
{
    KV_TRACE("-[KorPDEController2 changePPDOptionKeyValue:ppdChoice:]");
    if (mOSVersion < kFirstVersionThatAsks)
        return true;
    return mPDEPluginCallbackObject &&
           mPDEPluginCallbackObject->willChangePPDOptionKeyValue(name, choice);
}

void KorPDEController2::customConstraintOSControl()
{
    KV_TRACE("-[KorPDEController2 customConstraintOSControl]");
    if (mOSVersion < kFirstVersionThatAsks)
        conflictController->processConflict();
}

QString KorPDEController2::selectedItemFromIndex(int index, const char *key, ChoiceString flag)
{
    KV_TRACE("-[KorPDEController2 selectedItemFromIndex:withKey:andFlag:]");
    const ppd::DecodedChoice choice = ppd::choiceAt(mLOcPPD, key, index, mLocEncoding);
    return flag == ChoiceString::Keyword ? choice.keyword : choice.text;
}
