#pragma once

#include "dialog/printers/ppd_document.h"
#include "dialog/printers/print_server.h"
#include "dialog/printers/user_files.h"

#include <QByteArray>
#include <QString>

#include <ctime>
#include <memory>
#include <optional>

namespace dialog {

struct PpdCacheLimits
{
    int files = 200;
    qint64 bytes = 64 * 1024 * 1024;
};

/// The PPDs of queues in the user's cache: one file per server and queue, a PPD as it stands with a
/// comment at its end that tells its time at the server and its checksum. Bounded: what was used
/// longest ago goes first.
class PpdCache
{
public:
    struct Entry
    {
        QString path;
        std::time_t modified = 0; ///< to ask the server whether there is a newer one
    };

    /// A cache that cannot be had keeps nothing.
    explicit PpdCache(const PpdCacheLimits &limits = {});

    /// An entry that is damaged is removed and not answered.
    [[nodiscard]] std::optional<Entry> find(const QString &server, const QString &queue) const;
    /// Null when it could not be kept.
    [[nodiscard]] QString keep(const QString &server, const QString &queue, const QByteArray &ppd,
                               std::time_t modified) const;
    void drop(const QString &server, const QString &queue) const;

    /// A readable part and one that differs for every two servers and queues; never leads anywhere.
    [[nodiscard]] static QString fileName(const QString &server, const QString &queue);

private:
    void prune(const QString &spared) const;

    std::optional<PrivateFolder> folder_;
    PpdCacheLimits limits_;
};

/// What came of opening the printer behind a queue.
struct QueuePrinter
{
    enum class Outcome { Opened, NoPpd, NoQueue, BrokenPpd, ServerFailed };

    Outcome outcome = Outcome::ServerFailed;
    /// With the user's own defaults for the queue marked. Of NoPpd: a printer without options.
    std::unique_ptr<PpdDocument> printer = {};
    ServerProblem problem = {};
    QString reason = {}; ///< of a broken PPD
};

/// Of a server that does not answer in time.
[[nodiscard]] QueuePrinter silentPrinter();

/// Opens the printer behind a queue with its PPD from the cache or, where the server has a newer
/// one, from there; blocks. Two requests, of which at most one downloads; three without a PPD.
[[nodiscard]] QueuePrinter openQueuePrinter(const QString &queue, const ServerTimes &times);

} // namespace dialog
