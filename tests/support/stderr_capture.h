#pragma once

#include <QByteArray>

#include <cstdio>

#include <sys/mman.h>
#include <unistd.h>

namespace test {

/// Collects what the process writes to standard error while it lives. Never blocks, whatever the
/// amount.
class StderrCapture
{
public:
    StderrCapture()
    {
        std::fflush(stderr);
        ::dup2(memory_, STDERR_FILENO);
    }
    ~StderrCapture()
    {
        std::fflush(stderr);
        ::dup2(former_, STDERR_FILENO);
        ::close(former_);
        ::close(memory_);
    }
    StderrCapture(const StderrCapture &) = delete;
    StderrCapture &operator=(const StderrCapture &) = delete;

    /// Everything so far.
    [[nodiscard]] QByteArray text() const
    {
        std::fflush(stderr);
        QByteArray bytes(::lseek(memory_, 0, SEEK_END), '\0');
        const ssize_t count = ::pread(memory_, bytes.data(), std::size_t(bytes.size()), 0);
        bytes.truncate(count);
        return bytes;
    }

private:
    int former_ = ::dup(STDERR_FILENO);
    int memory_ = ::memfd_create("stderr", MFD_CLOEXEC);
};

} // namespace test
