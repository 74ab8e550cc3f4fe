#include "beams/CurveDiagram.h"

#include "BeamBuilders.h"
#include "DrawnLabels.h"
#include "beams/DiagramFrame.h"
#include "beams/LoadDiagram.h"
#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "core/RecordingPicture.h"
#include "core/Units.h"

#include <algorithm>
#include <limits>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using testing::Contains;
using testing::IsEmpty;

namespace {

constexpr std::array<CurveKind, 4> kKinds{CurveKind::Shear, CurveKind::Moment, CurveKind::Slope,
                                          CurveKind::Deflection};

bool IsSlopeView(CurveKind kind)
{
    return kind == CurveKind::Slope || kind == CurveKind::Deflection;
}

CurveFrame Draw(Picture& pic, CurveKind kind, const BeamRecord& beam, const DiagramUnits& units,
                std::optional<double> marker = {})
{
    BeamReactions reactions;
    BeamCurves curves;
    RecomputeBeam(beam, IsSlopeView(kind), reactions, curves);
    return DrawCurveDiagram(pic, kind, beam, curves, units, marker);
}

BeamRecord UniformAndPoint()
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kUniformDown, 0, 10, 5, kKn);
    Add(beam, kPointDown, 3, 0, 8, kKn);
    return beam;
}

/// The curve itself: the only open path of 200 points.
std::vector<RecordedOperation> CurvesOf(const RecordingPicture& pic)
{
    auto paths = pic.All(RecordedOperation::Kind::Path);
    std::erase_if(paths, [](const RecordedOperation& op) {
        return op.Closed || op.Points.size() != kCurvePoints;
    });
    return paths;
}

TEST(DrawShearDiagram, LabelsValuesAndPositions)
{
    const BeamRecord beam = UniformAndPoint();
    RecordingPicture pic(800, 240);
    Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kKn));
    for (const char* text : {"30.6", "15.6", "7.6", "-27.4", "0.0", "3.0", "4.52", "10.0", "Shear",
                             "(kN)", "X", "(m)", "V", "+"})
        EXPECT_THAT(pic.Texts(), Contains(Local(text)));
}

TEST(DrawMomentDiagram, LabelsTheLargestMomentAndItsPlace)
{
    const BeamRecord beam = UniformAndPoint();
    RecordingPicture pic(800, 240);
    Draw(pic, CurveKind::Moment, beam, UnitsOf(beam, kKn));
    for (const char* text : {"75.1", "69.3", "4.52", "Moment", "(kN-m)"})
        EXPECT_THAT(pic.Texts(), Contains(Local(text)));
}

TEST(DrawCurveDiagram, ScaleHasHeadroomAndMarginsForText)
{
    const BeamRecord beam = UniformAndPoint();
    RecordingPicture pic(800, 240);
    const CurveFrame frame = Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kKn));
    const double top = 1.2 * 30.6;
    const double bottom = -1.2 * 27.4;
    // A line of 8 points in the record is 40/3 pixels high.
    const double line = (top - bottom) * (40.0 / 3) / 240;
    EXPECT_TRUE(Near(pic.ScaleTop(), top + 2.5 * line, 1e-6));
    EXPECT_TRUE(Near(pic.ScaleTop() + pic.ScaleHeight(), bottom - 3.5 * line, 1e-6));
    EXPECT_EQ(frame.YDivisor, 1);
    EXPECT_TRUE(Near(frame.ValueAt(30.6), 30.6 * ForceFactor(kKn)));
}

TEST(DrawCurveDiagram, AShearOfZeroHasTheScaleOfTen)
{
    RecordingPicture pic(800, 240);
    const BeamRecord beam = Simple(10, kFoot);
    Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kLb));
    const double line = 20 * (40.0 / 3) / 240;
    EXPECT_TRUE(Near(pic.ScaleTop(), 10 + 2.5 * line));
    EXPECT_TRUE(Near(pic.ScaleTop() + pic.ScaleHeight(), -10 - 3.5 * line));
    const auto curves = CurvesOf(pic);
    ASSERT_EQ(curves.size(), 1u);
    for (const PicturePoint& point : curves[0].Points) EXPECT_EQ(point.Y, 0);
}

TEST(DrawCurveDiagram, AVeryLargeLoadIsDividedAndLabelledTruly)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 2e12, kLb);
    RecordingPicture pic(800, 240);
    const CurveFrame frame = Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kLb));
    EXPECT_EQ(frame.YDivisor, 100000);
    EXPECT_LT(std::abs(pic.ScaleHeight()), 2e8);
    EXPECT_THAT(pic.Texts(), Contains(PlainText(1e12)));
    EXPECT_THAT(pic.Texts(), Contains(PlainText(-1e12)));
}

