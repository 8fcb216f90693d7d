#include "tests/cups/fault_server.h"

#include <gtest/gtest.h>

#include <cups/cups.h>

#include <array>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace test {
namespace {

constexpr int kTurnMilliseconds = 5;
constexpr std::size_t kBlock = 16 * 1024;
constexpr const char *kServerVariable = "CUPS_SERVER";

constexpr std::array<const char *, static_cast<std::size_t>(FaultKind::Count)> kNames{
    "none",    "cut answers", "cut requests", "silence",   "deafness",
    "trickle", "garble",      "HTTP error",   "IPP error", "close at once",
};

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

int newSocket()
{
    return ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
}

/// Without attributes but the two that every answer has.
QByteArray ippAnswer(int status)
{
    QByteArray ipp("\x02\x00", 2);
    ipp += static_cast<char>(status >> 8);
    ipp += static_cast<char>(status & 0xff);
    ipp += QByteArray("\x00\x00\x00\x01\x01", 5);
    ipp +=
        QByteArray("\x47\x00\x12", 3) + "attributes-charset" + QByteArray("\x00\x05", 2) + "utf-8";
    ipp += QByteArray("\x48\x00\x1b", 3) + "attributes-natural-language" +
           QByteArray("\x00\x02", 2) + "en" + "\x03";
    return "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Type: "
           "application/ipp\r\nContent-Length: " +
           QByteArray::number(ipp.size()) + "\r\n\r\n" + ipp;
}

bool sendAll(int to, const char *bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t sent = ::send(to, bytes, size, MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        bytes += sent;
        size -= static_cast<std::size_t>(sent);
    }
    return true;
}

} // namespace

void PrintTo(const Fault &fault, std::ostream *out)
{
    *out << kNames[static_cast<std::size_t>(fault.kind)] << " at byte " << fault.atByte;
    if (fault.kind == FaultKind::HttpError || fault.kind == FaultKind::IppError)
        *out << ", status " << fault.status;
}

FaultServer::FaultServer(const QString &realServer)
    : listener_(newSocket()), realPort_(realServer.section(u':', 1).toInt())
{
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    EXPECT_EQ(::bind(listener_, reinterpret_cast<sockaddr *>(&address), size), 0);
    EXPECT_EQ(::listen(listener_, 64), 0);
    ::getsockname(listener_, reinterpret_cast<sockaddr *>(&address), &size);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
    qputenv(kServerVariable, this->address().toLatin1());
    cupsSetServer(this->address().toLatin1().constData());
}

FaultServer::~FaultServer()
{
    isOver_ = true;
    thread_.join();
    for (const Link &link : links_) {
        ::close(link.client);
        ::close(link.server);
    }
    ::close(listener_);
}

QString FaultServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(port_);
}

void FaultServer::misbehave(const Fault &fault)
{
    const std::lock_guard lock(mutex_);
    fault_ = fault;
    hasHappened_ = false;
    isAwaited_ = !fault.afterRequest.isEmpty();
    requestBytes_ = 0;
    answerBytes_ = 0;
}

void FaultServer::setWhenMisbehaving(const std::function<void()> &call)
{
    const std::lock_guard lock(mutex_);
    whenMisbehaving_ = call;
}

void FaultServer::demand(const QByteArray &user, const QByteArray &password)
{
    const std::lock_guard lock(mutex_);
    demanded_ = "Authorization: Basic " + (user + ':' + password).toBase64() + "\r\n";
}

QByteArray FaultServer::demanded()
{
    const std::lock_guard lock(mutex_);
    return demanded_;
}

void FaultServer::watchRequests(const QByteArray &requests)
{
    const std::lock_guard lock(mutex_);
    if (isAwaited_ && requests.contains(fault_.afterRequest))
        isAwaited_ = false;
}

/// Whether the fault's byte is among those that have just come.
bool FaultServer::takesPlace(FaultKind kind, std::int64_t bytes)
{
    const std::lock_guard lock(mutex_);
    if (hasHappened_ || isAwaited_ || fault_.kind != kind || bytes < fault_.atByte)
        return false;
    hasHappened_ = true;
    if (whenMisbehaving_)
        whenMisbehaving_();
    return true;
}

void FaultServer::serve()
{
    while (!isOver_) {
        std::vector<pollfd> polled{{listener_, POLLIN, 0}};
        for (const Link &link : links_) {
            polled.push_back({link.client, POLLIN, 0});
            polled.push_back({link.isSilent ? -1 : link.server, POLLIN, 0});
        }
        ::poll(polled.data(), polled.size(), kTurnMilliseconds);
        std::vector<Link> open;
        for (std::size_t i = 0; i < links_.size(); ++i) {
            Link link = links_[i];
            bool isOpen = true;
            if (polled[2 * i + 1].revents != 0)
                isOpen = passRequests(link);
            if (isOpen && polled[2 * i + 2].revents != 0)
                isOpen = passAnswers(link);
            trickle(link);
            if (isOpen) {
                open.push_back(link);
            } else {
                ::close(link.client);
                ::close(link.server);
            }
        }
        links_ = std::move(open);
        if (polled.front().revents != 0)
            acceptClient();
    }
}

