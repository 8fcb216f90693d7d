#include "plugin/kor_pde_plugin2.h"

#include "model/pde_tools.h"
#include "platform/driver_file.h"
#include "platform/property_list.h"
#include "platform/strings.h"
#include "plugin/main_pde2.h"
#include "plugin/main_pde3.h"

namespace {

constexpr std::size_t kRoomForPanels = 3;

template <class Panel>
void appendPanel(PDEPanelList &panels, PDEPlugInCallback *host, Bundle *bundle)
{
    if (auto panel = Panel::initWithCallback(host, bundle))
        panels.push_back(std::move(panel));
}

} // namespace

QString modelListPath(const ppd_file_t *ppd)
{
    const QString manufacturer = platform::described(platform::decodedUtf8(ppd->manufacturer));
    const QString model = platform::described(platform::decodedUtf8(ppd->modelname));
    return QStringLiteral("/Library/Printers/") + manufacturer +
           QStringLiteral("/Drivers/.Config/") + model + QStringLiteral(".bundle") +
           QStringLiteral("/Contents/Resources/") + model + QStringLiteral(".plist");
}

bool KorPDEPlugin2::initWithBundle(Bundle *pluginBundle)
{
    bundle = pluginBundle;
    return true;
}

std::shared_ptr<PDEPanelList> KorPDEPlugin2::PDEPanelsForType(const QString &type,
                                                              PDEPlugInCallback *host)
{
    pdes = std::make_shared<PDEPanelList>();
    pdes->reserve(kRoomForPanels);
    if (platform::isEqual(type, kPDEPrintDialogType.toString()) && host)
        appendPanels(host);
    if (pdes->empty())
        pdes = nullptr;
    // Older systems took the list over; here it is shared with the caller on every one.
    (void)PDETools2().isRunningOn105OrLater();
    return pdes;
}

void KorPDEPlugin2::appendPanels(PDEPlugInCallback *host)
{
    appendPanel<MainPDE2>(*pdes, host, bundle);
    if (supportOthersPDE(host->ppdFile()))
        appendPanel<MainPDE3>(*pdes, host, bundle);
}

bool KorPDEPlugin2::supportOthersPDE(const ppd_file_t *ppd) const
{
    if (!ppd)
        return false;
    const QVariant list = platform::readDriverPropertyList(modelListPath(ppd));
    const QVariant features = platform::valueForKey(list, QStringLiteral("Features"));
    return platform::booleanValue(
        platform::valueForKey(features, QStringLiteral("OtherPDE Support")));
}
