#include "dialog/preview/pdf_module.h"

#include "dialog/preview/page_source.h"
#include "dialog/preview/quarters.h"

#include <QPainter>

#include <poppler-qt6.h>

#include <array>

namespace dialog {
namespace {

constexpr double kPointsPerInch = 72;
// No paper is larger; a page that says so is damaged.
constexpr double kLargestPage = 200'000;

class PdfSource : public PageSource
{
public:
    explicit PdfSource(std::unique_ptr<Poppler::Document> document);

    bool isPicture() const override { return false; }
    int pageCount() const override { return document_->numPages(); }
    QSizeF pageSize(int page) override;
    QImage picture(const PagePart &part, const ShouldStop &shouldStop) override;
    bool paint(int page, QPainter &painter) override;

private:
    std::unique_ptr<Poppler::Document> document_;
};

// A window has whole numbers.
constexpr int kUnitsPerPoint = 100;
// By quarters to the left.
constexpr std::array kRotations{Poppler::Page::Rotate0, Poppler::Page::Rotate270,
                                Poppler::Page::Rotate180, Poppler::Page::Rotate90};

/// With the right edge at the left.
QRect flipped(const QRect &rect)
{
    return {rect.x() + rect.width(), rect.y(), -rect.width(), rect.height()};
}

bool isReasonable(const QSizeF &size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= kLargestPage &&
           size.height() <= kLargestPage;
}

PdfSource::PdfSource(std::unique_ptr<Poppler::Document> document) : document_(std::move(document))
{
    document_->setRenderHint(Poppler::Document::Antialiasing);
    document_->setRenderHint(Poppler::Document::TextAntialiasing);
}

QSizeF PdfSource::pageSize(int page)
{
    const std::unique_ptr<Poppler::Page> found = document_->page(page);
    const QSizeF size = found ? found->pageSizeF() : QSizeF();
    return isReasonable(size) ? size : QSizeF(0, 0);
}

QImage PdfSource::picture(const PagePart &part, const ShouldStop &shouldStop)
{
    const std::unique_ptr<Poppler::Page> page = document_->page(part.page);
    if (!page || !isReasonable(page->pageSizeF()))
        return {};
    const QSizeF size = page->pageSizeF();
    const auto stops = [](const QVariant &question) {
        return (*static_cast<const ShouldStop *>(question.value<const void *>()))();
    };
    document_->setRenderBackend(Poppler::Document::SplashBackend);
    const QImage picture = page->renderToImage(
        part.whole.width() * kPointsPerInch / size.width(),
        part.whole.height() * kPointsPerInch / size.height(), part.part.x(), part.part.y(),
        part.part.width(), part.part.height(), Poppler::Page::Rotate0, nullptr, nullptr, stops,
        QVariant::fromValue(static_cast<const void *>(&shouldStop)));
    return shouldStop() ? QImage() : picture;
}

bool PdfSource::paint(int page, QPainter &painter)
{
    const std::unique_ptr<Poppler::Page> found = document_->page(page);
    if (!found || !isReasonable(found->pageSizeF()))
        return false;
    document_->setRenderBackend(Poppler::Document::QPainterBackend);
    // Poppler replaces the painter's transformation; what it keeps are window and viewport.
    const QTransform transform = painter.transform();
    const int quarters = quartersOf(transform);
    const QRect place = transform.mapRect(QRectF({}, found->pageSizeF())).toRect();
    const QSizeF turned = quarters % 2 == 0 ? found->pageSizeF() : found->pageSizeF().transposed();
    painter.save();
    painter.resetTransform();
    painter.setViewport(transform.determinant() < 0 ? flipped(place) : place);
    painter.setWindow(QRect({}, (turned * kUnitsPerPoint).toSize()));
    const bool isPainted = found->renderToPainter(&painter, kPointsPerInch * kUnitsPerPoint,
                                                  kPointsPerInch * kUnitsPerPoint, -1, -1, -1, -1,
                                                  kRotations[static_cast<std::size_t>(quarters)]);
    painter.restore();
    return isPainted;
}

/// What Poppler says of damage that it works around is nobody's concern here.
void silencePoppler()
{
    static const bool isSilent = [] {
        Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
        return true;
    }();
    static_cast<void>(isSilent);
}

OpenedSource openPdf(const QString &path)
{
    silencePoppler();
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    if (!document)
        return {{}, DocumentProblem::Damaged};
    if (document->isLocked())
        return {{}, DocumentProblem::Encrypted};
    if (document->numPages() <= 0)
        return {{}, DocumentProblem::NoPages};
    return {std::make_unique<PdfSource>(std::move(document))};
}

} // namespace
} // namespace dialog

void korvaneOpenPdf(const QString &path, dialog::OpenedSource &opened)
{
    opened = dialog::openPdf(path);
}
