#include "dialog/printers/ppd_cache.h"

#include "dialog/printers/saved_choices.h"

#include "platform/regular_file.h"

#include <cups/cups.h>
#include <cups/ppd.h>

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace dialog {
namespace {

const QString kFolder = QStringLiteral("ppd");
constexpr qint64 kLargestPpd = 16 * 1024 * 1024;
constexpr QByteArrayView kSeal("*% korvane-print ");

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// "*%" begins a comment of a PPD.
QByteArray sealed(QByteArray ppd, std::time_t modified)
{
    if (!ppd.endsWith('\n'))
        ppd += '\n';
    const QByteArray line =
        kSeal.toByteArray() + QByteArray::number(static_cast<qint64>(modified)) + ' ';
    return ppd + line + checksum(ppd + line) + '\n';
}

/// Nothing for a file that is not as it was written.
std::optional<std::time_t> sealOf(const QByteArray &file)
{
    const qsizetype start = file.lastIndexOf(kSeal);
    if (start < 0)
        return std::nullopt;
    const QByteArray seal = file.mid(start + kSeal.size());
    const qsizetype space = seal.indexOf(' ');
    const QByteArray covered = file.left(start + kSeal.size() + space + 1);
    if (space < 0 || seal.mid(space + 1) != checksum(covered) + '\n')
        return std::nullopt;
    return static_cast<std::time_t>(seal.left(space).toLongLong());
}

std::optional<PrivateFolder> ppdFolder()
{
    const auto cache = userCache();
    if (!cache)
        return std::nullopt;
    PrivateFolder::Opened opened = cache->openOrMake(kFolder);
    if (std::holds_alternative<debuglog::Refusal>(opened))
        return std::nullopt;
    return std::move(std::get<PrivateFolder>(opened));
}

/// A temporary file that libcups made, removed with the object; may be a link to the server's own.
class Download
{
public:
    Download() = default;
    ~Download()
    {
        if (*path_)
            QFile::remove(path());
    }
    Download(const Download &) = delete;
    Download &operator=(const Download &) = delete;

    /// A time of 0 downloads in any case.
    [[nodiscard]] http_status_t get(http_t *http, const QString &queue, std::time_t since)
    {
        modified_ = since;
        return cupsGetPPD3(http, queue.toUtf8().constData(), &modified_, path_, sizeof path_);
    }
    [[nodiscard]] QString path() const { return QFile::decodeName(path_); }
    [[nodiscard]] std::time_t modified() const { return modified_; }

private:
    std::time_t modified_ = 0;
    char path_[1024] = "";
};

/// Whether the server has the queue; nothing when it does not say.
std::optional<bool> hasQueue(const ServerConnection &connection, const QString &queue)
{
    char uri[HTTP_MAX_URI] = "";
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", ippPort(),
                     "/printers/%s", queue.toUtf8().constData());
    ipp_t *request = ippNewRequest(IPP_OP_GET_PRINTER_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    ippDelete(cupsDoRequest(connection.http(), request, "/"));
    if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
        return false;
    return cupsLastError() <= IPP_STATUS_OK_EVENTS_COMPLETE ? std::optional(true) : std::nullopt;
}

QueuePrinter failed(const ServerProblem &problem)
{
    return {QueuePrinter::Outcome::ServerFailed, {}, problem};
}

QueuePrinter openedFrom(const QString &path, const std::shared_ptr<void> &file = nullptr)
{
    PpdDocument::Opened opened = PpdDocument::open(path);
    if (const auto *error = std::get_if<PpdError>(&opened))
        return {QueuePrinter::Outcome::BrokenPpd, {}, {}, error->reason};
    auto printer = std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
    printer->holdFile(file);
    return {QueuePrinter::Outcome::Opened, std::move(printer)};
}

/// The server's time is that of its answer, within whose second the PPD may still change.
std::time_t beforeThatSecond(std::time_t modified)
{
    return modified - 1;
}

class Opening
{
public:
    Opening(const ServerConnection &connection, const QString &queue)
        : connection_(connection), queue_(queue), server_(serverName())
    {
    }

    [[nodiscard]] QueuePrinter run() const
    {
        if (const auto entry = cache_.find(server_, queue_)) {
            QueuePrinter revalidated = get(entry);
            if (revalidated.outcome != QueuePrinter::Outcome::BrokenPpd)
                return revalidated;
            cache_.drop(server_, queue_);
        }
        return get(std::nullopt);
    }

private:
    [[nodiscard]] QueuePrinter get(const std::optional<PpdCache::Entry> &entry) const
    {
        const auto download = std::make_shared<Download>();
        switch (download->get(connection_.http(), queue_, entry ? entry->modified : 0)) {
        case HTTP_STATUS_OK:
            return openedFrom(kept(*download), download);
        case HTTP_STATUS_NOT_MODIFIED:
            return entry ? openedFrom(entry->path) : failed(connection_.problem());
        case HTTP_STATUS_NOT_FOUND:
            return withoutPpd();
        default:
            return failed(connection_.problem());
        }
    }

    /// libcups says the same of a queue without PPD, of none and of a server that says nothing.
    [[nodiscard]] QueuePrinter withoutPpd() const
    {
        const ServerProblem problem = connection_.problem();
        if (problem.fault == ServerFault::Silent)
            return failed(problem);
        const std::optional<bool> isThere = hasQueue(connection_, queue_);
        if (!isThere)
            return failed(connection_.problem());
        if (!*isThere)
            return {QueuePrinter::Outcome::NoQueue};
        auto printer = PpdDocument::withoutOptions(queue_);
        if (!printer)
            return {
                QueuePrinter::Outcome::BrokenPpd, {}, {}, QString::fromUtf8(std::strerror(errno))};
        return {QueuePrinter::Outcome::NoPpd, std::move(printer)};
    }

    /// The downloaded file itself where there is no cache.
    [[nodiscard]] QString kept(const Download &download) const
    {
        const auto bytes = platform::readRegularFile(download.path(), kLargestPpd);
        const QString path =
            bytes ? cache_.keep(server_, queue_, *bytes, beforeThatSecond(download.modified()))
                  : QString();
        return path.isNull() ? download.path() : path;
    }

    const ServerConnection &connection_;
    QString queue_;
    QString server_;
    PpdCache cache_;
};

} // namespace

PpdCache::PpdCache(const PpdCacheLimits &limits) : folder_(ppdFolder()), limits_(limits) {}

QString PpdCache::fileName(const QString &server, const QString &queue)
{
    return fileNameFor(queue, server.toUtf8() + '\n' + queue.toUtf8()) + QStringLiteral(".ppd");
}

std::optional<PpdCache::Entry> PpdCache::find(const QString &server, const QString &queue) const
{
    const QString name = fileName(server, queue);
    if (!folder_ || !folder_->hasFile(name) || folder_->refusalOf(name))
        return std::nullopt;
    const auto bytes = folder_->read(name, kLargestPpd);
    const auto modified = bytes ? sealOf(*bytes) : std::nullopt;
    if (modified) {
        folder_->touch(name);
        return Entry{folder_->pathOf(name), *modified};
    }
    drop(server, queue);
    return std::nullopt;
}

QString PpdCache::keep(const QString &server, const QString &queue, const QByteArray &ppd,
                       std::time_t modified) const
{
    const QString name = fileName(server, queue);
    if (!folder_ || folder_->replace(name, sealed(ppd, modified)))
        return {};
    prune(name);
    return folder_->pathOf(name);
}

void PpdCache::prune(const QString &spared) const
{
    const std::vector<PrivateFolder::File> files = folder_->files();
    auto count = static_cast<int>(files.size());
    qint64 bytes = 0;
    for (const auto &file : files)
        bytes += file.bytes;
    for (const auto &file : files) {
        if (count <= limits_.files && bytes <= limits_.bytes)
            return;
        if (file.name == spared)
            continue;
        static_cast<void>(folder_->remove(file.name));
        --count;
        bytes -= file.bytes;
    }
}

void PpdCache::drop(const QString &server, const QString &queue) const
{
    if (folder_)
        static_cast<void>(folder_->remove(fileName(server, queue)));
}

QueuePrinter silentPrinter()
{
    return failed({ServerFault::Silent});
}

QueuePrinter openQueuePrinter(const QString &queue, const ServerTimes &times)
{
    const ServerConnection connection(times);
    if (!connection.http())
        return failed(connection.problem());
    QueuePrinter opened = Opening(connection, queue).run();
    if (opened.printer) {
        for (const Choice &choice : savedChoices(queue))
            opened.printer->mark(choice);
    }
    return opened;
}

} // namespace dialog
