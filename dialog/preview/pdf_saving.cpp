#include "dialog/preview/pdf_saving.h"

#include "dialog/preview/preview_words.h"
#include "dialog/preview/side_painter.h"
#include "dialog/threads/thread_link.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <atomic>
#include <chrono>

namespace dialog {
namespace {

// Coordinates of the file are whole numbers of this fraction of an inch.
constexpr int kResolution = 1200;
constexpr double kPointsPerInch = 72;

constexpr double kPicturePixelsPerPoint = 300 / kPointsPerInch;
// As long as a person does not wonder where the window stays; a damaged document takes longer.
constexpr auto kPatience = std::chrono::seconds(1);

void setPage(QPdfWriter &writer, const QSizeF &size)
{
    writer.setPageSize(QPageSize(size, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
}

} // namespace

struct PdfSaving::Work : ThreadLink<PdfSaving>
{
    using ThreadLink::ThreadLink;

    PdfOrder order;
    std::atomic<bool> isCancelled = false;
    bool isWritten = false;
    PdfFault fault = PdfFault::File;
    QString reason = {}; ///< why it is not written, unless it has been given up

    void run(const SourceOpener &opener);
    void failForDocument(const QString &problem)
    {
        fault = PdfFault::Document;
        reason = problem;
    }
    void write(PageSource &source, QSaveFile &file);
    [[nodiscard]] int putSide(PageSource &source, int number, QPainter &painter) const;
};

void PdfSaving::Work::run(const SourceOpener &opener)
{
    const OpenedSource opened = opener(order.document);
    if (!opened.source) {
        failForDocument(PreviewWords::problem(opened.problem));
        return;
    }
    QSaveFile file(order.file);
    if (!file.open(QIODevice::WriteOnly)) {
        reason = file.errorString();
        return;
    }
    write(*opened.source, file);
    if (isCancelled || !reason.isNull())
        file.cancelWriting();
    isWritten = file.commit();
    if (!isWritten && reason.isNull())
        reason = file.errorString();
}

void PdfSaving::Work::write(PageSource &source, QSaveFile &file)
{
    const std::vector<int> sides = printedSides(order.look, source.pageCount());
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setTitle(order.title);
    QPainter painter;
    for (std::size_t i = 0; i < sides.size() && !isCancelled && reason.isNull(); ++i) {
        setPage(writer, sideSize(order.look));
        if (painter.isActive())
            writer.newPage();
        else
            painter.begin(&writer);
        painter.resetTransform();
        painter.scale(kResolution / kPointsPerInch, kResolution / kPointsPerInch);
        const int damaged = putSide(source, sides[i], painter);
        if (damaged >= 0)
            failForDocument(PreviewWords::damagedPages({damaged}));
        const int done = static_cast<int>(i) + 1;
        const int all = static_cast<int>(sides.size());
        post([done, all](PdfSaving &saving) { Q_EMIT saving.progressed(done, all); });
    }
}

/// Colours of lines cannot be taken away, those of a picture can.
int PdfSaving::Work::putSide(PageSource &source, int number, QPainter &painter) const
{
    if (!order.look.isGrayscale)
        return paintSide(source, order.look, number, painter);
    const SidePicture side = drawSide(source, order.look, number, kPicturePixelsPerPoint,
                                      [this] { return isCancelled.load(); });
    painter.drawImage(QRectF({}, side.layout.size), side.image);
    return side.damaged.empty() || isCancelled ? -1 : side.damaged.front();
}

PdfSaving::PdfSaving(SourceOpener opener, QObject *parent)
    : QObject(parent), opener_(std::move(opener))
{
}

PdfSaving::~PdfSaving()
{
    if (!work_)
        return;
    cancel();
    work_->hangUp();
    work_->waitForEnd(kPatience);
}

void PdfSaving::start(const PdfOrder &order)
{
    if (work_)
        return;
    work_ = std::make_shared<Work>(this);
    work_->order = order;
    work_->start([work = work_, opener = opener_] {
        work->run(opener);
        work->post([work](PdfSaving &saving) { saving.finish(*work); });
    });
}

void PdfSaving::cancel()
{
    if (work_)
        work_->isCancelled = true;
}

void PdfSaving::finish(const Work &work)
{
    work_.reset();
    if (work.isWritten)
        Q_EMIT saved(work.order.file);
    else if (work.isCancelled)
        Q_EMIT cancelled();
    else
        Q_EMIT failed(work.fault, work.reason);
}

} // namespace dialog
