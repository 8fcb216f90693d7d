#include "dialog/record/recording.h"

#include "dialog/usage.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dialog::record {
namespace {

constexpr mode_t kPrivate = 0600;

int openFile(const QString &path, int flags)
{
    return open(QFile::encodeName(path).constData(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC | flags,
                kPrivate);
}

bool isEmptyFileOfUser(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid() && status.st_nlink == 1 && status.st_size == 0;
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

bool writeAt(int descriptor, QByteArrayView bytes, qint64 place)
{
    while (!bytes.isEmpty()) {
        const ssize_t written =
            pwrite(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), place);
        if (written <= 0)
            return written < 0 && errno == EINTR ? writeAt(descriptor, bytes, place) : false;
        bytes = bytes.sliced(written);
        place += written;
    }
    return true;
}

} // namespace

Recording::Opened Recording::create(const QString &path)
{
    int descriptor = openFile(path, O_CREAT | O_EXCL);
    if (descriptor < 0 && errno != EEXIST)
        return path + QStringLiteral(": the recording cannot be made there: ") + systemError();
    if (descriptor < 0)
        descriptor = openFile(path, O_NONBLOCK); // a FIFO would block the dialog
    std::unique_ptr<Recording> recording(new Recording(path, descriptor));
    if (descriptor < 0 || !isEmptyFileOfUser(descriptor))
        return path + QStringLiteral(": is there already and is kept; name a new file");
    return recording;
}

Recording::~Recording()
{
    if (descriptor_ >= 0)
        close(descriptor_);
}

void Recording::add(const QString &line)
{
    addTentative(line);
    keep();
}

void Recording::addTentative(const QString &line)
{
    replaceEnd(line.toUtf8() + '\n');
}

void Recording::keep()
{
    kept_ += std::exchange(tentative_, 0);
}

void Recording::takeBack()
{
    if (tentative_ > 0)
        replaceEnd({});
}

void Recording::replaceEnd(const QByteArray &bytes)
{
    if (hasFailed_)
        return;
    hasFailed_ = !writeAt(descriptor_, bytes, kept_) ||
                 (bytes.size() < tentative_ && ftruncate(descriptor_, kept_ + bytes.size()) != 0);
    tentative_ = bytes.size();
    if (hasFailed_)
        complain(path_ + QStringLiteral(": the recording ends here: ") + systemError());
}

} // namespace dialog::record
