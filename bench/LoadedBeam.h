#pragma once

#include "beams/BeamEntry.h"
#include "beams/BeamLabels.h"

#include <algorithm>

namespace forcelab::beams {

/// Loads of all kinds, spread over 100 ft with overhangs at both ends.
inline BeamRecord LoadedBeam(int loads)
{
    BeamRecord beam;
    SetBeamGeometry(beam, kTwoSupports, 100, 10, 85, 1);
    for (int i = 1; i <= loads; ++i) {
        const double x = 100.0 * i / (loads + 1);
        const double end = std::min(x + 2.0 * (i % 7), 100.0);
        StoreBeamLoad(beam, i, {i % kLoadKinds, x, end, 1, 1.0 + i % 5, 0, 1});
    }
    beam.LoadCount = loads;
    MakeLabels(beam);
    return beam;
}

} // namespace forcelab::beams