TEST(DrawCurveDiagram, TheCurveIsDrawnThroughTheSamplesInWidthTwo)
{
    const BeamRecord beam = UniformAndPoint();
    const DiagramUnits units = UnitsOf(beam, kKn);
    for (const CurveKind kind : kKinds) {
        BeamReactions reactions;
        BeamCurves curves;
        RecomputeBeam(beam, IsSlopeView(kind), reactions, curves);
        RecordingPicture pic(800, 240);
        const CurveFrame frame = DrawCurveDiagram(pic, kind, beam, curves, units);
        const std::array<const CurveList*, 4> lists{&curves.CurveShear, &curves.CurveMoment,
                                                    &curves.CurveSlope, &curves.CurveDeflection};
        const auto drawn = CurvesOf(pic);
        ASSERT_EQ(drawn.size(), 1u);
        EXPECT_EQ(drawn[0].Width, 2);
        for (const int k : {1, 77, kCurvePoints}) {
            EXPECT_EQ(drawn[0].Points[k - 1].X, curves.CurveX[k]);
            EXPECT_TRUE(Near(drawn[0].Points[k - 1].Y * frame.YDivisor / frame.ValueScale,
                             (*lists[static_cast<int>(kind)])[k]));
        }
    }
}

TEST(DrawCurveDiagram, AllPicturesOfOneWidthAreAligned)
{
    const BeamRecord beam = UniformAndPoint();
    const DiagramUnits units = UnitsOf(beam, kKn);
    RecordingPicture loads(730, 260);
    DrawLoadDiagram(loads, beam, Solve(beam).Reactions, units, kUnfactored);
    for (const CurveKind kind : kKinds) {
        RecordingPicture pic(730, 180);
        Draw(pic, kind, beam, units);
        EXPECT_TRUE(Near(pic.ScaleLeft(), loads.ScaleLeft()));
        EXPECT_TRUE(Near(pic.ScaleWidth(), loads.ScaleWidth()));
    }
    EXPECT_GT(LeftMargin(loads), kSignSketch.Width);
}

TEST(DrawCurveDiagram, SlopeAndDeflectionAreDividedByTheStiffness)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kPointDown, 5, 0, 1000, kLb);
    DiagramUnits units = UnitsOf(beam, kLb);
    units.BeamEI = 29e6 * 999;
    RecordingPicture deflection(800, 240);
    Draw(deflection, CurveKind::Deflection, beam, units);
    // P L^3 / 48 E I = 0.001243 in
    EXPECT_THAT(deflection.Texts(), Contains(Local("-0.00124")));
    EXPECT_THAT(deflection.Texts(), Contains("(in)"));
    units.Slope = 1;
    RecordingPicture slope(800, 240);
    Draw(slope, CurveKind::Slope, beam, units);
    // P L^2 / 16 E I = 0.0000311 radians
    EXPECT_THAT(slope.Texts(), Contains(SmallText(900000 / units.BeamEI * 180 / kPi)));
    EXPECT_THAT(slope.Texts(), Contains("(degrees)"));
}

TEST(DrawCurveDiagram, LabelsStandAboveARiseAndBelowAFall)
{
    BeamRecord beam = Simple(10, kMetre);
    Add(beam, kPointDown, 4, 0, 8, kKn);
    Add(beam, kPointDown, 6, 0, 8, kKn);
    RecordingPicture pic(900, 300);
    Draw(pic, CurveKind::Moment, beam, UnitsOf(beam, kKn));
    // The moment rises to 32, stays level and falls: its last label before the fall stands below.
    const PicturePoint plateau = pic.ToPixels({beam.BeamLength / 2, 32});
    std::vector<RecordingPicture::PixelBox> labels;
    for (const auto& box : pic.TextBoxes())
        if (box.Text == Local("32.0")) labels.push_back(box);
    ASSERT_EQ(labels.size(), 2u);
    std::sort(labels.begin(), labels.end(), [](auto& a, auto& b) { return a.X1 < b.X1; });
    EXPECT_LT(labels[0].Y2, plateau.Y);
    EXPECT_GT(labels[1].Y1, plateau.Y);
}

