#include "dialog/printers/print_server.h"

#include <cups/cups.h>

namespace dialog {
namespace {

const char *noPassword(const char *, http_t *, const char *, const char *, void *)
{
    return nullptr;
}

int giveUp(http_t *, void *fellSilent)
{
    *static_cast<bool *>(fellSilent) = true;
    return 0;
}

double seconds(std::chrono::milliseconds time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

QString printServerName()
{
    const QString server = QString::fromUtf8(cupsServer());
    return server.startsWith(u'/') ? server : QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

void ServerConnection::Closer::operator()(http_t *http) const
{
    httpClose(http);
}

ServerConnection::ServerConnection(const ServerTimes &times)
    : fellSilent_(std::make_unique<bool>(false))
{
    cupsSetPasswordCB2(noPassword, nullptr);
    http_.reset(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             static_cast<int>(times.connect.count()), nullptr));
    if (http_)
        httpSetTimeout(http_.get(), seconds(times.silence), giveUp, fellSilent_.get());
}

ServerProblem ServerConnection::problem() const
{
    const QString reason = QString::fromUtf8(cupsLastErrorString());
    if (!http_)
        return {ServerFault::Unreachable, reason};
    return {*fellSilent_ ? ServerFault::Silent : ServerFault::Refused, reason};
}

} // namespace dialog
