#include "sections/SectionCases.h"

namespace forcelab::sections::test {
namespace {

using forcelab::test::Local;
using forcelab::test::Near;

constexpr const char* kMissing =
    "Section properties cannot be calculated until all dimensions are specified.";
constexpr const char* kCircles =
    "Dimension for inner circle cannot equal or exceed dimension given for outer circle.";
constexpr const char* kRectangles =
    "Dimension for inner rectangle must be less than dimension given for outer rectangle.";
constexpr const char* kFlanges = "\rThe sum of the flange widths cannot exceed\r"
                                 "the distance from channel back to channel back.";

struct RefusalRow {
    const char* Name;
    int Shape;
    std::vector<double> Boxes;
    const char* Text;
    const char* Focus;
};
void PrintTo(const RefusalRow& row, std::ostream* out)
{
    *out << row.Name;
}

class Refused : public testing::TestWithParam<RefusalRow> {};

TEST_P(Refused, NamesWhatIsWrongAndChangesNothing)
{
    const RefusalRow& row = GetParam();
    Worked worked = Entered(row.Shape, row.Boxes);
    worked.Entry.Steel.emplace();
    worked.Section.ElementDims[0][0] = 123;
    const SectionEntry before = worked.Entry;
    const auto refusal = worked.Check();
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Icon, kStop);
    EXPECT_EQ(refusal->Title, "Section Properties Error");
    EXPECT_EQ(refusal->Text, row.Text);
    EXPECT_EQ(refusal->Focus, row.Focus);
    EXPECT_EQ(worked.Entry.Box, before.Box);
    EXPECT_EQ(worked.Section.ElementDims[0][0], 123);
}

INSTANTIATE_TEST_SUITE_P(
    Checks, Refused,
    testing::Values(
        RefusalRow{"NothingTyped", kIShape, {}, kMissing, "txtShape(3)"},
        RefusalRow{"LastZeroBox", kGeneralFlanged, {6, 0, 9, 0, 8, 1}, kMissing, "txtShape(3)"},
        RefusalRow{"FirstZeroBox", kGeneralFlanged, {0, 1, 9, 1, 8, 1}, kMissing, "txtShape(0)"},
        RefusalRow{"NoGap", kDoubleCBack, {3, 0.5, 9, 0.375, 0}, kMissing, "txtShape(4)"},
        RefusalRow{"LowerFlange", kDoubleI, {9, 1, 8, 1, 3, 11}, kMissing, "txtShape(7)"},
        RefusalRow{"Circle", kCircle, {0}, kMissing, "txtShape(0)"},
        RefusalRow{"Specified", kSpecified, {2, 3, 4, 5, 100, 50}, kMissing, "txtShape(6)"},
        RefusalRow{"EqualCircles", kPipe, {4, 4}, kCircles, "txtShape(1)"},
        RefusalRow{"LargerInnerCircle", kPipe, {4, 5}, kCircles, "txtShape(1)"},
        RefusalRow{"NegativeInnerCircle", kPipe, {4, -5}, kCircles, "txtShape(1)"},
        RefusalRow{"SteelPipe", kSteelPipe, {4, 4}, kCircles, "txtShape(1)"},
        RefusalRow{"HatStems",
                   kHat,
                   {6, 0.5, 4, 3.01, 2.5, 0.6},
                   "The sum of the stem thicknesses cannot exceed the top flange width.",
                   "txtShape(3)"},
        RefusalRow{"ToeToToe", kDoubleCToe, {4.01, 0.5, 9, 0.375, 8}, kFlanges, "txtShape(0)"},
        RefusalRow{"WideHollow", kBox, {6, 10, 6.01, 8}, kRectangles, "txtShape(2)"},
        RefusalRow{"HighHollow", kBox, {6, 10, 5, 10.01}, kRectangles, "txtShape(3)"},
        RefusalRow{"BothHollow", kBox, {6, 10, 7, 11}, kRectangles, "txtShape(2)"},
        RefusalRow{"NegativeHollow", kBox, {6, 10, -7, 8}, kRectangles, "txtShape(2)"},
        RefusalRow{"MissingComesFirst", kPipe, {4, 0}, kMissing, "txtShape(1)"}),
    [](const auto& row) { return std::string(row.param.Name); });

struct LimitRow {
    const char* Name;
    int Shape;
    std::vector<double> Boxes;
};
void PrintTo(const LimitRow& row, std::ostream* out)
{
    *out << row.Name;
}
class AtTheLimit : public testing::TestWithParam<LimitRow> {};

TEST_P(AtTheLimit, Passes)
{
    EXPECT_FALSE(Entered(GetParam().Shape, GetParam().Boxes).Check().has_value());
}

INSTANTIATE_TEST_SUITE_P(Checks, AtTheLimit,
                         testing::Values(LimitRow{"hollow like its box", kBox, {6, 10, 6, 10}},
                                         LimitRow{"stems that meet", kHat, {6, 1, 4, 3, 3.5, 1}},
                                         LimitRow{"toes that meet", kDoubleCToe, {4, 1, 9, 1, 8}},
                                         LimitRow{"a T with a thick stem", kTShape, {1, 1, 9, 5}}));

TEST(CheckEntry, MakesDimensionsPositiveAndRewritesThem)
{
    Worked worked = Entered(kIShape, {});
    worked.Entry.Box = {Local("-6"), Local("0.5"), Local("1,009.12345678"), Local(" 0.375 ")};
    ASSERT_FALSE(worked.Check().has_value());
    EXPECT_EQ(worked.Entry.Box[0], Local("6.0"));
    EXPECT_EQ(worked.Entry.Box[1], Local("0.5"));
    EXPECT_EQ(worked.Entry.Box[2], Local("1009.123457"));
    EXPECT_EQ(worked.Section.ElementDims[0][0], 6);
    EXPECT_EQ(worked.Section.ElementDims[0][1], 0.5);
    EXPECT_TRUE(Near(worked.Section.ElementDims[1][0], 1009.12345678));
    EXPECT_EQ(worked.Section.ElementDims[1][1], 0.375);
}

TEST(CheckEntry, WritesTheDiameterOfRoundShapesWithFewerPlaces)
{
    Worked circle = Entered(kCircle, {-12.345678});
    ASSERT_FALSE(circle.Check().has_value());
    EXPECT_EQ(circle.Entry.Box[0], Local("12.3457"));
    EXPECT_EQ(circle.Section.ElementDims[0][0], 12.3457) << "what is shown is what is computed";
    EXPECT_TRUE(Entered(kCircle, {0.00004}).Check().has_value()) << "it is written back as 0.0";
    Worked pipe = Entered(kPipe, {12.345678, -2.3456789});
    ASSERT_FALSE(pipe.Check().has_value());
    EXPECT_EQ(pipe.Entry.Box[0], Local("12.3457"));
    EXPECT_EQ(pipe.Entry.Box[1], Local("2.345679"));
}

TEST(CheckEntry, TakesTextThatIsNoNumberForZero)
{
    Worked worked = Entered(kRectangle, {4, 10});
    worked.Entry.Box[1] = "ten";
    const auto refusal = worked.Check();
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Focus, "txtShape(1)");
}

