#include "beams/LoadPlaces.h"

#include <cmath>

namespace forcelab::beams {

namespace {

/// Of the unit typed in: the last decimal that the Edit panel shows.
constexpr double kSamePlace = 1e-6;

/// Takes the place where x agrees with it.
bool TakePlace(double& x, double place, double slack)
{
    if (std::abs(x - place) > slack) return false;
    x = place;
    return true;
}

void AlignPlace(BeamRecord& beam, int row, int column)
{
    double& x = beam.LoadX[row][column];
    const double slack = kSamePlace * beam.LoadUnitFactor[row][1];
    for (const double place : {beam.BeamLength, beam.SupportA, beam.SupportB})
        if (TakePlace(x, place, slack)) return;
    for (int earlier = 1; earlier < row; ++earlier)
        for (const int end : {1, 2})
            if (TakePlace(x, beam.LoadX[earlier][end], slack)) return;
}

} // namespace

bool IsBeyondEnd(const BeamRecord& beam, double x, double unitFactor)
{
    return x > beam.BeamLength + kSamePlace * unitFactor;
}

void AlignLoads(BeamRecord& beam)
{
    for (int row = 1; row <= beam.LoadCount; ++row)
        for (const int column : {1, 2}) AlignPlace(beam, row, column);
}

} // namespace forcelab::beams
