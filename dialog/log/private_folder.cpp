#include "dialog/log/private_folder.h"

#include "platform/regular_file.h"

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dialog::debuglog {
namespace {

constexpr int kFolder = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr mode_t kOthersMayWrite = S_IWGRP | S_IWOTH;

QByteArray encoded(const QString &name)
{
    return QFile::encodeName(name);
}

Refusal refusal(const QString &path, const char *reason, const char *remedy)
{
    return {path + QStringLiteral(": ") + QString::fromUtf8(reason) + QStringLiteral("; ") +
                QString::fromUtf8(remedy),
            path};
}

/// The reason is the system's.
Refusal failure(const QString &path)
{
    const int error = errno;
    Refusal refused =
        refusal(path, std::strerror(error), "allow it or set TMPDIR to a folder of your own");
    refused.error = error;
    return refused;
}

Refusal whyNotOpened(const QString &path)
{
    if (errno == ELOOP)
        return refusal(path, "this is a link", "remove it or set TMPDIR to a folder of your own");
    // O_DIRECTORY and O_NOFOLLOW together: a link is told as a file that is no folder.
    if (errno == ENOTDIR)
        return refusal(path, "this is a link or no folder",
                       "remove it or set TMPDIR to a folder of your own");
    return failure(path);
}

bool isOfUser(const struct stat &status)
{
    return status.st_uid == ::geteuid();
}

/// Of a folder on the way.
std::optional<Refusal> whyUntrusted(const QString &path, const struct stat &status)
{
    if (!isOfUser(status) && status.st_uid != 0)
        return refusal(path, "it belongs to another user", "set TMPDIR to a folder of your own");
    if ((status.st_mode & kOthersMayWrite) != 0 && (status.st_mode & S_ISVTX) == 0)
        return refusal(path, "others may write it", "take that right away with chmod go-w");
    return std::nullopt;
}

/// Of a file or folder that is to be the user's alone.
std::optional<Refusal> whyNotPrivate(const QString &path, const struct stat &status)
{
    if (!isOfUser(status))
        return refusal(path, "it belongs to another user", "have it removed");
    if ((status.st_mode & kOthersMayWrite) != 0)
        return refusal(path, "others may write it", "take that right away with chmod go-w");
    return std::nullopt;
}

bool writeAll(int fd, const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(fd, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return ::fchmod(fd, 0600) == 0 && ::fsync(fd) == 0;
}

} // namespace

Descriptor::~Descriptor()
{
    const int error = errno;
    if (fd_ >= 0)
        ::close(fd_);
    errno = error;
}

PrivateFolder::Opened PrivateFolder::open(const QString &path)
{
    if (!path.startsWith(u'/'))
        return refusal(path, "this is no absolute path", "set TMPDIR to a folder of your own");
    PrivateFolder folder(Descriptor(::open("/", kFolder)), QString());
    for (const QString &part : path.split(u'/', Qt::SkipEmptyParts)) {
        Opened next = folder.openPart(part);
        if (std::holds_alternative<Refusal>(next))
            return next;
        folder = std::move(std::get<PrivateFolder>(next));
    }
    return folder;
}

PrivateFolder::Opened PrivateFolder::openPart(const QString &name) const
{
    const QString path = pathOf(name);
    Descriptor part(::openat(descriptor_.get(), encoded(name).constData(), kFolder));
    struct stat status = {};
    if (!part.isOpen() || ::fstat(part.get(), &status) != 0)
        return whyNotOpened(path);
    if (auto refused = whyUntrusted(path, status))
        return *refused;
    return PrivateFolder(std::move(part), path);
}

PrivateFolder::Opened PrivateFolder::openOrMake(const QString &name) const
{
    const bool isNew = ::mkdirat(descriptor_.get(), encoded(name).constData(), 0700) == 0;
    if (!isNew && errno != EEXIST)
        return failure(pathOf(name));
    return *openIfThere(name);
}

std::optional<PrivateFolder::Opened> PrivateFolder::openIfThere(const QString &name) const
{
    Opened opened = openPart(name);
    const auto *folder = std::get_if<PrivateFolder>(&opened);
    if (!folder)
        return errno == ENOENT ? std::nullopt : std::optional<Opened>(std::move(opened));
    struct stat status = {};
    if (::fstat(folder->descriptor_.get(), &status) != 0)
        return failure(pathOf(name));
    if (auto refused = whyNotPrivate(pathOf(name), status))
        return *refused;
    return opened;
}

QString PrivateFolder::pathOf(const QString &name) const
{
    return path_ + u'/' + name;
}

std::optional<struct stat> PrivateFolder::statusOf(const QString &name) const
{
    struct stat status = {};
    if (::fstatat(descriptor_.get(), encoded(name).constData(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return status;
}

bool PrivateFolder::hasFile(const QString &name) const
{
    return statusOf(name).has_value();
}

std::optional<Refusal> PrivateFolder::refusalOfLog(const QString &name) const
{
    const auto status = statusOf(name);
    if (!status)
        return errno == ENOENT ? std::nullopt : std::optional(failure(pathOf(name)));
    if (S_ISLNK(status->st_mode))
        return refusal(pathOf(name), "this is a link", "remove it");
    if (!S_ISREG(status->st_mode))
        return refusal(pathOf(name), "this is no ordinary file", "remove it or give another name");
    if (!isOfUser(*status))
        return refusal(pathOf(name), "it belongs to another user", "give another name");
    return std::nullopt;
}

std::optional<Refusal> PrivateFolder::refusalOf(const QString &name) const
{
    if (auto refused = refusalOfLog(name))
        return refused;
    const auto status = statusOf(name);
    return status ? whyNotPrivate(pathOf(name), *status) : std::nullopt;
}

std::optional<QByteArray> PrivateFolder::read(const QString &name, qint64 limit) const
{
    const Descriptor file(::openat(descriptor_.get(), encoded(name).constData(),
                                   O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return platform::readRegularFile(file.get(), limit);
}

std::optional<Refusal> PrivateFolder::replace(const QString &name, const QByteArray &bytes) const
{
    const QByteArray fresh = encoded(name) + ".new." + QByteArray::number(::getpid());
    const Descriptor file(::openat(descriptor_.get(), fresh.constData(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!file.isOpen())
        return failure(pathOf(QFile::decodeName(fresh)));
    if (writeAll(file.get(), bytes) &&
        ::renameat(descriptor_.get(), fresh.constData(), descriptor_.get(),
                   encoded(name).constData()) == 0)
        return std::nullopt;
    const Refusal refused = failure(pathOf(name));
    ::unlinkat(descriptor_.get(), fresh.constData(), 0);
    return refused;
}

std::vector<PrivateFolder::File> PrivateFolder::files() const
{
    constexpr qint64 kNanoseconds = 1'000'000'000;
    std::vector<File> files;
    // Of its own, since closedir() closes it.
    const int own = ::openat(descriptor_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *list = own < 0 ? nullptr : ::fdopendir(own);
    while (const dirent *entry = list ? ::readdir(list) : nullptr) {
        const QString name = QFile::decodeName(entry->d_name);
        const auto status = statusOf(name);
        if (status && S_ISREG(status->st_mode))
            files.push_back({name, status->st_size,
                             status->st_mtim.tv_sec * kNanoseconds + status->st_mtim.tv_nsec});
    }
    if (list)
        ::closedir(list);
    std::sort(files.begin(), files.end(),
              [](const File &one, const File &other) { return one.time < other.time; });
    return files;
}

void PrivateFolder::touch(const QString &name) const
{
    ::utimensat(descriptor_.get(), encoded(name).constData(), nullptr, AT_SYMLINK_NOFOLLOW);
}

std::optional<Refusal> PrivateFolder::rename(const QString &name, const QString &to) const
{
    if (::renameat2(descriptor_.get(), encoded(name).constData(), descriptor_.get(),
                    encoded(to).constData(), RENAME_NOREPLACE) == 0)
        return std::nullopt;
    return failure(pathOf(name));
}

std::optional<Refusal> PrivateFolder::remove(const QString &name) const
{
    if (::unlinkat(descriptor_.get(), encoded(name).constData(), 0) == 0)
        return std::nullopt;
    return failure(pathOf(name));
}

} // namespace dialog::debuglog
