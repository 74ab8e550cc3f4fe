#include "core/RecordingPicture.h"
#include "sections/DimensionLayout.h"
#include "sections/Report.h"
#include "sections/SectionCases.h"
#include "sections/SectionDrawing.h"

#include <algorithm>
#include <cmath>

namespace forcelab::sections {
namespace {

using forcelab::test::Local;
using forcelab::test::Near;
using Kind = RecordedOperation::Kind;
using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

void Draw(Picture& pic, const test::Worked& worked)
{
    DrawCrossSection(pic, worked.Section, worked.Entry);
}

/// A T of a steel plate on a wooden stem.
test::Worked PlateOnWood()
{
    test::Worked worked = test::Entered(kTShape, std::vector<double>{6, 0.5, 10, 6});
    worked.Entry.Composite = true;
    worked.Entry.Swatch[0] = IndexedColour(9);
    worked.Entry.Swatch[1] = IndexedColour(10);
    worked.Entry.Modulus = {"0", Local("29000.0"), Local("1600.0")};
    worked.Entry.ModulusUnit = 1;
    EXPECT_FALSE(worked.Compute().has_value());
    return worked;
}

std::vector<RecordedOperation> Lines(const RecordingPicture& pic, LinePattern pattern)
{
    auto found = pic.All(Kind::Path);
    std::erase_if(found, [pattern](const auto& op) { return op.Line != pattern; });
    return found;
}

class ReportPicture : public testing::TestWithParam<int> {};

TEST_P(ReportPicture, LabelsStandOnTheSheetAndNeverOverEachOther)
{
    constexpr double kSizes[][2] = {{250, 250}, {306, 450}, {480, 545}, {900, 400}, {1600, 1200}};
    const int turns = InfoOf(GetParam()).MayRotate ? 2 : 1;
    for (const auto& size : kSizes)
        for (int quarters = 0; quarters < turns; ++quarters) {
            RecordingPicture pic(size[0], size[1]);
            Draw(pic, test::Computed(GetParam(), test::SampleDimensions(GetParam()), quarters));
            const auto boxes = pic.TextBoxes();
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                const auto& a = boxes[i];
                EXPECT_TRUE(a.X1 >= 0 && a.Y1 >= 0 && a.X2 <= size[0] && a.Y2 <= size[1])
                    << a.Text << " on " << size[0] << " x " << size[1];
                for (std::size_t j = i + 1; j < boxes.size(); ++j) {
                    const auto& b = boxes[j];
                    const bool apart = a.X2 <= b.X1 + 0.5 || b.X2 <= a.X1 + 0.5 ||
                                       a.Y2 <= b.Y1 + 0.5 || b.Y2 <= a.Y1 + 0.5;
                    // The letter and the index of a label touch each other.
                    EXPECT_TRUE(apart || (a.Text == "I" && j == i + 1))
                        << a.Text << " and " << b.Text << " on " << size[0] << " x " << size[1];
                }
            }
        }
}

TEST_P(ReportPicture, ShowsTheEdgeDistancesInTheWordsOfTheSummary)
{
    const test::Worked worked = test::Computed(GetParam(), test::SampleDimensions(GetParam()));
    RecordingPicture pic(480, 500);
    Draw(pic, worked);
    const auto summary = Summary(worked.Section, worked.Entry);
    for (const char* symbol : {"Y bot", "Y top", "Z left", "Z right"}) {
        const auto line = std::ranges::find(summary, symbol, &SummaryLine::Symbol);
        ASSERT_NE(line, summary.end());
        EXPECT_THAT(pic.Texts(), Contains(symbol));
        EXPECT_THAT(pic.Texts(), Contains(line->Value));
    }
}

TEST_P(ReportPicture, IsToScaleForOrdinarySections)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(GetParam(), test::SampleDimensions(GetParam())));
    EXPECT_TRUE(Near(pic.ScaleX(1), -pic.ScaleY(1)));
}

INSTANTIATE_TEST_SUITE_P(UserShapes, ReportPicture, testing::Range(1, kPipe + 1),
                         [](const auto& row) { return "Shape" + std::to_string(row.param); });

