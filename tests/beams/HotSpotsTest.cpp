#include "beams/HotSpots.h"

#include "BeamBuilders.h"
#include "beams/LoadDiagram.h"
#include "core/RecordingPicture.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;

namespace {

constexpr const char* kEditHint = "Left click = Shear diagram tips, Right click = Edit load data";
constexpr const char* kShearHint = "Tips on constructing the shear diagram";
constexpr const char* kMomentHint = "Tips on constructing the moment diagram";

TEST(SaveHotSpot, PointsAndMomentsTakeTheCurrentPointAsCorner)
{
    RecordingPicture pic(100, 100);
    HotSpotTable spots{};
    pic.CurrentX = 10;
    pic.CurrentY = 20;
    SaveHotSpot(spots, pic, {kPointDown, 12, 500, 7}, 4, 30);
    EXPECT_EQ(spots[0][kSpotKind], 1);
    EXPECT_EQ(spots[1], (std::array<double, 8>{kPointDown, 10, 20, 14, 50, 12, 500, 7}));
}

TEST(SaveHotSpot, UniformLoadsReachToTheBeam)
{
    HotSpotTable spots{};
    SaveHotSpot(spots, {kUniformDown, 5, 3, 2}, 5, 40, 90);
    EXPECT_EQ(spots[1], (std::array<double, 8>{kUniformDown, 5, 40, 90, 0, 5, 3, 2}));
}

TEST(SaveHotSpot, TakesFortyRowsAndNoMore)
{
    HotSpotTable spots{};
    for (int i = 1; i <= 45; ++i) SaveHotSpot(spots, {kUniformDown, double(i), 1, i}, 0, 1, 1);
    EXPECT_EQ(spots[0][kSpotKind], 40);
    EXPECT_EQ(spots[40][kSpotLoad], 40);
}

class LoadHover : public testing::Test {
  protected:
    LoadHover()
    {
        beam_ = Simple(10, kFoot);
        Add(beam_, kPointDown, 5, 0, 1000, kLb);
        Add(beam_, kUniformDown, 2, 8, 10, kLb);
        Add(beam_, kMomentCw, 9, 0, 300, kLb);
        Add(beam_, kPointUp, 3, 0, 100, kLb);
        beam_.DiagramEntry = 4000;
        units_.Length = kFoot;
        Redraw();
    }
    void Redraw()
    {
        areas_ = DrawLoadDiagram(pic_, beam_, Solve(beam_).Reactions, units_, kUnfactored);
    }
    [[nodiscard]] Hover At(double feet, double y, bool slopeView = false) const
    {
        return HoverAt(areas_, {feet * 12, y}, beam_, units_, slopeView);
    }
    [[nodiscard]] int LoadAt(double feet, double y) const
    {
        const Hover hover = At(feet, y);
        return hover.HoverCode == kOverLoad
                   ? static_cast<int>(areas_.HotSpots[hover.HoverRow][kSpotLoad])
                   : 0;
    }

    BeamRecord beam_;
    DiagramUnits units_;
    RecordingPicture pic_{800, 280};
    LoadDiagramAreas areas_;
};

TEST_F(LoadHover, TheBeamTellsThePosition)
{
    const double inBand = -areas_.BandHeight / 2;
    EXPECT_EQ(At(4.25, inBand).HoverCode, kOverBeam);
    EXPECT_EQ(At(4.25, inBand).Hint, Local("Click for details at X = 4.3 ft"));
    EXPECT_EQ(At(4.25, inBand, true).Hint, Local("Double click for details at X = 4.3 ft"));
    EXPECT_EQ(At(-0.1, inBand).HoverCode, kOverNothing);
    EXPECT_EQ(At(10.01, inBand).HoverCode, kOverNothing);
}

TEST_F(LoadHover, LoadsAreFoundWhereTheyAreDrawn)
{
    EXPECT_EQ(areas_.HotSpots[0][kSpotKind], 4);
    EXPECT_EQ(LoadAt(5, 5), 1) << "the arrow, not the uniform load behind it";
    EXPECT_EQ(LoadAt(2.5, 5), 2);
    EXPECT_EQ(LoadAt(9, 6), 3) << "the arc over the beam";
    EXPECT_EQ(LoadAt(3, -areas_.BandHeight - 10), 4) << "an upward load under the beam";
    EXPECT_EQ(LoadAt(1, 5), 0);
    EXPECT_EQ(At(1, 5).Hint, "");
}

TEST_F(LoadHover, HintsDependOnTheLoadAndOnTheEntry)
{
    EXPECT_EQ(At(5, 5).Hint, kEditHint);
    EXPECT_EQ(At(2.5, 5).Hint, kEditHint);
    EXPECT_EQ(At(9, 6).Hint, kMomentHint);
    beam_.DiagramEntry = 1;
    EXPECT_EQ(At(5, 5).Hint, kShearHint);
    EXPECT_EQ(At(9, 6).Hint, kMomentHint);
}

TEST_F(LoadHover, SupportsLeadToTheEquilibriumEquations)
{
    const double under = -1.5 * areas_.BandHeight;
    EXPECT_EQ(At(0, under).HoverCode, kOverReactionA);
    EXPECT_EQ(At(10, under).HoverCode, kOverReactionB);
    EXPECT_EQ(At(10, under).Hint, "Click for equilibrium equations");
    EXPECT_EQ(At(7, under).HoverCode, kOverNothing);
}

TEST_F(LoadHover, EachCantileverHasItsOwnReaction)
{
    for (const int type : {kFixedLeft, kFixedRight}) {
        beam_ = Cantilever(type, 10, kFoot);
        Add(beam_, kPointDown, 5, 0, 1000, kLb);
        Redraw();
        const double under = -1.5 * areas_.BandHeight;
        const bool left = type == kFixedLeft;
        EXPECT_EQ(At(0, under).HoverCode, left ? kOverReactionA : kOverNothing);
        EXPECT_EQ(At(10, under).HoverCode, left ? kOverNothing : kOverReactionB);
    }
}

TEST_F(LoadHover, NothingDrawnNothingFound)
{
    EXPECT_EQ(HoverAt({}, {0, 0}, beam_, units_, false).HoverCode, kOverNothing);
}

TEST(ShearHintAt, SpeaksBetweenTheBaselineAndTheCurve)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1000, kLb);
    const Solved solved = Solve(beam);
    struct Row {
        double Feet, Shear;
        bool Speaks;
    };
    for (const Row& row : {Row{2, 250, true}, Row{2, 499, true}, Row{2, 501, false},
                           Row{2, -10, false}, Row{8, -250, true}, Row{8, -501, false},
                           Row{8, 10, false}, Row{-1, 250, false}, Row{11, -250, false}})
        EXPECT_EQ(ShearHintAt(beam, solved.Curves, row.Feet * 12, row.Shear),
                  row.Speaks ? "Tips for constructing the moment diagram" : "")
            << row.Feet << " ft, " << row.Shear;
    const BeamRecord empty = Simple(10, kFoot);
    EXPECT_EQ(ShearHintAt(empty, Solve(empty).Curves, 24, 1), "");
}

} // namespace
