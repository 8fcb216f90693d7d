#include "tests/fuzz/fuzz_dialog.h"

#include "dialog/printers/user_files.h"
#include "platform/console.h"

#include <QApplication>
#include <QDir>
#include <QFile>

namespace fuzz {
namespace {

/// Never destroyed: the fuzzer leaves by exit(), when what the application stands on may be gone.
void makeApplication()
{
    static int count = 1;
    static char name[] = "fuzz";
    static char *words[] = {name, nullptr};
    static const auto *const application = new QApplication(count, words);
    Q_UNUSED(application);
    QApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

DialogSurroundings::DialogSurroundings()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TMPDIR", QFile::encodeName(folder_.path()));
    qputenv("CUPS_SERVER", "127.0.0.1:1");
    dialog::setUserFolder(personsFolder());
    makeApplication();
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    platform::setConsoleSink([](const QString &) {});
}

dialog::PrintCase DialogSurroundings::printCase(const QString &ppd) const
{
    dialog::PrintCase printCase;
    printCase.ppd = ppd;
    printCase.root = QStringLiteral(KORVANE_ROOT_DIR);
    printCase.language = QStringLiteral("en");
    printCase.systemVersion = 0x1060;
    printCase.jobFolder = folder_.filePath(QStringLiteral("jobs"));
    return printCase;
}

QString DialogSurroundings::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(folder_.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qUtf8Printable(file.fileName()));
    return file.fileName();
}

void DialogSurroundings::clear() const
{
    QDir(folder_.filePath(QStringLiteral("jobs"))).removeRecursively();
    QDir(personsFolder()).removeRecursively();
}

QString DialogSurroundings::personsFolder() const
{
    return folder_.filePath(QStringLiteral("person"));
}

DialogSurroundings &surroundings()
{
    static DialogSurroundings made;
    return made;
}

} // namespace fuzz
