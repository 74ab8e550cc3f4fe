#include "transform/MohrDrawing.h"

#include "MohrStates.h"
#include "core/MainModule.h"
#include "core/RecordingPicture.h"
#include "transform/MohrColours.h"
#include "transform/MohrTexts.h"

using namespace forcelab;
using namespace forcelab::transform;
using namespace forcelab::transform::test;
using testing::Contains;
using testing::IsSupersetOf;

namespace {

using Drawing = void (*)(Picture&, const StressState&, const MohrEntry&);
constexpr Drawing kDrawings[] = {DrawMohrCircle, DrawPrincipalElement, DrawMaxShearElement,
                                 DrawRotatedElement};
struct Sheet {
    double Width, Height;
};
constexpr Sheet kSheets[] = {{180, 180}, {420, 360}, {1000, 800}};

/// The system's Greek font, present while this lives.
class WithGreek {
  public:
    explicit WithGreek(bool present) { MainModule::SymbolFontPresent = present; }
    WithGreek(const WithGreek&) = delete;
    WithGreek& operator=(const WithGreek&) = delete;
    ~WithGreek() { MainModule::SymbolFontPresent = false; }
};

void ExpectLegible(const RecordingPicture& pic)
{
    constexpr double kTouch = 0.01;
    const auto boxes = pic.TextBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const auto& a = boxes[i];
        EXPECT_TRUE(a.X1 >= 0 && a.Y1 >= 0 && a.X2 <= pic.WidthPixels() &&
                    a.Y2 <= pic.HeightPixels())
            << a.Text << " leaves the sheet";
        for (std::size_t j = i + 1; j < boxes.size(); ++j) {
            const auto& b = boxes[j];
            const bool apart = a.X2 <= b.X1 + kTouch || b.X2 <= a.X1 + kTouch ||
                               a.Y2 <= b.Y1 + kTouch || b.Y2 <= a.Y1 + kTouch;
            EXPECT_TRUE(apart) << a.Text << " covers " << b.Text;
        }
    }
}

struct LegibleRow {
    MohrMode Mode;
    bool Greek;
};
class Legible : public testing::TestWithParam<LegibleRow> {};

TEST_P(Legible, NoLabelCoversAnother)
{
    const WithGreek greek(GetParam().Greek);
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const Solved solved = RandomState(GetParam().Mode, seed);
        for (const Sheet& sheet : kSheets)
            for (const Drawing draw : kDrawings) {
                SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << sheet.Width);
                RecordingPicture pic(sheet.Width, sheet.Height);
                draw(pic, solved.State, solved.Entry);
                ExpectLegible(pic);
            }
    }
}

/// On the smallest sheet, too, the values themselves are always there.
TEST_P(Legible, TheValuesAreNeverLeftOut)
{
    const WithGreek greek(GetParam().Greek);
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const Solved solved = RandomState(GetParam().Mode, seed);
        for (const Sheet& sheet : kSheets) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", " << sheet.Width);
            RecordingPicture pic(sheet.Width, sheet.Height);
            DrawMohrCircle(pic, solved.State, solved.Entry);
            for (const Quantity quantity : {Quantity::One, Quantity::Two, Quantity::MaxShear})
                EXPECT_THAT(pic.Texts(),
                            Contains(testing::EndsWith(
                                " = " + QuantityText(solved.State, solved.Entry, quantity))));
            DrawRotatedElement(pic, solved.State, solved.Entry);
            for (const std::string& text : RotatedTexts(solved.State, solved.Entry))
                EXPECT_THAT(pic.Texts(), Contains(testing::EndsWith(text)));
        }
    }
}

std::vector<LegibleRow> EveryMode()
{
    std::vector<LegibleRow> rows;
    for (const MohrMode mode : kAllModes)
        for (const bool greek : {false, true}) rows.push_back({mode, greek});
    return rows;
}
INSTANTIATE_TEST_SUITE_P(Modes, Legible, testing::ValuesIn(EveryMode()));

TEST(DrawMohrCircle, NamesItsValues)
{
    const Solved solved = PlaneStress(50, -10, 40);
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("Sigma 1 = 70.0"), Local("Sigma 2 = -30.0"),
                                           Local("Tau Max XY = 50.0"), Local("Radius = 50.0"),
                                           Local("Center = 20.0"), Local("X (50.0; 40.0)"),
                                           Local("Y (-10.0; -40.0)"), Local("53.13°"),
                                           std::string("Sigma (MPa)"), std::string("Tau, CW")}));
}

