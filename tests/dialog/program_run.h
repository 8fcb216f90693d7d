#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace test {

/// What the built program answered.
struct ProgramRun
{
    int status = -1; ///< -1: it crashed or did not end in time
    QByteArray output;
    QByteArray errors;
};

/// Runs korvane-print without a display.
[[nodiscard]] ProgramRun runPrint(const QStringList &arguments);

/// An object from a JSON file; the test fails when it is none.
[[nodiscard]] QJsonObject readJson(const QString &path);

} // namespace test
