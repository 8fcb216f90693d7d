#include "tests/support/driver_root.h"
#include "tests/support/fake_host.h"
#include "tests/support/plugin_bundle.h"
#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

#include <gtest/gtest.h>

using namespace test;

namespace {

/// The module as the dialog loads it. It is never unloaded.
struct Loaded
{
    explicit Loaded(const QString &path = q(KORVANE_PANELS_MODULE)) : loader(path)
    {
        loader.setLoadHints(QLibrary::ResolveAllSymbolsHint);
        module = qobject_cast<PDEPlugInModule *>(loader.instance());
    }

    QPluginLoader loader;
    PDEPlugInModule *module = nullptr;
};

} // namespace

TEST(Module, LiesInTheStagedBundleWritableByItsOwnerOnly)
{
    const QFileInfo file(q(KORVANE_PANELS_MODULE));
    EXPECT_SAME(file.path(), pluginBundle()->path() + q("/Contents/Linux"));
    EXPECT_SAME(file.fileName(), q("libkorvane-panels.so"));
    EXPECT_FALSE(file.permissions() & (QFile::WriteGroup | QFile::WriteOther));
}

TEST(Module, LoadsUnderItsInterfaceId)
{
    const Loaded loaded;
    EXPECT_TRUE(loaded.module) << loaded.loader.errorString().toStdString();
    EXPECT_SAME(loaded.loader.metaData().value(q("IID")).toString(), q(PDEPlugInModule_iid));
}

TEST(Module, MakesAPlugInForEachDialog)
{
    const Loaded loaded;
    ASSERT_TRUE(loaded.module);
    const auto first = loaded.module->createPlugIn();
    const auto second = loaded.module->createPlugIn();
    ASSERT_TRUE(first && second);
    EXPECT_NE(first, second);
    EXPECT_TRUE(first->initWithBundle(pluginBundle()));
    EXPECT_TRUE(second->initWithBundle(pluginBundle()));
}

TEST(Module, MakesPanelsThatOutliveTheirFactory)
{
    const Loaded loaded;
    ASSERT_TRUE(loaded.module);
    const DriverRoot root;
    root.writeOtherPanelSupport(true, q("Korvane T500"));
    const OpenPpd ppd(p2());
    FakeHost host(ppd.get());
    auto plugIn = loaded.module->createPlugIn();
    ASSERT_TRUE(plugIn->initWithBundle(pluginBundle()));
    const auto panels = plugIn->PDEPanelsForType(kPDEPrintDialogType.toString(), &host);
    plugIn.reset();
    ASSERT_TRUE(panels);
    ASSERT_EQ(panels->size(), 2U);
    for (const auto &panel : *panels) {
        EXPECT_TRUE(panel->panelView());
        EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
        panel->willShow();
        EXPECT_TRUE(panel->diagnostics());
        EXPECT_TRUE(host.offers.empty());
    }
    EXPECT_TRUE(panels->back()->saveValuesAndReturnError(nullptr));
    EXPECT_EQ(host.offers.size(), 3U);
}

TEST(Module, IsRefusedWhenItIsCutShort)
{
    QFile whole(q(KORVANE_PANELS_MODULE));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    const QTemporaryDir folder;
    for (const qsizetype length : {qsizetype(100), qsizetype(4096), bytes.size() / 8}) {
        const QString name = folder.filePath(q("cut-%1.so").arg(length));
        QFile cut(name);
        ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
        cut.write(bytes.left(length));
        cut.close();
        EXPECT_FALSE(Loaded(name).module) << length;
    }
}
