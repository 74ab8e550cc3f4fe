// 8 ft are 2.4384 m, and a load typed so stands at 96.000000000000014 in: behind the beam's end,
// or behind the support that it stands on, by a rounding.

#include "BeamBuilders.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;

namespace {

LoadText Point(const std::string& x, int unit, const std::string& w = "1000", int type = kPointDown)
{
    return {type, Local(x), "", {Local(w), "", ""}, unit, kLb};
}

TEST(LoadPlaces, TheEndIsTheEndInEveryUnit)
{
    BeamRecord beam = Simple(8, kFoot);
    ASSERT_GT(2.4384 * (1000 / 25.4), beam.BeamLength) << "in doubles";
    EXPECT_FALSE(EnterLoad(beam, Point("2.4384", kMetre)));
    EXPECT_FALSE(EnterLoad(beam, {kUniformDown, "0", Local("2.4384"), {"1", "", ""}, kMetre, kLb}));
    EXPECT_EQ(beam.LoadX[1][1], 96);
    EXPECT_EQ(beam.LoadX[2][2], 96);
    EXPECT_TRUE(EnterLoad(beam, Point("2.43841", kMetre))) << "a hundredth of a millimetre is off";
}

/// A load on a support goes straight into it: the shear beside it stays that of the other load.
TEST(LoadPlaces, ALoadOnASupportLeavesNoPeakInTheShear)
{
    BeamRecord beam = Beam(kTwoSupports, 10, 2, 8, kFoot);
    EXPECT_FALSE(EnterLoad(beam, Point("2.4384", kMetre)));
    EXPECT_FALSE(EnterLoad(beam, Point("5", kFoot, "10")));
    const Solved s = Solve(beam);
    EXPECT_EQ(beam.LoadX[1][1], beam.SupportB);
    EXPECT_TRUE(Near(s.Reactions.ReactionB[kUnfactored], 1005));
    EXPECT_TRUE(Near(s.Curves.ShearMomentExtremes[2][kFirstSize], 5));
    EXPECT_NEAR(s.At(96).Shear, 0, 1e-9) << "behind both";
    EXPECT_TRUE(Near(s.At(96 - kLeftOfJump).Shear, -5)) << "before both";
}

TEST(LoadPlaces, LoadsThatAgreeStandAtOnePlace)
{
    BeamRecord beam = Simple(20, kFoot);
    EXPECT_FALSE(EnterLoad(beam, Point("8", kFoot, "700")));
    EXPECT_FALSE(EnterLoad(beam, Point("2.4384", kMetre, "700", kPointUp)));
    EXPECT_EQ(beam.LoadX[2][1], 96);
    EXPECT_NEAR(Solve(beam).Curves.ShearMomentExtremes[2][kFirstSize], 0, 1e-9);
    EXPECT_FALSE(EnterLoad(beam, Point(std::to_string(8.00001), kFoot)));
    EXPECT_NE(beam.LoadX[3][1], 96) << "what the panel shows apart stays apart";
}

/// The panel shows six decimals: 6.666667 for what was typed as 6.6666666.
TEST(LoadPlaces, ALoadAtTheEndCanBeEdited)
{
    BeamRecord beam = Simple(6.6666666, kMetre);
    EXPECT_FALSE(EnterLoad(beam, Point("6.6666666", kMetre)));
    beam.CurrentLoad = 1;
    LoadText text = ShowBeamLoad(beam);
    EXPECT_EQ(text.Start, Local("6.666667"));
    text.Magnitude[0] = "500";
    EXPECT_FALSE(CheckLoadLocation(beam, text));
    EditLoad(beam, text);
    EXPECT_EQ(beam.LoadX[1][1], beam.BeamLength);
    EXPECT_EQ(beam.LoadMagnitude[1][kUnfactored], 500);
}

/// The same beam in another unit keeps the loads at its end and on its support.
TEST(LoadPlaces, ADefinitionInAnotherUnitKeepsTheLoads)
{
    BeamRecord beam = Beam(kTwoSupports, 2.4384, 0, 0.3048, kMetre);
    for (const char* x : {"2.4384", "0.3048"}) EXPECT_FALSE(EnterLoad(beam, Point(x, kMetre)));
    DefinitionText text{"8", "0", "1"};
    ASSERT_GT(beam.LoadX[1][1], 96) << "in doubles";
    const Definition result = DefineBeam(beam, text, kFoot);
    EXPECT_FALSE(result.Refused || result.Notice);
    EXPECT_EQ(beam.LoadCount, 2);
    EXPECT_EQ(beam.LoadX[1][1], 96);
    EXPECT_EQ(beam.LoadX[2][1], 12);
}

TEST(LoadPlaces, RedoBringsALoadBackToItsPlace)
{
    BeamRecord beam = Simple(10, kFoot);
    EXPECT_FALSE(EnterLoad(beam, Point("2.4384", kMetre)));
    ASSERT_NE(beam.LoadX[1][1], 96) << "in doubles";
    EXPECT_TRUE(UndoLoad(beam));
    DefinitionText text{"10", "0", "8"};
    EXPECT_FALSE(DefineBeam(beam, text, kFoot).Refused);
    EXPECT_TRUE(RedoLoad(beam));
    EXPECT_EQ(beam.LoadX[1][1], beam.SupportB);
}

} // namespace
