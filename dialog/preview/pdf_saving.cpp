#include "dialog/preview/pdf_saving.h"

#include "dialog/preview/preview_words.h"
#include "dialog/preview/side_painter.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>

namespace dialog {
namespace {

// Coordinates of the file are whole numbers of this fraction of an inch.
constexpr int kResolution = 1200;
constexpr double kPointsPerInch = 72;

void setPage(QPdfWriter &writer, const SideLayout &side)
{
    writer.setPageSize(QPageSize(side.size, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
}

} // namespace

/// Both threads hold it, as long as either needs it.
struct PdfSaving::Work
{
    PdfOrder order;
    std::atomic<bool> isCancelled = false;
    QString reason = {}; ///< null: written
    std::mutex mutex;
    PdfSaving *owner = nullptr; ///< null once nobody listens

    void run();
    void write(PageSource &source, QSaveFile &file);

    /// Has @p tell called on the main thread, unless nobody listens by then.
    void post(std::function<void(PdfSaving &)> tell)
    {
        const std::lock_guard lock(mutex);
        if (owner)
            QMetaObject::invokeMethod(
                owner, [owner = owner, tell = std::move(tell)] { tell(*owner); },
                Qt::QueuedConnection);
    }
};

void PdfSaving::Work::run()
{
    const OpenedSource opened = openPageSource(order.document);
    if (!opened.source) {
        reason = PreviewWords::problem(opened.problem);
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
    if (!file.commit() && !isCancelled && reason.isNull())
        reason = file.errorString();
}

void PdfSaving::Work::write(PageSource &source, QSaveFile &file)
{
    const SheetLook look = lookFor(source, order.look);
    const std::vector<int> sides = printedSides(look, source.pageCount());
    QPdfWriter writer(&file);
    writer.setResolution(kResolution);
    writer.setTitle(order.title);
    QPainter painter;
    for (std::size_t i = 0; i < sides.size() && !isCancelled && reason.isNull(); ++i) {
        const SideLayout side = layOutSide(source, look, sides[i]);
        setPage(writer, side);
        if (painter.isActive())
            writer.newPage();
        else
            painter.begin(&writer);
        painter.resetTransform();
        painter.scale(kResolution / kPointsPerInch, kResolution / kPointsPerInch);
        const int damaged = paintSide(source, side, painter);
        if (damaged >= 0)
            reason = PreviewWords::damagedPages({damaged});
        const int done = static_cast<int>(i) + 1;
        const int all = static_cast<int>(sides.size());
        post([done, all](PdfSaving &saving) { Q_EMIT saving.progressed(done, all); });
    }
}

PdfSaving::PdfSaving(QObject *parent) : QObject(parent) {}

PdfSaving::~PdfSaving()
{
    if (!work_)
        return;
    cancel();
    const std::lock_guard lock(work_->mutex);
    work_->owner = nullptr;
}

void PdfSaving::start(const PdfOrder &order)
{
    if (work_)
        return;
    work_ = std::make_shared<Work>();
    work_->order = order;
    work_->owner = this;
    std::thread([work = work_] {
        work->run();
        work->post([work](PdfSaving &saving) { saving.finish(*work); });
    }).detach();
}

void PdfSaving::cancel()
{
    if (work_)
        work_->isCancelled = true;
}

void PdfSaving::finish(const Work &work)
{
    work_.reset();
    if (work.isCancelled)
        Q_EMIT cancelled();
    else if (work.reason.isNull())
        Q_EMIT saved(work.order.file);
    else
        Q_EMIT failed(work.reason);
}

} // namespace dialog
