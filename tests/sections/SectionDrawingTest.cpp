#include "sections/SectionDrawing.h"

#include "core/RecordingPicture.h"
#include "sections/DimensionLayout.h"
#include "sections/DrawnShape.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace forcelab::sections {
namespace {

using forcelab::test::Near;
using test::Draw;
using test::kBoxSize;
using test::Outline;
using Kind = RecordedOperation::Kind;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using testing::SizeIs;

// --- the scale

struct ScaleRow {
    friend void PrintTo(const ScaleRow& row, std::ostream* out) { *out << row.Name; }
    const char* Name;
    int Shape;
    double Stretch;
    int Quarters;
    double ZHalf, YHalf;
    const char* Note;
};

class Scales : public testing::TestWithParam<ScaleRow> {};

TEST_P(Scales, LeaveTheirMargin)
{
    const ScaleRow& row = GetParam();
    const ShapeScale scale = ScalePicture(Outline(row.Shape, row.Stretch, row.Quarters).Section);
    EXPECT_TRUE(Near(scale.ZHalf, row.ZHalf));
    EXPECT_TRUE(Near(scale.YHalf, row.YHalf));
    EXPECT_EQ(scale.Note(), row.Note);
}

INSTANTIATE_TEST_SUITE_P(
    Outlines, Scales,
    testing::Values(ScaleRow{"a T of 10 by 10", 5, 1, 0, 8, 8, "To scale"},
                    ScaleRow{"twice as wide as high", 5, 2, 0, 16, 16, "To scale"},
                    ScaleRow{"2.5 times as wide as high", 5, 2.5, 0, 20, 20, "To scale"},
                    ScaleRow{"wider than 2.5 times its height", 5, 2.6, 0, 20.8, 8, "Zoom Y"},
                    ScaleRow{"higher than 2.5 times its width", 5, 0.35, 0, 2.8, 8, "Zoom X"},
                    ScaleRow{"the same turned", 5, 0.35, 1, 8, 2.8, "Zoom Y"},
                    ScaleRow{"an I of six to one", 3, 7.5, 0, 48, 8, "Zoom Y"},
                    ScaleRow{"a rectangle 4 by 10", 16, 1, 0, 8, 8, "To scale"},
                    ScaleRow{"a rectangle of six to one", 16, 15, 0, 48, 48, "To scale"},
                    ScaleRow{"a slimmer rectangle", 16, 15.1, 0, 48.32, 8, "Zoom Y"},
                    ScaleRow{"a rectangle one to eight", 16, 0.3125, 0, 1, 8, "Zoom X"},
                    ScaleRow{"a circle", 18, 1, 0, 8, 8, "To scale"},
                    ScaleRow{"a pipe of a table", 26, 1, 0, 8, 8, "To scale"}),
    [](const auto& row) { return "Row" + std::to_string(row.index); });

TEST(ScalePicture, CountsFromTheOriginWhereTheSectionLiesBesideIt)
{
    test::Worked worked = Outline(kRectangle);
    worked.Section.ElementCorners[0] = {1, 1, 3, 3};
    const ShapeScale scale = ScalePicture(worked.Section);
    EXPECT_TRUE(Near(scale.ZHalf, 4.8));
    EXPECT_TRUE(Near(scale.YHalf, 4.8));
}

TEST(ScalePicture, HasAScaleWithoutAnyElement)
{
    const ShapeScale scale = ScalePicture(CrossSection{});
    EXPECT_GT(scale.ZHalf, 0);
    EXPECT_GT(scale.YHalf, 0);
}

// --- the places of the boxes

struct SheetSize {
    double Width, Height;
};
constexpr SheetSize kSheets[] = {{300, 300}, {300, 1200}, {420, 310}, {700, 560}, {1600, 1200}};
constexpr double kStretches[] = {0.02, 0.2, 0.6, 1, 1.7, 6, 50};

class Places : public testing::TestWithParam<int> {
  protected:
    template <class Check>
    static void ForAll(int shape, const Check& check)
    {
        const int turns = InfoOf(shape).MayRotate ? 4 : 1;
        for (const SheetSize& sheet : kSheets)
            for (const double stretch : kStretches)
                for (int quarters = 0; quarters < turns; ++quarters) {
                    RecordingPicture pic(sheet.Width, sheet.Height);
                    SCOPED_TRACE(testing::Message()
                                 << sheet.Width << " x " << sheet.Height << ", stretched by "
                                 << stretch << ", turned " << quarters);
                    check(pic, Outline(shape, stretch, quarters));
                }
    }
};

void ExpectEachBoxOnce(int shape, const std::vector<BoxPlace>& places)
{
    std::map<int, int> count;
    for (const BoxPlace& place : places) ++count[place.Box];
    for (int box = 0; box < kBoxes; ++box)
        EXPECT_EQ(count[box], InfoOf(shape).Box[box] ? 1 : 0) << "box " << box;
}

void ExpectApartAndInside(const Picture& pic, const std::vector<BoxPlace>& places)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        const PixelRect a = RectAround(places[i].Middle, kBoxSize);
        EXPECT_TRUE(a.Lo[0] >= 0 && a.Lo[1] >= 0 && a.Hi[0] <= pic.WidthPixels() &&
                    a.Hi[1] <= pic.HeightPixels())
            << "box " << places[i].Box;
        for (std::size_t j = i + 1; j < places.size(); ++j)
            EXPECT_FALSE(Meet(a, RectAround(places[j].Middle, kBoxSize), 1))
                << "boxes " << places[i].Box << " and " << places[j].Box;
    }
}