TEST(CheckEntry, NeverLooksAtHiddenBoxes)
{
    Worked worked = Entered(kRectangle, {4, 10});
    worked.Entry.Box[5] = Typed(-7);
    ASSERT_FALSE(worked.Check().has_value());
    EXPECT_EQ(worked.Entry.Box[5], Typed(-7));
    EXPECT_EQ(worked.Section.ElementDims[2][1], 0);
}

TEST(CheckEntry, WantsAMaterialForEachElementOfAComposite)
{
    Worked worked = Entered(kTShape, {8, 1, 9, 1});
    worked.Entry.Composite = true;
    worked.Entry.Swatch[0] = IndexedColour(9);
    const auto refusal = worked.Check();
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Icon, kStop);
    EXPECT_EQ(refusal->Title, "Section Properties Error");
    EXPECT_EQ(refusal->Text,
              "For composite shapes, an elastic modulus must be assigned to each element.");
    worked.Entry.Swatch[1] = IndexedColour(10); // the slots behind the two elements do not count
    EXPECT_FALSE(worked.Check().has_value());
}

TEST(CheckEntry, WantsARowForASteelShape)
{
    Worked worked = Entered(kSteelW, {14.5, 0.71, 12.58, 0.44});
    const auto refusal = worked.Check();
    ASSERT_TRUE(refusal.has_value());
    EXPECT_EQ(refusal->Text, kMissing);
    worked.Entry.Steel.emplace();
    EXPECT_FALSE(worked.Check().has_value());
}

