#pragma once

#include "beams/BeamCurves.h"
#include "beams/BeamEntry.h"
#include "beams/BeamLabels.h"
#include "beams/LoadFactors.h"
#include "support/Near.h"

#include <random>
#include <string>
#include <vector>

namespace forcelab::beams::test {

using forcelab::test::Local;
using forcelab::test::Near;

enum Length { kInch, kFoot, kMm, kMetre };
enum Force { kLb, kKip, kNewton, kKn };

/// A beam without loads; lengths in the unit.
inline BeamRecord Beam(int type, double length, double a, double b, int unit)
{
    BeamRecord beam;
    SetBeamGeometry(beam, type, length, a, b, unit);
    return beam;
}
inline BeamRecord Simple(double length, int unit)
{
    return Beam(kTwoSupports, length, 0, length, unit);
}
inline BeamRecord Cantilever(int type, double length, int unit)
{
    return Beam(type, length, 0, length, unit);
}

inline void Add(BeamRecord& beam, const LoadNumbers& load)
{
    StoreBeamLoad(beam, ++beam.LoadCount, load);
    MakeLabels(beam);
}
/// A load in the length unit of the beam; dead is the load where there are no factors.
inline void Add(BeamRecord& beam, int type, double x1, double x2, double w, int loadUnit,
                double live = 0)
{
    Add(beam, {type, x1, x2, beam.BeamLengthUnit, w, live, loadUnit});
}

/// A beam with its reactions and all curves, each family in its own load case.
struct Solved {
    BeamRecord Beam;
    BeamReactions Reactions;
    BeamCurves Curves;
    [[nodiscard]] BeamValues At(double x, int loadCase = kUnfactored) const
    {
        return BeamValuesAt(Beam, Reactions, loadCase, x);
    }
};
inline Solved Solve(const BeamRecord& beam)
{
    Solved solved{beam, {}, {}};
    CalculateReactions(beam, solved.Reactions);
    ComputeSlopeDeflectionCurves(beam, solved.Reactions, SlopeDeflectionCase(beam), solved.Curves);
    ComputeShearMomentCurves(beam, solved.Reactions, ShearMomentCase(beam), solved.Curves);
    return solved;
}

/// Random numbers that are the same on every machine.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    int Whole(int from, int to) { return from + int(engine_() % unsigned(to - from + 1)); }
    /// A number with so many decimals.
    double Number(double from, double to, int decimals)
    {
        const double scale = std::pow(10.0, decimals);
        return std::round((from + (to - from) * double(engine_()) / 4294967295.0) * scale) / scale;
    }

  private:
    std::mt19937 engine_;
};

inline void AddRandomLoad(BeamRecord& beam, Dice& dice, double length)
{
    const int type = dice.Whole(0, 5);
    double x1 = dice.Number(0, length, 1);
    double x2 = dice.Number(0, length, 1);
    if (x1 > x2) std::swap(x1, x2);
    if (FamilyOf(type) == kUniformLoad && x1 == x2) x1 = 0;
    const int unit = dice.Whole(0, 3);
    const double most = unit == kLb || unit == kNewton ? 9000 : 50;
    Add(beam, type, x1, x2, dice.Number(most / 100, most, unit % 2), unit,
        dice.Number(0, most, unit % 2));
}

/// A beam of any type and length unit with so many loads of all kinds.
inline BeamRecord RandomBeam(unsigned seed, int loads, bool factored = false)
{
    constexpr double kLongest[] = {240, 40, 12000, 12};
    Dice dice(seed);
    const int unit = dice.Whole(0, 3);
    const int type = dice.Whole(1, 3);
    const double length = dice.Number(kLongest[unit] / 3, kLongest[unit], 1);
    const double a = dice.Whole(0, 1) == 0 ? 0 : dice.Number(0, 0.4 * length, 1);
    const double b = dice.Whole(0, 1) == 0 ? length : dice.Number(0.5 * length, length, 1);
    BeamRecord beam =
        type == kTwoSupports ? Beam(type, length, a, b, unit) : Cantilever(type, length, unit);
    if (factored) UseLoadFactors(beam, dice.Whole(0, 2));
    for (int i = 0; i < loads; ++i) AddRandomLoad(beam, dice, length);
    return beam;
}

} // namespace forcelab::beams::test