TEST_P(Places, HoldEachBoxInsideAndApart)
{
    ForAll(GetParam(), [](RecordingPicture& pic, const test::Worked& worked) {
        const auto places = Draw(pic, worked);
        ExpectEachBoxOnce(worked.Section.ShapeIndex, places);
        ExpectApartAndInside(pic, places);
    });
}

constexpr double kReach = 80; // pixels, joined by a leader

double Gap(const PixelRect& rect, const DimensionLine& line)
{
    const int cross = 1 - line.Axis;
    const double along =
        std::max({0.0, rect.Lo[line.Axis] - line.LineTo, line.LineFrom - rect.Hi[line.Axis]});
    const double across = std::max({0.0, rect.Lo[cross] - line.At, line.At - rect.Hi[cross]});
    return std::hypot(along, across);
}

TEST_P(Places, AreBesideTheLinesOfTheirDimensions)
{
    ForAll(GetParam(), [](RecordingPicture& pic, const test::Worked& worked) {
        const auto places = Draw(pic, worked);
        for (const DimensionLine& line : LayDimensions(pic, worked.Section, kBoxSize)) {
            const auto place = std::ranges::find(places, line.Box, &BoxPlace::Box);
            ASSERT_NE(place, places.end());
            EXPECT_LE(Gap(RectAround(place->Middle, kBoxSize), line), kReach) << "box " << line.Box;
        }
    });
}

TEST_P(Places, AreTheSameEachTime)
{
    RecordingPicture first(500, 400);
    RecordingPicture second(500, 400);
    const test::Worked worked = Outline(GetParam());
    const auto a = Draw(first, worked);
    const auto b = Draw(second, worked);
    ASSERT_EQ(a.size(), b.size());
    for (std::size_t k = 0; k < a.size(); ++k) EXPECT_EQ(a[k].Middle, b[k].Middle);
}

TEST_P(Places, TheDrawingIsAsWideAsHighToTheUnitWhereItSaysSo)
{
    for (const SheetSize& sheet : kSheets) {
        RecordingPicture pic(sheet.Width, sheet.Height);
        const test::Worked worked = Outline(GetParam());
        Draw(pic, worked);
        ASSERT_EQ(ScalePicture(worked.Section).Note(), "To scale");
        EXPECT_TRUE(Near(pic.ScaleX(1), -pic.ScaleY(1)));
    }
}