TEST(DrawCurveDiagram, OfASmallJumpTheUpperValueStandsAboveTheLower)
{
    BeamRecord beam = Simple(10, kFoot);
    Add(beam, kUniformDown, 0, 10, 100, kLb);
    Add(beam, kPointDown, 5, 0, 20, kLb);
    RecordingPicture pic(860, 240);
    Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kLb));
    const auto labelOf = [&](const char* text) {
        for (const auto& box : pic.TextBoxes())
            if (box.Text == Local(text) && box.Y2 < pic.HeightPixels() - 30) return box;
        ADD_FAILURE() << text;
        return RecordingPicture::PixelBox{};
    };
    EXPECT_LT(labelOf("10.0").Y2, pic.ToPixels({0, 0}).Y);
    EXPECT_GT(labelOf("-10.0").Y1, pic.ToPixels({0, 0}).Y);
}

TEST(DrawCurveDiagram, TitlesKeepOffTheCurves)
{
    constexpr std::array<const char*, 4> kTitles{"Shear", "Moment", "Slope", "Deflection"};
    const BeamRecord beam = UniformAndPoint();
    for (const double width : {384.0, 584.0, 840.0})
        for (const CurveKind kind : kKinds) {
            RecordingPicture pic(width, 140);
            Draw(pic, kind, beam, UnitsOf(beam, kKn));
            for (const auto& box : pic.TextBoxes())
                EXPECT_TRUE(box.Text != kTitles[std::size_t(kind)] ||
                            box.X2 < pic.ToPixels({0, 0}).X)
                    << width << " " << box.Text;
        }
}

TEST(FitText, TakesSmallerTypeUntilALineFits)
{
    RecordingPicture pic(300, 20);
    pic.ScaleToPixels();
    pic.FontSize = 14;
    FitText(pic, "Beam 4");
    EXPECT_EQ(pic.FontSize, 14);
    const std::string longer = "A beam with two overhangs, by hand";
    ASSERT_GT(pic.TextWidth(longer), 300);
    FitText(pic, longer);
    EXPECT_LT(pic.FontSize, 14);
    EXPECT_LE(pic.TextWidth(longer), 300);
    FitText(pic, std::string(1000, 'x'));
    EXPECT_EQ(pic.FontSize, 6) << "the smallest, which must do";
}

TEST(DrawCurveDiagram, TheMarkerStandsAtThePoint)
{
    const BeamRecord beam = UniformAndPoint();
    const double x = 0.35 * beam.BeamLength;
    for (const CurveKind kind : kKinds) {
        RecordingPicture pic(800, 240);
        Draw(pic, kind, beam, UnitsOf(beam, kKn), x);
        const auto paths = pic.All(RecordedOperation::Kind::Path);
        const auto marker = std::find_if(paths.begin(), paths.end(),
                                         [](auto& op) { return op.Fore == kMarkerColour; });
        ASSERT_NE(marker, paths.end());
        EXPECT_TRUE(Near(marker->Points[0].X, x));
        EXPECT_TRUE(Near(marker->Points[1].X, x));
        RecordingPicture without(800, 240);
        Draw(without, kind, beam, UnitsOf(beam, kKn));
        for (const auto& op : without.Operations()) EXPECT_FALSE(op.Fore == kMarkerColour);
    }
}

TEST(DrawShearDiagram, TheSignConventionFollowsTheRecord)
{
    for (const bool reversed : {false, true}) {
        BeamRecord beam = UniformAndPoint();
        beam.ReverseShearSign = reversed;
        RecordingPicture pic(800, 240);
        Draw(pic, CurveKind::Shear, beam, UnitsOf(beam, kKn));
        EXPECT_THAT(pic.Texts(), Contains(Local(reversed ? "-30.6" : "30.6")));
        // The first filled head of the curve's colour belongs to the arrow on the left side.
        const auto paths = pic.All(RecordedOperation::Kind::Path);
        const Colour line = CurvesOf(pic)[0].Fore;
        const auto head = std::find_if(paths.begin(), paths.end(), [&](const auto& op) {
            return op.Closed && op.Points.size() == 3 && op.Fill == line;
        });
        ASSERT_NE(head, paths.end());
        EXPECT_EQ(head->Points[0].Y < head->Points[1].Y, reversed) << "points up unless reversed";
    }
}

TEST(DrawCurveDiagram, WithoutABeamNothingIsDrawn)
{
    RecordingPicture pic(800, 240);
    EXPECT_EQ(Draw(pic, CurveKind::Moment, BeamRecord(), {}).ValueScale, 0);
    EXPECT_THAT(pic.Operations(), IsEmpty());
}

