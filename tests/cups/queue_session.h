#pragma once

#include "dialog/jobs/queue_printing.h"
#include "tests/cups/fault_server.h"
#include "tests/support/private_cupsd.h"

#include <QTemporaryDir>

#include <map>
#include <memory>

namespace test {

/// What one press of Print came to.
struct Pressed
{
    dialog::QueueJobResult result;
    bool hasEnded = false;
    int ticks = 0;      ///< of a 10 ms timer on the main thread meanwhile
    int longestGap = 0; ///< between two of them, in ms
};

/// A private print server behind a fault server, a queue on it, a document, and a state folder of
/// its own.
class QueueSession
{
public:
    QueueSession();

    [[nodiscard]] static QString queue() { return QStringLiteral("ink"); }
    [[nodiscard]] PrivateCupsd &server() { return server_; }
    [[nodiscard]] const PrivateCupsd &server() const { return server_; }
    [[nodiscard]] FaultServer &faults() { return faults_; }
    [[nodiscard]] QString document() const { return files_.filePath(QStringLiteral("page.pdf")); }
    [[nodiscard]] QString stateFolder() const { return files_.filePath(QStringLiteral("state")); }
    /// Its path.
    [[nodiscard]] QString copyOfDocument(const QString &name) const;
    void growDocument(qint64 bytes) const;
    /// How often a document of that title has reached the printer.
    [[nodiscard]] qsizetype printed(const QString &title) const
    {
        return server_.printedTitles().count(title);
    }
    [[nodiscard]] static dialog::JobOptions options();
    [[nodiscard]] static std::unique_ptr<dialog::QueuePrinting> printing(int limitMilliseconds);
    [[nodiscard]] static std::unique_ptr<dialog::QueuePrinting>
    printing(const dialog::ServerLimits &limits);
    /// Names of the files in the journal.
    [[nodiscard]] QStringList journal() const;

    Pressed press(dialog::QueuePrinting &printing, const QString &title) const;
    Pressed press(dialog::QueuePrinting &printing, const dialog::QueueDocument &document) const;

    struct KnownJob
    {
        int id;
        int state;
    };
    /// Jobs of the real server by title, asked past the fault server.
    [[nodiscard]] std::multimap<QString, KnownJob> jobs() const;

private:
    QTemporaryDir files_;
    PrivateCupsd server_;
    FaultServer faults_;
};

} // namespace test
