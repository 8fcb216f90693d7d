#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <utility>
#include <vector>

namespace test {

/// Names and values as CUPS reads them from a filter's option string, in its order. A boolean,
/// "Name" or "noName" there, has the value "true" or "false".
using FilterOptions = std::vector<std::pair<QString, QString>>;

[[nodiscard]] FilterOptions parseFilterOptions(const QByteArray &optionString);

/// A CUPS server of the test's own on loopback, with everything that it reads and writes in a
/// folder of its own. Its filter keeps each job's option string, its backend the document. While it
/// lives, this process and the programs that it starts know no other server.
///
///     PrivateCupsd server;
///     server.addQueue(QStringLiteral("ink"), ppdBytes);
///     const int job = ...;
///     ASSERT_TRUE(server.waitForJob(job));
///     server.options(job), server.document(job)
///
/// It ends with the object, and with the process whatever happens to that. The folder, with the
/// server's logs, stays after a failed test.
class PrivateCupsd
{
public:
    /// Who runs the server. An ordinary user's has no rights to change users, and other rules about
    /// owners; for a test that is one itself, both are the same.
    enum class User { Own, Ordinary };

    /// Fails the test, and is not running, when no server comes up.
    explicit PrivateCupsd(User user = User::Own);
    ~PrivateCupsd();
    PrivateCupsd(const PrivateCupsd &) = delete;
    PrivateCupsd &operator=(const PrivateCupsd &) = delete;

    [[nodiscard]] bool isRunning() const;
    [[nodiscard]] QString address() const; ///< "127.0.0.1:PORT"
    [[nodiscard]] QString folder() const { return folder_.path(); }

    /// Ends the server; nobody answers at its address then.
    void stop();
    /// Starts it at the same address, with the queues and jobs that it had; fails the test if it
    /// cannot.
    void restart();
    /// Ends it as a crash does: nothing is written down, nothing is answered any more. From any
    /// thread; restart() afterwards.
    void crash() const;
    /// Starts it anew so that no file can grow beyond that, as on a full disk.
    void limitFiles(qint64 bytes);
    /// Starts it anew with these lines of configuration besides its own.
    void configure(const QByteArray &lines);

    /// A queue that takes PDF files, idle and accepting. The PPD's filters give way to the one that
    /// keeps the options.
    void addQueue(const QString &name, const QByteArray &ppd);
    /// Runs one of CUPS' commands ("lpadmin", "cupsdisable", ...) against this server; fails the
    /// test when the command fails. Answers what it wrote.
    QByteArray run(const QString &command, const QStringList &arguments);
    /// Prints without any option, to learn what the server adds by itself; 0 on failure.
    int printPlainly(const QString &queue, const QString &file);

    /// Whether the printer has the job's whole document.
    [[nodiscard]] bool hasArrived(int id) const;
    /// False, with a failure, when the job's document has not reached the printer in time.
    [[nodiscard]] bool waitForJob(int id) const;
    // Of a job that has been waited for.
    [[nodiscard]] QByteArray optionString(int id) const;
    [[nodiscard]] FilterOptions options(int id) const;
    [[nodiscard]] int copies(int id) const; ///< never among the options
    [[nodiscard]] QByteArray document(int id) const;

    /// Titles of the jobs whose document has reached the printer, in that order; also of those that
    /// the server no longer knows.
    [[nodiscard]] QStringList printedTitles() const;
    /// Sizes of all documents at the printer.
    [[nodiscard]] std::vector<qint64> documentSizes() const;

private:
    void writeFiles() const;
    void start();
    [[nodiscard]] bool comesUp();
    [[nodiscard]] QString kept(int id, const char *what) const;

    bool gaveUpRights_;
    QTemporaryDir folder_;
    int port_ = 0;
    QByteArray moreConfiguration_;
    qint64 largestFile_ = -1; ///< no limit
    std::unique_ptr<QProcess> server_;
    QByteArray formerServer_;
};

} // namespace test
