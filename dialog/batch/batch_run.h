#pragma once

#include "dialog/batch/request.h"
#include "dialog/batch/survival.h"
#include "dialog/print_case.h"

#include <QObject>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace dialog {
class PpdDocument;
class PrintDialog;
struct Notice;
struct QueuePrinter;
} // namespace dialog

namespace dialog::batch {

/// Status of a run. Unless it is Done or NotKnown, nothing was printed. A signal's is 128 and its
/// number.
enum Status {
    Done = 0,
    NotPrinted = 1,
    CouldNotStart = 2,
    NotKnown = 3, ///< the server's answer was lost; the next start finds out and tells
    BySignal = 128,
};

/// Prints a document without a person, through the dialog: its panels are shown in a window that
/// nobody sees, each assignment is made with the panel's own control where a person could use it,
/// else as a choice of the dialog's own. Writes its results to standard output, faults to standard
/// error.
///
/// Needs Qt's offscreen platform. Not to be destroyed before finished().
class BatchRun : public QObject
{
    Q_OBJECT

public:
    BatchRun(const PrintCase &printCase, const Request &request);
    ~BatchRun() override;

    void start();
    /// Ends the run as soon as nothing half is left behind.
    void interrupt(int signalNumber);

Q_SIGNALS:
    /// Once, from the event loop.
    void finished(int status);

private:
    void openQueue();
    void takeQueue(std::optional<QueuePrinter> answer);
    void missQueue();
    void show(std::unique_ptr<PpdDocument> printer);
    [[nodiscard]] bool readSets(const PpdDocument &printer);
    void connectDialog();
    void watchQuestions();
    void failByQuestion(const QString &question);
    void takeTurn();
    void make(const Assignment &assignment);
    [[nodiscard]] bool chooseInPanel(const Choice &choice);
    void noteSettings();
    void conclude();
    void takeFailure();
    void tell(const Notice &notice) const;
    void sayOptions(const JobSettings &job, const std::vector<Loss> &losses) const;
    void fail(Status status, const QString &words);
    void finish(int status);

    PrintCase case_;
    Request request_;
    std::unique_ptr<PrintDialog> dialog_;
    std::vector<Assignment> assignments_;
    std::size_t next_ = 0;
    int during_ = 0; ///< whose happenings are noted
    std::vector<Happening> course_;
    std::map<QString, QVariant> settings_; ///< as noted last
    bool hasTriedAgain_ = false;
    int interruptedBy_ = 0; ///< number of the signal
    bool isFinished_ = false;
};

} // namespace dialog::batch
