#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <mutex>
#include <ostream>
#include <thread>
#include <vector>

namespace test {

enum class FaultKind {
    None,
    CutAnswers,  ///< both ends are closed when this many bytes of answers have passed
    CutRequests, ///< the same, counted in bytes of requests
    Silence,     ///< answers stop there, and the connection stays open
    Deafness,    ///< requests stop there
    Trickle,     ///< from there on answers come a byte at a time, never all in time
    Garble,      ///< the bytes of the next block of answers are inverted
    HttpError, ///< instead of the next answer an HTTP status comes; if it is the first, nothing is
               ///< done of the request either
    IppError,  ///< the same with a status of IPP
    CloseAtOnce, ///< connections are closed without a byte
    Count
};

struct Fault
{
    FaultKind kind = FaultKind::None;
    std::int64_t atByte = 0;
    int status = 500;             ///< of HttpError and IppError
    QByteArray afterRequest = {}; ///< no sooner than a request had these bytes; empty: at once
};
void PrintTo(const Fault &fault, std::ostream *out);

/// A print server that passes everything on to a healthy one, until it misbehaves. A fault happens
/// once; connections made after that are healthy again. While it lives, this process and the
/// programs that it starts know no other server.
class FaultServer
{
public:
    /// @p realServer is "127.0.0.1:PORT".
    explicit FaultServer(const QString &realServer);
    ~FaultServer();
    FaultServer(const FaultServer &) = delete;
    FaultServer &operator=(const FaultServer &) = delete;

    [[nodiscard]] QString address() const;
    /// Of the connections from now on; bytes are counted from here.
    void misbehave(const Fault &fault);
    /// From now on connections get nothing through before they have sent this name and password,
    /// which the healthy server never sees.
    void demand(const QByteArray &user, const QByteArray &password);
    /// Requests that were sent away for want of a name and password.
    [[nodiscard]] int refusals() const { return refusals_; }
    /// Called when the fault happens, on the fault server's thread.
    void setWhenMisbehaving(const std::function<void()> &call);
    [[nodiscard]] bool hasMisbehaved() const { return hasHappened_; }
    [[nodiscard]] std::int64_t requestBytes() const { return requestBytes_; }
    [[nodiscard]] std::int64_t answerBytes() const { return answerBytes_; }

private:
    struct Link
    {
        int client = -1;
        int server = -1;
        bool isSilent = false;
        bool isDeaf = false;
        bool isTrickling = false;
        bool isLetIn = false;
        QByteArray held = {};    ///< requests, until they show who sends them
        QByteArray waiting = {}; ///< answers that trickle
    };

    void serve();
    void acceptClient();
    [[nodiscard]] QByteArray statusInstead(std::int64_t answerByte);
    /// False when the link is at its end.
    [[nodiscard]] bool passRequests(Link &link);
    [[nodiscard]] bool passAnswers(Link &link);
    void trickle(Link &link);
    /// Whether the link's requests go through; false also while nobody knows yet.
    [[nodiscard]] bool letIn(Link &link, const QByteArray &requests);
    [[nodiscard]] QByteArray demanded();
    void watchRequests(const QByteArray &requests);
    [[nodiscard]] bool takesPlace(FaultKind kind, std::int64_t bytes);

    int listener_ = -1;
    int port_ = 0;
    int realPort_ = 0;
    std::vector<Link> links_;
    std::mutex mutex_;
    Fault fault_;
    QByteArray demanded_; ///< a line of HTTP; empty without demand
    std::function<void()> whenMisbehaving_;
    std::atomic<bool> hasHappened_ = false;
    std::atomic<bool> isAwaited_ = false; ///< no request had the fault's bytes yet
    std::atomic<bool> isOver_ = false;
    std::atomic<int> refusals_ = 0;
    std::atomic<std::int64_t> requestBytes_ = 0;
    std::atomic<std::int64_t> answerBytes_ = 0;
    std::thread thread_;
};

} // namespace test
