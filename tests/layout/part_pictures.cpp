// part_pictures FOLDER: writes pictures of those parts of the print window that no scenario
// reaches, because they need a print server: FOLDER/window-<part>-<language>[-dark].png.

#include "dialog/preview/preview_pane.h"
#include "dialog/window/print_window.h"
#include "platform/console.h"
#include "tests/layout/sample_window.h"
#include "tests/layout/scene.h"

#include <QApplication>
#include <QDir>
#include <QTest>

#include <cstdio>

namespace {

struct Shown
{
    test::Part part;
    const char *name;
};
// The offscreen platform's screen is smaller.
constexpr QSize kSize(1000, 680);

constexpr Shown kShown[] = {{test::Part::Printers, "printers"}, {test::Part::SignIn, "sign-in"}};

bool write(const Shown &shown, const test::Look &look, const QDir &folder)
{
    const test::Desktop desktop(look);
    const test::Scene scene(shown.part, look);
    dialog::PrintWindow &window = scene.window();
    static_cast<QWidget &>(window).resize(kSize);
    test::settle();
    if (!QTest::qWaitFor([&] { return window.preview().isCurrent(); }))
        return false;
    const QLatin1String shade(look.shade == test::Shade::Dark ? "-dark" : "");
    return window.grab().save(
        folder.filePath(QStringLiteral("window-%1-%2%3.png")
                            .arg(QLatin1String(shown.name), QLatin1String(look.language), shade)));
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: part_pictures FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    platform::setConsoleSink([](const QString &) {});
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    bool good = true;
    for (const Shown &shown : kShown) {
        for (const char *language : {"en", "de", "ja"}) {
            good = write(shown, {language}, folder) && good;
            good = write(shown, {language, 1, test::Shade::Dark}, folder) && good;
        }
    }
    return good ? 0 : 1;
}
