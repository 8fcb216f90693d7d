// From the start of a process to a dialog with which a person can print, on a print server of its
// own with 1, 20 and 200 queues of a sample printer, and with one queue of a printer with 200
// options of 50 choices: this dialog with an empty cache, with a filled one, and Qt's print dialog,
// in turns.
//
// Usable means: every queue is in the list, the default printer's options are there, and the window
// has been painted.

#include "bench/made_printer.h"
#include "dialog/queue_dialog.h"
#include "dialog/window/print_window.h"
#include "dialog/window/printer_picker.h"
#include "tests/support/private_cupsd.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

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
constexpr Server kServers[] = {
    {"S300", 1, 0}, {"S300", 20, 0}, {"S300", 200, 0}, {"200 x 50", 1, kManyOptions}};
constexpr int kRounds = 11;
constexpr int kPatienceMilliseconds = 30'000;
constexpr const char *kUsable = "usable\n";

void tellUsable()
{
    std::fputs(kUsable, stdout);
    std::fflush(stdout);
    QCoreApplication::quit();
}

/// This dialog, in a process of its own.
int probeOurs(int queues)
{
    dialog::PrintCase printCase;
    printCase.root = QStringLiteral(KORVANE_ROOT_DIR);
    printCase.document = QStringLiteral(KORVANE_SAMPLE_DOCUMENT);
    if (!dialog::PrintDialog::prepare(printCase).isNull())
        return 1;
    dialog::QueueDialog dialog(printCase, dialog::serverSources());
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        const bool isThere =
            dialog.printDialog() && !dialog.printDialog()->panels().loaded().empty();
        if (isThere && dialog.picker().offered().size() == queues) {
            dialog.window().repaint();
            tellUsable();
        }
    });
    look.start(1);
    return QCoreApplication::exec();
}

/// Qt's, which has everything when its constructor returns.
int probeQt(int queues)
{
    QPrinter printer;
    QPrintDialog dialog(&printer);
    dialog.show();
    dialog.repaint();
    if (QPrinterInfo::availablePrinterNames().size() != queues)
        return 1;
    QTimer::singleShot(0, tellUsable);
    return QCoreApplication::exec();
}

/// Milliseconds until a probe is usable; negative when it never was.
double timeOf(const QString &probe, int queues, const QString &cache)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), cache);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), cache);
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--probe"), probe, QString::number(queues)});
    const bool isUsable = process.waitForReadyRead(kPatienceMilliseconds) &&
                          process.readAllStandardOutput() == kUsable;
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    process.waitForFinished(kPatienceMilliseconds);
    return isUsable ? milliseconds : -1;
}

double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times.front() < 0 ? -1 : times[times.size() / 2];
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
    const QString ours = QStringLiteral("ours");
    static_cast<void>(timeOf(ours, queues, kept.path()));
    std::vector<double> first;
    std::vector<double> again;
    std::vector<double> qt;
    for (int round = 0; round < kRounds; ++round) {
        const QTemporaryDir fresh;
        first.push_back(timeOf(ours, queues, fresh.path()));
        again.push_back(timeOf(ours, queues, kept.path()));
        qt.push_back(timeOf(QStringLiteral("qt"), queues, kept.path()));
    }
    std::printf("| %s | %d | %.0f ms | %.0f ms | %.0f ms | %.2f | %.2f |\n", measured.printer,
                queues, median(first), median(again), median(qt), median(first) / median(qt),
                median(again) / median(qt));
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == QLatin1String("--probe")) {
        const int queues = words.value(3).toInt();
        return words.value(2) == QLatin1String("qt") ? probeQt(queues) : probeOurs(queues);
    }
    std::puts("| printer | queues | first opening | later openings | QPrintDialog | first : Qt | "
              "later : Qt |");
    std::puts("|---|---|---|---|---|---|---|");
    for (const Server &measured : kServers)
        measure(measured);
    return 0;
}
