#include "core/screen/PainterPicture.h"
#include "core/ArithmeticFault.h"
#include "support/Images.h"
#include "support/Near.h"

#include <array>
#include <limits>

namespace forcelab::test {
namespace {

using screen::PainterPicture;

// Pixels that are neither the ground nor the ink: the trace of anti-aliasing.
int BlendedPixels(const QImage& image)
{
    int blended = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb colour = image.pixel(x, y) | 0xff000000;
            blended += colour != qRgb(255, 255, 255) && colour != qRgb(0, 0, 0);
        }
    return blended;
}

class OnImage : public testing::Test {
  protected:
    QImage image_ = WhiteImage(200, 100);
    PainterPicture pic_{image_};
};

TEST_F(OnImage, TheSheetIsAsLargeAsTheImage)
{
    EXPECT_EQ(pic_.WidthPixels(), 200);
    EXPECT_EQ(pic_.HeightPixels(), 100);
    image_ = WhiteImage(80, 60, 2);
    pic_.ImageChanged();
    EXPECT_EQ(pic_.WidthPixels(), 80);
    EXPECT_EQ(pic_.HeightPixels(), 60);
}

TEST_F(OnImage, ClsFillsTheSheetWithItsGroundColour)
{
    pic_.BackColor = kCyan;
    pic_.Cls();
    EXPECT_EQ(pic_.Point(0.01, 0.01), kCyan);
    EXPECT_EQ(pic_.Point(0.99, 0.99), kCyan);
}

TEST_F(OnImage, OutsideTheSheetThereIsTheGroundColour)
{
    pic_.BackColor = kRed;
    EXPECT_EQ(pic_.Point(-0.01, 0.5), kRed);
    EXPECT_EQ(pic_.Point(0.5, 1e300), kRed);
    EXPECT_EQ(pic_.Point(0.5, 0.5), kWhite);
}

TEST_F(OnImage, ThinAxesAreCrispWhereverTheyFall)
{
    pic_.ScaleToPixels();
    for (const double place : {20.0, 20.3, 20.5, 20.9}) {
        pic_.Cls();
        pic_.Line(10, place, 150, place);
        pic_.Line(place, 30, place, 90);
        EXPECT_EQ(BlendedPixels(image_), 0) << place;
        EXPECT_EQ(pic_.Point(60, place), kBlack) << place;
        EXPECT_EQ(pic_.Point(place, 60), kBlack) << place;
        EXPECT_EQ(pic_.Point(60, place + 1), kWhite) << place;
    }
}

TEST_F(OnImage, ALineOfTwoPixelsCoversTwoRows)
{
    pic_.ScaleToPixels();
    pic_.DrawWidth = 2;
    pic_.DrawStyle = LinePattern::Solid;
    pic_.Smooth = false;
    pic_.Line(10, 20.2, 150, 20.2);
    EXPECT_EQ(pic_.Point(60, 18), kWhite);
    EXPECT_EQ(pic_.Point(60, 19), kBlack);
    EXPECT_EQ(pic_.Point(60, 20), kBlack);
    EXPECT_EQ(pic_.Point(60, 21), kWhite);
}

TEST_F(OnImage, OnlySmoothLinesAreBlended)
{
    pic_.ScaleToPixels();
    pic_.Line(10, 10, 180, 70);
    EXPECT_GT(BlendedPixels(image_), 100);
    pic_.Cls();
    pic_.Smooth = false;
    pic_.Line(10, 10, 180, 70);
    pic_.Circle(100, 50, 30);
    pic_.CurrentX = pic_.CurrentY = 5;
    pic_.Print("Stress");
    EXPECT_GT(InkOf(image_), 200);
    EXPECT_EQ(BlendedPixels(image_), 0);
}

TEST_F(OnImage, YRunsUpwardWhereTheScaleSaysSo)
{
    pic_.Scale(0, 100, 200, 0);
    pic_.PSet(30.5, 79.5);
    EXPECT_EQ(pic_.Point(30.5, 79.5), kBlack);
    EXPECT_EQ(image_.pixel(30, 20), qRgb(0, 0, 0));
    EXPECT_EQ(InkOf(image_), 1);
}

TEST_F(OnImage, ABoxIsAnOutlineAndAFilledBoxIsFilled)
{
    pic_.ScaleToPixels();
    pic_.Box(10, 10, 50, 40);
    EXPECT_EQ(pic_.Point(10, 25), kBlack);
    EXPECT_EQ(pic_.Point(30, 25), kWhite);
    pic_.ForeColor = kRed;
    pic_.FilledBox(110, 40, 60, 10);
    EXPECT_EQ(pic_.Point(61, 11), kRed);
    EXPECT_EQ(pic_.Point(109, 39), kRed);
    EXPECT_EQ(pic_.Point(111, 39), kWhite);
}

TEST_F(OnImage, AFilledBoxWithoutHeightStillShows)
{
    pic_.ScaleToPixels();
    pic_.FilledBox(10, 20.4, 50, 20.4);
    EXPECT_EQ(pic_.Point(30, 20), kBlack);
    EXPECT_EQ(InkOf(image_), 40);
}

TEST_F(OnImage, ACircleIsRoundAndFilledByItsStyle)
{
    pic_.Scale(0, 10, 200, 0); // units of y are twenty times those of x on the screen
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = kCyan;
    pic_.Circle(100, 5, 30);
    EXPECT_EQ(pic_.Point(100, 5), kCyan);
    EXPECT_EQ(pic_.Point(128, 5), kCyan);
    EXPECT_EQ(pic_.Point(132, 5), kWhite);
    EXPECT_EQ(pic_.Point(100, 7.8), kCyan); // 28 pixels up
    EXPECT_EQ(pic_.Point(100, 8.3), kWhite);
    pic_.Cls();
    pic_.FillStyle = FillPattern::Transparent;
    pic_.Circle(100, 5, 30);
    EXPECT_EQ(pic_.Point(100, 5), kWhite);
}

TEST_F(OnImage, PatternsFillInPart)
{
    pic_.ScaleToPixels();
    pic_.DrawStyle = LinePattern::Invisible;
    for (const FillPattern pattern :
         {FillPattern::HorizontalLine, FillPattern::VerticalLine, FillPattern::UpwardDiagonal,
          FillPattern::DownwardDiagonal, FillPattern::Cross, FillPattern::DiagonalCross}) {
        pic_.Cls();
        pic_.FillStyle = pattern;
        pic_.Box(20, 20, 120, 80);
        EXPECT_GT(InkOf(image_), 300) << static_cast<int>(pattern);
        EXPECT_LT(InkOf(image_), 4000) << static_cast<int>(pattern);
    }
    pic_.Cls();
    pic_.FillStyle = FillPattern::Solid;
    pic_.Box(20, 20, 120, 80);
    EXPECT_EQ(InkOf(image_), 6000);
}

TEST_F(OnImage, PatternsAreAsCoarseOnADenseScreen)
{
    image_ = WhiteImage(200, 100, 2);
    pic_.ImageChanged();
    pic_.ScaleToPixels();
    pic_.DrawStyle = LinePattern::Invisible;
    pic_.FillStyle = FillPattern::HorizontalLine;
    pic_.Box(20, 16, 120, 80);
    EXPECT_EQ(InkOf(image_), 8 * 2 * 200) << "eight lines, two pixels high";
}

TEST_F(OnImage, ADashedLineHasGaps)
{
    pic_.ScaleToPixels();
    pic_.DrawStyle = LinePattern::Dash;
    pic_.Line(0, 50, 200, 50);
    EXPECT_GT(InkOf(image_), 80);
    EXPECT_LT(InkOf(image_), 190);
    pic_.Cls();
    pic_.DrawStyle = LinePattern::Invisible;
    pic_.Line(0, 50, 200, 50);
    EXPECT_EQ(InkOf(image_), 0);
}

TEST_F(OnImage, TextStandsInItsMeasuredBox)
{
    pic_.ScaleToPixels();
    pic_.FontSize = 12;
    pic_.CurrentX = 20;
    pic_.CurrentY = 30;
    const double width = pic_.TextWidth("Moment M");
    const double height = pic_.TextHeight("Moment M");
    pic_.Print("Moment M");
    EXPECT_DOUBLE_EQ(pic_.CurrentX, 20 + width);
    EXPECT_GT(height, 14);
    EXPECT_LT(height, 30);
    int outside = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < 200; ++x)
            outside += image_.pixel(x, y) != qRgb(255, 255, 255) &&
                       (x < 18 || x > 22 + width || y < 29 || y > 31 + height);
    EXPECT_GT(InkOf(image_), 100);
    EXPECT_EQ(outside, 0);
}

