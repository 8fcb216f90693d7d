#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <ostream>

namespace test {

/// One record of the log file, or of the socket in the form that has operation and line.
struct LogRecord
{
    char module = 0;
    char kind = 0;
    int pid = 0;
    QString time; ///< "14:03:07.042"
    QString operation;
    int line = 0;
    QString message; ///< may have line feeds

    /// "I -[MainPDE2 willShow] L321 {", for comparisons at a glance.
    [[nodiscard]] QString brief() const;
};
void PrintTo(const LogRecord &record, std::ostream *out);

/// Takes bytes apart into records; adds a failure to the running test where they are none.
[[nodiscard]] QList<LogRecord> parseLogRecords(const QByteArray &bytes);

/// A temporary directory of the test's own (TMPDIR) and a debug log as in a new process, both while
/// it lives. Switched off until the debug list is written, which must happen before the first call
/// that logs:
///
///     test::DebugLog log;
///     log.switchOn();
///     panel.willShow();
///     EXPECT_EQ(log.traces(), QStringList({"{ -[MainPDE2 willShow]", "} -[MainPDE2 willShow]"}));
class DebugLog
{
public:
    static constexpr int kInfo = 1;
    static constexpr int kError = 2;
    static constexpr int kDump = 4;

    DebugLog();
    ~DebugLog();
    DebugLog(const DebugLog &) = delete;
    DebugLog &operator=(const DebugLog &) = delete;

    /// Writes the debug list with level, module number 1 and log file "x.log".
    void switchOn(int level = kInfo | kError) const;
    /// Writes the debug list with that module entry.
    void writeEntry(const QVariantMap &entry) const;
    void writeList(const QVariant &list) const;
    /// Writes the file of the debug list as it stands, readable and writable by its owner only.
    void writeListBytes(const QByteArray &bytes) const;

    [[nodiscard]] QString directory() const { return directory_.path(); }
    [[nodiscard]] QString listPath() const;
    [[nodiscard]] QString logPath() const;
    /// The log file's bytes; null when there is no file.
    [[nodiscard]] QByteArray bytes() const;

    [[nodiscard]] QList<LogRecord> records() const;
    /// The records after those of set-up.
    [[nodiscard]] QList<LogRecord> ownRecords() const;
    /// Entry and exit traces in order, "{ -[Class operation]" and "} -[Class operation]".
    [[nodiscard]] QStringList traces() const;
    /// Messages of the info records that are no traces, and of the error records.
    [[nodiscard]] QStringList infoMessages() const;
    [[nodiscard]] QStringList errorMessages() const;

private:
    [[nodiscard]] QStringList messages(char kind) const;

    QTemporaryDir directory_;
    QByteArray formerTmpDir_;
};

} // namespace test
