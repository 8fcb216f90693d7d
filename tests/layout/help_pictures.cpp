// help_pictures FOLDER: writes the pictures of the help book,
// FOLDER/<language>/pictures/<page>.png. Each shows the panel with the page's setting bright and
// everything else dimmed.

#include "platform/console.h"
#include "tests/layout/desktop.h"
#include "tests/layout/quality_window.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <cstdio>

namespace {

struct Page
{
    const char *name;
    QStringList controls;
};

const QList<Page> kInkPages = {
    {"print-quality", {QStringLiteral("ibPrintQualityLabel"), QStringLiteral("ibPrintQuality")}},
    {"paper-type", {QStringLiteral("ibPaperTypeLabel"), QStringLiteral("ibPaperType")}},
    {"paper-source", {QStringLiteral("ibPaperSourceLabel"), QStringLiteral("ibPaperSource")}},
    {"color-output", {QStringLiteral("ibColorOutputLabel"), QStringLiteral("ibColorOutput")}},
    {"color-preferences",
     {QStringLiteral("ibColorPreferencesLabel"), QStringLiteral("ibColorPreferences")}},
    {"ink-to-use", {QStringLiteral("ibInkToUseLabel"), QStringLiteral("ibInkToUse")}},
    {"dry-time", {QStringLiteral("ibDryTimeLabel"), QStringLiteral("ibDryTimePopUp")}},
    {"sharpening", {QStringLiteral("ibSharpenlabel"), QStringLiteral("ibSharpen")}},
    {"icc-test-chart", {QStringLiteral("ibUseICCTestChart")}},
};
const QList<Page> kMirrorPage = {{"mirror", {QStringLiteral("ibMIrror")}}};
const QList<Page> kTonerPages = {
    {"toner-save", {QStringLiteral("ibTonerSave")}},
    {"halftone", {QStringLiteral("ibHalftoneLabel"), QStringLiteral("ibHalftone")}},
    {"threshold",
     {QStringLiteral("ibThresholdLabel"), QStringLiteral("ibThresholdTextFeild"),
      QStringLiteral("ibThresholdStepper")}},
};

/// What a printer's panel shows for these pages.
struct Series
{
    const char *language;
    const char *printer;
    int systemVersion;
    const QList<Page> &pages;
};

// Up to 10.5 the panel has the mirror box. The toner printer has an English description only.
constexpr int kNewSystem = 0x1060;
constexpr int kOldSystem = 0x1050;
const Series kSeries[] = {
    {"en", "Korvane-S300", kNewSystem, kInkPages},
    {"de", "Korvane-S300-de", kNewSystem, kInkPages},
    {"ja", "Korvane-S300-ja", kNewSystem, kInkPages},
    {"en", "Korvane-S300", kOldSystem, kMirrorPage},
    {"de", "Korvane-S300-de", kOldSystem, kMirrorPage},
    {"ja", "Korvane-S300-ja", kOldSystem, kMirrorPage},
    {"en", "Korvane-T500", kNewSystem, kTonerPages},
};

QRect placeOf(const QWidget &view, const QStringList &controls)
{
    constexpr int kMargin = 5;
    QRect place;
    for (const QString &name : controls) {
        if (const auto *control = view.findChild<QWidget *>(name))
            place |= QRect(control->mapTo(&view, QPoint()), control->size());
    }
    return place.adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

QPixmap spotlight(QWidget &view, const QRect &place)
{
    constexpr int kMargin = 10;
    const QRect all = view.rect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    QPixmap picture(all.size());
    picture.fill(view.palette().window().color());
    QPainter painter(&picture);
    painter.translate(-all.topLeft());
    painter.drawPixmap(0, 0, view.grab());
    painter.setClipRegion(QRegion(all) - place);
    painter.fillRect(all, QColor(255, 255, 255, 170));
    painter.setClipping(false);
    painter.setPen(QPen(QColor(0x2a, 0x6f, 0xb5), 2));
    painter.drawRoundedRect(place, 4, 4);
    return picture;
}

bool write(const Series &series, const QDir &folder)
{
    const test::Desktop desktop({.language = series.language});
    test::QualityWindow window({series.printer, test::SecondTray::Installed}, series.systemVersion);
    window.clickDisclosure();
    const QString pictures = QString::fromLatin1(series.language) + QStringLiteral("/pictures/");
    bool good = folder.mkpath(pictures);
    for (const Page &page : series.pages) {
        const QPixmap picture = spotlight(window.view(), placeOf(window.view(), page.controls));
        good = picture.save(
                   folder.filePath(pictures + QLatin1String(page.name) + QStringLiteral(".png"))) &&
               good;
    }
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: help_pictures FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    platform::setConsoleSink([](const QString &) {});
    bool good = true;
    for (const Series &series : kSeries)
        good = write(series, QDir(QString::fromLocal8Bit(argv[1]))) && good;
    return good ? 0 : 1;
}