TEST_F(OnImage, TextGrowsWithItsLengthAndItsSize)
{
    EXPECT_LT(pic_.TextWidth("Shear"), pic_.TextWidth("Shear force"));
    const double small = pic_.TextWidth("Shear force");
    const double low = pic_.TextHeight("X");
    pic_.FontSize = 16;
    EXPECT_TRUE(Near(pic_.TextWidth("Shear force"), 2 * small, 0.15));
    EXPECT_TRUE(Near(pic_.TextHeight("X"), 2 * low, 0.15));
    pic_.Scale(0, 0, 2, 1);
    EXPECT_TRUE(Near(pic_.TextWidth("Shear force") / 2, 2 * small, 0.15));
}

TEST_F(OnImage, SymbolDrawsGreek)
{
    pic_.FontName = "Symbol";
    EXPECT_NE(pic_.TextWidth("s"), 0);
    pic_.Print("s");
    EXPECT_EQ(pic_.Texts(), std::vector<std::string>{"σ"});
    EXPECT_GT(InkOf(image_), 10);
}

TEST_F(OnImage, TextMayStandOnItsOwnGround)
{
    pic_.ScaleToPixels();
    pic_.ForeColor = kRed;
    pic_.FilledBox(0, 0, 200, 100);
    pic_.ForeColor = kBlack;
    pic_.BackColor = kCyan;
    pic_.FontTransparent = false;
    pic_.CurrentX = 10;
    pic_.CurrentY = 10;
    pic_.Print("l");
    EXPECT_EQ(pic_.Point(10, 10), kCyan);
    EXPECT_EQ(pic_.Point(10, 60), kRed);
}

