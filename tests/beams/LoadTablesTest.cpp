#include "BeamBuilders.h"

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::ElementsAre;

namespace {

LoadText Point(const std::string& x, const std::string& w, int type = kPointDown)
{
    return {type, Local(x), "", {Local(w), "", ""}, kFoot, kLb};
}

std::vector<std::string> Locals(std::vector<std::string> lines)
{
    for (std::string& line : lines) line = Local(line);
    return lines;
}

TEST(MakeLabels, UnfactoredLines)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointUp, 1, 0, 12.5, kLb);
    Add(beam, kPointDown, 1, 0, 0.12345, kKip);
    Add(beam, kUniformUp, 1, 2, 3, kNewton);
    Add(beam, kUniformDown, 1, 2, 4, kKn);
    Add(beam, kMomentCcw, 1, 0, 5, kKip);
    Add(beam, kMomentCw, 1, 0, 0, kKn);
    EXPECT_THAT(MakeLabels(beam),
                Locals({"1P = 12.5 lbs (up)", "2P = .1235 kips (down)", "1w = 3. N/m (up)",
                        "2w = 4. kN/m (down)", "1M = 5. ft-kips (ccw)", "2M = . kN-m (cw)"}));
    EXPECT_EQ(beam.PointLoadCount, 2);
    EXPECT_EQ(beam.UniformLoadCount, 2);
    EXPECT_EQ(beam.MomentLoadCount, 2);
    EXPECT_EQ(beam.UniformLoadIndex[2], 4);
}

TEST(MakeLabels, FactoredLines)
{
    BeamRecord beam = Simple(10, kFoot);
    UseLoadFactors(beam, 0);
    Add(beam, kUniformDown, 1, 2, 2, kKip, 3.25);
    Add(beam, kMomentCw, 1, 0, 1.5, kLb, 4);
    EXPECT_THAT(MakeLabels(beam), Locals({"1w = 2. kips/ft (D) + 3.25kips/ft (L) (down)",
                                          "1M = 1.5 ft-lbs (D) + 4.ft-lbs (L) (cw)"}));
}

TEST(DeleteLoad, MovesTheRowsDownAndKeepsTheLast)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 1; i <= 3; ++i) Add(beam, kPointDown, i, 0, i, kLb);
    DeleteLoad(beam, 1, 3);
    EXPECT_EQ(beam.LoadMagnitude[1][kUnfactored], 2);
    EXPECT_EQ(beam.LoadMagnitude[2][kUnfactored], 3);
    EXPECT_EQ(beam.LoadMagnitude[3][kUnfactored], 3);
    EXPECT_EQ(beam.LoadX[2][1], 36);
}

TEST(EditPanel, ShowsALoadAsTyped)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, {kUniformUp, 2.5, 7, kMetre, 5, 0, kKn});
    beam.CurrentLoad = 1;
    const LoadText panel = ShowBeamLoad(beam);
    EXPECT_EQ(panel.Type, kUniformUp);
    EXPECT_EQ(panel.Start, Local("2.500"));
    EXPECT_EQ(panel.End, Local("7.000"));
    EXPECT_THAT(panel.Magnitude, ElementsAre(Local("5.000"), "", ""));
    EXPECT_EQ(panel.LengthUnit, kMetre);
    EXPECT_EQ(panel.MagnitudeUnit, kKn);
}

TEST(EditPanel, ShowsDeadAndLive)
{
    BeamRecord beam = Simple(10, kFoot);
    UseLoadFactors(beam, 2);
    Add(beam, kMomentCw, 2, 0, 5, kKip, 0.123456);
    beam.CurrentLoad = 1;
    const LoadText panel = ShowBeamLoad(beam);
    EXPECT_EQ(panel.End, "");
    EXPECT_THAT(panel.Magnitude, ElementsAre("", Local("5.000"), Local("0.123456")));
}

