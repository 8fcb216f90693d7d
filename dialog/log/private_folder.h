#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include <sys/stat.h>

namespace dialog::debuglog {

/// Why a file or folder is left alone, as "PATH: reason; remedy".
struct Refusal
{
    QString message;
    QString path = {};
    int error = 0; ///< the system's errno; 0 where the file or folder is not to be trusted
};

/// A file descriptor that is closed with the object.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : fd_(fd) {}
    Descriptor(Descriptor &&other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor();
    [[nodiscard]] bool isOpen() const { return fd_ >= 0; }
    [[nodiscard]] int get() const { return fd_; }

private:
    int fd_;
};

/// A folder that nobody but root and the effective user can have put in its place: no folder on the
/// way to it is a link, each belongs to one of these two, and others may write none of them but
/// sticky ones ("/tmp"). Everything goes through its descriptor and follows no link.
class PrivateFolder
{
public:
    using Opened = std::variant<PrivateFolder, Refusal>;

    /// @p path is absolute.
    [[nodiscard]] static Opened open(const QString &path);
    /// A folder in this one that belongs to the user alone. Where it is missing it is made, with
    /// mode 0700.
    [[nodiscard]] Opened openOrMake(const QString &name) const;
    /// The same, but one that is missing stays missing: nothing.
    [[nodiscard]] std::optional<Opened> openIfThere(const QString &name) const;

    [[nodiscard]] QString pathOf(const QString &name) const;

    /// Nothing where the file is missing or is a regular file of the user that nobody else may
    /// write.
    [[nodiscard]] std::optional<Refusal> refusalOf(const QString &name) const;
    /// The same for a log, which others may write.
    [[nodiscard]] std::optional<Refusal> refusalOfLog(const QString &name) const;
    /// Nothing when the file is missing.
    [[nodiscard]] std::optional<QByteArray> read(const QString &name, qint64 limit) const;
    [[nodiscard]] bool hasFile(const QString &name) const;
    /// Puts a file of mode 0600 there in one step: at any time, the old or the new one is whole.
    [[nodiscard]] std::optional<Refusal> replace(const QString &name,
                                                 const QByteArray &bytes) const;
    /// Gives whatever has the name another one, without following a link; what has that one already
    /// stays.
    [[nodiscard]] std::optional<Refusal> rename(const QString &name, const QString &to) const;
    [[nodiscard]] std::optional<Refusal> remove(const QString &name) const;

    struct File
    {
        QString name;
        qint64 bytes = 0;
        qint64 time = 0; ///< of the last change or touch(), in nanoseconds since 1970
    };
    /// Ordinary files of this folder, the oldest first.
    [[nodiscard]] std::vector<File> files() const;
    /// Makes the file the newest one.
    void touch(const QString &name) const;

private:
    PrivateFolder(Descriptor descriptor, QString path)
        : descriptor_(std::move(descriptor)), path_(std::move(path))
    {
    }
    [[nodiscard]] Opened openPart(const QString &name) const;
    [[nodiscard]] std::optional<struct stat> statusOf(const QString &name) const;

    Descriptor descriptor_;
    QString path_;
};

} // namespace dialog::debuglog
