#include "dialog/preview/page_source.h"
#include "dialog/preview/pdf_saving.h"
#include "dialog/preview/preview_words.h"
#include "dialog/preview/side_painter.h"
#include "tests/preview/sample_documents.h"
#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>
#include <poppler-qt6.h>

#include <sys/resource.h>

#include <atomic>
#include <csignal>

namespace dialog {
namespace {

using test::q;
using testing::ElementsAre;
using testing::IsEmpty;

const QSizeF kA4Across(842, 595);

enum class End { None, Saved, Failed, Cancelled };

int differentPixels(const QImage &one, const QImage &other)
{
    int different = 0;
    for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
        for (int x = 0; x < std::min(one.width(), other.width()); ++x)
            different += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 100 ? 1 : 0;
    }
    return different;
}

class PdfFile : public testing::Test
{
protected:
    PdfFile()
    {
        look.paper = {test::kA4Points, {}};
        QObject::connect(&saving, &PdfSaving::saved, [this] { end = End::Saved; });
        QObject::connect(&saving, &PdfSaving::cancelled, [this] { end = End::Cancelled; });
        QObject::connect(&saving, &PdfSaving::failed, [this](PdfFault whose, const QString &why) {
            end = End::Failed;
            fault = whose;
            reason = why;
        });
    }

    void start(const QString &document)
    {
        end = End::None;
        saving.start({document, target(), q("A title"), look});
    }
    End finish()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return end != End::None; }, 30'000));
        EXPECT_FALSE(saving.isSaving());
        return end;
    }
    End save(const QString &document)
    {
        start(document);
        return finish();
    }

    [[nodiscard]] QString target() const { return folder.filePath(q("saved.pdf")); }
    [[nodiscard]] QStringList filesThere() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    }
    [[nodiscard]] QByteArray bytes() const
    {
        QFile file(target());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void writeFormerFile()
    {
        QFile file(target());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("former") == 6);
    }
    void expectFormerFileOnly()
    {
        EXPECT_EQ(bytes(), "former");
        EXPECT_EQ(filesThere(), QStringList({q("saved.pdf")}));
    }

    [[nodiscard]] std::vector<QSizeF> sizes() const
    {
        const OpenedSource opened = openPageSource(target());
        std::vector<QSizeF> all;
        for (int page = 0; opened.source && page < opened.source->pageCount(); ++page)
            all.push_back(opened.source->pageSize(page));
        return all;
    }
    /// One pixel for each point.
    [[nodiscard]] QImage picture(int page) const
    {
        const OpenedSource opened = openPageSource(target());
        if (!opened.source)
            return {};
        const QSize size = opened.source->pageSize(page).toSize();
        return opened.source->picture({page, size, QRect({}, size)}, [] { return false; });
    }
    [[nodiscard]] QImage drawn(PageSource &source, int side) const
    {
        return drawSide(source, look, side, 1, [] { return false; }).image;
    }
    /// In pixels, between the page of the file and what the preview shows of it.
    [[nodiscard]] int difference(const QString &document, int side) const
    {
        return differentPixels(picture(side), drawn(*openPageSource(document).source, side));
    }
    /// Which sides of the document the pages of the file look like; -1 for an empty one.
    [[nodiscard]] std::vector<int> sidesFrom(const QString &document, int sides) const
    {
        const OpenedSource opened = openPageSource(document);
        std::vector<int> found;
        for (int page = 0; page < static_cast<int>(sizes().size()); ++page) {
            std::map<int, int> sidesByDifference;
            for (int side = -1; side < sides; ++side)
                sidesByDifference[differentPixels(picture(page), drawn(*opened.source, side))] =
                    side;
            found.push_back(sidesByDifference.begin()->second);
        }
        return found;
    }

    test::SampleDocuments documents;
    QTemporaryDir folder;
    SheetLook look;
    PdfSaving saving;
    End end = End::None;
    PdfFault fault = PdfFault::File;
    QString reason;
};

bool isBlue(const QImage &image, int x, int y)
{
    const QColor color = image.pixelColor(x, y);
    return color.blue() > 200 && color.red() < 60 && color.green() < 60;
}

TEST_F(PdfFile, HasThePagesOfTheDocumentOnThePaperOfTheJob)
{
    ASSERT_EQ(save(documents.pdf(3)), End::Saved);
    EXPECT_THAT(sizes(), ElementsAre(test::kA4Points, test::kA4Points, test::kA4Points));
    EXPECT_TRUE(isBlue(picture(0), 300, 10));
    EXPECT_EQ(picture(0).pixelColor(300, 830), QColor(Qt::white));
    look.paper.size = {420, 595};
    ASSERT_EQ(save(documents.pdf(1)), End::Saved);
    EXPECT_THAT(sizes(), ElementsAre(QSizeF(420, 595)));
}

