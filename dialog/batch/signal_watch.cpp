#include "dialog/batch/signal_watch.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace dialog::batch {
namespace {

constexpr std::array kNumbers{SIGINT, SIGTERM, SIGHUP};

/// Read end and write end; all that a handler may touch.
std::array<int, 2> pipeEnds{-1, -1};
std::array<struct sigaction, kNumbers.size()> former;

void passOn(int number)
{
    const int before = errno;
    const auto byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = before;
}

} // namespace

SignalWatch::SignalWatch(QObject *parent) : QObject(parent)
{
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this,
            [this](QSocketDescriptor socket) { take(static_cast<int>(qintptr(socket))); });
    struct sigaction action
    {
    };
    action.sa_handler = passOn;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kNumbers.size(); ++i)
        ::sigaction(kNumbers[i], &action, &former[i]);
}

SignalWatch::~SignalWatch()
{
    if (pipeEnds[0] < 0)
        return;
    for (std::size_t i = 0; i < kNumbers.size(); ++i)
        ::sigaction(kNumbers[i], &former[i], nullptr);
    for (int &end : pipeEnds)
        ::close(std::exchange(end, -1));
}

void SignalWatch::take(int socket)
{
    char byte = 0;
    if (::read(socket, &byte, 1) == 1)
        Q_EMIT caught(byte);
}

} // namespace dialog::batch
