// The stresses of a section must amount to the forces that cause them: integrated over the area,
// the normal stress gives N and the moment about the centroidal axis -M, the shear stress gives V.
// The cells of the integration share nothing with the program's first moments: each is a rectangle
// between neighbouring borders of the elements, met by Gauss's three points in height, which are
// exact for the parabola of V Q / I t. The textbook example is an I-beam worked by hand.

#include "beams/SectionStress.h"
#include "beams/StressCases.h"

#include <algorithm>
#include <array>
#include <cmath>

using namespace forcelab;
using namespace forcelab::beams;
using namespace forcelab::beams::test;
using namespace forcelab::sections;
using forcelab::test::Near;

namespace {

constexpr SectionForces kForces{7300, -4100, 56000};

/// Sums over the section.
struct Resultants {
    double Axial = 0;
    double Shear = 0;
    double Moment = 0;
};

std::vector<double> Borders(const CrossSection& section, bool heights)
{
    std::vector<double> borders;
    for (int k = 0; k < kElements; ++k) {
        if (!section.Shown[k]) continue;
        const Corners& e = section.ElementCornersInches[k];
        borders.push_back(heights ? e.Bottom : e.Left);
        borders.push_back(heights ? e.Top : e.Right);
    }
    std::sort(borders.begin(), borders.end());
    return borders;
}

bool IsEmpty(const CrossSection& section, double z, double y)
{
    if (section.ShapeIndex != kBox || section.CompositeSection) return false;
    const Corners& hole = section.ElementCornersInches[1];
    return hole.Left < z && z < hole.Right && hole.Bottom < y && y < hole.Top;
}

void AddCell(const CrossSection& section, const Corners& cell, Resultants& sum)
{
    const std::array<double, 3> points{-std::sqrt(0.6), 0, std::sqrt(0.6)};
    const std::array<double, 3> weights{5.0 / 18, 8.0 / 18, 5.0 / 18};
    const double area = (cell.Right - cell.Left) * (cell.Top - cell.Bottom);
    const double z = (cell.Left + cell.Right) / 2;
    if (area < 1e-9 || IsEmpty(section, z, (cell.Bottom + cell.Top) / 2)) return;
    for (int i = 0; i < 3; ++i) {
        const double y = (cell.Bottom + cell.Top + points[i] * (cell.Top - cell.Bottom)) / 2;
        const PointStress stress = StressAtPoint(section, z, y, kForces, 1, 1);
        sum.Axial += stress.Normal * area * weights[i];
        sum.Moment -= stress.Normal * y * area * weights[i];
        sum.Shear += stress.Shear * area * weights[i];
    }
}

Resultants Integrate(const CrossSection& section)
{
    const auto z = Borders(section, false);
    const auto y = Borders(section, true);
    Resultants sum;
    for (std::size_t i = 1; i < z.size(); ++i)
        for (std::size_t k = 1; k < y.size(); ++k)
            AddCell(section, {z[i - 1], y[k - 1], z[i], y[k]}, sum);
    return sum;
}

/// Two profiles one above the other, with nothing between them, carry no shear across the gap: the
/// formula then says nothing.
bool HasGapInHeight(const CrossSection& section)
{
    const auto y = Borders(section, true);
    for (std::size_t i = 1; i < y.size(); ++i) {
        const double middle = (y[i - 1] + y[i]) / 2;
        bool met = false;
        for (int k = 0; k < kElements; ++k) {
            const Corners& e = section.ElementCornersInches[k];
            met = met || (section.Shown[k] && e.Bottom <= middle && middle <= e.Top);
        }
        if (!met) return true;
    }
    return false;
}

void ExpectForces(const Worked& worked, const std::string& name)
{
    const Resultants sum = Integrate(worked.Section);
    EXPECT_TRUE(Near(sum.Axial, kForces.Axial, 1e-9)) << name;
    EXPECT_TRUE(Near(sum.Moment, kForces.Moment, 1e-9)) << name;
    if (HasGapInHeight(worked.Section)) return;
    EXPECT_TRUE(Near(sum.Shear, kForces.Shear, 1e-9)) << name;
}

TEST(StressResultants, AreTheForces)
{
    for (int shape = kGeneralFlanged; shape <= kBox; ++shape)
        for (const int quarters : {0, 1, 3})
            ExpectForces(Computed(shape, SampleDimensions(shape), quarters),
                         "shape " + std::to_string(shape) + ", " + std::to_string(quarters));
}

/// Half a turn. The stiffened T is left out: flipped, it takes its right side from its left.
TEST(StressResultants, AreTheForcesUpsideDown)
{
    for (int shape = kGeneralFlanged; shape <= kBox; ++shape)
        if (shape != kStiffenedTDown && shape != kStiffenedTUp)
            ExpectForces(Computed(shape, SampleDimensions(shape), 2),
                         "shape " + std::to_string(shape));
}

TEST(StressResultants, AreTheForcesInTwoMaterials)
{
    for (int shape = kGeneralFlanged; shape <= kBox; ++shape) {
        if (!InfoOf(shape).MayBeComposite) continue;
        for (const auto& colours :
             {std::vector<int>{9, 10, 9, 9, 10, 10}, std::vector<int>{10, 9, 9, 10, 9, 10}})
            for (int quarters = 0; quarters < 2; ++quarters)
                ExpectForces(Composite(shape, SampleDimensions(shape), colours, 2.75, quarters),
                             "shape " + std::to_string(shape));
    }
}

/// 4000 slices of the chord's width; the normal stress of a circle and of a pipe.
TEST(StressResultants, OfRoundShapes)
{
    for (const double inner : {0.0, 3.5}) {
        const Worked worked = inner > 0 ? Computed(kPipe, {5, inner}) : Computed(kCircle, {5});
        const auto chord = [](double diameter, double y) {
            return std::sqrt(std::max(0.0, diameter * diameter - 4 * y * y));
        };
        double axial = 0;
        double moment = 0;
        constexpr int kSlices = 4000;
        for (int i = 0; i < kSlices; ++i) {
            const double y = 5 * ((i + 0.5) / kSlices - 0.5);
            const double area = (chord(5, y) - chord(inner, y)) * 5 / kSlices;
            const double stress = StressAtPoint(worked.Section, 0, y, kForces, 1, 1).Normal;
            axial += stress * area;
            moment -= stress * y * area;
        }
        EXPECT_TRUE(Near(axial, kForces.Axial, 1e-5)) << "midpoint rule on a chord";
        EXPECT_TRUE(Near(moment, kForces.Moment, 1e-5));
    }
}

/// A rectangle has 3 V / 2 A at its middle, a thick circle 4 V / 3 A, a thin pipe 2 V / A: the
/// closed forms of every textbook.
TEST(ClosedForms, LargestShear)
{
    const auto largest = [](const Worked& worked) {
        return LargestShearOf(worked.Section, {0, 1000, 0})->Stress;
    };
    const double pi = 3.14159265358979;
    EXPECT_TRUE(Near(largest(Computed(kRectangle, {4, 10})), 1.5 * 1000 / 40));
    EXPECT_TRUE(Near(largest(Computed(kCircle, {5})), 4000.0 / 3 / (pi * 6.25)));
    const double thin = pi / 4 * (10 * 10 - 9.98 * 9.98);
    EXPECT_TRUE(Near(largest(Computed(kPipe, {10, 9.98})), 2000 / thin, 1e-5));
}

/// Flanges 6 x 1, web 10 x 0.5. By hand: I = (6 x 12^3 - 5.5 x 10^3) / 12 = 405.667,
/// Q = 6 x 5.5 + 0.5 x 12.5 = 39.25 at the middle and 33 at the flange.
TEST(ClosedForms, IBeamByHand)
{
    const Worked beam = Computed(kIShape, {6, 1, 10, 0.5});
    const double inertia = (6 * 1728 - 5.5 * 1000) / 12.0;
    const auto at = [&](double z, double y) {
        return StressAtPoint(beam.Section, z, y, {0, 20000, 400000}, 1, 1);
    };
    EXPECT_TRUE(Near(at(0, 0).Shear, 20000 * 39.25 / inertia / 0.5));
    EXPECT_TRUE(Near(at(0, 4.9999999).Shear, 20000 * 33 / inertia / 0.5, 1e-6));
    EXPECT_TRUE(Near(at(0, 5.0000001).Shear, 20000 * 33 / inertia / 6, 1e-6));
    EXPECT_TRUE(Near(at(0, 6).Normal, -400000 * 6 / inertia));
}

} // namespace
