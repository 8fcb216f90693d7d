#include "plugin/main_pde3.h"

#include "diag/trace.h"
#include "other/settings_table.h"
#include "platform/strings.h"

using other::row;
using other::Setting;

namespace {

// The first match wins. German has the localised title; the Italian one is meant.
// clang-format off
constexpr FixedTitle kTitles[] = {
    {"ja",      "その他"},
    {"fr",      "Autre"},
    {"es",      "Otro"},
    {"zh-Hans", "其他"},
    {"zh_CN",   "其他"},
    {"it",      "Apri"},
    {"pt",      "Outro"},
};
// clang-format on

bool whenImprovementIsOn(const SaveSituation &situation)
{
    return platform::isEqual(situation.model.improvementSettingsTicket(), QStringLiteral("On"));
}

// In this order.
// clang-format off
constexpr SavedPair kSavedPairs[] = {
    {"ImprovementSettings", &PDEModel2::improvementSettingsTicket, nullptr, nullptr},
    {"ReduceGhosting",      &PDEModel2::reduceGhostingTicket,      nullptr, nullptr},
    {"PrintDensity",        &PDEModel2::printDensityTicket,        nullptr, nullptr},
    {"ImprovePrintQuality", &PDEModel2::improvePrintQualityTicket, nullptr, whenImprovementIsOn},
};
// clang-format on

constexpr ExternalChange kExternalChanges[] = {
    externalChange(row(Setting::ImprovementSettings)),
    externalChange(row(Setting::ReduceGhosting)),
    externalChange(row(Setting::PrintDensity)),
    externalChange(row(Setting::ImprovePrintQuality)),
};

} // namespace

std::shared_ptr<MainPDE3> MainPDE3::initWithCallback(PDEPlugInCallback *callback, Bundle *bundle)
{
    const std::shared_ptr<MainPDE3> panel(new MainPDE3);
    return panel->PanelObject::initWithCallback(callback, bundle) ? panel : nullptr;
}

QString MainPDE3::panelName()
{
    KV_TRACE("-[MainPDE3 panelName]");
    return takeTitle("Other", kTitles);
}

QString MainPDE3::panelKind()
{
    KV_TRACE("-[MainPDE3 panelKind]");
    return QStringLiteral("com.Others.print.pde.BramoPDEKind");
}

void MainPDE3::changePPDOptionKeyValue()
{
    KV_TRACE("-[MainPDE3 changePPDOptionKeyValue]");
    offerPairs(kSavedPairs);
}

void MainPDE3::PPDOptionKeyValueDidChange(const QString &option, const QString &choice)
{
    KV_TRACE("-[MainPDE3 PPDOptionKeyValueDidChange:ppdChoice:]");
    takeOver(kExternalChanges, option, choice);
}

QJsonObject MainPDE3::describe(const PDEModel2 &model) const
{
    return other::describeModel(model);
}