TEST(DrawCrossSection, MarksTheCentroidOfATeeAtItsHeight)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(kTShape, {8, 1, 9, 1}));
    const auto dots = pic.All(Kind::Ellipse);
    ASSERT_THAT(dots, SizeIs(1));
    const auto elements = pic.All(Kind::Path);
    double bottom = 0;
    for (const auto& op : elements)
        if (op.Closed && op.Pattern == FillPattern::Solid && op.Points.size() == 4)
            for (const PicturePoint& p : op.Points) bottom = std::min(bottom, p.Y);
    EXPECT_TRUE(Near(dots[0].Points[0].Y - bottom, 116.5 / 17, 1e-6)); // 116.5 / 17 = 6.853
}

TEST(DrawCrossSection, DashesThePlasticAxisOfATeeHalfAnInchUnderItsFlange)
{
    RecordingPicture pic(480, 500);
    const test::Worked worked = test::Computed(kTShape, {8, 1, 9, 1});
    Draw(pic, worked);
    const auto dashed = Lines(pic, LinePattern::Dash);
    ASSERT_THAT(dashed, SizeIs(1));
    const double top = worked.Section.ElementCorners[0].Top;
    EXPECT_TRUE(Near(top - dashed[0].Points[0].Y, 1.5, 1e-3)); // 8.5 above the bottom of 10
    EXPECT_EQ(dashed[0].Points[0].Y, dashed[0].Points[1].Y);
    EXPECT_THAT(pic.Texts(), Contains("plastic n.a."));
}

TEST(DrawCrossSection, HasNoPlasticAxisWhereItIsTheCentroidalOne)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(kRectangle, {4, 10}));
    EXPECT_THAT(Lines(pic, LinePattern::Dash), IsEmpty());
    EXPECT_THAT(Lines(pic, LinePattern::DashDot), SizeIs(2)); // the centroidal axes
}

TEST(DrawCrossSection, ShowsThePrincipalAxesOfAnAngle)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(kLShape, {5.625, 0.75, 6.875, 0.75}));
    EXPECT_THAT(pic.Texts(), Contains("Imax"));
    EXPECT_THAT(pic.Texts(), Contains("Imin"));
}

TEST(DrawCrossSection, ShowsNoPrincipalAxesOfATee)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(kTShape, {8, 1, 9, 1}));
    EXPECT_THAT(pic.Texts(), Not(Contains("Imax")));
}

TEST(DrawCrossSection, ShowsACompositeSectionWithItsOwnCentroid)
{
    RecordingPicture pic(480, 500);
    const test::Worked worked = PlateOnWood();
    Draw(pic, worked);
    EXPECT_THAT(pic.Texts(), Contains(Local("7.4959") + " inch"));
    EXPECT_THAT(Lines(pic, LinePattern::Dash), IsEmpty());
    const auto dots = pic.All(Kind::Ellipse);
    ASSERT_THAT(dots, SizeIs(1));
    const double bottom = worked.Section.ElementCorners[1].Bottom;
    EXPECT_TRUE(Near(dots[0].Points[0].Y - bottom, 857.34375 / 114.375, 1e-6));
}

TEST(DrawCrossSection, SoftensTheColoursOfTheMaterials)
{
    RecordingPicture pic(480, 500);
    Draw(pic, PlateOnWood());
    std::vector<Colour> fills;
    for (const auto& op : pic.All(Kind::Path))
        if (op.Pattern == FillPattern::Solid && op.Points.size() == 4 && op.Closed)
            fills.push_back(op.Fill);
    EXPECT_THAT(fills, Contains(Rgb(153, 153, 255)));
    EXPECT_THAT(fills, Contains(Rgb(153, 255, 153)));
}

TEST(DrawCrossSection, StretchesASectionThatIsVerySlim)
{
    RecordingPicture pic(480, 500);
    Draw(pic, test::Computed(kRectangle, {100, 1}));
    EXPECT_TRUE(Near(-pic.ScaleY(1) / pic.ScaleX(1), 100.0 / 8, 1e-9));
}

TEST(DrawCrossSection, CopesWithTheSmallestAndLargestDimensions)
{
    for (const double size : {1e-6, 1e6}) {
        RecordingPicture pic(480, 500);
        Draw(pic, test::Computed(kTShape, {8 * size, size, 9 * size, size}));
        EXPECT_TRUE(Near(pic.ScaleX(size), -pic.ScaleY(size)));
    }
}

} // namespace
} // namespace forcelab::sections