TEST(EditPanel, ReplacesAndDeletes)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 1; i <= 3; ++i) Add(beam, kPointDown, i, 0, i, kLb);
    beam.CurrentLoad = 2;
    EditLoad(beam, Point("4", "20", kPointUp));
    EXPECT_EQ(beam.LoadCount, 3);
    EXPECT_EQ(beam.LoadMagnitude[2][kUnfactored], -20);
    DeleteCurrentLoad(beam);
    EXPECT_THAT(MakeLabels(beam), Locals({"1P = 1. lbs (down)", "2P = 3. lbs (down)"}));
}

TEST(EditPanel, WalksThroughTheLoads)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 0; i < 2; ++i) EXPECT_FALSE(EnterLoad(beam, Point("5", "1")));
    EXPECT_FALSE(HasNextLoad(beam)) << "the counter stands behind the last load";
    EXPECT_TRUE(MoveCurrentLoad(beam, 0));
    EXPECT_EQ(beam.CurrentLoad, 2);
    EXPECT_TRUE(MoveCurrentLoad(beam, 0));
    EXPECT_FALSE(MoveCurrentLoad(beam, 0));
    EXPECT_TRUE(MoveCurrentLoad(beam, 1));
    EXPECT_EQ(beam.CurrentLoad, 2);
    EXPECT_FALSE(MoveCurrentLoad(beam, 1));
    EXPECT_TRUE(UndoLoad(beam) && UndoLoad(beam));
    EXPECT_FALSE(MoveCurrentLoad(beam, 0)) << "no load is left";
}

TEST(UndoAndRedo, MoveTheCount)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 1; i <= 3; ++i) Add(beam, kPointDown, i, 0, i, kLb);
    for (int left = 2; left >= 0; --left) {
        EXPECT_TRUE(UndoLoad(beam));
        EXPECT_EQ(beam.LoadCount, left);
        EXPECT_EQ(beam.PointLoadCount, left);
    }
    EXPECT_FALSE(UndoLoad(beam));
    for (int i = 1; i <= 3; ++i) EXPECT_TRUE(RedoLoad(beam));
    EXPECT_FALSE(RedoLoad(beam)) << "row 4 never held a load";
    EXPECT_EQ(beam.LoadMagnitude[3][kUnfactored], 3);
}

TEST(UndoAndRedo, ANewEntryOverwrites)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 1; i <= 3; ++i) Add(beam, kPointDown, i, 0, i, kLb);
    UndoLoad(beam);
    UndoLoad(beam);
    EXPECT_FALSE(EnterLoad(beam, Point("5", "7")));
    EXPECT_TRUE(RedoLoad(beam));
    EXPECT_EQ(beam.LoadMagnitude[2][kUnfactored], 7);
    EXPECT_EQ(beam.LoadMagnitude[3][kUnfactored], 3) << "what lay above it is still there";
}

TEST(UndoAndRedo, BringBackTheLoadsOfTheBeamBefore)
{
    BeamRecord beam = Simple(10, kFoot);
    for (int i = 1; i <= 2; ++i) Add(beam, kPointDown, i, 0, i, kLb);
    StartLoads(beam);
    EXPECT_EQ(beam.LoadCount, 0);
    EXPECT_EQ(beam.PointLoadCount, 0);
    EXPECT_EQ(beam.SupportType, kTwoSupports) << "stays until a type is clicked";
    EXPECT_TRUE(RedoLoad(beam) && RedoLoad(beam));
    EXPECT_EQ(beam.PointLoadCount, 2);
}

