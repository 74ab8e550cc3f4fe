#include "beams/DiagramScale.h"

#include "BeamBuilders.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using sections::Column;

namespace {

TEST(StiffnessOf, OneMaterial)
{
    sections::CrossSection section;
    section.Record(sections::Row::Modulus, Column::ZzInches) = 29e6;
    section.Record(sections::Row::Inertia, Column::ZzInches) = 999;
    EXPECT_TRUE(StiffnessOf(section).EIMissing) << "no shape has been chosen";
    EXPECT_EQ(StiffnessOf(section).BeamEI, 1);
    section.ShapeIndex = 5;
    EXPECT_FALSE(StiffnessOf(section).EIMissing);
    EXPECT_TRUE(Near(StiffnessOf(section).BeamEI, 29e6 * 999));
}

TEST(StiffnessOf, TransformedSection)
{
    sections::CrossSection section;
    section.ShapeIndex = 2;
    section.CompositeSection = true;
    section.Record(sections::CompositeRow::ModulusA, Column::CompositeZzInches) = 1.6e6;
    section.Record(sections::CompositeRow::InertiaAsA, Column::CompositeZzInches) = 50;
    EXPECT_TRUE(Near(StiffnessOf(section).BeamEI, 8e7));
}

TEST(StiffnessOf, OneOrLessCountsAsMissing)
{
    sections::CrossSection section;
    section.ShapeIndex = 5;
    section.Record(sections::Row::Modulus, Column::ZzInches) = 1;
    section.Record(sections::Row::Inertia, Column::ZzInches) = 0.5;
    EXPECT_TRUE(StiffnessOf(section).EIMissing);
    EXPECT_EQ(StiffnessOf(section).BeamEI, 1);
}

TEST(ScaleOf, IsTenToMinusTenForAFlatCurve)
{
    const DiagramScale scale = ScaleOf({}, kFirstSize);
    EXPECT_EQ(scale.Top, 10);
    EXPECT_EQ(scale.Bottom, -10);
    EXPECT_EQ(scale.YDivisor, 1);
}

TEST(ScaleOf, LeavesHeadroom)
{
    BeamRecord beam = Simple(120, kInch);
    Add(beam, kPointDown, 60, 0, 1000, kLb);
    const Solved s = Solve(beam);
    const DiagramScale shear = ScaleOf(s.Curves.ShearMomentExtremes, kFirstSize);
    EXPECT_TRUE(Near(shear.Top, 600));
    EXPECT_TRUE(Near(shear.Bottom, -600));
    const DiagramScale moment = ScaleOf(s.Curves.ShearMomentExtremes, kSecondSize, 1.0 / 12);
    EXPECT_TRUE(Near(moment.Top, 3000));
    EXPECT_EQ(moment.Bottom, 0);
}

TEST(ScaleOf, DividesVeryLargeValues)
{
    ExtremeTable extremes{};
    extremes[2][kSecondLargest] = 5e11;
    extremes[2][kSecondSmallest] = -1e11;
    const DiagramScale scale = ScaleOf(extremes, kSecondSize);
    EXPECT_EQ(scale.YDivisor, 1e4); // 7.2e11 / 1e4 is the first below 1e8
    EXPECT_TRUE(Near(scale.Top * scale.YDivisor, 6e11));
    EXPECT_LT(scale.Top - scale.Bottom, 1e8);
}

} // namespace
