// What a person notices of a print server that is ill: after how long a fault is told, with the
// dialog's own time limits, and the longest gap between two turns of the main thread meanwhile.

#include "bench/median.h"
#include "dialog/queue_dialog.h"
#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "tests/cups/queue_session.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using test::FaultKind;

namespace {

constexpr int kRounds = 5;
constexpr int kTickMilliseconds = 1;
constexpr int kPatienceMilliseconds = 30'000;
constexpr int kLargeDocument = 20 * 1024 * 1024;

struct Noticed
{
    int told = 0;
    int gap = 0;
};

struct Case
{
    const char *name;
    FaultKind kind;
    int documentBytes;
};
constexpr Case kPrinting[] = {
    {"nothing, 3 KB", FaultKind::None, 3 * 1024},
    {"nothing, 20 MB", FaultKind::None, kLargeDocument},
    {"silence", FaultKind::Silence, 3 * 1024},
    {"deafness, 20 MB", FaultKind::Deafness, kLargeDocument},
    {"a byte at a time", FaultKind::Trickle, 3 * 1024},
    {"connection closed", FaultKind::CloseAtOnce, 3 * 1024},
    {"HTTP error", FaultKind::HttpError, 3 * 1024},
};
constexpr Case kOpening[] = {
    {"nothing", FaultKind::None, 0},
    {"silence", FaultKind::Silence, 0},
    {"a byte at a time", FaultKind::Trickle, 0},
    {"connection closed", FaultKind::CloseAtOnce, 0},
};

/// Turns the event loop until @p isOver, and measures the gaps.
template <class IsOver>
Noticed watch(const std::function<void()> &begin, const IsOver &isOver)
{
    Noticed noticed;
    QEventLoop loop;
    QElapsedTimer since;
    QElapsedTimer whole;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        noticed.gap = std::max(noticed.gap, static_cast<int>(since.restart()));
        if (isOver())
            loop.quit();
    });
    QTimer::singleShot(kPatienceMilliseconds, &loop, &QEventLoop::quit);
    whole.start();
    since.start();
    ticks.start(kTickMilliseconds);
    begin();
    loop.exec();
    noticed.told = static_cast<int>(whole.elapsed());
    return noticed;
}

Noticed print(const Case &one)
{
    test::QueueSession session;
    QFile document(session.document());
    if (document.open(QIODevice::WriteOnly))
        document.write("%PDF-1.4\n" + QByteArray(one.documentBytes, 'x') + "\n%%EOF\n");
    document.close();
    const auto printing = session.printing(dialog::ServerLimits{});
    bool hasEnded = false;
    QObject::connect(printing.get(), &dialog::QueuePrinting::finished,
                     [&](const dialog::QueueJobResult &) { hasEnded = true; });
    session.faults().misbehave({one.kind, 0});
    return watch(
        [&] {
            printing->send({QStringLiteral("bench"), session.document(), session.options()});
        },
        [&] { return hasEnded; });
}

Noticed open(const Case &one)
{
    test::QueueSession session;
    session.faults().misbehave({one.kind, 0});
    dialog::PrintCase printCase;
    printCase.root = QStringLiteral(KORVANE_ROOT_DIR);
    std::unique_ptr<dialog::QueueDialog> dialog;
    return watch(
        [&] { dialog = std::make_unique<dialog::QueueDialog>(printCase, dialog::serverSources()); },
        [&] {
            return dialog &&
                   (dialog->printDialog() || !dialog->window().notices().texts().isEmpty());
        });
}

void report(const char *what, const Case &one, Noticed (*measure)(const Case &))
{
    std::vector<int> told;
    std::vector<int> gaps;
    for (int round = 0; round < kRounds; ++round) {
        const Noticed noticed = measure(one);
        told.push_back(noticed.told);
        gaps.push_back(noticed.gap);
    }
    const auto longest = [](const std::vector<int> &times) {
        return *std::max_element(times.begin(), times.end());
    };
    std::printf("| %s | %s | %d ms | %d ms | %d ms |\n", what, one.name, bench::median(told),
                longest(told), longest(gaps));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    std::puts("| what | the server's fault | done or told, median | longest | longest gap |");
    std::puts("|---|---|---|---|---|");
    for (const Case &one : kOpening)
        report("opening", one, open);
    for (const Case &one : kPrinting)
        report("printing", one, print);
    return 0;
}
