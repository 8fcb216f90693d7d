#pragma once

#include "dialog/print_dialog.h"
#include "dialog/printers/ppd_cache.h"
#include "dialog/printers/queue_list.h"
#include "dialog/printers/user_files.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>
#include <optional>

namespace dialog {

class PrinterPicker;

/// Where the dialog learns of queues and their printers, and which one was used last. The functions
/// block and are called on other threads.
struct QueueSources
{
    QueueWatch::Source list;
    std::function<QueuePrinter(const QString &queue)> printer;
    QueueWatch::Times listTimes;
    std::chrono::milliseconds printerDeadline;
    /// A server that answers within this time has its printer shown at once, without an empty
    /// window before it; 0: the window comes at once in any case.
    std::chrono::milliseconds emptyWindowDelay{};
    std::function<QString()> lastUsed = lastUsedQueue;
    std::chrono::milliseconds lastUsedDeadline{300}; ///< then none is remembered
};

/// The print server of the environment.
[[nodiscard]] QueueSources serverSources(const ServerTimes &times = {});

/// The print dialog where the printer is a queue: one window in which a person picks the queue, and
/// for the picked one a PrintDialog with its printer and panels. What a person chose goes along to
/// the next printer as far as that has it.
///
/// Same rule as for PrintDialog: not to be destroyed from inside a panel's call.
class QueueDialog : public QObject
{
    Q_OBJECT

public:
    /// The case names no PPD. Sets the platform values and shows the window; everything else comes
    /// from the event loop.
    QueueDialog(const PrintCase &printCase, QueueSources sources);
    ~QueueDialog() override;

    [[nodiscard]] PrintWindow &window() const { return *window_; }
    [[nodiscard]] PrinterPicker &picker() const { return *picker_; }
    /// Null while there is no printer yet.
    [[nodiscard]] PrintDialog *printDialog() const { return dialog_.get(); }

Q_SIGNALS:
    /// A printer is there, its panels are shown and Print can be pressed.
    void ready(const QString &queue);
    void jobMade(const dialog::JobRecord &job);
    void left();

private:
    static constexpr int kAutomaticTries = 3;

    void takeLastUsed(const QString &queue);
    void hearListing(const QueueListing &listing);
    void takeListing(const QueueListing &listing);
    void takeSoFar(const QueueListing &listing);
    void takeProblem(const ServerProblem &problem);
    void followQueue();
    void chooseQueue();
    void missQueue();
    void tryAgain();
    void switchTo(const QString &queue);
    void connectTo(const QString &queue, int automaticTries = kAutomaticTries);
    void takePrinter(std::optional<QueuePrinter> answer);
    void recall(std::unique_ptr<PpdDocument> printer);
    void show(std::unique_ptr<PpdDocument> printer, const Recollection &recollection);
    void takeSize(QSize size);
    void takeAlong();
    void tellLeftBehind(const StartPlan &start);
    void leave();
    /// Once, until retract().
    void tell(const QString &key, const QString &words, std::vector<NoticeAction> actions);
    void retract(const QString &key);
    void failPrinter(const QString &words);
    [[nodiscard]] NoticeAction tryAgainAction();

    // In the order of their dependence: the printer's dialog goes before the window.
    PrintCase case_;
    QueueSources sources_;
    QString queue_;                     ///< null before any is chosen
    bool isRemembered_ = false;         ///< not chosen by the person today, and may be gone
    std::optional<QString> lastUsed_;   ///< nothing before it is read
    std::optional<QueueListing> early_; ///< came before that
    int automaticTries_ = 0;            ///< left; of getting a printer that the server did not give
    std::vector<Queue> queues_;
    PrinterPicker *picker_ = nullptr; ///< belongs to the window
    std::unique_ptr<PrintWindow> window_;
    std::unique_ptr<PrintDialog> dialog_;
    QueueWatch watch_;
    QPointer<QObject> connecting_;
    std::map<QString, QString> told_;
    std::unique_ptr<PpdDocument> arrived_; ///< waits for what is remembered for it
    Carried carried_;                      ///< from the printers before
};

} // namespace dialog
