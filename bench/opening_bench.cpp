// From the start of a process to a dialog with which a person can print, on a print server of its
// own with 1, 20 and 200 queues of a sample printer, and with 1 and 200 queues of a printer with
// 200 options of 50 choices: this dialog with an empty cache, with a filled one, and Qt's print
// dialog in a program that has nothing else, in turns.
//
// Usable means: every queue is in the list, the default printer's options are there, and the window
// has been painted.

#include "bench/made_printer.h"
#include "bench/median.h"
#include "bench/usable.h"
#include "dialog/memory/memory.h"
#include "dialog/queue_dialog.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "tests/support/private_cupsd.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int kManyOptions = 200;
constexpr int kManyChoices = 50;

struct Server
{
    const char *printer;
    int queues;
    int options; ///< of the printer; 0: as many as the sample has
};
constexpr Server kServers[] = {{"S300", 1, 0},
                               {"S300", 20, 0},
                               {"S300", 200, 0},
                               {"200 x 50", 1, kManyOptions},
                               {"200 x 50", 200, kManyOptions}};
constexpr int kRounds = 11;
constexpr int kPatienceMilliseconds = 30'000;

/// This dialog, in a process of its own. It is usable when its event loop has nothing left to do:
/// then the window has been painted.
int probeOurs(int queues)
{
    dialog::PrintCase printCase;
    printCase.root = QStringLiteral(KORVANE_ROOT_DIR);
    printCase.document = QStringLiteral(KORVANE_SAMPLE_DOCUMENT);
    printCase.memory = std::make_shared<dialog::Memory>();
    if (!dialog::PrintDialog::prepare(printCase).isNull())
        return 1;
    dialog::QueueDialog dialog(printCase, dialog::serverSources());
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &dialog, [&] {
                         const bool isThere = dialog.printDialog() &&
                                              !dialog.printDialog()->panels().loaded().empty();
                         if (isThere && dialog.picker().offered().size() == queues)
                             bench::tellUsable();
                     });
    return QCoreApplication::exec();
}

/// Milliseconds until a program is usable; negative when it never was.
double timeOf(const QString &program, const QStringList &words, const QString &cache)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), cache);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), cache);
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, words);
    const bool isUsable = process.waitForReadyRead(kPatienceMilliseconds) &&
                          process.readAllStandardOutput() == bench::kUsable;
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    process.waitForFinished(kPatienceMilliseconds);
    return isUsable ? milliseconds : -1;
}

/// Negative when one of them is.
double medianTime(const std::vector<double> &times)
{
    const bool isWhole = *std::min_element(times.begin(), times.end()) >= 0;
    return isWhole ? bench::median(times) : -1;
}

QByteArray printerOf(const Server &measured)
{
    QFile ppd(QStringLiteral(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/Korvane-S300.ppd"));
    if (!ppd.open(QIODevice::ReadOnly))
        return {};
    const QByteArray sample = ppd.readAll();
    const int first = static_cast<int>(sample.count("*OpenUI"));
    return sample + bench::extraOptions(first, measured.options, kManyChoices);
}

void measure(const Server &measured)
{
    test::PrivateCupsd server;
    const int queues = measured.queues;
    const QByteArray bytes = printerOf(measured);
    for (int i = 1; i <= queues; ++i)
        server.addQueue(QStringLiteral("queue%1").arg(i), bytes);
    server.run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), QStringLiteral("queue1")});

    const QTemporaryDir kept;
    const QString ours = QCoreApplication::applicationFilePath();
    const QString qts = QCoreApplication::applicationDirPath() + QStringLiteral("/qt_dialog");
    const QStringList words{QStringLiteral("--probe"), QString::number(queues)};
    static_cast<void>(timeOf(ours, words, kept.path()));
    std::vector<double> first;
    std::vector<double> again;
    std::vector<double> qt;
    for (int round = 0; round < kRounds; ++round) {
        const QTemporaryDir fresh;
        first.push_back(timeOf(ours, words, fresh.path()));
        again.push_back(timeOf(ours, words, kept.path()));
        qt.push_back(timeOf(qts, words, kept.path()));
    }
    std::printf("| %s | %d | %.0f ms | %.0f ms | %.0f ms | %.2f | %.2f |\n", measured.printer,
                queues, medianTime(first), medianTime(again), medianTime(qt),
                medianTime(first) / medianTime(qt), medianTime(again) / medianTime(qt));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == QLatin1String("--probe"))
        return probeOurs(words.value(2).toInt());
    std::puts("| printer | queues | first opening | later openings | QPrintDialog | first : Qt | "
              "later : Qt |");
    std::puts("|---|---|---|---|---|---|---|");
    for (const Server &measured : kServers)
        measure(measured);
    return 0;
}
