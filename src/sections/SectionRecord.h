#pragma once

#include "core/Picture.h"

#include <array>

namespace forcelab::sections {

/// Rows of the section record. Columns 1 to 4 (one material) and 5 to 8 (composite) use the rows
/// differently; the composite names are in CompositeRow.
enum class Row : int {
    Modulus = 0,  ///< E: columns 1, 2 as entered, 3, 4 in psi
    LowEdge = 1,  ///< c1, low edge (bottom, left) to the centroid
    HighEdge = 2, ///< c2, centroid to the high edge (top, right)
    Area = 3,
    Inertia = 4, ///< about the centroidal axis
    SmallestSectionModulus = 5,
    SectionModulusLow = 6,
    SectionModulusHigh = 7,
    RadiusOfGyration = 8,
    PlasticModulus = 9,
    ShapeFactor = 10,    ///< plastic modulus over the smallest section modulus
    PlasticAxisLow = 11, ///< low edge to the plastic neutral axis
    PlasticAxisHigh = 12,
    PolarMoment = 13, ///< Iz + Iy; steel shapes: torsion constant J
    ProductOfInertia = 14,
    LargestPrincipal = 15,
    SmallestPrincipal = 16,
    PrincipalAngle = 17, ///< degrees, signed
    PrincipalSense = 18, ///< +1 clockwise, -1 counterclockwise
};

/// Rows of columns 5 to 8.
enum class CompositeRow : int {
    LowEdge = 1,
    HighEdge = 2,
    ModulusA = 3, ///< columns 7 and 8 hold it as entered, too
    ModulusB = 4,
    RatioBToA = 5,
    AreaAsA = 6, ///< transformed to Material A
    InertiaAsA = 7,
    GyrationAsA = 8,
    RatioAToB = 15,
    AreaAsB = 16,
    InertiaAsB = 17,
    GyrationAsB = 18,
};

/// Columns: about the horizontal axis Z-Z and about the vertical axis Y-Y, in the entered unit and
/// in inches, for one material and for the transformed section.
enum class Column : int {
    Zz = 1,
    Yy = 2,
    ZzInches = 3,
    YyInches = 4,
    CompositeZz = 5,
    CompositeYy = 6,
    CompositeZzInches = 7,
    CompositeYyInches = 8,
};

/// The table of section properties that all other modules read.
class SectionRecord {
  public:
    double& operator()(Row row, Column column) { return At(int(row), int(column)); }
    double operator()(Row row, Column column) const { return At(int(row), int(column)); }
    double& operator()(CompositeRow row, Column column) { return At(int(row), int(column)); }
    double operator()(CompositeRow row, Column column) const { return At(int(row), int(column)); }
    double& At(int row, int column) { return cells_[row][column]; }
    [[nodiscard]] double At(int row, int column) const { return cells_[row][column]; }

  private:
    std::array<std::array<double, 9>, 26> cells_{};
};

/// Intermediate numbers of the report: row 0 the total, rows 1 to 6 the elements, columns 1 to 38.
using DetailTable = std::array<std::array<double, 39>, 7>;

inline constexpr int kElements = 6;
inline constexpr int kBoxes = 8;

/// A rectangle with sides along the axes: z to the right, y upward.
struct Corners {
    double Left = 0;
    double Bottom = 0;
    double Right = 0;
    double Top = 0;
    bool operator==(const Corners&) const = default;
};

/// The current cross-section: what the form entered and what the calculation made of it.
/// Elements are counted from 0 here; the texts on the screen count them from 1.
struct CrossSection {
    int ShapeIndex = 0;                  ///< 1 to 27; 0 before any shape was chosen
    int LastElement = 0;                 ///< number of elements less one
    std::array<bool, kElements> Shown{}; ///< elements that exist; set from the catalogue
    std::array<Corners, kElements> ElementCorners{}; ///< entered unit
    std::array<Corners, kElements> ElementCornersInches{};
    std::array<std::array<double, 2>, kElements> ElementDims{}; ///< always positive
    std::array<int, kElements> ElementStyle{}; ///< 1 to 4: how dimension lines are drawn
    std::array<int, kElements> ElementLie{};   ///< 1 unrotated, 0 after a quarter turn
    std::array<Colour, kElements> ElementColour{};
    bool CompositeSection = false;
    bool SectionComputed = false;
    int ModulusUnit = 0; ///< 0 psi, 1 ksi, 2 MPa, 3 GPa
    std::array<double, 4> PrincipalAxisEnds{};
    SectionRecord Record;
    DetailTable Details{};
};

inline CrossSection CurrentSection;

/// Leaves no current section: its shape code becomes 0, and nothing else changes.
inline void ForgetSection()
{
    CurrentSection.ShapeIndex = 0;
}

} // namespace forcelab::sections
