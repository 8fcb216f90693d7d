#pragma once

#include "dialog/printers/server_connection.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace dialog {

/// A name and password as a person typed them. Kept in memory only, for as long as a job needs
/// them, and overwritten at the end.
class Credentials
{
public:
    Credentials(const QString &user, QByteArray password);
    ~Credentials();
    Credentials(const Credentials &) = delete;
    Credentials &operator=(const Credentials &) = delete;

    [[nodiscard]] const char *user() const { return user_.constData(); }
    [[nodiscard]] const char *password() const { return password_.constData(); }

private:
    QByteArray user_;
    QByteArray password_;
};

/// Who gives a name and password where the server wants them.
enum class SignInBy { Nobody, Person };

/// What a person has to know to give a name and password.
struct SignInQuestion
{
    QString server;
    QString user;            ///< who asks so far
    bool wasWrong = false;   ///< the server refused what was given before
    bool isReadable = false; ///< whoever watches the network can read the password
};

/// Asks a person and waits for the answer; null when there is none.
using AskPerson = std::function<std::unique_ptr<Credentials>(const SignInQuestion &)>;

/// Names and passwords for the connections of one worker's thread. A person is asked when the
/// server first wants them, and at most three times in all, once where no answer comes; what was
/// given holds for every later connection until the server refuses it.
class SignIn
{
public:
    static constexpr int kMostQuestions = 3;

    explicit SignIn(AskPerson ask) : ask_(std::move(ask)) {}

    /// The thread's calls on a connection that begins now ask here.
    void beginConnection();

private:
    static const char *answer(const char *prompt, http_t *http, const char *method,
                              const char *resource, void *signIn);
    [[nodiscard]] const char *passwordFor(http_t *http);

    AskPerson ask_;
    std::unique_ptr<Credentials> known_;
    bool isTried_ = false; ///< on this connection
    int questions_ = 0;
};

} // namespace dialog