INSTANTIATE_TEST_SUITE_P(AllShapes, Places, testing::Range(1, kShapes + 1),
                         [](const auto& row) { return "Shape" + std::to_string(row.param); });

TEST(Places, LeaveTheLinesFreeInARoomyPicture)
{
    RecordingPicture pic(700, 600);
    const test::Worked worked = Outline(kIShape);
    const auto places = Draw(pic, worked);
    for (const DimensionLine& line : LayDimensions(pic, worked.Section, kBoxSize)) {
        const auto place = std::ranges::find(places, line.Box, &BoxPlace::Box);
        EXPECT_TRUE(Near(place->Middle.X, line.Wish.X, 1e-6));
        EXPECT_TRUE(Near(place->Middle.Y, line.Wish.Y, 1e-6));
    }
}

// --- what is drawn

std::vector<RecordedOperation> InColour(const RecordingPicture& pic, Kind what, int index)
{
    auto found = pic.All(what);
    std::erase_if(found, [&](const auto& op) { return op.Fore != IndexedColour(index); });
    return found;
}

TEST(DrawShape, FillsEveryElementInItsColour)
{
    test::Worked worked = Outline(kTShape);
    worked.Entry.Swatch[0] = IndexedColour(9);
    worked.Entry.Swatch[1] = IndexedColour(10);
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    const auto boxes = pic.All(Kind::SolidBox);
    ASSERT_THAT(boxes, SizeIs(2));
    EXPECT_EQ(boxes[0].Fore, IndexedColour(9));
    EXPECT_EQ(boxes[1].Fore, IndexedColour(10));
    EXPECT_THAT(boxes[0].Points, ElementsAre(PicturePoint{-5, 5}, PicturePoint{5, 3}));
}

TEST(DrawShape, RunsTheAxesFromEdgeToEdge)
{
    RecordingPicture pic(500, 400);
    Draw(pic, Outline(kTShape));
    const auto axes = InColour(pic, Kind::Path, 12);
    ASSERT_THAT(axes, SizeIs(2));
    EXPECT_EQ(pic.ToPixels(axes[0].Points[0]).X, 0);
    EXPECT_EQ(pic.ToPixels(axes[0].Points[1]).X, 500);
    EXPECT_EQ(axes[0].Points[0].Y, 0);
    EXPECT_EQ(pic.ToPixels(axes[1].Points[0]).Y, 0);
    EXPECT_EQ(pic.ToPixels(axes[1].Points[1]).Y, 400);
    const auto texts = pic.Texts();
    EXPECT_EQ(std::ranges::count(texts, "Y"), 2);
    EXPECT_EQ(std::ranges::count(texts, "Z"), 2);
    EXPECT_THAT(texts, Contains("To scale"));
}

TEST(DrawShape, NumbersEveryElement)
{
    for (int shape = 1; shape < kSpecified; ++shape) {
        RecordingPicture pic(500, 400);
        Draw(pic, Outline(shape));
        for (int k = 0; k <= InfoOf(shape).LastElement; ++k)
            EXPECT_EQ(std::ranges::count(pic.Texts(), std::to_string(k + 1)), 1) << shape;
    }
}

TEST(DrawShape, PutsTheNumberOfAThinElementBesideIt)
{
    const test::Worked worked = test::Computed(kIShape, {10, 0.1, 9.8, 0.1});
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    const auto elements = ElementRects(pic, worked.Section);
    for (const auto& text : pic.TextBoxes()) {
        if (text.Text != "1" && text.Text != "2" && text.Text != "3") continue;
        for (const PixelRect& element : elements)
            EXPECT_FALSE(Meet({{text.X1, text.Y1}, {text.X2, text.Y2}}, element, 0)) << text.Text;
    }
}

