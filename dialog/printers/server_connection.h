#pragma once

#include <QString>

#include <memory>
#include <mutex>

typedef struct _http_s http_t;

namespace dialog {

class SignIn;

/// How long a print server gets for one step of a talk before a person is told that it is silent.
struct ServerLimits
{
    int answerMilliseconds = 3'300; ///< told within 3.5 s
    /// For a person who is asked for a name and password.
    int signInMilliseconds = 600'000;
};

/// Breaks a blocked call on another thread: the call's socket is shut down, so that the call
/// returns with an error. A cut lifeline stays cut for every later connection, until it is mended.
class Lifeline
{
public:
    ~Lifeline();
    void hold(int socket);
    void cut();
    void mend();
    [[nodiscard]] bool isCut() const;

private:
    mutable std::mutex mutex_;
    int socket_ = -1; ///< a duplicate, so that its number is never another file's
    bool isCut_ = false;
};

struct ConnectionCloser
{
    void operator()(http_t *http) const;
};
using Connection = std::unique_ptr<http_t, ConnectionCloser>;

/// A connection of this thread's own to the print server of the environment; null when there is
/// none or the lifeline is cut. Without @p signIn, no call on it asks for a password.
[[nodiscard]] Connection connectToServer(const ServerLimits &limits, Lifeline *lifeline = nullptr,
                                         SignIn *signIn = nullptr);

/// What went wrong in this thread's last call, in libcups' words.
[[nodiscard]] QString lastServerError();

/// The print server of the environment, as "HOST:PORT" or the path of its socket.
[[nodiscard]] QString serverName();

} // namespace dialog
