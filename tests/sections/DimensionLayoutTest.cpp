#include "sections/DimensionLayout.h"

#include "core/RecordingPicture.h"
#include "sections/DrawnShape.h"

namespace forcelab::sections {
namespace {

using forcelab::test::Near;
using test::Draw;
using test::kBoxSize;
using test::Outline;
using testing::SizeIs;

/// What a line measures, in the unit of the section.
double Measured(const Picture& pic, const DimensionLine& line)
{
    const double pixels = line.To - line.From;
    return line.Axis == 0 ? pic.UserWidth(pixels) : pic.UserHeight(pixels);
}

class Measures : public testing::TestWithParam<int> {};

TEST_P(Measures, EveryLineSpansWhatItsBoxSays)
{
    const int turns = InfoOf(GetParam()).MayRotate ? 4 : 1;
    const bool stiffened = GetParam() == kStiffenedTDown || GetParam() == kStiffenedTUp;
    for (int quarters = 0; quarters < turns; ++quarters) {
        if (stiffened && quarters >= 2) continue; // flipped, it takes its right side from its left
        const auto dims = test::SampleDimensions(GetParam());
        const test::Worked worked = test::Computed(GetParam(), dims, quarters);
        RecordingPicture pic(640, 520);
        Draw(pic, worked);
        const auto lines = LayDimensions(pic, worked.Section, kBoxSize);
        ASSERT_EQ(lines.size(), dims.size());
        for (std::size_t k = 0; k < dims.size(); ++k)
            EXPECT_TRUE(Near(Measured(pic, lines[k]), dims[k], 1e-6))
                << "box " << lines[k].Box << ", turned " << quarters;
    }
}

INSTANTIATE_TEST_SUITE_P(UserShapes, Measures, testing::Range(1, kPipe + 1),
                         [](const auto& row) { return "Shape" + std::to_string(row.param); });

TEST(DimensionLines, TheFlangeIsMeasuredAboveAndTheWebBesideItself)
{
    RecordingPicture pic(640, 520);
    const test::Worked worked = Outline(kIShape);
    Draw(pic, worked);
    const auto lines = LayDimensions(pic, worked.Section, kBoxSize);
    const PixelRect flange = ElementRects(pic, worked.Section)[0];
    const PixelRect web = ElementRects(pic, worked.Section)[1];
    ASSERT_THAT(lines, SizeIs(4));
    EXPECT_LT(lines[0].At, flange.Lo[1]);                            // width, above
    EXPECT_GT(lines[1].At, flange.Hi[0]);                            // thickness, at the right
    EXPECT_LT(lines[2].At, flange.Lo[0]);                            // height, in the left margin
    EXPECT_TRUE(lines[3].At > web.Lo[1] && lines[3].At < web.Hi[1]); // across the web
    EXPECT_TRUE(lines[3].HeadsOutside);
}

TEST(DimensionLines, TheSpacingOfChannelsToeToToeRunsFromBackToBack)
{
    RecordingPicture pic(640, 520);
    const test::Worked worked = Outline(kDoubleCToe);
    Draw(pic, worked);
    EXPECT_TRUE(Near(Measured(pic, LayDimensions(pic, worked.Section, kBoxSize)[4]), 10, 1e-9));
}

TEST(DimensionLines, ADoubleIWithoutThirdElementHasNoLines)
{
    test::Worked worked = Outline(kDoubleI);
    worked.Section.Shown.fill(false);
    RecordingPicture pic(640, 520);
    EXPECT_THAT(LayDimensions(pic, worked.Section, kBoxSize), SizeIs(0));
}

} // namespace
} // namespace forcelab::sections
