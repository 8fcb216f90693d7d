#include "platform/regular_file.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {
namespace {

class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

bool isRegularFileWithin(int descriptor, qint64 limit)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= limit;
}

ssize_t readSome(int descriptor, char *buffer, size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, buffer, size);
    while (count < 0 && errno == EINTR);
    return count;
}

} // namespace

std::optional<QByteArray> readRegularFile(const QString &realPath, qint64 limit)
{
    // A NUL would cut the path and name another file.
    if (realPath.isNull() || realPath.contains(QChar(u'\0')))
        return std::nullopt;
    // O_NONBLOCK: a FIFO without a writer would hold up a plain open().
    const Descriptor file(::open(QFile::encodeName(realPath).constData(),
                                 O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
    return readRegularFile(file.number(), limit);
}

std::optional<QByteArray> readRegularFile(int descriptor, qint64 limit)
{
    if (descriptor < 0 || !isRegularFileWithin(descriptor, limit))
        return std::nullopt;
    // The size that was reported is only a hint: the file may grow, and some report 0.
    QByteArray contents("");
    std::array<char, 16 * 1024> buffer;
    for (;;) {
        const ssize_t count = readSome(descriptor, buffer.data(), buffer.size());
        if (count == 0)
            return contents;
        if (count < 0 || contents.size() + count > limit)
            return std::nullopt;
        contents.append(buffer.data(), count);
    }
}

} // namespace platform