TEST_F(PdfFile, HasTheTitleOfTheJob)
{
    ASSERT_EQ(save(documents.pdf(1)), End::Saved);
    EXPECT_TEXT(Poppler::Document::load(target())->info(q("Title")), "A title");
}

TEST_F(PdfFile, HasHalfThePagesWithTwoOnASheet)
{
    look.pagesPerSheet = 2;
    ASSERT_EQ(save(documents.pdf(5)), End::Saved);
    EXPECT_THAT(sizes(), ElementsAre(kA4Across, kA4Across, kA4Across));
    EXPECT_TRUE(isBlue(picture(0), 200, 10) && isBlue(picture(0), 640, 10));
    EXPECT_TRUE(isBlue(picture(2), 200, 10));
    EXPECT_FALSE(isBlue(picture(2), 640, 10)) << "there is no sixth page";
}

TEST_F(PdfFile, HasTheSelectedSidesInTheirOrder)
{
    look.selection.ranges = {{2, 3}, {5, 5}};
    look.selection.order = SideSelection::Order::Reverse;
    const QString document = documents.pdf(6);
    ASSERT_EQ(save(document), End::Saved);
    EXPECT_THAT(sidesFrom(document, 6), ElementsAre(4, 2, 1));
}

TEST_F(PdfFile, HasAnEmptySideWhereTheJobHasOne)
{
    look.sides = Sides::Two;
    look.selection.order = SideSelection::Order::Reverse;
    const QString document = documents.pdf(3);
    ASSERT_EQ(save(document), End::Saved);
    EXPECT_THAT(sidesFrom(document, 3), ElementsAre(-1, 2, 1, 0));
}

TEST_F(PdfFile, IsFlippedAsTheJobIs)
{
    QImage halves(100, 100, QImage::Format_RGB32);
    halves.fill(Qt::white);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 40; ++x)
            halves.setPixelColor(x, y, Qt::blue);
    }
    const QString document = documents.path(q("halves"));
    ASSERT_TRUE(halves.save(document, "png"));
    ASSERT_EQ(save(document), End::Saved);
    EXPECT_TRUE(isBlue(picture(0), 50, 421));
    EXPECT_FALSE(isBlue(picture(0), 545, 421));
    look.isMirrored = true;
    ASSERT_EQ(save(document), End::Saved);
    EXPECT_FALSE(isBlue(picture(0), 50, 421));
    EXPECT_TRUE(isBlue(picture(0), 545, 421));
}

