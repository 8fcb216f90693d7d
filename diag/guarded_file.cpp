#include "diag/guarded_file.h"

#include "platform/regular_file.h"

#include <cerrno>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace diag {
namespace {

constexpr int kSafely = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
constexpr int kAppending = O_WRONLY | O_APPEND | O_CREAT;

class Descriptor
{
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    Descriptor(Descriptor &&other) noexcept : fd_(std::exchange(other.fd_, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(fd_, other.fd_);
        return *this;
    }
    ~Descriptor()
    {
        const int error = errno;
        if (fd_ >= 0)
            ::close(fd_);
        errno = error;
    }
    [[nodiscard]] explicit operator bool() const { return fd_ >= 0; }
    [[nodiscard]] int get() const { return fd_; }
    int release() { return std::exchange(fd_, -1); }

private:
    int fd_;
};

/// Opens the file component by component, so that no folder on the way is a link either. The given
/// folder itself may be one.
Descriptor openBelow(const std::string &folder, const std::string &name, int flags)
{
    Descriptor directory(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    std::string_view rest = name;
    while (directory && !rest.empty()) {
        const std::size_t slash = rest.find('/');
        const std::string component(rest.substr(0, slash));
        if (slash == std::string_view::npos)
            return Descriptor(::openat(directory.get(), component.c_str(), flags | kSafely, 0666));
        rest.remove_prefix(slash + 1);
        if (!component.empty())
            directory = Descriptor(::openat(directory.get(), component.c_str(),
                                            O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    if (directory)
        errno = EISDIR;
    return Descriptor(-1);
}

/// Type and owner as the descriptor has them, so that nothing can change between test and use.
std::optional<struct stat> statusOfOwnFile(const Descriptor &file)
{
    struct stat status
    {
    };
    if (!file || ::fstat(file.get(), &status) != 0)
        return {};
    if (S_ISREG(status.st_mode) && status.st_uid == ::geteuid())
        return status;
    errno = EACCES;
    return {};
}

std::FILE *streamOfLog(Descriptor file)
{
    if (!statusOfOwnFile(file))
        return nullptr;
    ::fchmod(file.get(), 0666);
    std::FILE *stream = ::fdopen(file.get(), "a");
    if (stream)
        file.release();
    return stream;
}

} // namespace

std::optional<QByteArray> readGuardedFile(const std::string &folder, const std::string &name,
                                          qint64 maximum)
{
    const Descriptor file = openBelow(folder, name, O_RDONLY);
    const auto status = statusOfOwnFile(file);
    if (!status || (status->st_mode & (S_IWGRP | S_IWOTH)) != 0)
        return {};
    return platform::readRegularFile(file.get(), maximum);
}

std::FILE *openGuardedLog(const std::string &folder, const std::string &name)
{
    return streamOfLog(openBelow(folder, name, kAppending));
}

std::FILE *openGuardedLog(const std::string &path)
{
    return streamOfLog(Descriptor(::open(path.c_str(), kAppending | kSafely, 0666)));
}

} // namespace diag
