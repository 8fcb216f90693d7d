#include "tests/dialog/program_run.h"

#include "tests/dialog/staged_driver.h"

#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace test {

ProgramRun runPrint(const QStringList &arguments)
{
    constexpr int kMilliseconds = 60'000;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.remove(QStringLiteral("LANGUAGE"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KORVANE_PRINT), arguments);
    ProgramRun run;
    if (process.waitForFinished(kMilliseconds) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    else
        process.kill();
    process.waitForFinished();
    run.output = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}

QJsonObject readJson(const QString &path)
{
    const QJsonDocument document = QJsonDocument::fromJson(fileBytes(path));
    EXPECT_TRUE(document.isObject()) << path.toStdString();
    return document.object();
}

} // namespace test