TEST_F(OnImage, FarCoordinatesNeitherHangNorCrash)
{
    pic_.ScaleToPixels();
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = kCyan;
    for (const double far : {1e5, 1e12, 1e300}) {
        for (const LinePattern style : {LinePattern::Solid, LinePattern::Dot}) {
            pic_.DrawStyle = style;
            pic_.Cls();
            pic_.Line(-far, 50, far, 50);
            pic_.Circle(far, 50, far / 2);
            pic_.Circle(0, 0, far);
            pic_.FilledBox(-far, 80, far, 90);
            pic_.PSet(far, far);
            pic_.CurrentX = -far;
            pic_.Print("far away");
            EXPECT_EQ(pic_.Point(100, 85), kBlack) << far;
            EXPECT_EQ(pic_.Point(100, 20), kCyan) << far;
        }
    }
}

TEST_F(OnImage, AFarPolygonIsCutOffAtTheSheetOnly)
{
    pic_.ScaleToPixels();
    pic_.FillStyle = FillPattern::Solid;
    pic_.FillColor = kCyan;
    pic_.Polygon(std::array<PicturePoint, 3>{{{-1e12, 1e12}, {1e12, 1e12}, {0, -1e12}}});
    EXPECT_EQ(pic_.Point(1, 1), kCyan);
    EXPECT_EQ(pic_.Point(199, 99), kCyan);
    pic_.Cls();
    pic_.Polygon(std::array<PicturePoint, 3>{{{100, -1e12}, {1e12, -1e12}, {100, 1e12}}});
    EXPECT_EQ(pic_.Point(50, 50), kWhite);
    EXPECT_EQ(pic_.Point(100, 50), kBlack);
    EXPECT_EQ(pic_.Point(150, 50), kCyan);
}

TEST_F(OnImage, ACoordinateThatIsNotFiniteIsRefused)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_THROW(pic_.Line(0, 0, infinite, 1), ArithmeticFault);
    pic_.CurrentY = infinite;
    EXPECT_THROW(pic_.Print("x"), ArithmeticFault);
    EXPECT_EQ(InkOf(image_), 0);
}

TEST_F(OnImage, AnUnknownPictureDrawsNothing)
{
    pic_.PaintPicture("no such picture", 0, 0, 1, 1);
    EXPECT_EQ(InkOf(image_), 0);
}

} // namespace
} // namespace forcelab::test
