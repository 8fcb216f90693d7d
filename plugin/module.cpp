#include "plugin/kor_pde_plugin2.h"
#include "plugin/ppd_findings.h"

#include <QObject>

/// Root object of the loadable module.
class KorPanelsModule final : public QObject, public PDEPlugInModule, public PDEPlugInDiagnostics
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInModule_iid)
    Q_INTERFACES(PDEPlugInModule PDEPlugInDiagnostics)

public:
    [[nodiscard]] std::unique_ptr<PDEPlugIn> createPlugIn() override
    {
        return std::make_unique<KorPDEPlugin2>();
    }
    [[nodiscard]] std::vector<PDEFinding> findings(ppd_file_t *ppd) override
    {
        return ppdFindings(ppd);
    }
};

#include "module.moc"