TEST(DrawMohrCircle, WritesGreekWhereTheSystemHasIt)
{
    const WithGreek greek(true);
    const Solved solved = PlaneStress(50, -10, 40);
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(),
                IsSupersetOf({Local("σ1 = 70.0"), Local("τmax xy = 50.0"), Local("2θp = 53.13°")}));
}

TEST(DrawMohrCircle, ShowsThreeCirclesWhereAskedFor)
{
    Solved solved = PlaneStress(-60, -60, 30);
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    const std::size_t alone = pic.All(RecordedOperation::Kind::Ellipse).size();
    solved.Entry.ShowAbsMaxShear = true;
    DrawMohrCircle(pic, solved.State, solved.Entry);
    EXPECT_EQ(pic.All(RecordedOperation::Kind::Ellipse).size(), alone + 4); // two circles, two dots
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("Sigma 3 = 0.0"), Local("Tau Abs Max = 45.0"),
                                           std::string("Plane stress assumption")}));
}

/// The gauges 100, 0, -100 find no mean strain: nothing strains across the surface either, and
/// what was assumed of it still decides the note.
TEST(DrawMohrCircle, NotesWhatWasAssumedOfTheThirdDirection)
{
    RecordingPicture pic(500, 500);
    const auto noteOf = [&pic](const MohrEntry& entry) {
        const Solved solved = Solve(entry);
        DrawMohrCircle(pic, solved.State, solved.Entry);
        for (const std::string& text : pic.Texts())
            if (text.find("assumption") != std::string::npos) return text;
        return std::string();
    };
    MohrEntry entry = Rosette(MohrMode::Rosette45, {"100", "40", "100"});
    entry.Negative[2] = true;
    EXPECT_EQ(noteOf(entry), "Plane stress assumption");
    entry.Stresses.Poisson = "0"; // then no third strain can be known
    EXPECT_EQ(noteOf(entry), "Plane strain assumption");
    entry.Stresses.Wanted = false;
    EXPECT_EQ(noteOf(entry), "");
    entry.ShowAbsMaxShear = true;
    EXPECT_EQ(noteOf(entry), "Plane strain assumption");
    MohrEntry strain = Entry(MohrMode::PlaneStrain, {"400", "200", "300"}, 5);
    EXPECT_EQ(noteOf(strain), "");
    strain.ShowAbsMaxShear = true;
    EXPECT_EQ(noteOf(strain), "Plane strain assumption");
}

/// Two maxima close to each other: each label stands on the side of its own dot.
TEST(DrawMohrCircle, TheTwoMaximumShearsStandApart)
{
    Solved solved = PlaneStress(80, 30, 20);
    solved.Entry.ShowAbsMaxShear = true;
    RecordingPicture pic(700, 450);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    const auto middleOf = [&pic](const std::string& start) {
        for (const auto& box : pic.TextBoxes())
            if (box.Text.rfind(start, 0) == 0) return (box.Y1 + box.Y2) / 2;
        return -1.0;
    };
    const double outer = pic.ToPixels({0, solved.State.AbsMaxShear}).Y;
    const double inner = pic.ToPixels({0, solved.State.CircleRadius}).Y;
    ASSERT_GT(middleOf("Tau Abs Max = "), 0);
    EXPECT_LT(middleOf("Tau Abs Max = "), outer);
    EXPECT_GT(middleOf("Tau Max XY = "), inner);
}

TEST(DrawMohrCircle, StrainCarriesRadians)
{
    const Solved micro = Solve(Rosette(MohrMode::Rosette45, {"340", "315", "110"}));
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, micro.State, micro.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("Gamma Max XY = 292.0616E-06 rad"),
                                           Local("Eps 3 = -192.8571")}));
    const Solved inch = Solve(Entry(MohrMode::PlaneStrain, {"0.00034", "0.00011", "0.00018"}, 4));
    DrawMohrCircle(pic, inch.State, inch.Entry);
    EXPECT_THAT(pic.Texts(), Contains(Local("Gamma Max XY = 0.00029206 rad")));
}

TEST(DrawMohrCircle, InertiaHasNamesOfItsOwn)
{
    const Solved solved =
        Solve(Entry(MohrMode::MomentOfInertia, {"63.42455", "30.72142", "-25.85377"}, 6));
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("I1 = 77.6637"), Local("I2 = 16.4823"),
                                           Local("Iyz Max = 30.5907")}));
}