TEST(ComputeShape, MarksTheSectionAsComputed)
{
    Worked worked = Entered(kTShape, {8, 1, 9, 1});
    EXPECT_FALSE(worked.Section.SectionComputed);
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_TRUE(worked.Section.SectionComputed);
    EXPECT_FALSE(worked.Section.CompositeSection);
    EXPECT_EQ(worked.Section.ElementColour[0], IndexedColour(8));
    worked.Entry.Composite = true;
    worked.Entry.Swatch.fill(IndexedColour(9));
    worked.Entry.ModulusUnit = 2;
    ASSERT_FALSE(worked.Compute().has_value());
    EXPECT_TRUE(worked.Section.CompositeSection);
    EXPECT_EQ(worked.Section.ModulusUnit, 2);
}

TEST(ComputeShape, TakesTheGapFromItsBox)
{
    const Worked worked = Computed(kDoubleCBack, {3, 0.5, 9, 0.375, -2});
    EXPECT_TRUE(Near(worked.Element(3).Left - worked.Element(2).Right, 2));
}

TEST(ComputeShape, ComputesTheSmallestAndTheLargestCircle)
{
    for (const double diameter : {1e-4, 1e6}) { // a smaller one would be written back as 0.0
        const Worked worked = Computed(kCircle, {diameter});
        EXPECT_TRUE(Near(worked.At(Row::Area, Column::Zz), kPi / 4 * diameter * diameter));
        EXPECT_TRUE(Near(worked.At(Row::ShapeFactor, Column::Zz), 16 / (3 * kPi)));
    }
}

TEST(ConvertLengthUnit, GoesToMillimetresAndBack)
{
    Worked worked = Entered(kTShape, {8, 0.5, 9, 0.375});
    worked.Entry.Box[6] = Typed(5); // hidden
    ConvertLengthUnit(worked.Section, worked.Entry);
    EXPECT_EQ(worked.Entry.LengthUnit, 1);
    EXPECT_EQ(worked.Entry.Box[0], Local("203.2"));
    EXPECT_EQ(worked.Entry.Box[3], Local("9.525"));
    EXPECT_EQ(worked.Entry.Box[6], Local("5.0"));
    ConvertLengthUnit(worked.Section, worked.Entry);
    EXPECT_EQ(worked.Entry.LengthUnit, 0);
    EXPECT_EQ(worked.Entry.Box[0], Local("8.0"));
    EXPECT_EQ(worked.Entry.Box[3], Local("0.375"));
}

TEST(ConvertLengthUnit, ConvertsPropertiesByTheirPowers)
{
    Worked worked = Entered(kSpecified, {1, 1, 1, 1, 1, 1, 1});
    ConvertLengthUnit(worked.Section, worked.Entry);
    EXPECT_EQ(worked.Entry.Box[3], Local("25.4"));
    EXPECT_EQ(worked.Entry.Box[4], Local("416231.4256"));
    EXPECT_EQ(worked.Entry.Box[5], Local("416231.4256"));
    EXPECT_EQ(worked.Entry.Box[6], Local("645.16"));
    ConvertLengthUnit(worked.Section, worked.Entry);
    for (int box = 0; box < 7; ++box) EXPECT_EQ(worked.Entry.Box[box], Local("1.0")) << box;
}

} // namespace
} // namespace forcelab::sections::test
