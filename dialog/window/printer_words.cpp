#include "dialog/window/printer_words.h"

#include <QCoreApplication>

#include <array>
#include <cstddef>

namespace dialog {
namespace {

class PrinterWords
{
    Q_DECLARE_TR_FUNCTIONS(PrinterWords)
};

struct StateWords
{
    QueueState state;
    const char *plain;
    const char *withReason;
};

// clang-format off
constexpr std::array kStates{
    StateWords{QueueState::Unreachable,
               QT_TRANSLATE_NOOP("PrinterWords", "Not reachable"),
               QT_TRANSLATE_NOOP("PrinterWords", "Not reachable")},
    StateWords{QueueState::Paused,
               QT_TRANSLATE_NOOP("PrinterWords", "Paused"),
               QT_TRANSLATE_NOOP("PrinterWords", "Paused: %1")},
    StateWords{QueueState::Rejecting,
               QT_TRANSLATE_NOOP("PrinterWords", "Takes no jobs"),
               QT_TRANSLATE_NOOP("PrinterWords", "Takes no jobs")},
    StateWords{QueueState::Offline,
               QT_TRANSLATE_NOOP("PrinterWords", "Offline"),
               QT_TRANSLATE_NOOP("PrinterWords", "Offline: %1")},
    StateWords{QueueState::Printing,
               QT_TRANSLATE_NOOP("PrinterWords", "Printing"),
               QT_TRANSLATE_NOOP("PrinterWords", "Printing")},
    StateWords{QueueState::Idle,
               QT_TRANSLATE_NOOP("PrinterWords", "Idle"),
               QT_TRANSLATE_NOOP("PrinterWords", "Idle")},
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
    return queue.reason.isNull() ? PrinterWords::tr(words.plain)
                                 : PrinterWords::tr(words.withReason).arg(queue.reason);
}

QString queueText(const Queue &queue)
{
    const bool isCalledOtherwise = !queue.info.isNull() && queue.info != queue.name;
    const QString name =
        isCalledOtherwise ? PrinterWords::tr("%1 (%2)").arg(queue.info, queue.name) : queue.name;
    return queue.state == QueueState::Idle
               ? name
               : PrinterWords::tr("%1 – %2").arg(name, stateText(queue));
}

QString problemText(const ServerProblem &problem)
{
    switch (problem.fault) {
    case ServerFault::None:
        return {};
    case ServerFault::Unreachable:
        return PrinterWords::tr("No print server answers at %1 (%2). Start the server or check the "
                                "network, then try again.")
            .arg(serverName(), problem.reason);
    case ServerFault::Silent:
        return PrinterWords::tr("The print server at %1 does not answer. Wait a moment or have it "
                                "restarted, then try again.")
            .arg(serverName());
    case ServerFault::Refused:
        break;
    }
    return PrinterWords::tr("The print server at %1 refused to answer: %2. Ask its administrator "
                            "for access, then try again.")
        .arg(serverName(), problem.reason);
}

QString printerProblem(const QueuePrinter &printer, const QString &queue)
{
    switch (printer.outcome) {
    case QueuePrinter::Outcome::Opened:
    case QueuePrinter::Outcome::NoPpd:
        return {};
    case QueuePrinter::Outcome::NoQueue:
        return PrinterWords::tr("There is no printer %1 at the print server. Choose another one.")
            .arg(queue);
    case QueuePrinter::Outcome::BrokenPpd:
        return PrinterWords::tr("The printer %1 cannot be used, because its PPD is damaged: %2. "
                                "Have the printer set up again or choose another one.")
            .arg(queue, printer.reason);
    case QueuePrinter::Outcome::ServerFailed:
        break;
    }
    return problemText(printer.problem);
}

} // namespace dialog