TEST(DrawMohrCircle, LargeValuesShowTheirTrueSize)
{
    const Solved solved = Solve(Entry(MohrMode::PlaneStress, {"5000000", "1000000", "2000000"}, 0));
    RecordingPicture pic(600, 600);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), Contains(Local("Sigma 1 = 5,828,427.1247")));
}

/// X lies at its own values, clockwise shear upward.
TEST(DrawMohrCircle, TheDiameterJoinsTheTwoFaces)
{
    const Solved solved = PlaneStress(50, -10, 40);
    RecordingPicture pic(500, 500);
    DrawMohrCircle(pic, solved.State, solved.Entry);
    const auto paths = pic.All(RecordedOperation::Kind::Path);
    const std::vector<PicturePoint> diameter{{50, 40}, {-10, -40}};
    EXPECT_THAT(paths, Contains(testing::Field(&RecordedOperation::Points, diameter)));
    EXPECT_LT(pic.ScaleHeight(), 0);
    EXPECT_TRUE(Near(std::abs(pic.ScaleX(1)), std::abs(pic.ScaleY(1))));
}

TEST(Drawings, ABadStateLeavesTheSheetEmpty)
{
    StressState none;
    MohrEntry entry;
    for (const Drawing draw : kDrawings) {
        RecordingPicture pic(300, 300);
        draw(pic, none, entry);
        EXPECT_TRUE(pic.Operations().empty());
    }
}

struct Shaft {
    PicturePoint From, To;
    [[nodiscard]] PicturePoint Middle() const { return {(From.X + To.X) / 2, (From.Y + To.Y) / 2}; }
    [[nodiscard]] bool PointsOutward() const
    {
        return std::hypot(To.X, To.Y) > std::hypot(From.X, From.Y);
    }
    [[nodiscard]] double Moment() const { return From.X * To.Y - From.Y * To.X; }
    /// Distance of its middle from the axis at an angle through the centre.
    [[nodiscard]] double OffAxis(double angle) const
    {
        return std::abs(Middle().X * std::sin(angle) - Middle().Y * std::cos(angle));
    }
};

/// The shafts of the thick arrows of one colour.
std::vector<Shaft> Shafts(const RecordingPicture& pic, Colour colour)
{
    std::vector<Shaft> shafts;
    for (const RecordedOperation& op : pic.All(RecordedOperation::Kind::Path))
        if (!op.Closed && op.Points.size() == 2 && op.Width == 2 && op.Fore == colour)
            shafts.push_back({op.Points[0], op.Points[1]});
    return shafts;
}

void ExpectArrows(const RecordingPicture& pic, const RotatedState& values, double angle,
                  Colour shearColour)
{
    constexpr double kOn = 1e-6;
    const auto normals = Shafts(pic, kMainColour);
    EXPECT_EQ(normals.size(), 2U * (values.NormalX != 0) + 2U * (values.NormalY != 0));
    for (const Shaft& shaft : normals) {
        const bool onX = shaft.OffAxis(angle) < kOn;
        EXPECT_EQ(shaft.PointsOutward(), (onX ? values.NormalX : values.NormalY) > 0);
    }
    const auto shears = Shafts(pic, shearColour);
    EXPECT_EQ(shears.size(), values.ShearXY == 0 ? 0U : 4U);
    for (const Shaft& shaft : shears) {
        const bool onX = shaft.OffAxis(angle) < kOn;
        EXPECT_EQ(shaft.Moment() > 0, (values.ShearXY > 0) == onX);
    }
}

TEST(Elements, ArrowsPointAsTheValuesSay)
{
    for (const MohrMode mode : {MohrMode::PlaneStress, MohrMode::PlaneStrain, MohrMode::Rosette60})
        for (unsigned seed = 1; seed <= 30; ++seed) {
            SCOPED_TRACE(seed);
            const Solved solved = RandomState(mode, seed);
            const StressState& s = solved.State;
            RecordingPicture pic(400, 400);
            DrawRotatedElement(pic, s, solved.Entry);
            ExpectArrows(pic, StateAt(s, s.RotationAngle), s.RotationAngle, ShearColour(s));
            DrawMaxShearElement(pic, s, solved.Entry);
            const double shear = MaxShearDirection(s);
            ExpectArrows(pic, StateAt(s, shear), shear, ShearColour(s));
            DrawPrincipalElement(pic, s, solved.Entry);
            ExpectArrows(pic, {s.PrincipalOne, s.PrincipalTwo, 0}, PrincipalDirection(s),
                         ShearColour(s));
        }
}

