#include "dialog/plugins/plugin_loader.h"

#include "dialog/plugins/whole_library.h"
#include "platform/values.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

namespace dialog {
namespace {

class PlugInTexts
{
    Q_DECLARE_TR_FUNCTIONS(PlugInTexts)
};

const QString kLibraryFolder = QStringLiteral("/Contents/Linux/");
const QString kUsualLibrary = QStringLiteral("libkorvane-panels.so");
const QString kInformation = QStringLiteral("/Contents/Info.plist");

PlugInFailure failure(const PathRefusal &refusal)
{
    if (refusal.reason == PathRefusal::Reason::Missing)
        return {PlugInTexts::tr("The printer's panels are not installed: there is no %1. Install "
                                "the maker's driver.")
                    .arg(refusal.path)};
    return {PlugInTexts::tr("The printer's panels were not loaded: %1 (%2). Install the maker's "
                            "driver again as an administrator.")
                .arg(refusal.path, refusal.reasonText())};
}

/// A plain file name; anything that leads elsewhere counts as not named.
QString libraryName(const Bundle &bundle)
{
    const QString name =
        bundle.infoDictionary().value(QStringLiteral("CFBundleExecutable")).toString();
    const bool isPlain = !name.isEmpty() && !name.contains(u'/') && !name.startsWith(u'.');
    const QString path = bundle.path() + kLibraryFolder + name;
    return isPlain && QFileInfo::exists(path) ? name : kUsualLibrary;
}

std::optional<PathRefusal> checkBundle(const QString &literalPath, TrustedOwner owner)
{
    if (const auto refusal = checkDriverPath(literalPath, PathKind::Directory, owner))
        return refusal;
    const auto refusal = checkDriverPath(literalPath + kInformation, PathKind::File, owner);
    const bool isMissing = refusal && refusal->reason == PathRefusal::Reason::Missing;
    return isMissing ? std::nullopt : refusal;
}

/// The library's root object, which stays.
std::variant<QObject *, PlugInFailure> loadRoot(const QString &libraryPath)
{
    if (!isWholeLibrary(libraryPath))
        return PlugInFailure{PlugInTexts::tr("The printer's panels could not be loaded: %1 is "
                                             "damaged (%2). Install the maker's driver again.")
                                 .arg(libraryPath, PlugInTexts::tr("it is cut off"))};
    QPluginLoader loader(libraryPath);
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const QString interfaceId = loader.metaData().value(QLatin1String("IID")).toString();
    if (interfaceId.isEmpty())
        return PlugInFailure{PlugInTexts::tr("The printer's panels could not be loaded: %1 is "
                                             "damaged (%2). Install the maker's driver again.")
                                 .arg(libraryPath, loader.errorString())};
    if (interfaceId != QLatin1String(PDEPlugInModule_iid))
        return PlugInFailure{
            PlugInTexts::tr("The printer's panels do not fit this dialog: %1 was made for another "
                            "version. Install the maker's current driver.")
                .arg(libraryPath)};
    if (!qobject_cast<PDEPlugInModule *>(loader.instance()))
        return PlugInFailure{PlugInTexts::tr("The printer's panels could not be loaded: %1 is "
                                             "damaged (%2). Install the maker's driver again.")
                                 .arg(libraryPath, loader.errorString())};
    return loader.instance();
}

} // namespace

std::variant<PlugIn, PlugInFailure> loadPlugIn(const QString &literalBundlePath, TrustedOwner owner)
{
    if (const auto refusal = checkBundle(literalBundlePath, owner))
        return failure(*refusal);
    PlugIn plugIn{Bundle::bundleWithPath(platform::resolved(literalBundlePath)), nullptr, nullptr};
    const QString library = literalBundlePath + kLibraryFolder + libraryName(*plugIn.bundle);
    if (const auto refusal = checkDriverPath(library, PathKind::File, owner))
        return failure(*refusal);
    const auto loaded = loadRoot(platform::resolved(library));
    if (const auto *failed = std::get_if<PlugInFailure>(&loaded))
        return *failed;
    QObject *root = std::get<QObject *>(loaded);
    plugIn.principal = qobject_cast<PDEPlugInModule *>(root)->createPlugIn();
    plugIn.diagnostics = qobject_cast<PDEPlugInDiagnostics *>(root);
    if (!plugIn.principal || !plugIn.principal->initWithBundle(plugIn.bundle.get()))
        return PlugInFailure{
            PlugInTexts::tr("The maker's driver offers no panels for this printer.")};
    return plugIn;
}

} // namespace dialog
