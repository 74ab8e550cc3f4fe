#include "sections/SectionCases.h"

namespace forcelab::sections::test {
namespace {

using testing::TestWithParam;

class Catalogue : public TestWithParam<int> {};

TEST_P(Catalogue, HasARecognisableOutlineOnATenUnitField)
{
    const ShapeInfo& info = InfoOf(GetParam());
    for (int k = 0; k <= info.LastElement; ++k) {
        const Corners& e = info.Outline[k];
        EXPECT_GE(e.Left, -5);
        EXPECT_LE(e.Right, 5);
        EXPECT_GE(e.Bottom, -5);
        EXPECT_LE(e.Top, 5);
        EXPECT_LE(e.Left, e.Right);
        EXPECT_LE(e.Bottom, e.Top);
        EXPECT_TRUE(info.Style[k] >= 1 && info.Style[k] <= 4);
    }
    for (int k = info.LastElement + 1; k < kElements; ++k)
        EXPECT_EQ(info.Outline[k], Corners{}) << "there is no element " << k + 1;
}

// The default outline stands on the very sides on which the layout puts its elements.
class RectangularShape : public TestWithParam<int> {};

TEST_P(RectangularShape, HasItsOutlineOnTheSidesOfItsLayout)
{
    const int shape = GetParam();
    const ShapeInfo& info = InfoOf(shape);
    Worked built = Entered(shape, SampleDimensions(shape));
    built.Entry.Steel.emplace();
    ASSERT_FALSE(built.Check().has_value());
    BuildElements(built.Section, built.Section.ElementDims[2][0]);
    for (int a = 0; a <= info.LastElement; ++a)
        for (int b = 0; b <= info.LastElement; ++b) {
            const Corners& e = built.Section.ElementCorners[a];
            const Corners& f = built.Section.ElementCorners[b];
            const Corners& u = info.Outline[a];
            const Corners& v = info.Outline[b];
            EXPECT_EQ(e.Bottom >= f.Top, u.Bottom >= v.Top) << a + 1 << " over " << b + 1;
            EXPECT_EQ(e.Left >= f.Right, u.Left >= v.Right) << a + 1 << " right of " << b + 1;
        }
}

INSTANTIATE_TEST_SUITE_P(AllShapes, Catalogue, testing::Range(1, kShapes + 1));
INSTANTIATE_TEST_SUITE_P(UserShapes, RectangularShape, testing::Range(1, kBox + 1));
INSTANTIATE_TEST_SUITE_P(SteelShapes, RectangularShape,
                         testing::Range(int(kSteelW), int(kSteelTS) + 1));

TEST(ShapeCatalogue, HasTheTwoNamedOutlines)
{
    EXPECT_EQ(InfoOf(kGeneralFlanged).Outline[0], (Corners{-3, 3, 3, 5}));
    EXPECT_EQ(InfoOf(kGeneralFlanged).Outline[1], (Corners{-1, -1, 1, 3}));
    EXPECT_EQ(InfoOf(kGeneralFlanged).Outline[2], (Corners{-5, -3, 5, -1}));
    EXPECT_EQ(InfoOf(kRectangle).Outline[0], (Corners{-2, -5, 2, 5}));
}

TEST(ShapeCatalogue, KnowsWhatShapesAllow)
{
    for (int shape = 1; shape <= kShapes; ++shape) {
        const ShapeInfo& info = InfoOf(shape);
        const bool composite = shape != kRectangle && shape < kCircle;
        const bool rotates =
            shape != kCircle && shape != kPipe && shape != kSteelPipe && shape != kSpecified;
        EXPECT_EQ(info.MayBeComposite, composite) << shape;
        EXPECT_EQ(info.MayRotate, rotates) << shape;
    }
    EXPECT_EQ(InfoOf(0).Title, "");
    EXPECT_EQ(InfoOf(28).LastElement, 0);
    EXPECT_EQ(InfoOf(kDoubleL).Title, "User-defined Double L Shape");
    EXPECT_EQ(InfoOf(kSteelTS).Caption, "Structural Tube Shapes (T&S)");
}

} // namespace
} // namespace forcelab::sections::test
