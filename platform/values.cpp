#include "platform/values.h"

#include <QDir>
#include <QLocale>
#include <QRegularExpression>

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
    QString language = name;
    language.truncate(std::min(language.indexOf(u'.') < 0 ? language.size() : language.indexOf(u'.'),
                               language.indexOf(u'@') < 0 ? language.size()
                                                          : language.indexOf(u'@')));
    if (language == QStringLiteral("C") || language == QStringLiteral("POSIX"))
        return QStringLiteral("en");
    return language;
}

QStringList languagesOfEnvironment()
{
    const QString list = qEnvironmentVariable("LANGUAGE");
    if (!list.isEmpty()) {
        QStringList languages;
        for (const QString &name : list.split(u':', Qt::SkipEmptyParts))
            languages.append(fromPosix(name));
        return languages;
    }
    for (const char *variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return {fromPosix(name)};
    }
    return {QStringLiteral("en")};
}

} // namespace

QString driverRoot() { return values().driverRoot; }

void setDriverRoot(const QString &root)
{
    values().driverRoot = root.isEmpty() ? QStringLiteral("") : QDir::cleanPath(root);
}

QString resolved(const QString &literalPath)
{
    return literalPath.startsWith(u'/') ? values().driverRoot + literalPath : literalPath;
}

int systemVersion() { return values().systemVersion; }

void setSystemVersion(int version) { values().systemVersion = version; }

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
    const QString identifier = localeIdentifier();
    const qsizetype end = identifier.indexOf(QRegularExpression(QStringLiteral("[_-]")));
    return end < 0 ? identifier : identifier.left(end);
}

void setLocaleIdentifier(const QString &identifier) { values().localeIdentifier = identifier; }

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
