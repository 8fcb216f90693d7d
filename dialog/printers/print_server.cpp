#include "dialog/printers/print_server.h"

#include <cups/cups.h>

namespace dialog {
namespace {

constexpr double kNoTime = 0.001;

/// libcups connects anew and asks once more; nobody waits for that as long again.
int giveUp(http_t *http, void *fellSilent)
{
    *static_cast<bool *>(fellSilent) = true;
    httpSetTimeout(http, kNoTime, giveUp, fellSilent);
    return 0;
}

double seconds(std::chrono::milliseconds time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

ServerConnection::ServerConnection(const ServerTimes &times)
    : http_(connectToServer({static_cast<int>(times.connect.count())})),
      fellSilent_(std::make_unique<bool>(false))
{
    if (http_)
        httpSetTimeout(http_.get(), seconds(times.silence), giveUp, fellSilent_.get());
}

ServerProblem ServerConnection::problem() const
{
    const QString reason = lastServerError();
    if (!http_)
        return {ServerFault::Unreachable, reason};
    return {*fellSilent_ ? ServerFault::Silent : ServerFault::Refused, reason};
}

} // namespace dialog
