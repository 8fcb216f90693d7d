#include "dialog/printers/queue_list.h"

#include "dialog/printers/name_order.h"
#include "dialog/threads/errand.h"
#include "platform/strings.h"

#include <cups/cups.h>

#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace dialog {
namespace {

// Answered in one go, so that opening asks little.
constexpr std::array kAttributes = {
    "printer-name",  "printer-info",          "printer-location",      "printer-make-and-model",
    "printer-state", "printer-state-message", "printer-state-reasons", "printer-is-accepting-jobs",
};

// Without their severity ("-report", "-warning", "-error").
constexpr const char *kOfflineReasons[] = {"offline", "connecting-to-device", "timed-out",
                                           "shutdown"};

/// Frees an answer of the server.
struct AnswerDeleter
{
    void operator()(ipp_t *answer) const { ippDelete(answer); }
};
using Answer = std::unique_ptr<ipp_t, AnswerDeleter>;

/// @p count of them from @p first on, or from the beginning where that is null.
Answer askForQueues(http_t *http, int count, const QString &first)
{
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_GET_PRINTERS);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(kAttributes.size()), nullptr, kAttributes.data());
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", count);
    if (!first.isNull())
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "first-printer-name", nullptr,
                     first.toUtf8().constData());
    return Answer(cupsDoRequest(http, request, "/"));
}

/// What is known of a queue while its attributes come in.
struct Draft
{
    Queue queue;
    QueueAttributes attributes;
    QString message;
};

QString textOf(ipp_attribute_t *attribute)
{
    const QString text = platform::decodedUtf8(ippGetString(attribute, 0, nullptr));
    return text.isEmpty() ? QString() : text;
}

QStringList textsOf(ipp_attribute_t *attribute)
{
    QStringList texts;
    for (int i = 0; i < ippGetCount(attribute); ++i)
        texts.append(platform::decodedUtf8(ippGetString(attribute, i, nullptr)));
    return texts;
}

void take(Draft &draft, ipp_attribute_t *attribute)
{
    const QLatin1String name(ippGetName(attribute));
    if (name == QLatin1String("printer-name"))
        draft.queue.name = textOf(attribute);
    else if (name == QLatin1String("printer-info"))
        draft.queue.info = textOf(attribute);
    else if (name == QLatin1String("printer-location"))
        draft.queue.location = textOf(attribute);
    else if (name == QLatin1String("printer-make-and-model"))
        draft.queue.model = textOf(attribute);
    else if (name == QLatin1String("printer-state-message"))
        draft.message = textOf(attribute);
    else if (name == QLatin1String("printer-state-reasons"))
        draft.attributes.stateReasons = textsOf(attribute);
    else if (name == QLatin1String("printer-is-accepting-jobs"))
        draft.attributes.acceptsJobs = ippGetBoolean(attribute, 0) != 0;
    else if (name == QLatin1String("printer-state")) {
        draft.attributes.isStopped = ippGetInteger(attribute, 0) == IPP_PSTATE_STOPPED;
        draft.attributes.isProcessing = ippGetInteger(attribute, 0) == IPP_PSTATE_PROCESSING;
    }
}

/// The server writes "Paused" where nobody gave a reason.
QString reasonOf(const Draft &draft)
{
    const bool isWanted =
        draft.queue.state == QueueState::Paused || draft.queue.state == QueueState::Offline;
    return isWanted && draft.message != QLatin1String("Paused") ? draft.message : QString();
}

void finish(Draft &draft, std::vector<Queue> &queues)
{
    if (!draft.queue.name.isNull()) {
        draft.queue.state = queueStateOf(draft.attributes);
        draft.queue.reason = reasonOf(draft);
        queues.push_back(draft.queue);
    }
    draft = {};
}

/// Each queue is a run of attributes; something without a name stands between two runs.
std::vector<Queue> queuesIn(ipp_t *answer)
{
    std::vector<Queue> queues;
    Draft draft;
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer); attribute;
         attribute = ippNextAttribute(answer)) {
        if (ippGetGroupTag(attribute) == IPP_TAG_PRINTER && ippGetName(attribute))
            take(draft, attribute);
        else
            finish(draft, queues);
    }
    finish(draft, queues);
    return queues;
}

/// One listing, piece by piece.
class Listing
{
public:
    Listing(const ServerConnection &connection, const ListingHeard &heard)
        : connection_(connection), heard_(heard)
    {
    }

