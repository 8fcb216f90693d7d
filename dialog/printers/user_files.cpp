#include "dialog/printers/user_files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>

namespace dialog {
namespace {

const QString kProgram = QStringLiteral("korvane-print");
const QString kLastQueue = QStringLiteral("last-queue");
constexpr qint64 kLongestName = 1024;
constexpr qsizetype kLongestReadablePart = 40;
constexpr qsizetype kChecksumDigits = 32;

/// Null for the user's own.
QString &userFolder()
{
    static QString folder;
    return folder;
}

/// A relative path in the variable counts as none.
QString baseFolder(const char *variable, const char *inHome)
{
    const QString given = QFile::decodeName(qgetenv(variable));
    return QDir::isAbsolutePath(given) ? given : QDir::homePath() + QLatin1String(inHome);
}

QString settingsFolder(const char *variable, const char *inHome)
{
    return userFolder().isNull() ? baseFolder(variable, inHome)
                                 : userFolder() + QLatin1String(inHome);
}

PrivateFolder::Opened programFolder(const QString &base)
{
    errno = 0;
    if (!QDir().mkpath(base)) {
        const int error = errno ? errno : ENOTDIR;
        return debuglog::Refusal{base + QStringLiteral(": ") + qt_error_string(error), base, error};
    }
    // The home folder itself may be a link.
    PrivateFolder::Opened opened = PrivateFolder::open(QFileInfo(base).canonicalFilePath());
    const auto *folder = std::get_if<PrivateFolder>(&opened);
    return folder ? folder->openOrMake(kProgram) : std::move(opened);
}

std::optional<PrivateFolder> ifOpened(PrivateFolder::Opened opened)
{
    auto *folder = std::get_if<PrivateFolder>(&opened);
    return folder ? std::optional(std::move(*folder)) : std::nullopt;
}

bool isReadable(QChar character)
{
    return character.unicode() < 0x80 && (character.isLetterOrNumber() || character == u'-');
}

} // namespace

std::optional<PrivateFolder> userCache()
{
    return ifOpened(programFolder(baseFolder("XDG_CACHE_HOME", "/.cache")));
}

std::optional<PrivateFolder> userConfiguration()
{
    return ifOpened(openUserConfiguration());
}

PrivateFolder::Opened openUserConfiguration()
{
    return programFolder(settingsFolder("XDG_CONFIG_HOME", "/.config"));
}

PrivateFolder::Opened openUserState()
{
    return programFolder(settingsFolder("XDG_STATE_HOME", "/.local/state"));
}

void setUserFolder(const QString &folder)
{
    userFolder() = folder;
}

QString fileNameFor(const QString &readable, const QByteArray &identity)
{
    QString name = readable.left(kLongestReadablePart);
    std::replace_if(
        name.begin(), name.end(), [](QChar c) { return !isReadable(c); }, u'_');
    const QByteArray checksum =
        QCryptographicHash::hash(identity, QCryptographicHash::Sha256).toHex();
    return name + u'-' + QString::fromLatin1(checksum.left(kChecksumDigits));
}

QString lastUsedQueue()
{
    const auto folder = userConfiguration();
    if (!folder || folder->refusalOf(kLastQueue))
        return {};
    const QString name =
        QString::fromUtf8(folder->read(kLastQueue, kLongestName).value_or(QByteArray())).trimmed();
    return name.isEmpty() ? QString() : name;
}

void rememberLastUsedQueue(const QString &queue)
{
    if (const auto folder = userConfiguration())
        static_cast<void>(folder->replace(kLastQueue, queue.toUtf8() + '\n'));
}

} // namespace dialog
