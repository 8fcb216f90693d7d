// How long a document takes from being named to its first picture, whatever its length.

#include "bench/median.h"
#include "dialog/preview/preview_document.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kRounds = 11;

void writeDocument(const QString &path, int pages)
{
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            writer.newPage();
        painter.drawText(1'000, 1'000, QStringLiteral("Page %1").arg(page));
    }
}

double milliseconds(const QString &path)
{
    dialog::PreviewDocument document;
    QEventLoop drawing;
    QObject::connect(&document, &dialog::PreviewDocument::drawn, &drawing, &QEventLoop::quit);
    dialog::SheetLook look;
    look.paper.size = {595, 842};
    QElapsedTimer timer;
    timer.start();
    document.open(path);
    document.request({look, 0, 1});
    drawing.exec();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double medianTime(const QString &path)
{
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round)
        times.push_back(milliseconds(path));
    return bench::median(times);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    for (const int pages : {1, 1'000}) {
        const QString path = folder.filePath(QString::number(pages));
        writeDocument(path, pages);
        std::printf("%d pages: first picture after %.1f ms\n", pages, medianTime(path));
    }
}
