#include "dialog/texts.h"

#include "platform/bundle.h"
#include "platform/values.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

/// Outside every namespace, as Q_INIT_RESOURCE() demands. A static library's resource is there only
/// once somebody names it.
static void initTextsResource()
{
    Q_INIT_RESOURCE(texts);
}

namespace dialog {
namespace {

/// QTranslator tries shorter names when a file is missing; there are none that fit.
void install(QPointer<QTranslator> &installed, const QString &file)
{
    delete installed;
    installed = new QTranslator(QCoreApplication::instance());
    if (installed->load(file))
        QCoreApplication::installTranslator(installed);
}

} // namespace

void installTexts()
{
    static QPointer<QTranslator> qtTexts;
    static QPointer<QTranslator> ownTexts;
    initTextsResource();
    const QString language = Bundle::messageLanguage(platform::firstPreferredLanguage());
    install(qtTexts, QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                         QStringLiteral("/qtbase_") + language + QStringLiteral(".qm"));
    install(ownTexts, QStringLiteral(":/korvane-print_") + language + QStringLiteral(".qm"));
}

} // namespace dialog
