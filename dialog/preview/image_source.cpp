#include "dialog/preview/image_source.h"

#include <QImageReader>
#include <QPainter>

namespace dialog {
namespace {

constexpr double kPointsPerInch = 72;
constexpr double kInchesPerMeter = 1 / 0.0254;
// Of a picture that names none.
constexpr double kUsualResolution = 200;

class ImageSource : public PageSource
{
public:
    explicit ImageSource(const QImage &image) : image_(image) {}

    bool isPicture() const override { return true; }
    int pageCount() const override { return 1; }
    QSizeF pageSize(int page) override;
    QImage picture(const PagePart &part, const ShouldStop &shouldStop) override;
    bool paint(int page, QPainter &painter) override;

private:
    QImage image_;
};

/// Qt gives a picture without a resolution that of the screen.
double resolution(int dotsPerMeter)
{
    static const int unknown = QImage(1, 1, QImage::Format_RGB32).dotsPerMeterX();
    return dotsPerMeter <= 0 || dotsPerMeter == unknown ? kUsualResolution
                                                        : dotsPerMeter / kInchesPerMeter;
}

QSizeF ImageSource::pageSize(int page)
{
    if (page != 0)
        return {};
    return {image_.width() * kPointsPerInch / resolution(image_.dotsPerMeterX()),
            image_.height() * kPointsPerInch / resolution(image_.dotsPerMeterY())};
}

QImage ImageSource::picture(const PagePart &part, const ShouldStop &)
{
    if (part.page != 0)
        return {};
    QImage picture(part.part.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(-part.part.topLeft(), part.whole), image_);
    return picture;
}

bool ImageSource::paint(int page, QPainter &painter)
{
    painter.drawImage(QRectF({}, pageSize(page)), image_);
    return page == 0;
}

/// By its head, before any memory is taken.
bool isTooLarge(const QImageReader &reader)
{
    constexpr qint64 kMegabyte = 1024 * 1024;
    constexpr qint64 kBytesPerPixel = 4;
    const qint64 pixels = qint64{reader.size().width()} * reader.size().height();
    return pixels * kBytesPerPixel > QImageReader::allocationLimit() * kMegabyte;
}

} // namespace

OpenedSource openImage(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (isTooLarge(reader))
        return {{}, DocumentProblem::TooLarge};
    const QImage image = reader.read();
    if (image.isNull())
        return {{}, DocumentProblem::Damaged};
    return {std::make_unique<ImageSource>(image)};
}

} // namespace dialog
