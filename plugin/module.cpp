#include "plugin/kor_pde_plugin2.h"

#include <QObject>

/// Root object of the loadable module.
class KorPanelsModule final : public QObject, public PDEPlugInModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInModule_iid)
    Q_INTERFACES(PDEPlugInModule)

public:
    [[nodiscard]] std::unique_ptr<PDEPlugIn> createPlugIn() override
    {
        return std::make_unique<KorPDEPlugin2>();
    }
};

#include "module.moc"
