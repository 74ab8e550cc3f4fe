#include "core/ArithmeticFault.h"
#include "core/RecordingPicture.h"
#include "core/Units.h"
#include "support/Near.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace forcelab {
namespace {

using test::Near;
using testing::ElementsAre;
using Kind = RecordedOperation::Kind;

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);
constexpr Colour kBlack = Rgb(0, 0, 0);
constexpr Colour kWhite = Rgb(255, 255, 255);

TEST(IndexedColour, IsTheClassicPalette)
{
    EXPECT_EQ(IndexedColour(0), kBlack);
    EXPECT_EQ(IndexedColour(1), Rgb(0, 0, 128));
    EXPECT_EQ(IndexedColour(3), Rgb(0, 128, 128));
    EXPECT_EQ(IndexedColour(7), Rgb(192, 192, 192));
    EXPECT_EQ(IndexedColour(8), Rgb(128, 128, 128));
    EXPECT_EQ(IndexedColour(9), kBlue);
    EXPECT_EQ(IndexedColour(10), Rgb(0, 255, 0));
    EXPECT_EQ(IndexedColour(15), kWhite);
    EXPECT_EQ(IndexedColour(16), kBlack);
    EXPECT_EQ(IndexedColour(-1), kBlack);
}

TEST(PictureScale, StartsInPixels)
{
    const RecordingPicture pic(400, 200);
    EXPECT_EQ(pic.ScaleWidth(), 400);
    EXPECT_EQ(pic.ScaleHeight(), 200);
    EXPECT_EQ(pic.ToPixels({30, 40}), (PicturePoint{30, 40}));
}

TEST(PictureScale, ConvertsBothWaysWithYUp)
{
    RecordingPicture pic(400, 200);
    pic.Scale(-10, 50, 30, -50);
    EXPECT_EQ(pic.ScaleLeft(), -10);
    EXPECT_EQ(pic.ScaleTop(), 50);
    EXPECT_EQ(pic.ScaleX(4), 40);
    EXPECT_EQ(pic.ScaleY(10), -20) << "up is towards smaller pixels";
    EXPECT_EQ(pic.ToPixels({0, 0}), (PicturePoint{100, 100}));
    EXPECT_EQ(pic.ToPixels({30, -50}), (PicturePoint{400, 200}));
    EXPECT_EQ(pic.FromPixels({100, 100}), (PicturePoint{0, 0}));
    EXPECT_EQ(pic.UserWidth(40), 4);
    EXPECT_EQ(pic.UserHeight(20), 10) << "a size, so positive";
}

TEST(PictureScale, WithoutSizeIsAFault)
{
    RecordingPicture pic(400, 200);
    EXPECT_THROW(pic.Scale(1, 0, 1, 5), ArithmeticFault);
    EXPECT_THROW(pic.Scale(0, 5, 1, 5), ArithmeticFault);
    EXPECT_THROW(pic.Scale(0, 0, std::numeric_limits<double>::infinity(), 1), ArithmeticFault);
    EXPECT_EQ(pic.ScaleWidth(), 400) << "the old scale stays";
}

TEST(PictureScale, OfAnEmptySheetStaysFinite)
{
    RecordingPicture pic(0, 0);
    EXPECT_TRUE(std::isfinite(pic.UserWidth(5)));
    EXPECT_TRUE(std::isfinite(pic.TextHeight("X")));
    EXPECT_TRUE(std::isfinite(pic.FromPixels({1, 1}).X));
    EXPECT_NO_THROW(pic.Print("a"));
    EXPECT_NO_THROW(pic.Print("b"));
}

TEST(PictureDrawing, LeavesTheCurrentPointAtItsEnd)
{
    RecordingPicture pic(100, 100);
    pic.PSet(1, 2);
    pic.LineTo(3, 4);
    pic.LineTo(5, 6);
    const auto paths = pic.All(Kind::Path);
    ASSERT_EQ(paths.size(), 2u);
    EXPECT_THAT(paths[1].Points, ElementsAre(PicturePoint{3, 4}, PicturePoint{5, 6}));
    EXPECT_FALSE(paths[1].Closed);
    pic.Circle(7, 8, 2);
    EXPECT_EQ(pic.CurrentX, 7);
    EXPECT_EQ(pic.CurrentY, 8);
    pic.Box(1, 1, 9, 9);
    EXPECT_EQ(pic.CurrentX, 9);
}

