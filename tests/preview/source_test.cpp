#include "dialog/preview/pdf_source.h"
#include "tests/preview/sample_documents.h"

#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace dialog {
namespace {

const ShouldStop kNever = [] { return false; };

class Source : public testing::Test
{
protected:
    DocumentProblem problemOf(const QString &path) { return openPageSource(path).problem; }

    test::SampleDocuments documents;
};

TEST_F(Source, APdfTellsItsPagesAndTheirSizes)
{
    const OpenedSource opened = openPageSource(documents.pdf({{595, 842}, {842, 595}, {300, 400}}));
    ASSERT_TRUE(opened.source);
    EXPECT_EQ(opened.problem, DocumentProblem::None);
    EXPECT_FALSE(opened.source->isPicture());
    EXPECT_EQ(opened.source->pageCount(), 3);
    EXPECT_EQ(opened.source->pageSize(1), QSizeF(842, 595));
    EXPECT_EQ(opened.source->pageSize(2), QSizeF(300, 400));
}

TEST_F(Source, APageThatDoesNotExistIsEmpty)
{
    const OpenedSource opened = openPageSource(documents.pdf(1));
    EXPECT_TRUE(opened.source->pageSize(7).isEmpty());
    EXPECT_TRUE(opened.source->picture({7, QSize(10, 10), QRect(0, 0, 10, 10)}, kNever).isNull());
}

TEST_F(Source, APartOfAPageIsDrawnWhereItIs)
{
    const OpenedSource opened = openPageSource(documents.pdf(1));
    const QImage band =
        opened.source->picture({0, QSize(595, 842), QRect(100, 10, 50, 20)}, kNever);
    EXPECT_EQ(band.size(), QSize(50, 20));
    EXPECT_EQ(band.pixelColor(25, 10), QColor(Qt::blue));
    const QImage below =
        opened.source->picture({0, QSize(595, 842), QRect(100, 50, 50, 20)}, kNever);
    EXPECT_EQ(below.pixelColor(25, 10), QColor(Qt::white));
}

TEST_F(Source, DrawingCanBeStopped)
{
    const OpenedSource opened = openPageSource(documents.pdf(1));
    EXPECT_TRUE(
        opened.source->picture({0, QSize(595, 842), QRect(0, 0, 595, 842)}, [] { return true; })
            .isNull());
}

TEST_F(Source, APictureIsADocumentOfOnePage)
{
    QImage image(300, 150, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.setDotsPerMeterX(11811); // 300 to the inch
    image.setDotsPerMeterY(11811);
    for (const char *format : {"png", "jpg", "bmp"}) {
        const QString path = documents.path(QStringLiteral("picture"));
        ASSERT_TRUE(image.save(path, format));
        const OpenedSource opened = openPageSource(path);
        ASSERT_TRUE(opened.source) << format;
        EXPECT_TRUE(opened.source->isPicture());
        EXPECT_EQ(opened.source->pageCount(), 1);
        EXPECT_NEAR(opened.source->pageSize(0).width(), 72, 0.1);
        EXPECT_NEAR(opened.source->pageSize(0).height(), 36, 0.1);
        const QImage part = opened.source->picture({0, QSize(30, 15), QRect(5, 5, 10, 5)}, kNever);
        EXPECT_EQ(part.size(), QSize(10, 5));
        EXPECT_GT(part.pixelColor(5, 2).red(), 250) << format;
    }
}

TEST_F(Source, NoDocumentMissingFilesAndFoldersAreToldApartFromDamage)
{
    EXPECT_EQ(problemOf({}), DocumentProblem::NoDocument);
    EXPECT_EQ(problemOf(documents.path(QStringLiteral("absent"))), DocumentProblem::Unreadable);
    EXPECT_EQ(problemOf(documents.path(QStringLiteral("."))), DocumentProblem::Unreadable);
}

TEST_F(Source, AFifoIsNotWaitedFor)
{
    const QString path = documents.path(QStringLiteral("fifo"));
    ASSERT_EQ(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    EXPECT_EQ(problemOf(path), DocumentProblem::Unreadable);
}

TEST_F(Source, OtherKindsHaveNoPreview)
{
    EXPECT_EQ(problemOf(documents.file("Dear Sir or Madam\n")), DocumentProblem::UnknownKind);
    EXPECT_EQ(problemOf(documents.file("%!PS-Adobe-3.0\nshowpage\n")),
              DocumentProblem::UnknownKind);
    EXPECT_EQ(problemOf(documents.file("")), DocumentProblem::UnknownKind);
}

TEST_F(Source, ADamagedPdfIsSaidToBeDamaged)
{
    EXPECT_EQ(problemOf(documents.file("%PDF-1.7\nnothing more")), DocumentProblem::Damaged);
}

TEST_F(Source, APdfWithoutWhatReadsItHasNoPreview)
{
    const QString pdf = documents.pdf(1);
    EXPECT_EQ(openPdf(pdf, documents.path(QStringLiteral("absent.so"))).problem,
              DocumentProblem::NoReader);
    EXPECT_EQ(openPdf(pdf, documents.file("no library")).problem, DocumentProblem::NoReader);
    EXPECT_TRUE(openPdf(pdf).source);
}

TEST_F(Source, ADamagedPictureIsSaidToBeDamaged)
{
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = documents.path(QStringLiteral("whole"));
    ASSERT_TRUE(image.save(path, "png"));
    QFile whole(path);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    EXPECT_EQ(problemOf(documents.file(whole.read(60))), DocumentProblem::Damaged);
}

TEST_F(Source, APictureThatWouldFillTheMemoryIsRefused)
{
    QImage image(4000, 4000, QImage::Format_Mono);
    image.fill(1);
    const QString path = documents.path(QStringLiteral("large"));
    ASSERT_TRUE(image.save(path, "png"));
    const int former = QImageReader::allocationLimit();
    QImageReader::setAllocationLimit(1);
    EXPECT_EQ(problemOf(path), DocumentProblem::TooLarge);
    QImageReader::setAllocationLimit(former);
}

TEST_F(Source, AProtectedPdfIsSaidToBeProtected)
{
    const QByteArray key(64, '4');
    const QString path = documents.handMadePdf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 100]>>"},
        "/ID [<00><00>] /Encrypt <</Filter/Standard/V 1/R 2/P -4/O <" + key + ">/U <" + key +
            ">>>");
    EXPECT_EQ(problemOf(path), DocumentProblem::Encrypted);
}

TEST_F(Source, APdfWithoutPagesIsSaidToHaveNone)
{
    const QString path =
        documents.handMadePdf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[]/Count 0>>"});
    EXPECT_EQ(problemOf(path), DocumentProblem::NoPages);
}

TEST_F(Source, APageWiderThanAnyPaperIsEmptyNotDrawn)
{
    const QString path = documents.handMadePdf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R 4 0 R]/Count 2>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 1000000000 10]>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]>>"});
    const OpenedSource opened = openPageSource(path);
    ASSERT_TRUE(opened.source);
    EXPECT_TRUE(opened.source->pageSize(0).isEmpty());
    EXPECT_TRUE(opened.source->picture({0, QSize(10, 10), QRect(0, 0, 10, 10)}, kNever).isNull());
    EXPECT_EQ(opened.source->pageSize(1), QSizeF(100, 200));
}

} // namespace
} // namespace dialog
