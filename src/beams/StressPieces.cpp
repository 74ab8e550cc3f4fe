#include "beams/StressPieces.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

double StressPiece::At(double y) const
{
    return Top == Bottom ? AtTop : AtBottom + (AtTop - AtBottom) * (y - Bottom) / (Top - Bottom);
}

std::vector<StressPiece> StressPiecesOf(const sections::CrossSection& section,
                                        const SectionForces& forces)
{
    std::vector<StressPiece> pieces;
    for (const int material : {0, 1}) {
        const std::size_t first = pieces.size();
        for (const SectionBand& band : BandsOf(section)) {
            if (!band.Material[material]) continue;
            const double top = NormalStressIn(section, forces, material, band.Top);
            if (pieces.size() > first && pieces.back().Top == band.Bottom) {
                pieces.back().Top = band.Top;
                pieces.back().AtTop = top;
            } else {
                pieces.push_back({band.Bottom, band.Top, material,
                                  NormalStressIn(section, forces, material, band.Bottom), top});
            }
        }
    }
    return pieces;
}

std::vector<StressPiece> PartsOfOneSense(const StressPiece& piece)
{
    if (piece.AtBottom * piece.AtTop >= 0) return {piece};
    const double share = piece.AtBottom / (piece.AtBottom - piece.AtTop);
    const double zero = piece.Bottom + share * (piece.Top - piece.Bottom);
    return {{piece.Bottom, zero, piece.Material, piece.AtBottom, 0},
            {zero, piece.Top, piece.Material, 0, piece.AtTop}};
}

double LargestAt(const std::vector<StressPiece>& pieces, double y)
{
    double stress = 0;
    for (const StressPiece& piece : pieces)
        if (piece.Bottom <= y && y <= piece.Top && std::abs(piece.At(y)) > std::abs(stress))
            stress = piece.At(y);
    return stress;
}

StressRange RangeOf(const std::vector<StressPiece>& pieces)
{
    StressRange range;
    for (const StressPiece& piece : pieces)
        for (const double stress : {piece.AtBottom, piece.AtTop}) {
            range.Least = std::min(range.Least, stress);
            range.Greatest = std::max(range.Greatest, stress);
        }
    return range;
}

} // namespace forcelab::beams
