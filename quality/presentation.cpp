// KorPDEController2: labels, the summary and help.

#include "diag/debug_log.h"
#include "diag/trace.h"
#include "model/ppd_records.h"
#include "platform/console.h"
#include "platform/controls/controls.h"
#include "platform/help_viewer.h"
#include "platform/strings.h"
#include "platform/values.h"
#include "quality/geometry.h"
#include "quality/kor_pde_controller.h"
#include "quality/settings_table.h"

#include <QFile>

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

QString bookName(const QVariantMap &information)
{
    const QVariant name = information.value(QStringLiteral("CFBundleHelpBookName"));
    return name.typeId() == QMetaType::QString ? name.toString() : QString();
}

} // namespace

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
            setSummaryEntry(info, ppd::optionText(optionOf(setting)),
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
    setSummaryEntry(info, ppd::optionText(pdeModel_->dryTimePopUpOption()), pdeModel_->dryTime());
    setSummaryEntry(info, ppd::optionText(pdeModel_->dryTimeCheckBoxOption()),
                    pdeModel_->dryTime());
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
