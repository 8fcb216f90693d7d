#pragma once

#include "dialog/printers/server_connection.h"

#include <QString>

#include <chrono>
#include <memory>

namespace dialog {

/// How long a print server is waited for. Tests wait less.
struct ServerTimes
{
    std::chrono::milliseconds connect{3'000};
    /// Without a single byte; libcups waits for a second before it begins to count.
    std::chrono::milliseconds silence{2'200};
    /// For a whole list of queues; one that trickles in byte by byte is given up.
    std::chrono::milliseconds list{3'300};
    /// For a whole PPD, which may be large and come from far away.
    std::chrono::milliseconds printer{20'000};
};

enum class ServerFault { None, Unreachable, Silent, Refused };

/// Why a server did not do what it was asked to.
struct ServerProblem
{
    ServerFault fault = ServerFault::None;
    QString reason = {}; ///< in the words of libcups or of the server

    explicit operator bool() const { return fault != ServerFault::None; }
};

/// A connection of the calling thread's own to the print server of the environment. Asks nobody for
/// a password: what needs one is refused.
class ServerConnection
{
public:
    explicit ServerConnection(const ServerTimes &times);

    [[nodiscard]] http_t *http() const { return http_.get(); } ///< null when there is none
    /// Of the last call that failed on this thread.
    [[nodiscard]] ServerProblem problem() const;

private:
    Connection http_;
    std::unique_ptr<bool> fellSilent_; ///< libcups keeps a pointer to it
};

} // namespace dialog
