#include "dialog/printers/server_connection.h"

#include "dialog/printers/sign_in.h"

#include <cups/cups.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace dialog {
namespace {

constexpr double kMillisecondsPerSecond = 1000.0;
// libcups' own limit ends abandoned calls; who waits for the answer has long gone by then.
constexpr double kOwnTimes = 2.0;

int giveUp(http_t *, void *)
{
    return 0;
}

const char *knowNoPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

} // namespace

Lifeline::~Lifeline()
{
    if (socket_ >= 0)
        ::close(socket_);
}

void Lifeline::hold(int socket)
{
    const std::lock_guard lock(mutex_);
    if (socket_ >= 0)
        ::close(socket_);
    socket_ = ::fcntl(socket, F_DUPFD_CLOEXEC, 0);
    if (isCut_)
        ::shutdown(socket, SHUT_RDWR);
}

void Lifeline::cut()
{
    const std::lock_guard lock(mutex_);
    isCut_ = true;
    if (socket_ >= 0)
        ::shutdown(socket_, SHUT_RDWR);
}

void Lifeline::mend()
{
    const std::lock_guard lock(mutex_);
    isCut_ = false;
}

bool Lifeline::isCut() const
{
    const std::lock_guard lock(mutex_);
    return isCut_;
}

void ConnectionCloser::operator()(http_t *http) const
{
    httpClose(http);
}

Connection connectToServer(const ServerLimits &limits, Lifeline *lifeline, SignIn *signIn)
{
    if (lifeline && lifeline->isCut())
        return nullptr;
    if (signIn)
        signIn->beginConnection();
    else
        cupsSetPasswordCB2(knowNoPassword, nullptr);
    Connection http(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                 limits.answerMilliseconds, nullptr));
    if (!http)
        return nullptr;
    httpSetTimeout(http.get(), kOwnTimes * limits.answerMilliseconds / kMillisecondsPerSecond,
                   giveUp, nullptr);
    if (lifeline)
        lifeline->hold(httpGetFd(http.get()));
    return http;
}

QString lastServerError()
{
    return QString::fromUtf8(cupsLastErrorString());
}

QString serverName()
{
    const QString server = QString::fromUtf8(cupsServer());
    return server.startsWith(u'/') ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

} // namespace dialog
