#include "beams/LoadDiagram.h"

#include "BeamBuilders.h"
#include "DrawnLabels.h"
#include "beams/DiagramFrame.h"
#include "beams/LoadLevels.h"
#include "beams/LoadPlan.h"
#include "core/RecordingPicture.h"

#include <algorithm>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::Contains;
using testing::IsEmpty;

namespace {

LoadDiagramAreas Draw(Picture& pic, const BeamRecord& beam, int force)
{
    const Solved solved = Solve(beam);
    return DrawLoadDiagram(pic, beam, solved.Reactions, UnitsOf(beam, force),
                           ShearMomentCase(beam));
}

/// Filled heads of arrows and arcs in a colour.
long Heads(const RecordingPicture& pic, Colour colour)
{
    const auto paths = pic.All(RecordedOperation::Kind::Path);
    return std::count_if(paths.begin(), paths.end(), [&](const RecordedOperation& op) {
        return op.Closed && op.Pattern == FillPattern::Solid && op.Fill == colour;
    });
}

TEST(DrawLoadDiagram, NamesLoadsAndReactionsWithTheirSizes)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    RecordingPicture pic(800, 280);
    Draw(pic, beam, kKn);
    for (const char* text : {"1w = 5.0 kN/m", "1P = 8.0 kN", "A = 30.6 kN", "B = 27.4 kN", "0.0",
                             "3.0", "10.0", "X (m)"})
        EXPECT_THAT(pic.Texts(), Contains(Local(text)));
    EXPECT_EQ(Heads(pic, kPointColour), 1);
    EXPECT_EQ(Heads(pic, kReactionColour), 2);
    EXPECT_GT(Heads(pic, kUniformColour), 10);
}

TEST(DrawLoadDiagram, ShowsTheMomentOfAWall)
{
    BeamRecord beam = Cantilever(kFixedLeft, 9, kMetre);
    Add(beam, kUniformDown, 0, 5, 8, kKn);
    Add(beam, kMomentCcw, 5, 5, 50, kKn);
    Add(beam, kPointDown, 9, 9, 12, kKn);
    RecordingPicture pic(800, 280);
    const LoadDiagramAreas areas = Draw(pic, beam, kKn);
    EXPECT_THAT(pic.Texts(), Contains(Local("A = 52.0 kN")));
    EXPECT_THAT(pic.Texts(), Contains(Local("MA = 158.0 kN-m")));
    EXPECT_THAT(pic.Texts(), Contains(Local("1M = 50.0 kN-m")));
    for (const ReactionArea& area : areas.Reactions) EXPECT_EQ(area.HoverCode, kOverReactionA);
    EXPECT_EQ(areas.Reactions.size(), 2u);
}

TEST(DrawLoadDiagram, ArrowsPointAsTheLoadsDo)
{
    for (const int type : {kPointUp, kPointDown}) {
        BeamRecord beam = Simple(120, kInch);
        Add(beam, type, 60, 60, 100, kLb);
        RecordingPicture pic(800, 280);
        Draw(pic, beam, kLb);
        const auto paths = pic.All(RecordedOperation::Kind::Path);
        const auto head = std::find_if(paths.begin(), paths.end(), [](const auto& op) {
            return op.Closed && op.Fill == kPointColour;
        });
        ASSERT_NE(head, paths.end());
        // The tip comes first: above its sides where it points up, and on the beam's edge.
        const double tip = head->Points[0].Y;
        EXPECT_EQ(tip > head->Points[1].Y, type == kPointUp);
        EXPECT_NEAR(tip, type == kPointUp ? -kBandHeight : 0, 1e-6);
    }
}

TEST(DrawLoadDiagram, WithoutLoadsThereAreSupportsAndNoReactions)
{
    RecordingPicture pic(800, 280);
    const BeamRecord beam = Beam(kTwoSupports, 20, 2, 18, kFoot);
    const LoadDiagramAreas areas = Draw(pic, beam, kLb);
    EXPECT_EQ(Heads(pic, kReactionColour), 0);
    EXPECT_THAT(areas.Reactions, IsEmpty());
    EXPECT_EQ(areas.HotSpots[0][kSpotKind], 0);
    EXPECT_THAT(pic.Texts(), Contains(Local("18.0")));
}

TEST(DrawLoadDiagram, WithoutABeamNothingIsDrawn)
{
    RecordingPicture pic(800, 280);
    EXPECT_EQ(Draw(pic, BeamRecord(), kLb).BeamLength, 0);
    EXPECT_THAT(pic.Operations(), IsEmpty());
}

TEST(DrawLoadDiagram, ShowsTheMagnitudesOfItsCase)
{
    BeamRecord beam = Simple(20, kFoot);
    UseLoadFactors(beam, 1);
    Add(beam, kUniformDown, 0, 20, 2, kKip, 3);
    const Solved solved = Solve(beam);
    RecordingPicture factored(800, 280);
    DrawLoadDiagram(factored, beam, solved.Reactions, UnitsOf(beam, kKip), kFactored);
    EXPECT_THAT(factored.Texts(), Contains(Local("1w = 7.2 kips/ft")));
    EXPECT_THAT(factored.Texts(), Contains(Local("A = 72.0 kips")));
    RecordingPicture service(800, 280);
    DrawLoadDiagram(service, beam, solved.Reactions, UnitsOf(beam, kKip), kService);
    EXPECT_THAT(service.Texts(), Contains(Local("1w = 5.0 kips/ft")));
    EXPECT_THAT(service.Texts(), Contains(Local("A = 50.0 kips")));
}

