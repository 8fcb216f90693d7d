#include "dialog/printers/sign_in.h"

#include <cups/cups.h>

#include <string.h>

namespace dialog {

Credentials::Credentials(const QString &user, QByteArray password)
    : user_(user.toUtf8()), password_(std::move(password))
{
}

Credentials::~Credentials()
{
    ::explicit_bzero(user_.data(), static_cast<std::size_t>(user_.size()));
    ::explicit_bzero(password_.data(), static_cast<std::size_t>(password_.size()));
}

void SignIn::beginConnection()
{
    isTried_ = false;
    cupsSetPasswordCB2(answer, this);
}

const char *SignIn::answer(const char *, http_t *http, const char *, const char *, void *signIn)
{
    return static_cast<SignIn *>(signIn)->passwordFor(http);
}

/// libcups asks once for each connection, and again when the server has refused the answer.
const char *SignIn::passwordFor(http_t *http)
{
    if (!known_ || isTried_) {
        if (questions_ == kMostQuestions)
            return nullptr;
        const bool isReadable = !httpIsEncrypted(http) && !httpAddrLocalhost(httpGetAddress(http));
        known_ = ask_({serverName(), QString::fromUtf8(cupsUser()), questions_ > 0, isReadable});
        questions_ = known_ ? questions_ + 1 : kMostQuestions;
    }
    if (!known_)
        return nullptr;
    isTried_ = true;
    cupsSetUser(known_->user()); // this thread's
    return known_->password();
}

} // namespace dialog