void FaultServer::acceptClient()
{
    const int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (client < 0)
        return;
    const int server = newSocket();
    const sockaddr_in address = loopback(realPort_);
    if (takesPlace(FaultKind::CloseAtOnce, 0) ||
        ::connect(server, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(client);
        ::close(server);
        return;
    }
    links_.push_back({client, server});
}

bool FaultServer::letIn(Link &link, const QByteArray &requests)
{
    static const QByteArray refusal = "HTTP/1.1 401 Unauthorized\r\n"
                                      "WWW-Authenticate: Basic realm=\"CUPS\"\r\n"
                                      "Content-Length: 0\r\n\r\n";
    const QByteArray wanted = demanded();
    link.held += requests;
    if (!wanted.isEmpty() && !link.held.contains("\r\n\r\n"))
        return false;
    link.isLetIn = wanted.isEmpty() || link.held.contains(wanted);
    if (!link.isLetIn) {
        ++refusals_;
        link.isDeaf = true; // whoever signs in connects anew
        static_cast<void>(
            sendAll(link.client, refusal.constData(), static_cast<std::size_t>(refusal.size())));
    }
    return link.isLetIn;
}

/// Empty unless a status comes instead of the answer with that byte.
QByteArray FaultServer::statusInstead(std::int64_t answerByte)
{
    if (takesPlace(FaultKind::HttpError, answerByte))
        return "HTTP/1.1 " + QByteArray::number(fault_.status) +
               " Fault\r\nConnection: close\r\nContent-Length: 0\r\n\r\n";
    return takesPlace(FaultKind::IppError, answerByte) ? ippAnswer(fault_.status) : QByteArray();
}

bool FaultServer::passRequests(Link &link)
{
    std::array<char, kBlock> block;
    const ssize_t got = ::recv(link.client, block.data(), block.size(), 0);
    if (got <= 0)
        return false;
    if (link.isDeaf)
        return true;
    QByteArray requests(block.data(), static_cast<qsizetype>(got));
    if (!link.isLetIn) {
        if (!letIn(link, requests))
            return true;
        requests = std::exchange(link.held, {});
    }
    if (const QByteArray wanted = demanded(); !wanted.isEmpty())
        requests.replace(wanted, QByteArray());
    watchRequests(requests);
    if (const QByteArray status = statusInstead(answerBytes_ + 1); !status.isEmpty()) {
        link.isDeaf = true; // who refuses a request does nothing of it
        return sendAll(link.client, status.constData(), static_cast<std::size_t>(status.size()));
    }
    const std::int64_t before = requestBytes_;
    requestBytes_ += requests.size();
    const bool isCut = takesPlace(FaultKind::CutRequests, requestBytes_);
    link.isDeaf = takesPlace(FaultKind::Deafness, requestBytes_);
    const std::int64_t passed =
        isCut || link.isDeaf ? std::max<std::int64_t>(fault_.atByte - before, 0) : requests.size();
    return sendAll(link.server, requests.constData(), static_cast<std::size_t>(passed)) && !isCut;
}

bool FaultServer::passAnswers(Link &link)
{
    std::array<char, kBlock> block;
    const ssize_t got = ::recv(link.server, block.data(), block.size(), 0);
    if (got <= 0)
        return false;
    const std::int64_t before = answerBytes_;
    answerBytes_ += got;
    const auto upToFault =
        static_cast<std::size_t>(std::clamp<std::int64_t>(fault_.atByte - before, 0, got));
    const auto size = static_cast<std::size_t>(got);
    if (takesPlace(FaultKind::CutAnswers, answerBytes_)) {
        static_cast<void>(sendAll(link.client, block.data(), upToFault));
        return false;
    }
    if (takesPlace(FaultKind::Silence, answerBytes_)) {
        link.isSilent = true;
        return sendAll(link.client, block.data(), upToFault);
    }
    if (const QByteArray status = statusInstead(answerBytes_); !status.isEmpty())
        return sendAll(link.client, status.constData(), static_cast<std::size_t>(status.size()));
    if (takesPlace(FaultKind::Garble, answerBytes_)) {
        for (std::size_t i = upToFault; i < size; ++i)
            block[i] = static_cast<char>(~block[i]);
    }
    link.isTrickling = link.isTrickling || takesPlace(FaultKind::Trickle, answerBytes_);
    if (link.isTrickling) {
        link.waiting.append(block.data(), static_cast<qsizetype>(got));
        return true;
    }
    return sendAll(link.client, block.data(), size);
}

void FaultServer::trickle(Link &link)
{
    if (link.waiting.isEmpty())
        return;
    static_cast<void>(sendAll(link.client, link.waiting.constData(), 1));
    link.waiting.remove(0, 1);
}

} // namespace test
