#pragma once

#include "dialog/printers/print_server.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>
#include <vector>

namespace dialog {

/// What a queue would do with a job, the gravest first where several hold.
enum class QueueState { Unreachable, Paused, Rejecting, Offline, Printing, Idle };

/// A queue of the print server.
struct Queue
{
    QString name;
    QString info = {}; ///< what its administrator calls it
    QString location = {};
    QString model = {};
    QueueState state = QueueState::Idle;
    QString reason = {}; ///< why it is paused or offline, in the server's words; null without
    bool isDefault = false;

    bool operator==(const Queue &) const = default;
};

/// What the server said of its queues, or why it did not.
struct QueueListing
{
    std::vector<Queue> queues = {};
    ServerProblem problem = {};
    QString defaultName = {}; ///< may name a queue that is not there; null without
    bool isWhole = true;      ///< false: more queues follow
};

/// Hears what is known before a listing is whole; each time everything so far.
using ListingHeard = std::function<void(const QueueListing &)>;

/// So many queues are asked for at first, so that a person sees some before all have come.
inline constexpr int kFirstQueues = 100;
/// More are not listed.
inline constexpr int kMostQueues = 10'000;

/// Asks the print server of the environment; blocks. Two requests: for the default, of which
/// @p heard is told at once, and for the queues; with more than kFirstQueues three.
[[nodiscard]] QueueListing listQueues(const ServerTimes &times, const ListingHeard &heard = {});

/// What the server's attributes of a queue amount to.
struct QueueAttributes
{
    bool isStopped = false;
    bool isProcessing = false;
    bool acceptsJobs = true;
    QStringList stateReasons = {};
};
[[nodiscard]] QueueState queueStateOf(const QueueAttributes &attributes);

/// @p lastUsed first, then the default, then by name as a person sorts.
[[nodiscard]] std::vector<Queue> inOrderOfUse(std::vector<Queue> queues, const QString &lastUsed);

/// Whether every word that a person typed occurs in name, description or place, in any case.
[[nodiscard]] bool matchesFilter(const Queue &queue, const QString &typed);

/// Null when there is none of that name.
[[nodiscard]] const Queue *findQueue(const std::vector<Queue> &queues, const QString &name);

/// The queues of a server, asked for again and again off the main thread while it is watched.
class QueueWatch : public QObject
{
    Q_OBJECT

public:
    using Source = std::function<QueueListing(const ListingHeard &)>;
    struct Times
    {
        std::chrono::milliseconds deadline;
        std::chrono::milliseconds interval; ///< from an answer to the next question
    };

    /// @p source blocks, and is called on other threads.
    QueueWatch(Source source, const Times &times, QObject *parent = nullptr);

    /// Asks now; what was asked before is not waited for any more.
    void ask();

Q_SIGNALS:
    /// Also with what is known before a listing is whole.
    void answered(const dialog::QueueListing &listing);

private:
    void take(std::optional<QueueListing> listing);

    Source source_;
    Times times_;
    QPointer<QObject> errand_;
    QTimer next_;
};

} // namespace dialog
