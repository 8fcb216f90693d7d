#include "tests/preview/sample_documents.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

namespace test {
namespace {

constexpr int kPointsPerInch = 72;
constexpr double kBand = 40;

void drawPage(QPainter &painter, const QSizeF &size, int number)
{
    painter.fillRect(QRectF(0, 0, size.width(), kBand), Qt::blue);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 48));
    painter.drawText(QRectF({}, size), Qt::AlignCenter, QString::number(number));
}

class CountingSource : public dialog::PageSource
{
public:
    CountingSource(std::unique_ptr<PageSource> source, std::shared_ptr<TouchedPages> touched)
        : source_(std::move(source)), touched_(std::move(touched))
    {
    }

    bool isPicture() const override { return source_->isPicture(); }
    int pageCount() const override { return source_->pageCount(); }
    QSizeF pageSize(int page) override
    {
        touched_->add(page);
        return source_->pageSize(page);
    }
    QImage picture(const dialog::PagePart &part, const dialog::ShouldStop &shouldStop) override
    {
        touched_->add(part.page);
        return source_->picture(part, shouldStop);
    }
    bool paint(int page, QPainter &painter) override
    {
        touched_->add(page);
        return source_->paint(page, painter);
    }

private:
    std::unique_ptr<PageSource> source_;
    std::shared_ptr<TouchedPages> touched_;
};

} // namespace

QString SampleDocuments::newPath()
{
    return path(QStringLiteral("document-%1").arg(++count_));
}

QString SampleDocuments::pdf(const std::vector<QSizeF> &pages)
{
    const QString path = newPath();
    QPdfWriter writer(path);
    writer.setResolution(kPointsPerInch);
    writer.setPageMargins({});
    QPainter painter;
    for (int number = 1; const QSizeF &size : pages) {
        writer.setPageSize(QPageSize(size, QPageSize::Point, {}, QPageSize::ExactMatch));
        if (number == 1)
            painter.begin(&writer);
        else
            writer.newPage();
        drawPage(painter, size, number++);
    }
    return path;
}

QString SampleDocuments::handMadePdf(const QByteArrayList &objects, const QByteArray &trailer)
{
    QByteArray bytes = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    for (int number = 1; const QByteArray &object : objects) {
        table += QByteArray::number(bytes.size()).rightJustified(10, '0') + " 00000 n \n";
        bytes += QByteArray::number(number++) + " 0 obj\n" + object + "\nendobj\n";
    }
    const QByteArray size = QByteArray::number(objects.size() + 1);
    const QByteArray start = QByteArray::number(bytes.size());
    bytes += "xref\n0 " + size + '\n' + table + "trailer <</Size " + size + " /Root 1 0 R " +
             trailer + ">>\nstartxref\n" + start + "\n%%EOF\n";
    return file(bytes);
}

QString SampleDocuments::file(const QByteArray &contents)
{
    QFile file(newPath());
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size()
               ? file.fileName()
               : QString();
}

void TouchedPages::add(int page)
{
    const std::lock_guard lock(mutex_);
    pages_.insert(page);
}

std::set<int> TouchedPages::pages() const
{
    const std::lock_guard lock(mutex_);
    return pages_;
}

std::function<dialog::OpenedSource(const QString &)>
countingOpener(const std::shared_ptr<TouchedPages> &touched)
{
    return [touched](const QString &path) {
        dialog::OpenedSource opened = dialog::openPageSource(path);
        if (opened.source)
            opened.source = std::make_unique<CountingSource>(std::move(opened.source), touched);
        return opened;
    };
}

} // namespace test
