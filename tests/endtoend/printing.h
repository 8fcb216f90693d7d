#pragma once

#include "tests/endtoend/dialog_run.h"
#include "tests/endtoend/expected_job.h"
#include "tests/support/private_cupsd.h"

#include <ostream>
#include <set>
#include <vector>

namespace test {

/// One language's edition of a sample printer.
struct Edition
{
    const char *name;
    const char *ppd;
    const char *language;
};
void PrintTo(const Edition &edition, std::ostream *out);

constexpr Edition kEnglish{"English", "Korvane-S300.ppd", "en"};
constexpr Edition kGerman{"German", "Korvane-S300-de.ppd", "de"};

/// Sorted; a name that comes twice is there twice.
using OptionPairs = std::vector<std::pair<QString, QString>>;
[[nodiscard]] OptionPairs sorted(OptionPairs options);

/// A queue of a private server, and everything that has been printed on it from the dialog. What
/// arrives there is compared at the end, so that dialog and printer work side by side.
class Printing
{
public:
    explicit Printing(const Edition &edition, PrivateCupsd::User user = PrivateCupsd::User::Own);
    explicit Printing(const QByteArray &ppd, const char *language = "en",
                      PrivateCupsd::User user = PrivateCupsd::User::Own);
    /// Expects what has not arrived yet.
    ~Printing();
    Printing(const Printing &) = delete;
    Printing &operator=(const Printing &) = delete;

    [[nodiscard]] static QString queue() { return QStringLiteral("ink"); }
    [[nodiscard]] const PrivateCupsd &server() const { return server_; }
    [[nodiscard]] PrivateCupsd &server() { return server_; }
    /// The dialog on the queue, without panels so far.
    [[nodiscard]] std::unique_ptr<DialogRun> open(int systemVersion = kSystem106,
                                                  const dialog::ServerLimits &limits = {}) const;

    /// Prints from the dialog; the ticket is compared now, what arrives later.
    void print(DialogRun &run, const ExpectedJob &expected, const QString &description);
    /// The second half of it, for a job that has been printed.
    void expect(const PrintedJob &job, const ExpectedJob &expected, const QString &description);
    /// The whole story in a dialog of its own.
    void play(const Story &story);

    /// Waits for what was printed since the last call; the options of each job that came.
    std::vector<OptionPairs> expectArrivals();
    /// The options of a job that has been waited for, but for those that the server gives to every
    /// job.
    [[nodiscard]] OptionPairs arrivedOptions(int job) const;

private:
    struct Sent
    {
        int job;
        Values options;
        QString description;
    };

    QString language_;
    PrivateCupsd server_;
    std::set<QString> serversOwn_;
    std::vector<Sent> sent_;
};

} // namespace test