TEST(DrawCurveDiagram, ATinySheetStillHasItsCurve)
{
    const BeamRecord beam = RandomBeam(7, kMaxLoads);
    for (const double width : {30.0, 120.0, 300.0}) {
        RecordingPicture pic(width, width / 3);
        Draw(pic, CurveKind::Moment, beam, UnitsOf(beam, kKn));
        EXPECT_EQ(CurvesOf(pic).size(), 1u);
    }
}

TEST(DrawCurveDiagram, WhatIsRoundedOffIsShownAsZero)
{
    // The constants of this beam leave some 1e-5 of EI times deflection at its supports.
    const BeamRecord beam = RandomBeam(26, 26);
    RecordingPicture pic(800, 240);
    Draw(pic, CurveKind::Deflection, beam, UnitsOf(beam, kKip));
    EXPECT_THAT(pic.Texts(), Contains(Local("0.0")));
    for (const std::string& text : pic.Texts())
        EXPECT_EQ(text.find("E-"), std::string::npos) << text;
}

TEST(DrawCurveDiagram, WhatIsNotFiniteIsAFault)
{
    const BeamRecord beam = UniformAndPoint();
    Solved solved = Solve(beam);
    solved.Curves.CurveShear[100] = std::numeric_limits<double>::infinity();
    RecordingPicture pic(800, 240);
    EXPECT_THROW(DrawCurveDiagram(pic, CurveKind::Shear, beam, solved.Curves, UnitsOf(beam, kKn)),
                 ArithmeticFault);
}

TEST(PlotFailure, NamesTheDiagram)
{
    const std::string& line = MainModule::CrLf;
    EXPECT_EQ(PlotFailure(CurveKind::Shear).Title, "Shear Diagram Error Message");
    EXPECT_EQ(PlotFailure(CurveKind::Moment).Text,
              "An error occurred in plotting the moment diagram." + line +
                  "Please check your input.");
    EXPECT_EQ(PlotFailure(CurveKind::Slope).Title, "Slope Diagram Error Message");
    EXPECT_EQ(PlotFailure(CurveKind::Deflection).Title, "Deflection Diagram Error Message");
    EXPECT_EQ(PlotFailure(CurveKind::Deflection).Text,
              "The elastic modulus and the moment of inertia are" + line +
                  "needed for the slope and deflection calculations." + line +
                  "Define a shape from the Cross-Section menu.");
}

struct Sheet {
    double Width, Height;
};
class FortyCurves : public testing::TestWithParam<Sheet> {};

/// The largest and smallest value of a diagram as it prints them.
std::vector<std::string> Extremes(const Solved& solved, CurveKind kind, const DiagramUnits& units)
{
    const ExtremeTable& table = IsSlopeView(kind) ? solved.Curves.SlopeDeflectionExtremes
                                                  : solved.Curves.ShearMomentExtremes;
    const bool second = kind == CurveKind::Moment || kind == CurveKind::Deflection;
    constexpr std::array kTexts{ForceText, MomentText, SlopeText, DeflectionText};
    std::vector<std::string> texts;
    for (const int row : second ? std::array{kSecondLargest, kSecondSmallest}
                                : std::array{kFirstLargest, kFirstSmallest})
        if (std::abs(table[2][row]) > 1e-9 * table[2][second ? kSecondSize : kFirstSize])
            texts.push_back(kTexts.at(static_cast<int>(kind))(table[2][row], units));
    return texts;
}

TEST_P(FortyCurves, LabelsKeepApartAndTheExtremesAreAmongThem)
{
    for (unsigned seed = 1; seed <= 40; ++seed) {
        const BeamRecord beam = RandomBeam(seed, int(seed), seed % 4 == 0);
        const DiagramUnits units = UnitsOf(beam, beam.BeamLengthUnit > kFoot ? kKn : kKip);
        for (const CurveKind kind : kKinds) {
            RecordingPicture pic(GetParam().Width, GetParam().Height);
            Draw(pic, kind, beam, units);
            EXPECT_EQ(Overlap(pic), "") << "beam " << seed;
            EXPECT_EQ(Outside(pic), "") << "beam " << seed;
            for (const std::string& text : Extremes(Solve(beam), kind, units))
                EXPECT_THAT(pic.Texts(), Contains(text)) << "beam " << seed;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, FortyCurves,
                         testing::Values(Sheet{480, 150}, Sheet{800, 220}, Sheet{1400, 320}));

} // namespace
