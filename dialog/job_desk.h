#pragma once

#include "dialog/host/dialog_host.h"
#include "dialog/jobs/folder_printing.h"
#include "dialog/jobs/ticket.h"
#include "dialog/print_case.h"
#include "dialog/printers/sign_in.h"
#include "dialog/window/notice_area.h"

#include <QObject>
#include <QTimer>

namespace dialog {

class PpdDocument;
class QueuePrinting;
struct QueueJobResult;

/// A job that has been handed over.
struct JobRecord
{
    QString id; ///< the job folder's name, or the number at the print server
    JobOptions options;
    QString ticketPath;
    QStringList remarks = {};  ///< what a person should know of it, shown in the window
    JobSettings settings = {}; ///< what the options were made of
};

/// Whether a person is asked before a job prints with conflicts or other choices than made.
enum class Review { Ask, Skip };

/// What is left of a job that failed.
enum class Aftermath {
    None,         ///< nothing of it prints
    Unsettled,    ///< nobody knows; the next print() finds out before it sends anything
    MaybePrinted, ///< nobody will know
};

/// What Print leads to: the panels commit, a person reviews what rules have changed, and the job
/// goes into its folder or to its queue. One job at a time.
class JobDesk : public QObject
{
    Q_OBJECT

public:
    /// Borrows printer and host. The case says where jobs go.
    JobDesk(const PrintCase &printCase, const PpdDocument &printer, DialogHost &host,
            QObject *parent = nullptr);

    void setDocument(const QString &path) { case_.document = path; }
    [[nodiscard]] const QString &document() const { return case_.document; }

    /// Does nothing while a job is on its way.
    void print(Review review);
    [[nodiscard]] bool isSending() const { return isSending_; }
    /// Of the last job, once it has failed.
    [[nodiscard]] Aftermath aftermath() const { return aftermath_; }
    /// Takes the job on its way back; idle() follows.
    void cancel();
    /// From now on somebody answers signInWanted(); until then a server that wants a password takes
    /// no job.
    void offerSignIn();
    void signIn(std::unique_ptr<Credentials> credentials);
    /// Finds out what became of jobs of programs that are gone.
    void settleEarlier();
    /// What Print would make now. Commits the panels.
    [[nodiscard]] Ticket ticket();
    /// What jobs are made of, as it stands. Commits nothing.
    [[nodiscard]] JobSettings jobSettings() const;

Q_SIGNALS:
    void noticed(const dialog::Notice &notice);
    /// The same, of news that nobody need be told but in the window.
    void progressed(const dialog::Notice &notice);
    /// The notice with that key is past.
    void dismissed(const QString &key);
    void sendingChanged(bool isSending);
    /// The job waits for signIn() or cancel(). The question is void when the job ends.
    void signInWanted(const dialog::SignInQuestion &question);
    void jobMade(const dialog::JobRecord &job);
    void jobFailed(const QString &notice);
    /// The job that was on its way has ended, either way.
    void idle();

private:
    void makeQueuePrinting();
    void begin();
    void end();
    void takeProgress(qint64 done, qint64 all);
    [[nodiscard]] QString problemBeforePrinting() const;
    void askForReview(const CommitResult &result);
    [[nodiscard]] QString reviewText(const CommitResult &result) const;
    [[nodiscard]] Ticket makeTicket(const CommitResult &result) const;
    void printToFolder(const Ticket &ticket);
    void finishFolderJob(const Ticket &ticket, const JobFolderResult &result);
    void printToQueue(const Ticket &ticket);
    void finishQueueJob(Ticket ticket, const QueueJobResult &result);
    void tellMade(const Ticket &ticket, const QStringList &told, const QString &ticketPath);
    [[nodiscard]] Aftermath aftermathOf(const QueueJobResult &result) const;
    void showProgress();
    [[nodiscard]] QString progressWords() const;
    void fail(const QString &words);

    PrintCase case_;
    const PpdDocument &printer_;
    DialogHost &host_;
    QueuePrinting *queuePrinting_ = nullptr; ///< null without a queue
    FolderPrinting folderPrinting_;
    bool isSending_ = false;
    QTimer progressDelay_; ///< a short job shows none
    int sentPercent_ = 0;
    Aftermath aftermath_ = Aftermath::None;
};

} // namespace dialog