TEST(PictureDrawing, KeepsTheSettingsOfEachOperation)
{
    RecordingPicture pic(100, 100);
    pic.ForeColor = kRed;
    pic.FillColor = kBlue;
    pic.FillStyle = FillPattern::Cross;
    pic.DrawStyle = LinePattern::Dot;
    pic.DrawWidth = 3;
    pic.Box(10, 20, 30, 40);
    const RecordedOperation& box = pic.Operations().front();
    EXPECT_EQ(box.What, Kind::Path);
    EXPECT_TRUE(box.Closed);
    EXPECT_EQ(box.Points.size(), 4u);
    EXPECT_EQ(box.Fore, kRed);
    EXPECT_EQ(box.Fill, kBlue);
    EXPECT_EQ(box.Pattern, FillPattern::Cross);
    EXPECT_EQ(box.Line, LinePattern::Dot);
    EXPECT_EQ(box.Width, 3);
}

TEST(PictureDrawing, ClsForgetsEverything)
{
    RecordingPicture pic(100, 100);
    pic.Scale(-1, 1, 1, -1);
    pic.FilledBox(-1, -1, 1, 1);
    pic.Print("text");
    pic.Cls();
    EXPECT_TRUE(pic.Operations().empty());
    EXPECT_TRUE(pic.Texts().empty());
    EXPECT_EQ(pic.Point(0, 0), kWhite);
    EXPECT_EQ(pic.CurrentX, -1);
    EXPECT_EQ(pic.CurrentY, 1);
}

TEST(PictureDrawing, RefusesCoordinatesThatAreNotFinite)
{
    for (const double bad :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        RecordingPicture pic(100, 100);
        const std::vector<PicturePoint> points{{0, 0}, {bad, 1}, {2, 2}};
        const std::vector<std::function<void()>> operations{
            [&] { pic.PSet(bad, 0); },
            [&] { pic.Line(0, 0, 1, bad); },
            [&] { pic.LineTo(bad, 1); },
            [&] { pic.Box(0, bad, 1, 1); },
            [&] { pic.FilledBox(0, 0, bad, 1); },
            [&] { pic.Circle(0, 0, bad); },
            [&] { pic.Circle(bad, 0, 1); },
            [&] { pic.Circle(0, 0, bad, 0, 1); },
            [&] { pic.Circle(0, 0, 1, 0, bad); },
            [&] { pic.Circle(0, 0, 1, 0, 1, bad); },
            [&] { pic.Polyline(points); },
            [&] { pic.Polygon(points); },
            [&] { pic.FloodFill(bad, 0, kBlack); },
            [&] { static_cast<void>(pic.Point(0, bad)); },
            [&] { pic.PaintPicture("beam", 0, 0, bad, 1); },
            [&] {
                pic.CurrentX = bad;
                pic.Print("x");
            },
        };
        for (std::size_t i = 0; i < operations.size(); ++i)
            EXPECT_THROW(operations[i](), ArithmeticFault) << "operation " << i;
        EXPECT_TRUE(pic.Operations().empty());
        EXPECT_TRUE(pic.Texts().empty());
    }
}

// A quarter of a circle, with the arc's ends in pixels: from the right to the top as seen.
class Arc : public testing::TestWithParam<bool> {};

TEST_P(Arc, RunsCounterclockwiseAsSeen)
{
    RecordingPicture pic(400, 200);
    if (GetParam())
        pic.Scale(0, 200, 400, 0);
    else
        pic.Scale(0, 0, 400, 200);
    pic.Circle(200, 100, 50, 0, kPi / 2);
    const auto path = pic.All(Kind::Path).at(0);
    const PicturePoint first = pic.ToPixels(path.Points.front());
    const PicturePoint last = pic.ToPixels(path.Points.back());
    EXPECT_TRUE(Near(first.X, 250));
    EXPECT_TRUE(Near(first.Y, 100));
    EXPECT_TRUE(Near(last.X, 200));
    EXPECT_TRUE(Near(last.Y, 50)) << "the top of the screen";
    EXPECT_FALSE(path.Closed) << "the interior of an arc is not filled";
}

INSTANTIATE_TEST_SUITE_P(YUpAndDown, Arc, testing::Bool());