    [[nodiscard]] QueueListing run()
    {
        // The user's own default stands above the server's.
        const char *name = cupsGetDefault2(connection_.http());
        listing_.defaultName = name ? platform::decodedUtf8(name) : QString();
        if (connection_.problem().fault == ServerFault::Silent)
            return {{}, connection_.problem()};
        if (!listing_.defaultName.isNull())
            tellSoFar();
        if (const ServerProblem problem = take(kFirstQueues, {}))
            return {{}, problem};
        // A server that knows no limit has sent all of them.
        if (listing_.queues.size() == kFirstQueues) {
            tellSoFar();
            if (const ServerProblem problem = take(kMostQueues, listing_.queues.back().name))
                return {{}, problem};
        }
        listing_.isWhole = true;
        return listing_;
    }

private:
    void tellSoFar()
    {
        listing_.isWhole = false;
        if (heard_)
            heard_(listing_);
    }

    [[nodiscard]] ServerProblem take(int count, const QString &first)
    {
        const Answer answer = askForQueues(connection_.http(), count, first);
        // A server without any queue says that none is found.
        if (cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND)
            return {};
        if (!answer || cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)
            return connection_.problem();
        for (Queue &queue : queuesIn(answer.get()))
            take(std::move(queue));
        return {};
    }

    void take(Queue queue)
    {
        if (names_.contains(queue.name) || names_.size() == kMostQueues)
            return;
        names_.insert(queue.name);
        queue.isDefault = queue.name == listing_.defaultName;
        listing_.queues.push_back(std::move(queue));
    }

    const ServerConnection &connection_;
    const ListingHeard &heard_;
    QueueListing listing_;
    QSet<QString> names_;
};

bool isOffline(const QString &reason)
{
    return std::any_of(
        std::begin(kOfflineReasons), std::end(kOfflineReasons), [&](const char *known) {
            const QLatin1String word(known);
            return reason == word ||
                   (reason.startsWith(word) && reason.mid(word.size()).startsWith(u'-'));
        });
}

} // namespace

QueueState queueStateOf(const QueueAttributes &attributes)
{
    if (attributes.isStopped)
        return QueueState::Paused;
    if (!attributes.acceptsJobs)
        return QueueState::Rejecting;
    if (std::any_of(attributes.stateReasons.begin(), attributes.stateReasons.end(), isOffline))
        return QueueState::Offline;
    return attributes.isProcessing ? QueueState::Printing : QueueState::Idle;
}

QueueListing listQueues(const ServerTimes &times, const ListingHeard &heard)
{
    const ServerConnection connection(times);
    if (!connection.http())
        return {{}, connection.problem()};
    return Listing(connection, heard).run();
}

std::vector<Queue> inOrderOfUse(std::vector<Queue> queues, const QString &lastUsed)
{
    const QCollator collator = nameOrder();
    const auto rank = [&](const Queue &queue) {
        return std::tuple(queue.name != lastUsed, !queue.isDefault);
    };
    std::stable_sort(queues.begin(), queues.end(), [&](const Queue &one, const Queue &other) {
        if (rank(one) != rank(other))
            return rank(one) < rank(other);
        return collator.compare(one.name, other.name) < 0;
    });
    return queues;
}

bool matchesFilter(const Queue &queue, const QString &typed)
{
    const QString all = queue.name + u'\n' + queue.info + u'\n' + queue.location;
    const QStringList words = typed.simplified().split(u' ', Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(), [&](const QString &word) {
        return all.contains(word, Qt::CaseInsensitive);
    });
}

const Queue *findQueue(const std::vector<Queue> &queues, const QString &name)
{
    const auto found = std::find_if(queues.begin(), queues.end(),
                                    [&](const Queue &queue) { return queue.name == name; });
    return found == queues.end() ? nullptr : &*found;
}

QueueWatch::QueueWatch(Source source, const Times &times, QObject *parent)
    : QObject(parent), source_(std::move(source)), times_(times)
{
    next_.setSingleShot(true);
    connect(&next_, &QTimer::timeout, this, &QueueWatch::ask);
}

void QueueWatch::ask()
{
    delete errand_;
    next_.stop();
    errand_ = runErrand<QueueListing, QueueListing>(
        this, times_.deadline, source_,
        [this](const QueueListing &soFar) { Q_EMIT answered(soFar); },
        [this](auto listing) { take(std::move(listing)); });
}

void QueueWatch::take(std::optional<QueueListing> listing)
{
    next_.start(times_.interval);
    Q_EMIT answered(listing ? *listing : QueueListing{{}, {ServerFault::Silent}});
}

} // namespace dialog
