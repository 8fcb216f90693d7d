#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace test {

/// What a program answered.
struct CommandRun
{
    int status = -1; ///< -1: it crashed or did not end in time
    QByteArray output;
    QByteArray errors;
};

/// Runs a program with a temporary directory of the test's own, without a display.
class CommandRoom
{
public:
    [[nodiscard]] CommandRun run(const QString &program, const QStringList &arguments) const;
    /// The same with the built korvane-print.
    [[nodiscard]] CommandRun print(const QStringList &arguments) const;
    /// Writes a file into the temporary directory; answers its path.
    QString write(const char *name, const QByteArray &bytes) const;
    [[nodiscard]] QString path(const char *name) const;

private:
    QTemporaryDir directory_;
};

[[nodiscard]] QByteArray bytesOf(const QString &path);

} // namespace test
