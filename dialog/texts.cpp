#include "dialog/texts.h"

#include "platform/bundle.h"
#include "platform/values.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

#include <algorithm>

/// Outside every namespace, as Q_INIT_RESOURCE() demands. A static library's resource is there only
/// once somebody names it.
static void initTextsResource()
{
    Q_INIT_RESOURCE(texts);
}

namespace dialog {
namespace {

/// The first that is there. QTranslator tries shorter names when a file is missing; there are none
/// that fit.
void install(QPointer<QTranslator> &installed, const QStringList &files)
{
    delete installed;
    installed = new QTranslator(QCoreApplication::instance());
    if (std::any_of(files.begin(), files.end(),
                    [&](const QString &file) { return installed->load(file); }))
        QCoreApplication::installTranslator(installed);
}

QString ownFile(const QString &language)
{
    return QStringLiteral(":/korvane-print_") + language + QStringLiteral(".qm");
}

} // namespace

void installTexts()
{
    static QPointer<QTranslator> qtTexts;
    static QPointer<QTranslator> ownTexts;
    initTextsResource();
    const QString language = Bundle::messageLanguage(platform::firstPreferredLanguage());
    install(qtTexts, {QLibraryInfo::path(QLibraryInfo::TranslationsPath) +
                      QStringLiteral("/qtbase_") + language + QStringLiteral(".qm")});
    // English has a file, too: of what is counted, the code has one form for all numbers.
    install(ownTexts, {ownFile(language), ownFile(QStringLiteral("en"))});
}

} // namespace dialog
