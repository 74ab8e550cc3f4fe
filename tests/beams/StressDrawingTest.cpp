#include "beams/StressDrawing.h"

#include "beams/StressCases.h"
#include "core/RecordingPicture.h"

#include <algorithm>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using namespace forcelab::sections;
using forcelab::test::Local;
using forcelab::test::Near;
using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

namespace {

using Kind = RecordedOperation::Kind;

StressDetails Details(const Worked& worked, const DetailsEntry& entry = TeeEntry(),
                      int view = kShearView)
{
    StressDetails details = ReadDetails(worked.Section, entry);
    details.KeyStressView = view;
    return details;
}

struct Drawn {
    RecordingPicture Pic;
    Drawn(int index, const Worked& worked, const StressDetails& details, double width = 320,
          double height = 360)
        : Pic(width, height)
    {
        DrawStressPicture(Pic, index, worked.Section, details);
    }
};

TEST(DrawNormalStress, SaysWhatItIs)
{
    const Drawn drawn(1, Tee(), Details(Tee()));
    EXPECT_THAT(drawn.Pic.Texts(),
                IsSupersetOf({std::string("Normal Stress at"), std::string("specified coordinates"),
                              "= " + Local("0.000") + " ksi", Local("-1.881") + " ksi",
                              Local("4.096") + " ksi", std::string("N.A.")}));
}

double MiddleOf(const RecordingPicture& pic, const std::string& text)
{
    for (const auto& box : pic.TextBoxes())
        if (box.Text == text) return (box.Y1 + box.Y2) / 2;
    ADD_FAILURE() << "no text " << text;
    return 0;
}

/// At each border the label of the upper material stands above that of the lower one, or beside it
/// where the small stress has room across the axis.
TEST(DrawNormalStress, LabelsAtABorderStandInTheOrderOfTheMaterials)
{
    // By hand with n = 18 and 2, 100 in-kips: the T's centroid is 7.487 in above its bottom and
    // I = 1284.48 in4, the I's centroid in the middle and I = 293.78 in4, all as Material A.
    const Worked tee = Composite(kTShape, {6, 0.5, 10, 6}, {10, 9}, 18);
    const Worked i = Composite(kIShape, {6, 0.5, 9, 0.375}, {10, 9, 10}, 2);
    const auto ksi = [](const char* number, const char* material) {
        return Local(number) + " ksi (" + material + ")";
    };
    for (const double width : {305.0, 330.0, 360.0, 480.0}) {
        const Drawn t(1, tee, Details(tee, TeeEntry(), kNormalView), width, 340);
        EXPECT_LT(MiddleOf(t.Pic, ksi("-3.522", "B")), MiddleOf(t.Pic, ksi("-0.1957", "A")) + 1);
        const Drawn both(1, i, Details(i, TeeEntry(), kNormalView), width, 340);
        EXPECT_LT(MiddleOf(both.Pic, ksi("-3.064", "B")), MiddleOf(both.Pic, ksi("-1.532", "A")));
        EXPECT_LT(MiddleOf(both.Pic, ksi("1.532", "A")), MiddleOf(both.Pic, ksi("3.064", "B")));
    }
}

TEST(DrawShearStress, SaysWhatItIs)
{
    const Drawn drawn(3, Tee(), Details(Tee()), 420);
    EXPECT_THAT(
        drawn.Pic.Texts(),
        IsSupersetOf({std::string("Max X-Y Shear Stress"), "at y = " + Local("0.000") + " in",
                      "= " + Local("1.404") + " ksi", std::string("X-Y Shear Stress at"),
                      std::string("specified coordinates"),
                      "Note:  At y = " + Local("0.000") + " in", "Q = " + Local("23.481") + " in3",
                      Local("1.266") + " ksi"}));
    EXPECT_THAT(drawn.Pic.Texts(), Not(Contains("(transforming Material 2 to Material 1)")));
}

TEST(DrawShearStress, TwoMaterials)
{
    const Worked t = Composite(kTShape, {8, 1, 9, 1}, {10, 9}, 2);
    const Drawn drawn(3, t, Details(t));
    EXPECT_THAT(drawn.Pic.Texts(), Contains("(transforming Material 2 to Material 1)"));
}

/// The stress jumps where the width changes: at one level the outline has both stresses, as eight
/// to one.
TEST(DrawShearStress, JumpsWhereTheWidthChanges)
{
    const Drawn drawn(3, Tee(), Details(Tee()));
    const double junction = tee::kTop - 1;
    double least = 1e9;
    double greatest = -1e9;
    double axis = 1e9;
    for (const auto& path : drawn.Pic.All(Kind::Path)) {
        if (path.Points.size() < 10) continue;
        for (const PicturePoint& p : path.Points) axis = std::min(axis, p.X);
        for (const PicturePoint& p : {path.Points[1], path.Points[path.Points.size() - 2]}) {
            if (std::abs(p.Y - junction) > 1e-9) continue;
            least = std::min(least, p.X);
            greatest = std::max(greatest, p.X);
        }
    }
    EXPECT_TRUE(Near((greatest - axis) / (least - axis), 8, 1e-6));
}

TEST(DrawShearStress, NotForRoundShapes)
{
    const Worked circle = Computed(kCircle, {5});
    const Drawn drawn(3, circle, Details(circle));
    EXPECT_THAT(drawn.Pic.Texts(),
                IsSupersetOf({"Shear stress distribution", "not drawn for this shape.",
                              "Max X-Y Shear Stress", "X-Y Shear Stress at"}));
}

TEST(DrawShearStress, NotForSpecifiedProperties)
{
    const Worked specified = Computed(kSpecified, {3, 4, 3, 5, 100, 60, 30});
    const Drawn drawn(3, specified, Details(specified));
    EXPECT_THAT(drawn.Pic.Texts(),
                IsSupersetOf({"Max shear stress", "cannot be computed", "Further data are required",
                              "Shear stress distribution", "not drawn for this shape."}));
}

TEST(DrawSideView, AxialAndBendingMakeTheSum)
{
    DetailsEntry entry = TeeEntry();
    entry.VM[0] = Local("17.0");
    const Drawn drawn(2, Tee(), Details(Tee(), entry, kNormalView), 360);
    EXPECT_THAT(drawn.Pic.Texts(),
                IsSupersetOf({std::string("axial"), std::string("bending"), std::string("sum"),
                              std::string("+"), std::string("="), Local("1.000"), Local("-1.881"),
                              Local("-0.8811"), Local("5.096")}));
}

TEST(DrawSection, PointUnderTheMouse)
{
    const Worked t = Tee();
    DetailsEntry entry = TeeEntry();
    entry.ShapeUnitIndex = 1;
    entry.Coord = {Local("10.0"), Local("-60.0")};
    const StressDetails details = Details(t, entry);
    const Drawn drawn(0, t, details);
    const auto dots = drawn.Pic.All(Kind::Ellipse);
    ASSERT_EQ(dots.size(), 1u);
    const PicturePoint back =
        PointOfPicture(drawn.Pic, t.Section, details, dots.front().Points.front());
    EXPECT_TRUE(Near(back.X, 10, 1e-9));
    EXPECT_TRUE(Near(back.Y, -60, 1e-9));
}

TEST(DrawSection, HatchesThePartWhoseFirstMomentIsQ)
{
    const auto hatched = [](int view) {
        const Drawn drawn(0, Tee(), Details(Tee(), TeeEntry(), view));
        const auto paths = drawn.Pic.All(Kind::Path);
        return std::count_if(paths.begin(), paths.end(), [](const RecordedOperation& path) {
            return path.Pattern == FillPattern::UpwardDiagonal;
        });
    };
    EXPECT_EQ(hatched(kShearView), 2) << "flange and stem above the centroid";
    EXPECT_EQ(hatched(kNormalView), 0);
}

/// One height for the section in all pictures of a view.
TEST(StressPictures, ShowTheSectionAtOneHeight)
{
    const StressDetails details = Details(Tee());
    const Drawn section(0, Tee(), details);
    for (const int index : {1, 2, 3}) {
        const Drawn other(index, Tee(), details);
        EXPECT_TRUE(Near(other.Pic.ScaleTop(), section.Pic.ScaleTop())) << index;
        EXPECT_TRUE(Near(other.Pic.ScaleHeight(), section.Pic.ScaleHeight())) << index;
    }
}

bool Overlap(const RecordingPicture::PixelBox& a, const RecordingPicture::PixelBox& b)
{
    return a.X1 < b.X2 && b.X1 < a.X2 && a.Y1 < b.Y2 && b.Y1 < a.Y2;
}

/// All shapes, forces of both signs, two sizes: no text over another, none cut off.
TEST(StressPictures, KeepTheirTextsApart)
{
    for (int shape = kGeneralFlanged; shape <= kPipe; ++shape) {
        const Worked worked = Computed(shape, SampleDimensions(shape));
        for (const char* axial : {"0", "40", "-40"})
            for (const double width : {260.0, 420.0})
                for (int index = 0; index < 4; ++index) {
                    DetailsEntry entry = TeeEntry();
                    entry.VM = {axial, axial[0] == '-' ? "-10" : "10",
                                axial[0] == '-' ? "-9" : "9"};
                    const Drawn drawn(index, worked, Details(worked, entry), width);
                    const auto boxes = drawn.Pic.TextBoxes();
                    for (std::size_t i = 0; i < boxes.size(); ++i) {
                        EXPECT_GE(boxes[i].X1, 0) << shape << " " << index << boxes[i].Text;
                        EXPECT_LE(boxes[i].X2, width) << shape << " " << index << boxes[i].Text;
                        for (std::size_t k = i + 1; k < boxes.size(); ++k)
                            EXPECT_FALSE(Overlap(boxes[i], boxes[k]))
                                << "shape " << shape << " picture " << index << " axial " << axial
                                << ": " << boxes[i].Text << " / " << boxes[k].Text;
                    }
                }
    }
}

} // namespace
