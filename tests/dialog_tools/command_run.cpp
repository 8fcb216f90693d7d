#include "tests/dialog_tools/command_run.h"

#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace test {

CommandRun CommandRoom::run(const QString &program, const QStringList &arguments) const
{
    constexpr int kMilliseconds = 60'000;
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("TMPDIR"), directory_.path());
    environment.remove(QStringLiteral("LANGUAGE"));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    CommandRun run;
    if (process.waitForFinished(kMilliseconds) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    else
        process.kill();
    process.waitForFinished();
    run.output = process.readAllStandardOutput();
    run.errors = process.readAllStandardError();
    return run;
}

CommandRun CommandRoom::print(const QStringList &arguments) const
{
    return run(QStringLiteral(KORVANE_PRINT), arguments);
}

QString CommandRoom::write(const char *name, const QByteArray &bytes) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << name;
    return file.fileName();
}

QString CommandRoom::path(const char *name) const
{
    return directory_.filePath(QString::fromUtf8(name));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

} // namespace test