TEST(PictureArc, IsRoundOnTheScreen)
{
    RecordingPicture pic(400, 200);
    pic.Scale(0, 1, 10, 0); // 40 pixels to a unit of x, 200 to one of y
    pic.Circle(5, 0.5, 2, 0.3, 2.4);
    const auto points = pic.All(Kind::Path).at(0).Points;
    for (const PicturePoint& p : points) {
        const PicturePoint pixels = pic.ToPixels(p);
        EXPECT_TRUE(Near(std::hypot(pixels.X - 200, pixels.Y - 100), 80));
    }
}

TEST(PictureArc, AspectShortensTheOtherAxis)
{
    RecordingPicture pic(400, 400);
    const auto extent = [&pic](double aspect) {
        pic.Cls();
        pic.Circle(200, 200, 100, 0, 2 * kPi, aspect);
        PicturePoint half{0, 0};
        const auto points = pic.All(Kind::Path).at(0).Points;
        for (const PicturePoint& p : points)
            half = {std::max(half.X, p.X - 200), std::max(half.Y, p.Y - 200)};
        return half;
    };
    EXPECT_TRUE(Near(extent(0.5).X, 100, 1e-3));
    EXPECT_TRUE(Near(extent(0.5).Y, 50, 1e-3));
    EXPECT_TRUE(Near(extent(4).X, 25, 1e-3));
    EXPECT_TRUE(Near(extent(4).Y, 100, 1e-3));
}

double SweepOf(double start, double end)
{
    RecordingPicture pic(400, 400);
    pic.Circle(200, 200, 100, start, end);
    const auto points = pic.All(Kind::Path).at(0).Points;
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        length += std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    return length / 100;
}

TEST(PictureArc, GoesFromStartToEndOnce)
{
    EXPECT_TRUE(Near(SweepOf(0, kPi), kPi, 1e-3));
    EXPECT_TRUE(Near(SweepOf(kPi, 0), kPi, 1e-3));
    EXPECT_TRUE(Near(SweepOf(kPi / 2, 0), 1.5 * kPi, 1e-3));
    EXPECT_TRUE(Near(SweepOf(0, 2.5 * kPi), kPi / 2, 1e-3));
    EXPECT_TRUE(Near(SweepOf(1, 1), 2 * kPi, 1e-3));
    EXPECT_TRUE(Near(SweepOf(0, 6.283185307179586), 2 * kPi, 1e-3)) << "pi to its last digit";
    EXPECT_TRUE(Near(SweepOf(0, 0.001), 0.001, 1e-3));
}

TEST(PictureTexts, JoinWhereAPrintGoesOn)
{
    RecordingPicture pic(400, 200);
    pic.CurrentX = 10;
    pic.CurrentY = 10;
    pic.Print("Radius");
    pic.Print(" = 50.0");
    pic.CurrentX = 10;
    pic.CurrentY = 60;
    pic.Print("psi");
    EXPECT_THAT(pic.Texts(), ElementsAre("Radius = 50.0", "psi"));
    EXPECT_EQ(pic.All(Kind::Text).size(), 3u);
}

TEST(PictureTexts, DoNotJoinOnAnotherLine)
{
    RecordingPicture pic(400, 200);
    pic.Print("first");
    pic.CurrentY += 3 * pic.TextHeight("X");
    pic.Print("second");
    pic.Print("");
    EXPECT_THAT(pic.Texts(), ElementsAre("first", "second"));
}

TEST(PictureTexts, AdvanceByTheirWidth)
{
    RecordingPicture pic(400, 200);
    pic.FontSize = 9; // 12 pixels
    pic.Print("abcd");
    EXPECT_TRUE(Near(pic.CurrentX, 4 * 12 * 0.6));
    EXPECT_TRUE(Near(pic.TextWidth("×÷²"), 3 * 12 * 0.6)) << "characters, not bytes";
    pic.Scale(40, 20, 0, 0); // both axes reversed
    pic.CurrentX = 30;
    pic.CurrentY = 10;
    pic.Print("abcd");
    EXPECT_TRUE(Near(pic.CurrentX, 30 - 4 * 0.72)) << "the right end, so towards smaller x";
}

TEST(PictureTexts, TextBoxLiesBelowAndRightOfItsPoint)
{
    RecordingPicture pic(400, 200);
    pic.Scale(0, 100, 100, 0);
    pic.FontSize = 9;
    pic.CurrentX = 50;
    pic.CurrentY = 50;
    pic.Print("ab");
    const auto box = pic.TextBoxes().at(0);
    EXPECT_EQ(box.Text, "ab");
    EXPECT_TRUE(Near(box.X1, 200));
    EXPECT_TRUE(Near(box.Y1, 100));
    EXPECT_TRUE(Near(box.X2, 214.4));
    EXPECT_TRUE(Near(box.Y2, 115));
}