TEST_F(PdfFile, KeepsLinesInColors)
{
    const QString document = documents.pdf(2);
    ASSERT_EQ(save(document), End::Saved);
    EXPECT_THAT(sidesFrom(document, 2), ElementsAre(0, 1));
    EXPECT_LT(QFile(target()).size(), 20'000) << "pages are no pictures";
}

TEST_F(PdfFile, HasTurnedAndFlippedPagesAsThePreviewShowsThem)
{
    const QString document = documents.pdf({{842, 595}, {595, 842}});
    for (const bool isMirrored : {false, true}) {
        for (const auto orientation :
             {SheetOrientation::Portrait, SheetOrientation::ReversePortrait,
              SheetOrientation::Landscape, SheetOrientation::ReverseLandscape}) {
            look.isMirrored = isMirrored;
            look.orientation = orientation;
            ASSERT_EQ(save(document), End::Saved);
            EXPECT_THAT(sidesFrom(document, 2), ElementsAre(0, 1));
            EXPECT_LT(difference(document, 0), 300);
            EXPECT_LT(difference(document, 1), 300);
        }
    }
}

TEST_F(PdfFile, HasNoColorsInGrayscale)
{
    look.isGrayscale = true;
    ASSERT_EQ(save(documents.pdf(1)), End::Saved);
    const QColor band = picture(0).pixelColor(300, 10);
    EXPECT_EQ(band.red(), band.blue());
    EXPECT_EQ(band.red(), band.green());
    EXPECT_LT(band.red(), 200);
    EXPECT_GT(picture(0).pixelColor(300, 830).red(), 250);
    EXPECT_THAT(sizes(), ElementsAre(test::kA4Points));
}

TEST_F(PdfFile, TellsHowFarItIs)
{
    QSignalSpy progress(&saving, &PdfSaving::progressed);
    ASSERT_EQ(save(documents.pdf(3)), End::Saved);
    ASSERT_EQ(progress.count(), 3);
    EXPECT_EQ(progress[0], QVariantList({1, 3}));
    EXPECT_EQ(progress[2], QVariantList({3, 3}));
}

TEST_F(PdfFile, ReplacesAFormerOne)
{
    writeFormerFile();
    ASSERT_EQ(save(documents.pdf(2)), End::Saved);
    EXPECT_EQ(sizes().size(), 2U);
    EXPECT_EQ(filesThere(), QStringList({q("saved.pdf")}));
}

TEST_F(PdfFile, ThatIsGivenUpLeavesNothing)
{
    start(documents.pdf(2'000));
    QObject::connect(&saving, &PdfSaving::progressed, &saving, &PdfSaving::cancel);
    EXPECT_EQ(finish(), End::Cancelled);
    EXPECT_THAT(filesThere(), IsEmpty());
}

TEST_F(PdfFile, ThatIsGivenUpLeavesTheFormerOne)
{
    writeFormerFile();
    start(documents.pdf(2'000));
    saving.cancel();
    EXPECT_EQ(finish(), End::Cancelled);
    expectFormerFileOnly();
}

/// A page that is drawn until nobody wants it any more, and takes a while then.
class SlowSource : public PageSource
{
public:
    SlowSource(std::atomic<bool> &isDrawn, std::atomic<bool> &isClosed)
        : isDrawn_(isDrawn), isClosed_(isClosed)
    {
    }
    ~SlowSource() override { isClosed_ = true; }

    bool isPicture() const override { return false; }
    int pageCount() const override { return 1; }
    QSizeF pageSize(int) override { return test::kA4Points; }
    QImage picture(const PagePart &, const ShouldStop &shouldStop) override
    {
        isDrawn_ = true;
        while (!shouldStop())
            QThread::msleep(1);
        QThread::msleep(20); // long enough for whoever does not wait
        return {};
    }
    bool paint(int, QPainter &) override { return false; }

private:
    std::atomic<bool> &isDrawn_;
    std::atomic<bool> &isClosed_;
};

TEST_F(PdfFile, WhoseWindowGoesLeavesNothing)
{
    look.isGrayscale = true; // pages are pictures
    std::atomic<bool> isDrawn = false;
    std::atomic<bool> isClosed = false;
    auto shortLived = std::make_unique<PdfSaving>([&](const QString &) {
        return OpenedSource{std::make_unique<SlowSource>(isDrawn, isClosed)};
    });
    shortLived->start({{}, target(), {}, look});
    ASSERT_TRUE(QTest::qWaitFor([&] { return isDrawn.load(); }, 30'000));
    shortLived.reset();
    EXPECT_TRUE(isClosed) << "nobody has waited for the thread";
    EXPECT_THAT(filesThere(), IsEmpty());
}

TEST_F(PdfFile, OneAtATime)
{
    start(documents.pdf(1));
    saving.start({documents.pdf(1), folder.filePath(q("second.pdf")), {}, look});
    EXPECT_EQ(finish(), End::Saved);
    EXPECT_EQ(filesThere(), QStringList({q("saved.pdf")}));
}

TEST_F(PdfFile, OfADocumentThatIsMissingOrDamagedIsNotWritten)
{
    writeFormerFile();
    EXPECT_EQ(save(documents.path(q("nowhere.pdf"))), End::Failed);
    EXPECT_EQ(fault, PdfFault::Document);
    EXPECT_SAME(reason, PreviewWords::problem(DocumentProblem::Unreadable));
    expectFormerFileOnly();
    EXPECT_EQ(save(documents.file("%PDF-1.4\nnothing else")), End::Failed);
    EXPECT_EQ(fault, PdfFault::Document);
    EXPECT_SAME(reason, PreviewWords::problem(DocumentProblem::Damaged));
    expectFormerFileOnly();
}

TEST_F(PdfFile, WithAPageThatCannotBeReadIsNotWritten)
{
    const QString document = documents.handMadePdf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R 4 0 R]/Count 2>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 1000000000 10]>>"});
    writeFormerFile();
    for (const bool isGrayscale : {false, true}) {
        look.isGrayscale = isGrayscale;
        EXPECT_EQ(save(document), End::Failed);
        EXPECT_EQ(fault, PdfFault::Document);
        EXPECT_SAME(reason, PreviewWords::damagedPages({1}));
        expectFormerFileOnly();
    }
}

TEST_F(PdfFile, InAFolderThatIsNotThereIsNotWritten)
{
    saving.start({documents.pdf(1), folder.filePath(q("nowhere/saved.pdf")), {}, look});
    EXPECT_EQ(finish(), End::Failed);
    EXPECT_EQ(fault, PdfFault::File);
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_THAT(filesThere(), IsEmpty());
}

TEST_F(PdfFile, ForWhichThereIsNoRoomIsNotWritten)
{
    const QString document = documents.pdf(200);
    writeFormerFile();
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit little{500, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    const End ended = save(document);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(ended, End::Failed);
    EXPECT_EQ(fault, PdfFault::File);
    EXPECT_FALSE(reason.isEmpty());
    expectFormerFileOnly();
}

} // namespace
} // namespace dialog
