#pragma once

#include "beams/SectionStress.h"

#include <vector>

namespace forcelab::beams {

/// A straight piece of the diagram of normal stress: one material from a bottom to a top.
struct StressPiece {
    double Bottom = 0; ///< inches
    double Top = 0;
    int Material = 0;
    double AtBottom = 0; ///< psi
    double AtTop = 0;
    [[nodiscard]] double At(double y) const;
};
/// Bands of one material that touch are one piece.
std::vector<StressPiece> StressPiecesOf(const sections::CrossSection& section,
                                        const SectionForces& forces);
/// The parts of a piece on either side of its level without stress.
std::vector<StressPiece> PartsOfOneSense(const StressPiece& piece);
/// The stress at a level that is largest in size among the materials.
double LargestAt(const std::vector<StressPiece>& pieces, double y);

/// Least and greatest stress, with zero.
struct StressRange {
    double Least = 0;
    double Greatest = 0;
    [[nodiscard]] double Width() const { return Greatest - Least; }
    [[nodiscard]] double Largest() const { return Greatest > -Least ? Greatest : -Least; }
};
StressRange RangeOf(const std::vector<StressPiece>& pieces);

} // namespace forcelab::beams