TEST(PictureTexts, SymbolFontPrintsGreek)
{
    RecordingPicture pic(400, 200);
    const double plain = pic.TextWidth("s");
    pic.FontName = "Symbol";
    EXPECT_EQ(pic.TextWidth("s"), plain) << "one letter";
    pic.Print("set = D1");
    EXPECT_THAT(pic.Texts(), ElementsAre("σετ = Δ1"));
}

TEST(SymbolToUnicode, KnowsBothAlphabets)
{
    EXPECT_EQ(SymbolToUnicode("abgdqmnpstfwj"), "αβγδθμνπστφωϕ");
    EXPECT_EQ(SymbolToUnicode("DFGLPQSWXYV"), "ΔΦΓΛΠΘΣΩΞΨς");
    EXPECT_EQ(SymbolToUnicode("1 + 2 = ²"), "1 + 2 = ²");
}

TEST(RecordedFill, FloodsTheSmallestOutline)
{
    RecordingPicture pic(100, 100);
    pic.Box(10, 10, 90, 90);
    pic.Circle(50, 50, 20);
    pic.FillColor = kRed;
    pic.FloodFill(50, 50, kBlack);
    EXPECT_EQ(pic.Point(50, 50), kRed);
    EXPECT_EQ(pic.Point(20, 20), kWhite);
    pic.FillColor = kBlue;
    pic.FloodFill(20, 20, kBlack);
    EXPECT_EQ(pic.Point(20, 20), kBlue);
    EXPECT_EQ(pic.Point(50, 50), kRed) << "the circle bounds the flood from outside too";
    EXPECT_EQ(pic.Point(5, 5), kWhite);
}

TEST(RecordedFill, LeavesAHoleAsItWas)
{
    RecordingPicture pic(100, 100);
    pic.Box(10, 10, 90, 90);
    pic.Box(40, 40, 60, 60);
    pic.FillColor = kRed;
    pic.FloodFill(20, 20, kBlack);
    EXPECT_EQ(pic.Point(20, 80), kRed);
    EXPECT_EQ(pic.Point(50, 50), kWhite);
}

TEST(RecordedFill, FollowsAChainOfLines)
{
    RecordingPicture pic(100, 100);
    pic.Line(10, 10, 90, 10);
    pic.LineTo(90, 90);
    pic.LineTo(10, 10.2); // to half a pixel where it began
    pic.FillColor = kRed;
    pic.FloodFill(80, 20, kBlack);
    EXPECT_EQ(pic.Point(80, 30), kRed);
    EXPECT_EQ(pic.Point(20, 80), kWhite);
}

TEST(RecordedFill, NeedsAClosedOutlineOfTheBoundarysColour)
{
    RecordingPicture pic(100, 100);
    pic.FillColor = kRed;
    pic.Line(10, 10, 90, 10);
    pic.LineTo(90, 90);
    pic.LineTo(20, 30);
    pic.FloodFill(80, 20, kBlack);
    EXPECT_EQ(pic.Point(80, 20), kWhite) << "the chain is open";
    pic.ForeColor = kBlue;
    pic.Box(10, 10, 90, 90);
    pic.FloodFill(50, 50, kBlack);
    EXPECT_EQ(pic.Point(50, 50), kWhite) << "blue does not bound a flood up to black";
    pic.FloodFill(50, 50, kBlue);
    EXPECT_EQ(pic.Point(50, 50), kRed);
}

TEST(RecordedFill, ReadsFilledShapes)
{
    RecordingPicture pic(100, 100);
    pic.ForeColor = kBlue;
    pic.FilledBox(10, 10, 30, 30);
    EXPECT_EQ(pic.Point(20, 20), kBlue);
    pic.FillColor = kRed;
    pic.Circle(70, 70, 10);
    EXPECT_EQ(pic.Point(70, 70), kWhite) << "transparent";
    pic.FillStyle = FillPattern::Solid;
    pic.Circle(70, 70, 10);
    EXPECT_EQ(pic.Point(70, 70), kRed);
    EXPECT_EQ(pic.Point(78, 78), kWhite) << "in the circle's square but outside it";
    pic.FilledBox(50, 50, 150, 150);
    EXPECT_EQ(pic.Point(120, 120), kWhite) << "outside the sheet";
}

} // namespace
} // namespace forcelab
