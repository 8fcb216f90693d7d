#include "platform/values.h"

#include <QDir>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace platform {
namespace {

constexpr int kDefaultSystemVersion = 0x1060;

struct Values
{
    QString driverRoot = QStringLiteral("");
    int systemVersion = kDefaultSystemVersion;
    QStringList languages;
    bool languagesSet = false;
    QString localeIdentifier;
};

Values &values()
{
    static Values instance;
    return instance;
}

/// "de_AT.UTF-8@euro" without encoding and modifier; the C locale's names read as English.
QString fromPosix(const QString &name)
{
    static const QRegularExpression end(QStringLiteral("[.@]"));
    const QString language = name.left(name.indexOf(end));
    const bool isUnnamed = language.isEmpty() || language == QStringLiteral("C") ||
                           language == QStringLiteral("POSIX");
    return isUnnamed ? QStringLiteral("en") : language;
}

} // namespace

QString driverRoot()
{
    return values().driverRoot;
}

void setDriverRoot(const QString &root)
{
    const QString folder = QDir::cleanPath(root);
    values().driverRoot = folder.isEmpty() || folder == u'/' ? QStringLiteral("") : folder;
}

QString resolved(const QString &literalPath)
{
    return literalPath.startsWith(u'/') ? values().driverRoot + literalPath : literalPath;
}

int systemVersion()
{
    return values().systemVersion;
}

void setSystemVersion(int version)
{
    values().systemVersion = version;
}

QStringList languagesOfEnvironment()
{
    for (const char *variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        QStringList languages = qEnvironmentVariable(variable).split(u':', Qt::SkipEmptyParts);
        std::transform(languages.begin(), languages.end(), languages.begin(), fromPosix);
        if (!languages.isEmpty())
            return languages;
    }
    return {QStringLiteral("en")};
}

QStringList preferredLanguages()
{
    return values().languagesSet ? values().languages : languagesOfEnvironment();
}

void setPreferredLanguages(const QStringList &languages)
{
    values().languages = languages;
    values().languagesSet = true;
}

QString firstPreferredLanguage()
{
    const QStringList languages = preferredLanguages();
    return languages.isEmpty() ? QString() : languages.first();
}

QString localeIdentifier()
{
    const QString &set = values().localeIdentifier;
    return set.isNull() ? QLocale::system().name() : set;
}

QString localeLanguageCode()
{
    static const QRegularExpression end(QStringLiteral("[_-]"));
    const QString identifier = localeIdentifier();
    return identifier.left(identifier.indexOf(end));
}

void setLocaleIdentifier(const QString &identifier)
{
    values().localeIdentifier = identifier;
}

QString temporaryDirectory()
{
    for (const char *variable : {"TMPDIR", "XDG_RUNTIME_DIR"}) {
        const QString directory = qEnvironmentVariable(variable);
        if (!directory.isEmpty())
            return directory;
    }
    return QStringLiteral("/tmp");
}

} // namespace platform

OSStatus Gestalt(OSType selector, std::int32_t *response)
{
    if (selector != gestaltSystemVersion)
        return gestaltUndefSelectorErr;
    if (response)
        *response = platform::systemVersion();
    return noErr;
}
