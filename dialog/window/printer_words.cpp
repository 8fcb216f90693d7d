#include "dialog/window/printer_words.h"

#include "dialog/texts.h"

#include <array>
#include <cstddef>

namespace dialog {
namespace {

struct StateWords
{
    QueueState state;
    Text plain;
    Text withReason;
};

// clang-format off
constexpr std::array kStates{
    StateWords{QueueState::Unreachable, Text::StateUnreachable, Text::StateUnreachable},
    StateWords{QueueState::Paused,      Text::StatePaused,      Text::StatePausedBecause},
    StateWords{QueueState::Rejecting,   Text::StateRejecting,   Text::StateRejecting},
    StateWords{QueueState::Offline,     Text::StateOffline,     Text::StateOfflineBecause},
    StateWords{QueueState::Printing,    Text::StatePrinting,    Text::StatePrinting},
    StateWords{QueueState::Idle,        Text::StateIdle,        Text::StateIdle},
};
// clang-format on

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kStates.size(); ++i) {
        if (static_cast<std::size_t>(kStates[i].state) != i)
            return false;
    }
    return kStates.size() == static_cast<std::size_t>(QueueState::Idle) + 1;
}
static_assert(isInOrder(), "one line per state, in the order of the enumeration");

} // namespace

QString stateText(const Queue &queue)
{
    const StateWords &words = kStates[static_cast<std::size_t>(queue.state)];
    return queue.reason.isNull() ? text(words.plain) : text(words.withReason, {queue.reason});
}

QString queueText(const Queue &queue)
{
    const bool isCalledOtherwise = !queue.info.isNull() && queue.info != queue.name;
    const QString name =
        isCalledOtherwise ? text(Text::QueueNamed, {queue.info, queue.name}) : queue.name;
    return queue.state == QueueState::Idle ? name
                                           : text(Text::QueueWithState, {name, stateText(queue)});
}

QString problemText(const ServerProblem &problem)
{
    switch (problem.fault) {
    case ServerFault::None:
        return {};
    case ServerFault::Unreachable:
        return text(Text::ServerUnreachable, {serverName(), problem.reason});
    case ServerFault::Silent:
        return text(Text::ServerSilent, {serverName()});
    case ServerFault::Refused:
        break;
    }
    return text(Text::ServerRefused, {serverName(), problem.reason});
}

} // namespace dialog
