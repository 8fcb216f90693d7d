#include "dialog/preview/side_painter.h"
#include "tests/preview/sample_documents.h"

#include <gtest/gtest.h>

namespace dialog {
namespace {

const ShouldStop kNever = [] { return false; };

class SidePainting : public testing::Test
{
protected:
    SidePainting() { look.paper = {test::kA4Points, {}}; }

    SidePicture draw(const QString &path, int number = 0, double scale = 1)
    {
        const OpenedSource opened = openPageSource(path);
        return drawSide(*opened.source, look, number, scale, kNever);
    }

    test::SampleDocuments documents;
    SheetLook look;
};

bool isBlue(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y) == QColor(Qt::blue);
}

bool isWhite(const QImage &image, int x, int y)
{
    return image.pixelColor(x, y) == QColor(Qt::white);
}

/// The digits of a page as dark pixels in the middle of that rectangle.
bool hasInk(const QImage &image, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (image.pixelColor(x, y).lightness() < 80 && !isBlue(image, x, y))
                return true;
        }
    }
    return false;
}

TEST_F(SidePainting, ThePictureHasTheSizeOfThePaperAtTheScale)
{
    EXPECT_EQ(draw(documents.pdf(1)).image.size(), QSize(595, 842));
    EXPECT_EQ(draw(documents.pdf(1), 0, 2).image.size(), QSize(1190, 1684));
}

TEST_F(SidePainting, AnUprightPageHasItsTopUp)
{
    const QImage image = draw(documents.pdf(1)).image;
    EXPECT_TRUE(isBlue(image, 300, 5));
    EXPECT_TRUE(isBlue(image, 2, 5) && isBlue(image, 592, 5));
    EXPECT_TRUE(isWhite(image, 300, 830));
    EXPECT_TRUE(hasInk(image, {250, 380, 100, 80}));
}

TEST_F(SidePainting, APageThatLiesAcrossHasItsTopAtTheLeft)
{
    const QImage image = draw(documents.pdf({{842, 595}})).image;
    EXPECT_TRUE(isBlue(image, 5, 400));
    EXPECT_TRUE(isWhite(image, 590, 400));
}

TEST_F(SidePainting, AReversedSheetIsUpsideDown)
{
    look.orientation = SheetOrientation::ReversePortrait;
    const QImage image = draw(documents.pdf(1)).image;
    EXPECT_TRUE(isBlue(image, 300, 836));
    EXPECT_TRUE(isWhite(image, 300, 5));
}

TEST_F(SidePainting, AFlippedSideIsTheMirrorImageOfTheOther)
{
    look.pagesPerSheet = 2;
    const QString path = documents.pdf(2);
    const QImage straight = draw(path).image;
    look.isMirrored = true;
    const QImage flipped = draw(path).image;
    ASSERT_EQ(straight.size(), flipped.size());
    int different = 0;
    const QImage back = flipped.mirrored(true, false);
    for (int y = 0; y < straight.height(); ++y) {
        for (int x = 0; x < straight.width(); ++x)
            different += std::abs(straight.pixelColor(x, y).lightness() -
                                  back.pixelColor(x, y).lightness()) > 64;
    }
    EXPECT_LT(different, straight.width() * straight.height() / 200);
    EXPECT_NE(straight, flipped);
}

TEST_F(SidePainting, AGrayscaleSideHasNoColors)
{
    look.isGrayscale = true;
    const QColor band = draw(documents.pdf(1)).image.pixelColor(300, 5);
    EXPECT_EQ(band.red(), band.blue());
    EXPECT_LT(band.red(), 200);
}

TEST_F(SidePainting, EachPageOfASheetIsDrawnInItsPlace)
{
    look.pagesPerSheet = 4;
    const QImage image = draw(documents.pdf(3)).image;
    EXPECT_TRUE(isBlue(image, 150, 5));
    EXPECT_TRUE(isBlue(image, 450, 5));
    EXPECT_TRUE(isBlue(image, 150, 426));
    EXPECT_TRUE(isWhite(image, 450, 426)) << "there is no fourth page";
}

TEST_F(SidePainting, ThinBordersAreSeen)
{
    look.border = PageBorder::Single;
    const QImage image = draw(documents.pdf({{595, 842}})).image;
    EXPECT_LT(image.pixelColor(2, 400).lightness(), 200);
    EXPECT_TRUE(isWhite(image, 10, 400));
}

TEST_F(SidePainting, AnEmptySideIsWhite)
{
    look.sides = Sides::Two;
    look.selection.order = SideSelection::Order::Reverse;
    const SidePicture side = draw(documents.pdf(1), -1);
    EXPECT_TRUE(side.layout.pages.empty());
    EXPECT_TRUE(isWhite(side.image, 300, 5));
    EXPECT_TRUE(side.damaged.empty());
}

TEST_F(SidePainting, PagesThatCannotBeReadAreNamed)
{
    const QString path = documents.handMadePdf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R 4 0 R]/Count 2>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 1000000000 10]>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]>>"});
    look.pagesPerSheet = 2;
    EXPECT_EQ(draw(path).damaged, std::vector{0});
}

TEST_F(SidePainting, NoPictureTakesMoreThanSixteenMillionPixels)
{
    const QImage image = draw(documents.pdf(1), 0, 1'000).image;
    EXPECT_LT(qint64{image.width()} * image.height(), 16'100'000);
    EXPECT_GT(qint64{image.width()} * image.height(), 15'000'000);
}

TEST_F(SidePainting, APictureFillsTheSheetUnlessTheJobSaysOtherwise)
{
    QImage red(100, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString path = documents.path(QStringLiteral("red"));
    ASSERT_TRUE(red.save(path, "png"));
    EXPECT_EQ(draw(path).image.pixelColor(5, 421), QColor(Qt::red));
    look.scaling = PageScaling::None;
    EXPECT_TRUE(isWhite(draw(path).image, 5, 421));
    EXPECT_EQ(draw(path).image.pixelColor(297, 421), QColor(Qt::red));
}

TEST_F(SidePainting, OnlyTheVisiblePartOfAFarTooLargePageIsDrawn)
{
    look.scaling = PageScaling::None;
    const SidePicture side = draw(documents.handMadePdf(
        {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
         "<</Type/Page/Parent 2 0 R/MediaBox[0 0 150000 190000]/Contents 4 0 R>>",
         "<</Length 32>>stream\n1 0 0 rg 0 0 150000 190000 re f \nendstream"}));
    EXPECT_TRUE(side.damaged.empty());
    EXPECT_EQ(side.image.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(side.image.pixelColor(590, 835), QColor(Qt::red));
}

} // namespace
} // namespace dialog
