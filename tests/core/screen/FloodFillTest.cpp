#include "core/screen/FloodRegion.h"
#include "core/screen/PainterPicture.h"
#include "core/screen/PictureExport.h"
#include "support/Images.h"
#include "support/Near.h"

#include <QPainter>
#include <QSvgRenderer>

#include <array>

namespace forcelab::test {
namespace {

using screen::FloodRuns;
using screen::OutlineOf;
using screen::PainterPicture;
using screen::PictureExport;
using screen::PixelRun;

// The hexagon of the theory of the greatest shear stress, y upward, filled by flooding.
void DrawFilledHexagon(Picture& pic)
{
    pic.Scale(-1.5, 1.5, 1.5, -1.5);
    pic.Smooth = false;
    pic.DrawWidth = 2;
    pic.ForeColor = kBlack;
    pic.FillColor = kCyan;
    pic.FillStyle = FillPattern::Solid;
    const std::array<PicturePoint, 7> corners{
        {{1, 0}, {1, 1}, {0, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, 0}}};
    pic.Polyline(corners);
    pic.FloodFill(0, 0, kBlack);
}

TEST(FloodFill, FillsAHexagonAndNothingElse)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        QImage image = WhiteImage(300, 300, ratio);
        PainterPicture pic(image);
        DrawFilledHexagon(pic);
        EXPECT_EQ(pic.Point(0, 0), kCyan) << ratio;
        EXPECT_EQ(pic.Point(0.9, 0.9), kCyan) << ratio;
        EXPECT_EQ(pic.Point(-0.95, -0.9), kCyan) << ratio;
        EXPECT_EQ(pic.Point(0.6, -0.6), kWhite) << ratio;
        EXPECT_EQ(pic.Point(-1.4, 1.4), kWhite) << ratio;
        EXPECT_EQ(pic.Point(1, 0), kBlack) << "the boundary, ratio " << ratio;
        EXPECT_EQ(pic.Point(0, 1), kBlack) << ratio;
    }
}

TEST(FloodFill, NeedsASeedInsideAndOffTheBoundary)
{
    QImage image = WhiteImage(50, 50);
    PainterPicture pic(image);
    pic.ScaleToPixels();
    pic.Smooth = false;
    pic.FillColor = kCyan;
    pic.FillStyle = FillPattern::Solid;
    pic.Box(10, 10, 40, 40);
    const int outline = InkOf(image);
    pic.FloodFill(-3, 20, kBlack);
    pic.FloodFill(1e15, 20, kBlack);
    pic.FloodFill(10, 20, kBlack);
    EXPECT_EQ(InkOf(image), outline);
    pic.FloodFill(25, 25, kBlack);
    EXPECT_EQ(InkOf(image), 31 * 31);
}

TEST(FloodFill, TheEdgeOfTheImageIsABorder)
{
    QImage image = WhiteImage(40, 30);
    PainterPicture pic(image);
    pic.ScaleToPixels();
    pic.FillColor = kCyan;
    pic.FillStyle = FillPattern::Solid;
    pic.FloodFill(20, 15, kBlack);
    EXPECT_EQ(InkOf(image), 40 * 30);
}

TEST(FloodFill, RefillingARegionOfTheSameColourEnds)
{
    QImage image = WhiteImage(40, 30);
    PainterPicture pic(image);
    pic.FillColor = kWhite;
    pic.FillStyle = FillPattern::Solid;
    pic.FloodFill(0.5, 0.5, kBlack);
    EXPECT_EQ(InkOf(image), 0);
}

TEST(FloodFill, FollowsASpiralToItsEnd)
{
    QImage image = WhiteImage(101, 101);
    for (int ring = 0; ring < 25; ++ring) { // walls at even places, each with one gap
        const int low = 2 * ring;
        const int high = 100 - low;
        for (int i = low; i <= high; ++i)
            for (const QPoint wall :
                 {QPoint(i, low), QPoint(i, high), QPoint(low, i), QPoint(high, i)})
                image.setPixel(wall, qRgb(0, 0, 0));
        if (ring > 0) image.setPixel(ring % 2 ? low : high, 50, qRgb(255, 255, 255));
    }
    const auto runs = FloodRuns(image, {50, 50}, qRgb(0, 0, 0));
    int reached = 0;
    for (const PixelRun& run : runs) reached += run.Right - run.Left;
    EXPECT_EQ(reached, 101 * 101 - (InkOf(image)));
}

