#include "dialog/plugins/plugin_path.h"

#include "platform/values.h"

#include <QFile>
#include <QStringList>

#include <sys/stat.h>
#include <unistd.h>

namespace dialog {
namespace {

using Reason = PathRefusal::Reason;

bool isTrusted(uid_t owner, TrustedOwner trusted)
{
    return owner == 0 || (trusted == TrustedOwner::RootAndUser && owner == geteuid());
}

std::optional<PathRefusal> checkPart(const QString &path, mode_t type, TrustedOwner owner)
{
    struct stat status
    {
    };
    if (lstat(QFile::encodeName(path).constData(), &status) != 0)
        return PathRefusal{Reason::Missing, path};
    if (S_ISLNK(status.st_mode))
        return PathRefusal{Reason::Link, path};
    if ((status.st_mode & S_IFMT) != type)
        return PathRefusal{Reason::NotRegular, path};
    if (!isTrusted(status.st_uid, owner))
        return PathRefusal{Reason::Owner, path};
    if (status.st_mode & (S_IWGRP | S_IWOTH))
        return PathRefusal{Reason::WritableByOthers, path};
    return std::nullopt;
}

std::optional<PathRefusal> checkText(const QString &literalPath)
{
    const QStringList parts = literalPath.split(u'/');
    if (parts.contains(QLatin1String("..")) || parts.contains(QLatin1String(".")))
        return PathRefusal{Reason::DotDot, literalPath};
    if (!literalPath.startsWith(kPlugInFolder.toString() + u'/'))
        return PathRefusal{Reason::Outside, literalPath};
    return std::nullopt;
}

mode_t typeOf(PathKind kind)
{
    return kind == PathKind::File ? S_IFREG : S_IFDIR;
}

} // namespace

QString PathRefusal::reasonText() const
{
    switch (reason) {
    case Reason::Outside:
        return tr("it lies outside /Library/Printers");
    case Reason::DotDot:
        return tr("the path goes through “..”");
    case Reason::Missing:
        return tr("it is not there");
    case Reason::Link:
        return tr("it is a link");
    case Reason::Owner:
        return tr("it belongs to somebody else");
    case Reason::WritableByOthers:
        return tr("others may write it");
    case Reason::NotRegular:
        break;
    }
    return tr("it is no ordinary file or folder");
}

std::optional<PathRefusal> checkDriverPath(const QString &literalPath, PathKind kind,
                                           TrustedOwner owner)
{
    if (const auto refusal = checkText(literalPath))
        return refusal;
    QString path = platform::driverRoot().isEmpty() ? QStringLiteral("/") : platform::driverRoot();
    if (const auto refusal = checkPart(path, S_IFDIR, owner))
        return refusal;
    const QStringList parts = literalPath.split(u'/', Qt::SkipEmptyParts);
    path = platform::driverRoot();
    for (qsizetype i = 0; i < parts.size(); ++i) {
        path += u'/' + parts[i];
        const bool isLast = i + 1 == parts.size();
        if (const auto refusal = checkPart(path, isLast ? typeOf(kind) : S_IFDIR, owner))
            return refusal;
    }
    return std::nullopt;
}

} // namespace dialog