TEST(LoadSizeText, KeepsTheDecimalsOfTheLoad)
{
    BeamRecord beam = Simple(20, kFoot);
    for (const double size : {10.0, 3.75, 0.0125}) Add(beam, kPointDown, 5, 5, size, kKip);
    EXPECT_EQ(LoadSizeText(beam, 1, kUnfactored), Local("10.0 kips"));
    EXPECT_EQ(LoadSizeText(beam, 2, kUnfactored), Local("3.75 kips"));
    EXPECT_EQ(LoadSizeText(beam, 3, kUnfactored), Local("0.0125 kips"));
}

/// It acts against its type: a load "down" from 15 ft to 5 ft lifts the beam, and stands under it.
TEST(DrawLoadDiagram, AnEndBeforeItsStartIsDrawnAsItActs)
{
    for (const int type : {kUniformDown, kUniformUp}) {
        BeamRecord beam = Simple(20, kFoot);
        Add(beam, type, 15, 5, 2, kKip);
        RecordingPicture pic(800, 280);
        const LoadDiagramAreas areas = Draw(pic, beam, kKip);
        EXPECT_THAT(pic.Texts(), Contains(Local("1w = 2.0 kips/ft")));
        EXPECT_TRUE(Near(areas.HotSpots[1][kSpotLeft], 60));
        EXPECT_TRUE(Near(areas.HotSpots[1][kSpotRight], 180));
        EXPECT_EQ(areas.HotSpots[1][kSpotTop] < 0, type == kUniformDown) << "from the upper edge";
        const bool reactionsDown = type == kUniformDown;
        EXPECT_EQ(Solve(beam).Reactions.ReactionA[kUnfactored] < 0, reactionsDown);
    }
}

struct Sheet {
    double Width, Height;
};
class FortyBeams : public testing::TestWithParam<Sheet> {};

TEST_P(FortyBeams, LabelsKeepApartAndEveryLoadIsNamed)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const BeamRecord beam = RandomBeam(seed, int(seed), seed % 3 == 0);
        RecordingPicture pic(GetParam().Width, GetParam().Height);
        Draw(pic, beam, beam.BeamLengthUnit > kFoot ? kKn : kKip);
        EXPECT_EQ(Overlap(pic), "") << "beam " << seed;
        EXPECT_EQ(Outside(pic), "") << "beam " << seed;
        for (int row = 1; row <= beam.LoadCount; ++row) {
            const auto named = [&](const std::string& text) {
                return text == beam.LoadName[row] || text.starts_with(beam.LoadName[row] + " = ");
            };
            EXPECT_TRUE(std::any_of(pic.Texts().begin(), pic.Texts().end(), named))
                << beam.LoadName[row] << " of beam " << seed;
        }
    }
}

TEST_P(FortyBeams, FortyLoadsKeepApart)
{
    for (unsigned seed = 101; seed <= 140; ++seed) {
        RecordingPicture pic(GetParam().Width, GetParam().Height);
        Draw(pic, RandomBeam(seed, kMaxLoads), kKn);
        EXPECT_EQ(Overlap(pic), "") << "beam " << seed;
        EXPECT_EQ(Outside(pic), "") << "beam " << seed;
        const auto named = std::count_if(pic.Texts().begin(), pic.Texts().end(), [](auto& text) {
            const std::string name = text.substr(0, text.find(' '));
            return name.size() > 1 && std::string("PwM").find(name.back()) != std::string::npos;
        });
        EXPECT_EQ(named, kMaxLoads) << "beam " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, FortyBeams,
                         testing::Values(Sheet{480, 220}, Sheet{800, 280}, Sheet{1400, 400}));

TEST(DrawLoadDiagram, FiveLoadsCarryTheirSizesOnANarrowSheet)
{
    BeamRecord beam = Simple(11, kMetre);
    for (int i = 1; i <= 5; ++i) Add(beam, kPointDown, 2 * i, 0, i, kKn);
    RecordingPicture pic(420, 200);
    Draw(pic, beam, kKn);
    for (int i = 1; i <= 5; ++i)
        EXPECT_THAT(pic.Texts(),
                    Contains(Local(std::to_string(i) + "P = " + std::to_string(i) + ".0 kN")));
}

TEST(DrawLoadDiagram, ATinySheetStillKnowsItsLoads)
{
    const BeamRecord beam = RandomBeam(7, kMaxLoads);
    for (const double width : {30.0, 120.0, 300.0}) {
        RecordingPicture pic(width, width / 3);
        const LoadDiagramAreas areas = Draw(pic, beam, kKn);
        EXPECT_EQ(areas.HotSpots[0][kSpotKind], kMaxLoads);
        EXPECT_TRUE(Near(areas.HotSpots[kMaxLoads][kSpotX], beam.LoadX[kMaxLoads][1]));
    }
}

TEST(ArrangeLevels, CentresWhatHasRoom)
{
    std::vector<LevelLabel> labels{{100, 100, 40}, {200, 200, 40}};
    EXPECT_EQ(ArrangeLevels(labels, 0, 300, 3, false), 1);
    EXPECT_EQ(labels[0].Left, 80);
    EXPECT_EQ(labels[1].Left, 180);
}

TEST(ArrangeLevels, StacksWhatMeetsAndRefusesWhereThereIsNoLevel)
{
    std::vector<LevelLabel> labels{{100, 100, 80}, {100, 100, 80}, {100, 100, 80}, {100, 100, 80}};
    EXPECT_EQ(ArrangeLevels(labels, 0, 300, 1, false), -1);
    EXPECT_GT(ArrangeLevels(labels, 0, 300, 4, false), 1);
    EXPECT_EQ(ArrangeLevels(labels, 0, 300, 0, false), -1);
    std::vector<LevelLabel> none;
    EXPECT_EQ(ArrangeLevels(none, 0, 300, 0, false), 0);
}

} // namespace
