// PPDs of any bytes: opened, and lived with by dialog and panels. libcups reads each one first in a
// process of its own: one that brings libcups down there is counted as its fault, and left.

#include "dialog/print_dialog.h"
#include "dialog/window/print_window.h"
#include "tests/fuzz/fuzz_dialog.h"

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char kPlugIn[] =
    "\n*APDialogExtension: \"/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle\"\n";

int libcupsFaults = 0;

/// Every printer shows the panels.
QByteArray withPanels(QByteArray ppd)
{
    if (!ppd.contains("*APDialogExtension"))
        ppd += kPlugIn;
    return ppd;
}

/// What libcups does alone with the file, as the dialog does it.
bool bringsLibcupsDown(const QString &path)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(10);
        const auto opened = dialog::PpdDocument::open(path);
        _exit(std::holds_alternative<dialog::PpdError>(opened) ? 1 : 0);
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFSIGNALED(status);
}

void live(const QString &path)
{
    auto opened = dialog::PrintDialog::open(fuzz::surroundings().printCase(path));
    auto *dialog = std::get_if<std::unique_ptr<dialog::PrintDialog>>(&opened);
    if (!dialog)
        return;
    (*dialog)->showPanels();
    for (const auto &entry : (*dialog)->panels().loaded())
        static_cast<void>(entry.panel->summaryInfo());
    const auto options = (*dialog)->printer().options();
    for (qsizetype i = 0; i < std::min<qsizetype>(options.size(), 30); ++i) {
        for (const QString &choice : (*dialog)->printer().choices(options[i]).mid(0, 3))
            (*dialog)->host().changeFromElsewhere({options[i], choice});
    }
    static_cast<void>((*dialog)->commit());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString path =
        fuzz::surroundings().write(QStringLiteral("printer.ppd"), withPanels(bytes));
    if (bringsLibcupsDown(path))
        std::fprintf(stderr, "FAULT OF LIBCUPS number %d\n", ++libcupsFaults);
    else
        live(path);
    return 0;
}
