#include "core/DrawingHelpers.h"

#include "core/ArithmeticFault.h"
#include "core/RecordingPicture.h"
#include "core/Units.h"
#include "support/Near.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace forcelab {
namespace {

using test::Near;
using testing::ElementsAre;
using Kind = RecordedOperation::Kind;
using Part = LabelPart::Kind;

constexpr Colour kRed = Rgb(255, 0, 0);
constexpr Colour kBlue = Rgb(0, 0, 255);

std::vector<PicturePoint> PixelsOf(const Picture& pic, const RecordedOperation& op)
{
    std::vector<PicturePoint> pixels;
    for (const PicturePoint& p : op.Points) pixels.push_back(pic.ToPixels(p));
    return pixels;
}

testing::AssertionResult At(PicturePoint actual, double x, double y, double within = 1e-9)
{
    if (std::hypot(actual.X - x, actual.Y - y) <= within) return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "(" << actual.X << ", " << actual.Y << ") is not (" << x << ", " << y << ")";
}

/// A sheet of 400 by 400 pixels, one unit a pixel, the origin in its middle.
struct Sheet : RecordingPicture {
    explicit Sheet(bool yUp) : RecordingPicture(400, 400)
    {
        if (yUp)
            Scale(-200, 200, 200, -200);
        else
            Scale(-200, -200, 200, 200);
    }
};

class BothWays : public testing::TestWithParam<bool> {
  protected:
    Sheet pic{GetParam()};
    double down = GetParam() ? -1 : 1; // y of the scale for one pixel downward
};
INSTANTIATE_TEST_SUITE_P(YUpAndDown, BothWays, testing::Bool());

TEST_P(BothWays, EllipseHasThirtySixCornersOnPixels)
{
    pic.FillColor = kRed;
    pic.FillStyle = FillPattern::Solid;
    DrawEllipsePolygon(pic, 100, 50, 0, 10, 20);
    const auto paths = pic.All(Kind::Path);
    ASSERT_EQ(paths.size(), 1u);
    EXPECT_TRUE(paths[0].Closed);
    EXPECT_EQ(paths[0].Fill, kRed);
    EXPECT_EQ(paths[0].Pattern, FillPattern::Solid);
    ASSERT_EQ(paths[0].Points.size(), 36u);
    EXPECT_TRUE(At(paths[0].Points[0], 110, 20));
    EXPECT_TRUE(At(paths[0].Points[9], 10, 70));
    EXPECT_TRUE(At(paths[0].Points[18], -90, 20));
    EXPECT_TRUE(At(paths[0].Points[27], 10, -30));
    for (const PicturePoint& p : PixelsOf(pic, paths[0])) {
        EXPECT_TRUE(Near(p.X, std::round(p.X), 1e-12));
        EXPECT_TRUE(Near(p.Y, std::round(p.Y), 1e-12));
    }
}

TEST_P(BothWays, EllipseTurnsInTheScalesOwnSense)
{
    DrawEllipsePolygon(pic, 100, 50, kPi / 2, 0, 0);
    const auto points = pic.All(Kind::Path).at(0).Points;
    EXPECT_TRUE(At(points[0], 0, 100));
    EXPECT_TRUE(At(points[9], -50, 0));
}

TEST_P(BothWays, EllipseFillsWithTheCurrentFill)
{
    DrawEllipsePolygon(pic, 100, 50, 0, 0, 0);
    EXPECT_EQ(pic.All(Kind::Path).at(0).Pattern, FillPattern::Transparent);
    EXPECT_EQ(pic.Point(0, 0), pic.BackColor);
}

TEST(EllipsePolygon, RoundsTowardsTheUpperLeftPixel)
{
    RecordingPicture pic(400, 400);
    DrawEllipsePolygon(pic, 10.9, 10.9, 0, 100, 100);
    const auto points = pic.All(Kind::Path).at(0).Points;
    EXPECT_TRUE(At(points[0], 110, 100)) << "110.9 cut";
    EXPECT_TRUE(At(points[18], 89, 100)) << "89.1 cut";
}

TEST_P(BothWays, ArcArrowFollowsTheEllipse)
{
    DrawArcArrow(pic, 100, 100, 0, 0, 0, 0, kPi / 2, false, 2);
    const auto paths = pic.All(Kind::Path);
    ASSERT_EQ(paths.size(), 2u);
    EXPECT_FALSE(paths[0].Closed);
    EXPECT_EQ(paths[0].Points.size(), 19u) << "18 segments in a quarter turn";
    EXPECT_TRUE(At(paths[0].Points.front(), 100, 0));
    EXPECT_TRUE(At(paths[0].Points.back(), 0, 100));
    for (const PicturePoint& p : paths[0].Points) EXPECT_NEAR(std::hypot(p.X, p.Y), 100, 1.5);
}

TEST_P(BothWays, ArcHeadAtTheEndPointsOnward)
{
    pic.ForeColor = kBlue;
    DrawArcArrow(pic, 100, 100, 0, 0, 0, 0, kPi / 2, false, 2);
    const auto head = pic.All(Kind::Path).at(1);
    EXPECT_TRUE(head.Closed);
    EXPECT_EQ(head.Fill, kBlue);
    EXPECT_EQ(head.Pattern, FillPattern::Solid);
    // The arc comes from +x and ends on the +y axis, moving towards -x; 8 pixels long.
    ASSERT_EQ(head.Points.size(), 4u);
    EXPECT_TRUE(At(head.Points[0], 0, 100));
    EXPECT_TRUE(At(head.Points[2], -8, 100));
    EXPECT_NEAR(head.Points[1].X, 2, 1e-9);
    EXPECT_NEAR(head.Points[3].X, 2, 1e-9);
    EXPECT_NEAR(std::abs(head.Points[1].Y - 100), 2, 1e-9);
    EXPECT_NEAR(head.Points[1].Y + head.Points[3].Y, 200, 1e-9);
}

TEST_P(BothWays, ArcHeadAtTheStartPointsBackward)
{
    DrawArcArrow(pic, 100, 100, 0, 0, 0, 0, kPi / 2, true, 2);
    const auto head = pic.All(Kind::Path).at(1);
    EXPECT_TRUE(At(head.Points[0], 100, 0));
    EXPECT_TRUE(At(head.Points[2], 100, -8)) << "away from the arc";
}

TEST_P(BothWays, ArcArrowKeepsTheSettings)
{
    pic.ForeColor = kBlue;
    pic.FillColor = kRed;
    pic.DrawStyle = LinePattern::Dash;
    pic.DrawWidth = 3;
    DrawArcArrow(pic, 100, 50, 0.3, 0, 0, 0, 1, false, 2);
    EXPECT_EQ(pic.FillColor, kRed);
    EXPECT_EQ(pic.FillStyle, FillPattern::Transparent);
    EXPECT_EQ(pic.DrawStyle, LinePattern::Dash);
    EXPECT_EQ(pic.DrawWidth, 3);
    EXPECT_EQ(pic.All(Kind::Path).at(0).Line, LinePattern::Dash);
    EXPECT_EQ(pic.All(Kind::Path).at(1).Line, LinePattern::Solid);
}

struct ArcRow {
    double Start, End;
    std::size_t Segments;
    double FirstX, FirstY;
};
class ArcArrow : public testing::TestWithParam<ArcRow> {};

TEST_P(ArcArrow, RaisesItsAngles)
{
    Sheet pic(true);
    const ArcRow& row = GetParam();
    DrawArcArrow(pic, 100, 100, 0, 0, 0, row.Start, row.End, false, 2);
    const auto points = pic.All(Kind::Path).at(0).Points;
    EXPECT_EQ(points.size(), row.Segments + 1);
    EXPECT_TRUE(At(points.front(), row.FirstX, row.FirstY));
}

INSTANTIATE_TEST_SUITE_P(Angles, ArcArrow,
                         testing::Values(ArcRow{-kPi / 2, 0.001, 18, 0, -100},
                                         ArcRow{kPi, kPi / 2 + 0.001, 54, -100, 0},
                                         ArcRow{0, 0, 72, 100, 0}, ArcRow{kPi, kPi, 72, -100, 0},
                                         ArcRow{0, 0.01, 1, 100, 0},
                                         ArcRow{-9 * kPi / 2, 0.001, 18, 0, -100},
                                         ArcRow{kPi / 2, -9 * kPi + 0.001, 36 - 18, 0, 100}));

TEST(ArcArrow, HasNoHeadWithoutATangent)
{
    Sheet pic(true);
    DrawArcArrow(pic, 0, 0, 0, 5, 5, 0, 1, false, 2);
    EXPECT_EQ(pic.All(Kind::Path).size(), 1u);
}

TEST(ArcArrow, RefusesAnglesThatAreNotFinite)
{
    Sheet pic(true);
    const double bad = std::numeric_limits<double>::infinity();
    EXPECT_THROW(DrawArcArrow(pic, 9, 9, 0, 0, 0, bad, 1, false, 2), ArithmeticFault);
    EXPECT_THROW(DrawArcArrow(pic, 9, 9, 0, 0, 0, 0, bad, false, 2), ArithmeticFault);
    EXPECT_THROW(DrawArcArrow(pic, 9, bad, 0, 0, 0, 0, 1, false, 2), ArithmeticFault);
    EXPECT_NO_THROW(DrawArcArrow(pic, 9, 9, 0, 0, 0, -1e300, 1e300, false, 2));
}

TEST(ArcArrow, HeadFollowsTheCurveInASkewScale)
{
    RecordingPicture pic(400, 200);
    pic.Scale(0, 4, 4, 0); // 100 pixels to a unit of x, 50 to one of y
    DrawArcArrow(pic, 1, 1, 0, 2, 2, 0, kPi / 4, false, 5);
    const auto head = PixelsOf(pic, pic.All(Kind::Path).at(1));
    // At 45 degrees the curve goes 100 pixels to the left while it rises by 50.
    const double dx = head[2].X - head[0].X;
    const double dy = head[2].Y - head[0].Y;
    EXPECT_NEAR(std::hypot(dx, dy), 20, 1.5);
    EXPECT_NEAR(dy / dx, 0.5, 0.1);
    EXPECT_LT(dx, 0);
}

TEST(ArrowPoints, WithTheTipAtThePoint)
{
    const auto points = ArrowPoints(10, 20, 0, kArrowTipAtPoint, 30, 8, 3);
    EXPECT_TRUE(At(points[0], 40, 20));
    EXPECT_TRUE(At(points[1], 32, 23));
    EXPECT_TRUE(At(points[2], 32, 17));
    EXPECT_TRUE(At(points[3], 10, 20));
    const auto turned = ArrowPoints(10, 20, kPi / 2, kArrowTipAtPoint, 30, 8, 3);
    EXPECT_TRUE(At(turned[0], 10, 50));
    EXPECT_TRUE(At(turned[1], 7, 42));
    EXPECT_TRUE(At(turned[2], 13, 42));
    EXPECT_TRUE(At(turned[3], 10, 20));
}

TEST(ArrowPoints, WithTheTailAtThePointIsTurnedByPi)
{
    const auto points = ArrowPoints(10, 20, 0, 1, 30, 8, 3);
    EXPECT_TRUE(At(points[0], 10, 20));
    EXPECT_TRUE(At(points[1], 2, 17));
    EXPECT_TRUE(At(points[2], 2, 23));
    EXPECT_TRUE(At(points[3], -20, 20));
    const auto turned = ArrowPoints(0, 0, 3 * kPi / 2, 0, 30, 8, 3);
    EXPECT_TRUE(At(turned[3], 0, 30));
}

/// One unit is 10 pixels, the origin lies in the middle of 200 x 200.
TEST(RectToPicture, TurnsTheRectangleByQuarterTurns)
{
    RecordingPicture pic(200, 200);
    pic.Scale(-10, 10, 10, -10);
    const std::array<double, 4> flange{-3, 4, 5, 6}; // left, bottom, right, top
    const auto expect = [&](int rotation, double top, double left, double width, double height) {
        const PixelRect rect = RectToPicture(pic, rotation, flange);
        EXPECT_EQ(rect.Top, top) << rotation;
        EXPECT_EQ(rect.Left, left) << rotation;
        EXPECT_EQ(rect.Width, width) << rotation;
        EXPECT_EQ(rect.Height, height) << rotation;
    };
    expect(0, 40, 70, 80, 20);
    expect(1, 50, 40, 20, 80);  // the upper flange comes to the left
    expect(3, 70, 140, 20, 80); // and here to the right
}

TEST(RectToPicture, CutsToWholePixels)
{
    RecordingPicture pic(200, 200);
    pic.Scale(-10, 10, 10, -10);
    const PixelRect rect = RectToPicture(pic, 0, {-3.07, -1, 5.07, 2.04});
    EXPECT_EQ(rect.Left, 69);
    EXPECT_EQ(rect.Width, 150 - 69);
    EXPECT_EQ(rect.Top, 79);
    EXPECT_EQ(rect.Height, 110 - 79);
}

TEST_P(BothWays, ArrowEndsInAFilledHead)
{
    pic.ForeColor = kRed;
    DrawArrow(pic, {-50, 0}, {50, 0}, 10);
    const auto paths = pic.All(Kind::Path);
    ASSERT_EQ(paths.size(), 2u);
    EXPECT_THAT(paths[0].Points, ElementsAre(PicturePoint{-50, 0}, PicturePoint{50, 0}));
    EXPECT_TRUE(paths[1].Closed);
    EXPECT_EQ(paths[1].Fill, kRed);
    EXPECT_TRUE(At(paths[1].Points[0], 50, 0));
    EXPECT_NEAR(paths[1].Points[1].X, 40, 1e-9);
    EXPECT_NEAR(paths[1].Points[1].Y, -paths[1].Points[2].Y, 1e-9);
    EXPECT_EQ(pic.Point(45, 0), kRed);
}

TEST(Arrow, ShortensItsHeadAndLeavesItOutWhereThereIsNoLength)
{
    Sheet pic(true);
    DrawArrow(pic, {0, 0}, {0, 4}, 10);
    EXPECT_NEAR(pic.All(Kind::Path).at(1).Points[1].Y, 0, 1e-9) << "no longer than the arrow";
    pic.Cls();
    DrawArrow(pic, {3, 3}, {3, 3}, 10);
    EXPECT_EQ(pic.All(Kind::Path).size(), 1u);
}

const Label kSigmaMax{{"s", Part::Greek}, {"max", Part::Subscript}, {" = 5", Part::Plain}};

TEST_P(BothWays, LabelIsOneTextAndKeepsTheFont)
{
    pic.FontName = "Arial";
    pic.FontSize = 12;
    PrintLabel(pic, 0, 0, kSigmaMax);
    EXPECT_THAT(pic.Texts(), ElementsAre("σmax = 5"));
    EXPECT_EQ(pic.FontName, "Arial");
    EXPECT_EQ(pic.FontSize, 12);
}

TEST_P(BothWays, SubscriptIsSmallerAndLower)
{
    pic.FontSize = 12; // 16 pixels, 20 high, 9.6 wide
    PrintLabel(pic, 0, 0, kSigmaMax);
    const auto boxes = pic.TextBoxes();
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_TRUE(Near(boxes[0].Y1, 200));
    EXPECT_TRUE(Near(boxes[0].Y2, 220));
    EXPECT_TRUE(Near(boxes[1].Y1, 200 + 20.0 / 3));
    EXPECT_TRUE(Near(boxes[1].Y2 - boxes[1].Y1, 15));
    EXPECT_TRUE(Near(boxes[1].X1, boxes[0].X2));
    EXPECT_TRUE(Near(boxes[1].X2 - boxes[1].X1, 3 * 7.2));
    EXPECT_TRUE(Near(boxes[2].Y1, 200)) << "back on the line";
    EXPECT_TRUE(Near(LabelWidth(pic, kSigmaMax), 9.6 + 3 * 7.2 + 4 * 9.6));
}

TEST_P(BothWays, SuperscriptIsSmallerAndHigher)
{
    pic.FontSize = 12;
    PrintLabel(pic, 0, 0, {{"in", Part::Plain}, {"2", Part::Superscript}, {"0", Part::Subscript}});
    const auto boxes = pic.TextBoxes();
    EXPECT_LT(boxes[1].Y1, boxes[0].Y1);
    EXPECT_LT(boxes[1].Y2, boxes[0].Y2);
    EXPECT_TRUE(Near(boxes[1].Y2 - boxes[1].Y1, 15));
    EXPECT_THAT(pic.Texts(), ElementsAre("in20"));
}

TEST_P(BothWays, AlignmentPutsTheBoxAboutItsPoint)
{
    pic.FontSize = 12;
    struct Row {
        HAlign Across;
        VAlign Along;
        double X, Y; // pixels from the point to the box's upper left corner
    };
    for (const Row& row :
         {Row{HAlign::Left, VAlign::Top, 0, 0}, Row{HAlign::Centre, VAlign::Middle, -19.2, -10},
          Row{HAlign::Right, VAlign::Bottom, -38.4, -20}}) {
        pic.Cls();
        PrintText(pic, 30, 40, "abcd", row.Across, row.Along);
        const auto box = pic.TextBoxes().at(0);
        EXPECT_TRUE(At({box.X1, box.Y1}, 230 + row.X, 200 + down * 40 + row.Y));
        EXPECT_TRUE(At({box.X2, box.Y2}, 230 + row.X + 38.4, 200 + down * 40 + row.Y + 20));
    }
}

TEST(Labels, AlignInAScaleThatRunsToTheLeft)
{
    RecordingPicture pic(400, 400);
    pic.Scale(400, 0, 0, 400);
    pic.FontSize = 12;
    PrintText(pic, 100, 100, "abcd", HAlign::Right);
    EXPECT_TRUE(Near(pic.TextBoxes().at(0).X2, 300));
}

TEST(Labels, TwoLabelsAreTwoTexts)
{
    Sheet pic(true);
    PrintText(pic, 0, 0, "first");
    PrintText(pic, 0, 50, "second");
    EXPECT_THAT(pic.Texts(), ElementsAre("first", "second"));
}

TEST(Labels, KeepTheFontWhereTheyFail)
{
    Sheet pic(true);
    EXPECT_THROW(PrintLabel(pic, std::numeric_limits<double>::quiet_NaN(), 0, {{"s", Part::Greek}}),
                 ArithmeticFault);
    EXPECT_EQ(pic.FontName, "MS Sans Serif");
}

} // namespace
} // namespace forcelab