TEST(LoadFactors, AskBeforeLoadsGo)
{
    BeamRecord beam = Simple(10, kFoot);
    EXPECT_FALSE(AskLoadFactors(beam, true)) << "no loads, no question";
    Add(beam, kPointDown, 1, 0, 1, kLb);
    EXPECT_FALSE(AskLoadFactors(beam, false)) << "nothing changes";
    const auto question = AskLoadFactors(beam, true);
    ASSERT_TRUE(question);
    EXPECT_EQ(question->Icon, kStopOkCancel);
    EXPECT_EQ(question->Title, "Load Data Warning");
    EXPECT_EQ(question->Text, "If you change from unfactored loads to factored loads at this time, "
                              "all previously entered loads will be deleted.");
    beam.FactoredLoads = true;
    EXPECT_EQ(AskLoadFactors(beam, false)->Text,
              "If you change from factored loads to unfactored loads at this time, "
              "all previously entered loads will be deleted.");
    EXPECT_FALSE(AskLoadFactors(beam, true));
}

TEST(LoadFactors, ComingAndGoingEmptyTheRedoStore)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 1, 0, 1, kLb);
    EXPECT_TRUE(UseLoadFactors(beam, 1));
    EXPECT_EQ(beam.LoadCount, 0);
    EXPECT_EQ(beam.PointLoadCount, 0);
    EXPECT_TRUE(beam.FactoredLoads);
    EXPECT_FALSE(RedoLoad(beam));
    Add(beam, kPointDown, 1, 0, 1, kLb, 2);
    EXPECT_TRUE(UseUnfactoredLoads(beam));
    EXPECT_FALSE(beam.FactoredLoads);
    EXPECT_EQ(beam.LoadCount, 0);
    EXPECT_FALSE(RedoLoad(beam));
    EXPECT_FALSE(UseUnfactoredLoads(beam)) << "nothing to delete";
}

TEST(LoadFactors, AnotherSetKeepsTheLoads)
{
    BeamRecord beam = Simple(10, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kPointDown, 1, 0, 100, kLb, 10);
    Add(beam, kPointDown, 2, 0, 200, kLb, 10);
    UndoLoad(beam);
    const double expected[] = {140, 136, 157};
    for (int set = 0; set < 3; ++set) {
        EXPECT_FALSE(UseLoadFactors(beam, set));
        EXPECT_EQ(beam.LoadCount, 1);
        EXPECT_TRUE(Near(beam.LoadMagnitude[1][kFactored], expected[set]));
        EXPECT_TRUE(Near(beam.LoadMagnitude[1][kService], 110));
    }
    EXPECT_TRUE(RedoLoad(beam));
    EXPECT_TRUE(Near(beam.LoadMagnitude[2][kFactored], 297)) << "by the factors that stand now";
}

TEST(SetBeamGeometry, TakesThePresetInItsUnit)
{
    const BeamRecord beam = Beam(kTwoSupports, 11, 1, 8, kMetre);
    EXPECT_EQ(beam.SupportType, kTwoSupports);
    EXPECT_EQ(beam.BeamLengthUnit, kMetre);
    EXPECT_TRUE(Near(beam.BeamLength, 11000 / 25.4));
    EXPECT_TRUE(Near(beam.SupportA, 1000 / 25.4));
    EXPECT_TRUE(Near(beam.SupportB, 8000 / 25.4));
}

TEST(StoreBeamLoad, StoresWhatAnEntryWouldStore)
{
    BeamRecord preset = Simple(10, kMetre);
    BeamRecord typed = preset;
    StoreBeamLoad(preset, 1, {kUniformDown, 1.5, 4, kMetre, 5, 0, kKn});
    EnterLoadData(typed, {kUniformDown, Local("1.5"), "4", {"5", "", ""}, kMetre, kKn}, 1);
    EXPECT_EQ(preset.LoadX, typed.LoadX);
    EXPECT_EQ(preset.LoadMagnitude, typed.LoadMagnitude);
    EXPECT_EQ(preset.LoadUnitIndex, typed.LoadUnitIndex);
    EXPECT_EQ(preset.LoadUnitFactor, typed.LoadUnitFactor);
    EXPECT_EQ(preset.LoadType, typed.LoadType);
    EXPECT_EQ(preset.LoadClass, typed.LoadClass);
}

} // namespace
