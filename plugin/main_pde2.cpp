#include "plugin/main_pde2.h"

#include "diag/trace.h"
#include "platform/console.h"
#include "platform/notification_center.h"
#include "platform/strings.h"
#include "platform/values.h"
#include "quality/settings_table.h"

using quality::row;
using quality::Setting;

namespace {

// The first match wins.
// clang-format off
constexpr FixedTitle kTitles[] = {
    {"ja",      "印刷品質/用紙の種類"},
    {"fr",      "Qualité et Papiers"},
    {"es",      "Calidad y material"},
    {"zh-Hans", "质量与介质"},
    {"zh_CN",   "质量与介质"},
    {"it",      "Qualità e Tipo di carta"},
    {"pt",      "Papel e Qualidade"},
    {"de",      "Qualität/Medien"},
};
// clang-format on

bool hasDryTime(quint16 productYear)
{
    return productYear < quality::kFirstYearWithoutDryTime;
}

bool whenPaperSourceIsThere(const SaveSituation &situation)
{
    return situation.model.paperSourceOption() != nullptr;
}

bool whenDryTimeIsThere(const SaveSituation &situation)
{
    const PDEModel2 &model = situation.model;
    return hasDryTime(situation.productYear) &&
           (model.dryTimePopUpOption() || model.dryTimeCheckBoxOption());
}

// In this order. Two localised words go ahead of the real choices of the same options; both are
// meant. The threshold is never handed over.
// clang-format off
constexpr SavedPair kSavedPairs[] = {
    {"InkToUse",            nullptr,                           "Automatic", nullptr},
    {"MediaType",           &PDEModel2::paperTypeTicket,        nullptr,    nullptr},
    {"PrintQuality",        &PDEModel2::printQualityTicket,     nullptr,    nullptr},
    {"ColorOutput",         nullptr,                           "Color",     nullptr},
    {"ColorPreferences",    &PDEModel2::colorPreferencesTicket, nullptr,    nullptr},
    {"PaperSource",         &PDEModel2::paperSourceTicket,      nullptr,    whenPaperSourceIsThere},
    {"ColorOutput",         &PDEModel2::colorOutputTicket,      nullptr,    nullptr},
    {"Mirror",              &PDEModel2::mirrorTicket,           nullptr,    nullptr},
    {"Sharpen",             &PDEModel2::imageSharpeningTicket,  nullptr,    nullptr},
    {"InkToUse",            &PDEModel2::inkToUseTicket,         nullptr,    nullptr},
    {"ICCTestChartProcess", &PDEModel2::ICCTestChartTicket,     nullptr,    nullptr},
    {"TonerSave",           &PDEModel2::tonerSaveTicket,        nullptr,    nullptr},
    {"HalftoneLevel",       &PDEModel2::halftoneTicket,         nullptr,    nullptr},
    {"DupDryTime",          &PDEModel2::dryTimeTicket,          nullptr,    whenDryTimeIsThere},
};
// clang-format on

/// The ticket stays as it is: the choice passes through the value, where its text at once takes its
/// place.
constexpr ExternalChange keepingTicket(ExternalChange change)
{
    change.slots.setTicket = change.slots.setValue;
    return change;
}

// Threshold is not among them; dry time is takeOverDryTime().
constexpr ExternalChange kExternalChanges[] = {
    externalChange(row(Setting::MediaType)),
    externalChange(row(Setting::PrintQuality)),
    keepingTicket(externalChange(row(Setting::ColorPreferences))),
    externalChange(row(Setting::PaperSource)),
    externalChange(row(Setting::ColorOutput)),
    externalChange(row(Setting::Mirror)),
    externalChange(row(Setting::ICCTestChartProcess)),
    externalChange(row(Setting::TonerSave)),
    externalChange(row(Setting::HalftoneLevel)),
    externalChange(row(Setting::Sharpen)),
    externalChange(row(Setting::InkToUse)),
};

constexpr ExternalChange kDryTimePopUpChange = externalChange(row(Setting::DupDryTime));
constexpr ExternalChange kDryTimeBoxChange{kDryTimePopUpChange.keyword, quality::kDryTimeBoxSlots};

void writeLocale()
{
    platform::writeConsole(QStringLiteral("NSLocaleLanguageCode is ") +
                           platform::described(platform::localeLanguageCode()));
    platform::writeConsole(QStringLiteral("NSLocaleLanguageIdentifier is ") +
                           platform::described(platform::localeIdentifier()));
}

} // namespace

std::shared_ptr<MainPDE2> MainPDE2::initWithCallback(PDEPlugInCallback *callback, Bundle *bundle)
{
    const std::shared_ptr<MainPDE2> panel(new MainPDE2);
    return panel->PanelObject::initWithCallback(callback, bundle) ? panel : nullptr;
}

QString MainPDE2::panelName()
{
    KV_TRACE("-[MainPDE2 panelName]");
    return takeTitle("Quality & Media", kTitles);
}

QString MainPDE2::panelKind()
{
    KV_TRACE("-[MainPDE2 panelKind]");
    return QStringLiteral("com.korvane.print.pde.KorvanePDEKind");
}

void MainPDE2::registerObserver()
{
    KV_TRACE("-[MainPDE2 registerObserver]");
    platform::NotificationCenter::defaultCenter().addObserver(
        this, PDEControllerDisclosureButtonChangedNotification,
        [this](const platform::Notification &) { panelViewIsResized(); });
}

void MainPDE2::changePPDOptionKeyValue()
{
    KV_TRACE("-[MainPDE2 changePPDOptionKeyValue]");
    writeLocale();
    offerPairs(kSavedPairs);
}

void MainPDE2::PPDOptionKeyValueDidChange(const QString &option, const QString &choice)
{
    KV_TRACE("-[MainPDE2 PPDOptionKeyValueDidChange:ppdChoice:]");
    takeOver(kExternalChanges, option, choice);
    takeOverDryTime(option, choice);
}

/// Dry time exists for products before 2010 only, as a pop-up or else as a check box. Both share
/// value and ticket.
void MainPDE2::takeOverDryTime(const QString &option, const QString &choice)
{
    if (!hasDryTime(mProductYear) ||
        !platform::isEqual(option, quality::keyword(Setting::DupDryTime)))
        return;
    const PDEModel2 &model = *mPDEController->pdeModel();
    if (model.dryTimePopUpOption())
        takeOver({&kDryTimePopUpChange, 1}, option, choice);
    else if (model.dryTimeCheckBoxOption())
        takeOver({&kDryTimeBoxChange, 1}, option, choice);
    else
        mPDEController->updateControl(option);
}

QJsonObject MainPDE2::describe(const PDEModel2 &model) const
{
    return quality::describeModel(model);
}
