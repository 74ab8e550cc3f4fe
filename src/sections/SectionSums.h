#pragma once

#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"

#include <array>
#include <span>

namespace forcelab::sections {

/// What the sums need of an element: sides, area and centroid.
struct Part {
    int Element = 0;
    double Width = 0;
    double Height = 0;
    double Area = 0;
    double Z = 0;
    double Y = 0;
};

/// The shown elements, measured.
class Parts {
  public:
    explicit Parts(const CrossSection& section);
    [[nodiscard]] std::span<Part> All() { return std::span(parts_).first(count_); }
    [[nodiscard]] std::span<const Part> All() const { return std::span(parts_).first(count_); }

  private:
    std::array<Part, kElements> parts_;
    int count_ = 0;
};

/// The inner rectangle of a box shape, the only element that takes area away.
bool IsHollow(const CrossSection& section, int element);

/// Moves the shown elements to the corner of the first quadrant; gives the least z and y that
/// they had, neither above 0.
std::array<double, 2> MoveToFirstQuadrant(CrossSection& section);

/// Moduli of the single material, Material A and Material B. A modulus of 0 counts as 1.
struct Moduli {
    std::array<double, 3> Entered{}; ///< in the entered unit
    std::array<double, 3> Psi{};
};
Moduli ReadModuli(const SectionEntry& entry);

/// The homogeneous branch: columns 1 and 2, the detail and plastic tables, the principal axes.
void ComputeHomogeneous(CrossSection& section);
/// The composite branch: columns 5 and 6 and their detail table.
void ComputeComposite(CrossSection& section, const Moduli& moduli);

/// Section moduli and radius of gyration of a column from its inertia, area and edge distances.
void FillModuliAndGyration(SectionRecord& record, Column column);

} // namespace forcelab::sections