TEST(DrawShape, PutsTheNumberOfACircleOutsideAt45Degrees)
{
    RecordingPicture pic(400, 400);
    Draw(pic, Outline(kCircle));
    const auto boxes = pic.TextBoxes();
    const auto one = std::ranges::find(boxes, "1", &RecordingPicture::PixelBox::Text);
    ASSERT_NE(one, boxes.end());
    const double x = (one->X1 + one->X2) / 2 - 200;
    const double y = 200 - (one->Y1 + one->Y2) / 2;
    EXPECT_TRUE(Near(x, y, 1e-9));
    const double radius = 5 * pic.ScaleX(1);
    EXPECT_TRUE(Near(std::hypot(x, y), radius + 2 * (one->X2 - one->X1), 1e-9));
}

TEST(DrawShape, DrawsThePipeAsABlackCircleWithAGreyOne)
{
    RecordingPicture pic(400, 400);
    Draw(pic, Outline(kPipe));
    const auto circles = pic.All(Kind::Ellipse);
    ASSERT_THAT(circles, SizeIs(2));
    EXPECT_EQ(circles[0].Fill, IndexedColour(0));
    EXPECT_EQ(circles[0].Radius, 5);
    EXPECT_EQ(circles[1].Fill, IndexedColour(7));
    EXPECT_EQ(circles[1].Radius, 3.5);
}

TEST(DrawShape, ColoursTheQuadrantsOfTheSpecifiedShapeAndNamesItsBoxes)
{
    test::Worked worked = Outline(kSpecified);
    worked.Entry.LengthUnit = 1;
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    std::vector<Colour> colours;
    for (const auto& box : pic.All(Kind::SolidBox)) colours.push_back(box.Fore);
    EXPECT_THAT(colours, ElementsAre(IndexedColour(5), IndexedColour(13), IndexedColour(1),
                                     IndexedColour(2)));
    for (const char* text :
         {"Cross-Sectional Area", "Moments of Inertia", "About Z-Z", "About Y-Y", "mm2", "mm4"})
        EXPECT_THAT(pic.Texts(), Contains(text));
    EXPECT_THAT(pic.Texts(), Not(Contains("To scale")));
}

TEST(DrawShape, DrawsInclinedPrincipalAxesAfterAComputation)
{
    test::Worked worked = test::Computed(kLShape, {5.625, 0.75, 6.875, 0.75});
    worked.Section.SectionComputed = true;
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    const auto axes = InColour(pic, Kind::Path, 3);
    ASSERT_THAT(axes, SizeIs(2));
    const PicturePoint a = axes[0].Points[1];
    const PicturePoint b = axes[1].Points[1];
    EXPECT_LT(std::abs(a.X * b.X + a.Y * b.Y), 1e-9);
    const double angle = worked.At(Row::PrincipalAngle, Column::Zz) * kPi / 180;
    EXPECT_TRUE(Near(std::abs(a.Y / a.X), std::tan(std::abs(angle)), 1e-9));
}

TEST(DrawShape, LeavesOutPrincipalAxesThatLieOnYAndZ)
{
    test::Worked worked = test::Computed(kTShape, {8, 1, 9, 1});
    worked.Section.SectionComputed = true;
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    EXPECT_THAT(InColour(pic, Kind::Path, 3), SizeIs(0));
}

TEST(DrawShape, LeavesOutPrincipalAxesBeforeAComputation)
{
    test::Worked worked = test::Computed(kLShape, {5.625, 0.75, 6.875, 0.75});
    worked.Section.SectionComputed = false;
    RecordingPicture pic(500, 400);
    Draw(pic, worked);
    EXPECT_THAT(InColour(pic, Kind::Path, 3), SizeIs(0));
}

TEST(DrawShape, CopesWithTheSmallestAndLargestDimensions)
{
    for (const double size : {1e-6, 1e6}) {
        const test::Worked worked =
            test::Computed(kIShape, {6 * size, 0.5 * size, 9 * size, 0.4 * size});
        RecordingPicture pic(500, 400);
        ExpectApartAndInside(pic, Draw(pic, worked));
    }
}

} // namespace
} // namespace forcelab::sections
