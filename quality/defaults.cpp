// KorPDEController2: the options of the printer, and the defaults of the settings.

#include "diag/trace.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

using namespace quality;

namespace {

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
// clang-format on
static_assert(std::size(kSupported) == kSettingCount);

} // namespace

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
