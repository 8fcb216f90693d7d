#include "dialog/printers/user_files.h"

#include <QDir>
#include <QFileInfo>

namespace dialog {
namespace {

const QString kProgram = QStringLiteral("korvane-print");
const QString kLastQueue = QStringLiteral("last-queue");
constexpr qint64 kLongestName = 1024;

/// A relative path in the variable counts as none.
QString baseFolder(const char *variable, const char *inHome)
{
    const QString given = QFile::decodeName(qgetenv(variable));
    return QDir::isAbsolutePath(given) ? given : QDir::homePath() + QLatin1String(inHome);
}

std::optional<PrivateFolder> programFolder(const QString &base)
{
    if (!QDir().mkpath(base))
        return std::nullopt;
    // The home folder itself may be a link.
    PrivateFolder::Opened opened = PrivateFolder::open(QFileInfo(base).canonicalFilePath());
    auto *folder = std::get_if<PrivateFolder>(&opened);
    if (!folder)
        return std::nullopt;
    PrivateFolder::Opened own = folder->openOrMake(kProgram);
    if (std::holds_alternative<debuglog::Refusal>(own))
        return std::nullopt;
    return std::move(std::get<PrivateFolder>(own));
}

} // namespace

std::optional<PrivateFolder> userCache()
{
    return programFolder(baseFolder("XDG_CACHE_HOME", "/.cache"));
}

std::optional<PrivateFolder> userConfiguration()
{
    return programFolder(baseFolder("XDG_CONFIG_HOME", "/.config"));
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
