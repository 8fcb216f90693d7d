#include "tests/dialog/testplugin/test_panels.h"

#include <QObject>

/// The module as this dialog expects it.
class TestModule : public QObject, public PDEPlugInModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInModule_iid)
    Q_INTERFACES(PDEPlugInModule)

public:
    std::unique_ptr<PDEPlugIn> createPlugIn() override
    {
        return std::make_unique<testplugin::TestPlugIn>();
    }
};

#include "test_module.moc"