TEST(Elements, ZeroStressesDrawNoArrow)
{
    const Solved solved = PlaneStress(50, 0, 0, 90);
    RecordingPicture pic(400, 400);
    DrawRotatedElement(pic, solved.State, solved.Entry);
    EXPECT_EQ(Shafts(pic, kMainColour).size(), 2U);
    EXPECT_TRUE(Shafts(pic, ShearColour(solved.State)).empty());
}

TEST(Elements, CarryValuesAndTurn)
{
    const Solved solved = PlaneStress(50, -10, 40, 30);
    RecordingPicture pic(420, 420);
    DrawPrincipalElement(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("Sigma 1 = 70.0 MPa (T)"),
                                           Local("Sigma 2 = 30.0 MPa (C)"), Local("26.57° CW")}));
    DrawMaxShearElement(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("20.0 MPa (T)"), Local("Tau Max XY = 50.0 MPa"),
                                           Local("18.43° CCW")}));
    DrawRotatedElement(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), Contains(Local("30.0° CCW")));
}

TEST(Elements, InertiaTurnsAxesAlone)
{
    const Solved solved =
        Solve(Entry(MohrMode::MomentOfInertia, {"63.42455", "30.72142", "-25.85377"}, 6), 20);
    RecordingPicture pic(420, 420);
    DrawPrincipalElement(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({Local("I1 = 77.6637 in^4"), Local("28.84° CCW")}));
    DrawRotatedElement(pic, solved.State, solved.Entry);
    EXPECT_THAT(pic.Texts(), Contains(Local("Iz' = 76.2175 in^4")));
    DrawMaxShearElement(pic, solved.State, solved.Entry);
    EXPECT_TRUE(pic.Operations().empty());
}

TEST(RotationAngle, ShowsWholeDegrees)
{
    StressState state;
    for (const double degrees : {-90.0, -45.0, -3.0, 0.0, 12.4, 60.0, 90.0}) {
        state.RotationAngle = degrees * kDegrees;
        for (const Sheet& sheet : kSheets) {
            RecordingPicture pic(sheet.Width, sheet.Height);
            DrawRotationAngle(pic, state, MohrMode::PlaneStress);
            EXPECT_THAT(pic.Texts(), IsSupersetOf({Format(degrees, "##0") + "°", std::string("X"),
                                                   std::string("X'")}));
            ExpectLegible(pic);
        }
    }
}

TEST(RotationAngle, ComesFromAClick)
{
    EXPECT_EQ(RotationFromClick(1, 1), Local("45.0"));
    EXPECT_EQ(RotationFromClick(2, -1), Local("-26.6"));
    EXPECT_EQ(RotationFromClick(0, 3), Local("90.0"));
    EXPECT_EQ(RotationFromClick(0, -3), Local("-90.0"));
    EXPECT_EQ(RotationFromClick(-1, -1), Local("45.0")); // the other end of the same axis
    EXPECT_EQ(RotationFromClick(0, 0), Local("0.0"));
}

TEST(Sketches, NameTheirGaugesAndSenses)
{
    RecordingPicture pic(200, 180);
    DrawRosette(pic, MohrMode::Rosette45);
    EXPECT_THAT(pic.Texts(), testing::ElementsAre("A, 0°", "B, 45°", "C, 90°"));
    ExpectLegible(pic);
    DrawRosette(pic, MohrMode::Rosette60);
    EXPECT_THAT(pic.Texts(), testing::ElementsAre("A, 0°", "B, 60°", "C, 120°"));
    ExpectLegible(pic);
    DrawStrainOrient(pic);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({"Eps X", "Eps Y", "Gamma XY"}));
    ExpectLegible(pic);
    DrawSignConvention(pic, MohrMode::PlaneStress);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({"Sigma X", "Sigma Y", "Tau XY"}));
    ExpectArrows(pic, {1, 1, -1}, 0, kShearColours[0]); // clockwise on the x face
    ExpectLegible(pic);
    DrawSignConvention(pic, MohrMode::MomentOfInertia);
    EXPECT_THAT(pic.Texts(), IsSupersetOf({"Iz", "Iy", "Iyz"}));
}

} // namespace