// The outline must enclose just the pixels of the runs.
void ExpectOutlineOf(const QImage& image, QPoint seed)
{
    const auto runs = FloodRuns(image, seed, qRgb(0, 0, 0));
    QImage fromRuns = WhiteImage(image.width(), image.height());
    for (const PixelRun& run : runs)
        for (int x = run.Left; x < run.Right; ++x) fromRuns.setPixel(x, run.Y, qRgb(0, 0, 255));
    QImage fromOutline = WhiteImage(image.width(), image.height());
    QPainter painter(&fromOutline);
    painter.fillPath(OutlineOf(runs), QColor(0, 0, 255));
    painter.end();
    EXPECT_EQ(fromRuns, fromOutline);
}

TEST(OutlineOfRuns, EnclosesRegionsWithHolesAndTouchingCorners)
{
    QImage image = WhiteImage(12, 12);
    ExpectOutlineOf(image, {3, 3});
    image.setPixel(4, 4, qRgb(0, 0, 0));
    image.setPixel(5, 5, qRgb(0, 0, 0));
    image.setPixel(5, 6, qRgb(0, 0, 0));
    ExpectOutlineOf(image, {0, 0});
    for (int i = 0; i < 12; ++i) image.setPixel(i, 11 - i, qRgb(0, 0, 0));
    ExpectOutlineOf(image, {0, 0});
    ExpectOutlineOf(image, {11, 11});
    EXPECT_TRUE(OutlineOf({}).isEmpty());
}

class OnFile : public testing::Test {
  protected:
    static constexpr int kSide = 300;

    static QRgb At(const QImage& image, double x, double y)
    {
        return image.pixel(qRound((x + 1.5) / 3 * image.width()),
                           qRound((1.5 - y) / 3 * image.height()));
    }
    const PictureExport hexagon_{DrawFilledHexagon, QSizeF(kSide, kSide), QString()};
};

TEST_F(OnFile, AFloodedRegionOfAnSvgIsAFilledPath)
{
    QSvgRenderer renderer(hexagon_.ToSvg());
    ASSERT_TRUE(renderer.isValid());
    QImage image = WhiteImage(3 * kSide, 3 * kSide);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    EXPECT_EQ(At(image, 0, 0), qRgb(0, 255, 255));
    EXPECT_EQ(At(image, 0.97, 0.97), qRgb(0, 255, 255));
    EXPECT_EQ(At(image, -0.5, 0.42), qRgb(0, 255, 255));
    EXPECT_EQ(At(image, 1, 0.5), qRgb(0, 0, 0));
    EXPECT_EQ(At(image, 0.6, -0.6), qRgb(255, 255, 255));
}

TEST_F(OnFile, NoGapShowsBetweenAFloodedRegionAndItsBoundary)
{
    QSvgRenderer renderer(hexagon_.ToSvg());
    QImage image = WhiteImage(4 * kSide, 4 * kSide);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    // Down a column through the slanted side: from white over black to the fill, never back.
    int whiteAfterBlack = 0;
    bool black = false;
    for (int y = 0; y < image.height() / 2; ++y) {
        const QRgb colour = image.pixel(image.width() * 5 / 12, y);
        black = black || qRed(colour) + qGreen(colour) < 100;
        whiteAfterBlack += black && qRed(colour) > 100;
    }
    EXPECT_TRUE(black);
    EXPECT_EQ(whiteAfterBlack, 0);
}

TEST_F(OnFile, AFilePictureAnswersForColours)
{
    QImage image = WhiteImage(100, 100);
    QPainter painter(&image);
    PainterPicture pic(painter, QRectF(20, 20, 60, 60));
    DrawFilledHexagon(pic);
    EXPECT_EQ(pic.Point(0, 0), kCyan);
    EXPECT_EQ(pic.Point(1, 0.3), kBlack);
    EXPECT_EQ(pic.Point(0.7, -0.7), kWhite);
    pic.FillColor = kRed;
    pic.Circle(0, 0, 0.2);
    EXPECT_EQ(pic.Point(0, 0), kRed) << "what comes after the first question counts as well";
    EXPECT_EQ(image.pixel(50, 50), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(10, 10), qRgb(255, 255, 255));
}

TEST_F(OnFile, TheAreaOfAPageIsAllThatAPictureDrawsOn)
{
    QImage image = WhiteImage(100, 100);
    QPainter painter(&image);
    PainterPicture pic(painter, QRectF(20, 30, 50, 40));
    EXPECT_EQ(pic.WidthPixels(), 50);
    EXPECT_EQ(pic.HeightPixels(), 40);
    pic.FilledBox(-5, -5, 5, 5);
    painter.end();
    EXPECT_EQ(InkOf(image), 50 * 40);
    EXPECT_EQ(image.pixel(20, 30), qRgb(0, 0, 0));
}

} // namespace
} // namespace forcelab::test
