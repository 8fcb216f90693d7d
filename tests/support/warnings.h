#pragma once

#include <QRegularExpression>
#include <QString>

namespace test {

/// Turns every warning, critical or fatal message of Qt into a failure of the running test, unless an
/// ExpectWarning is there for it. Installed by main().
void installWarningWatch();

/// Expects at least one warning that matches while it lives; fails when none came.
class ExpectWarning
{
public:
    explicit ExpectWarning(const QString &pattern);
    ~ExpectWarning();
    ExpectWarning(const ExpectWarning &) = delete;
    ExpectWarning &operator=(const ExpectWarning &) = delete;

    /// Counts the message when it matches.
    [[nodiscard]] bool takes(const QString &message);

private:
    QRegularExpression pattern_;
    int seen_ = 0;
};

} // namespace test
