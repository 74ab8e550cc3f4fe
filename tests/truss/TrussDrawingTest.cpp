#include "truss/TrussDrawing.h"

#include "TrussCases.h"
#include "core/RecordingPicture.h"
#include "truss/TrussSymbols.h"

#include <algorithm>

using namespace forcelab;
using namespace forcelab::truss;
using namespace forcelab::truss::test;
using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;
using Kind = RecordedOperation::Kind;

namespace {

std::vector<std::string> LocalTexts(std::vector<std::string> texts)
{
    for (std::string& text : texts) text = Local(text);
    return texts;
}

/// How many straight lines of a colour and width were drawn.
std::ptrdiff_t CountLines(const RecordingPicture& pic, int colour, double width)
{
    const auto paths = pic.All(Kind::Path);
    return std::count_if(paths.begin(), paths.end(), [=](const RecordedOperation& path) {
        return path.Fore == IndexedColour(colour) && path.Width == width;
    });
}

bool HasLine(const RecordingPicture& pic, PicturePoint from, PicturePoint to)
{
    const auto same = [](PicturePoint a, PicturePoint b) {
        return std::abs(a.X - b.X) < 1e-6 && std::abs(a.Y - b.Y) < 1e-6;
    };
    const auto paths = pic.All(Kind::Path);
    return std::any_of(paths.begin(), paths.end(), [&](const RecordedOperation& path) {
        return path.Points.size() == 2 && same(path.Points[0], from) && same(path.Points[1], to);
    });
}

void ExpectTextsApart(const RecordingPicture& pic)
{
    const auto boxes = pic.TextBoxes();
    for (std::size_t a = 0; a < boxes.size(); ++a)
        for (std::size_t b = a + 1; b < boxes.size(); ++b) {
            const bool apart = boxes[a].X2 <= boxes[b].X1 || boxes[b].X2 <= boxes[a].X1 ||
                               boxes[a].Y2 <= boxes[b].Y1 || boxes[b].Y2 <= boxes[a].Y1;
            EXPECT_TRUE(apart) << boxes[a].Text << " covers " << boxes[b].Text;
        }
}

void DrawResults(RecordingPicture& pic, TrussModel model)
{
    const TrussAnalysis analysis = AnalyzeTruss(model);
    ASSERT_FALSE(analysis.Failure);
    ScalePicture(pic, model);
    DrawGridMarks(pic, model);
    DrawTrussResults(pic, model, analysis.Results, 3, 5);
}

TEST(DrawGridMarks, WritesCoordinatesAlongTheEdges)
{
    RecordingPicture pic(800, 600);
    const TrussModel model = Grid(2, 1, 2.5F, 10);
    ScalePicture(pic, model);
    DrawGridMarks(pic, model);
    EXPECT_EQ(pic.Texts(), LocalTexts({"0.", "2.5", "5.", "0.", "10."}));
    EXPECT_TRUE(HasLine(pic, {2.5, -2.5}, {2.5, 12.5}));
    EXPECT_TRUE(HasLine(pic, {-0.625, 10}, {5.625, 10}));
    EXPECT_EQ(CountLines(pic, kGridColour, 1), 5);
}

TEST(DrawGridMarks, LeavesOutCoordinatesWithoutRoom)
{
    RecordingPicture pic(500, 400);
    const TrussModel model = Grid(50, 50);
    ScalePicture(pic, model);
    DrawGridMarks(pic, model);
    EXPECT_EQ(CountLines(pic, kGridColour, 1), 102);
    EXPECT_LT(pic.Texts().size(), 60U);
    EXPECT_THAT(pic.Texts(), Contains(Local("500.")));
    ExpectTextsApart(pic);
}

TEST(DrawTruss, ShowsMembersAnglesSupportsAndLoads)
{
    RecordingPicture pic(800, 600);
    DrawTruss(pic, Triangle());
    EXPECT_TRUE(HasLine(pic, {0, 0}, {10, 10}));
    EXPECT_EQ(CountLines(pic, kMemberColour, 5), 3);
    EXPECT_THAT(pic.Texts(), IsSupersetOf(LocalTexts({"45.000°", "0.000°", "10.0"})));
    EXPECT_TRUE(HasLine(pic, {10, 10}, {10, 10 + 3.9})); // pushes in: above, with its head below
    EXPECT_TRUE(HasLine(pic, {10, 10}, {10 + 1.3 / 4, 10 + 1.56}));
    EXPECT_EQ(CountLines(pic, kLoadColour, 3), 3);
    ExpectTextsApart(pic);
}

TEST(DrawTruss, PutsAPullingLoadOnTheSameSideWithItsHeadOutside)
{
    TrussModel model = Triangle();
    Load(model, {1, 1}, 0, 7);
    RecordingPicture pic(800, 600);
    DrawTruss(pic, model);
    EXPECT_TRUE(HasLine(pic, {10, 10}, {10, 13.9}));
    EXPECT_TRUE(HasLine(pic, {10, 13.9}, {10 - 1.3 / 4, 13.9 - 1.56}));
}

TEST(DrawTruss, StopsAfterTheGridWithoutMembers)
{
    RecordingPicture pic(800, 600);
    DrawTruss(pic, Grid(3, 3));
    EXPECT_EQ(pic.All(Kind::Path).size(), 8U);
    RecordingPicture blank(800, 600);
    DrawTruss(blank, {});
    EXPECT_TRUE(blank.All(Kind::Path).empty());
}

TEST(DrawTruss, DrawsAPinARollerAndALoadThatLostItsMember)
{
    TrussModel model = Triangle();
    UndoMember(model);
    UndoMember(model); // the load at the top stays
    RecordingPicture pic(800, 600);
    DrawTruss(pic, model);
    EXPECT_THAT(pic.Texts(), Contains(Local("10.0")));
    const auto paths = pic.All(Kind::Path);
    EXPECT_EQ(std::count_if(paths.begin(), paths.end(),
                            [](const RecordedOperation& path) { return path.Closed; }),
              1);                                 // the pin
    EXPECT_EQ(pic.All(Kind::Ellipse).size(), 1U); // the roller
}

TEST(DrawTrussResults, ColoursMembersAndWritesForces)
{
    RecordingPicture pic(800, 600);
    DrawResults(pic, KingPost());
    EXPECT_EQ(CountLines(pic, kTensionColour, 3), 3);
    EXPECT_EQ(CountLines(pic, kCompressionColour, 3), 2);
    EXPECT_THAT(pic.Texts(),
                IsSupersetOf(LocalTexts({"6.67 (T)", "6.67 (T)", "9.43 (C)", "7.45 (C)", "10.0 (T)",
                                         "A", "B", "C", "D", "Ay 6.67", "Dy 3.33"})));
    EXPECT_THAT(pic.Texts(), Not(Contains(testing::StartsWith("Ax")))); // nothing pushes across
    ExpectTextsApart(pic);
}

TEST(DrawTrussResults, MarksAnIdleMember)
{
    TrussModel model = KingPost();
    Load(model, {1, 0}, 0, 0);
    Load(model, {1, 1}, 6, -10);
    RecordingPicture pic(800, 600);
    DrawResults(pic, model);
    EXPECT_EQ(CountLines(pic, kIdleColour, 3), 1);
    EXPECT_THAT(pic.Texts(), Contains(Local("Ax 6.0")));
}

TEST(DrawTrussResults, KeepsLabelsApartFromThreeToAHundredMembers)
{
    for (const int bays : {1, 5, 9, 24}) {
        RecordingPicture pic(900, 600);
        DrawResults(pic, ParallelChords(bays));
        ExpectTextsApart(pic);
        const auto texts = pic.Texts();
        const auto forces = std::count_if(texts.begin(), texts.end(), [](const std::string& text) {
            return text.ends_with("(T)") || text.ends_with("(C)");
        });
        EXPECT_GE(forces, 0.9 * (4 * bays + 1)) << bays; // a crowded sheet may leave some out
    }
}

TEST(DrawMotion, MovesTheJointsByTheirShare)
{
    TrussModel model = Square();
    const auto motion = AnalyzeTruss(model).Motion;
    ASSERT_TRUE(motion);
    RecordingPicture pic(800, 600);
    DrawMotion(pic, model, *motion, 0.5);
    const double moved = 0.5 * 0.4 * 10 * motion->MoveX[2];
    EXPECT_TRUE(HasLine(pic, {0, 10}, {10, 10}));
    EXPECT_TRUE(HasLine(pic, {moved, 10}, {10 + moved, 10}));
    EXPECT_TRUE(HasLine(pic, {0, 0}, {moved, 10}));
    EXPECT_THAT(pic.Texts(), IsSupersetOf({"B", "D"}));
}

TEST(DrawRubberBand, DrawsAnArrowForALoad)
{
    const TrussModel model = Triangle();
    DragState drag = PressPoint(model, kCreateLoads, 10, 10, true);
    DragTo(model, kCreateLoads, drag, 18, 10);
    RecordingPicture pic(800, 600);
    ScalePicture(pic, model);
    DrawRubberBand(pic, model, kCreateLoads, drag);
    EXPECT_TRUE(HasLine(pic, {10, 10}, {13.9, 10}));
    EXPECT_EQ(pic.All(Kind::Path).size(), 3U);
}

} // namespace
