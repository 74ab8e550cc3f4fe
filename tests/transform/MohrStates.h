#pragma once

#include "support/Near.h"
#include "transform/MohrCalculation.h"

#include <random>
#include <string>

namespace forcelab::transform::test {

using forcelab::test::Local;
using forcelab::test::Near;

inline constexpr double kDegrees = 3.14159265358979 / 180;

/// An entry as typed; negative numbers choose the second option of their sign pair.
inline MohrEntry Entry(MohrMode mode, const std::array<std::string, 3>& typed, int unit)
{
    MohrEntry entry;
    entry.Mode = mode;
    entry.Unit = unit;
    for (int i = 0; i < 3; ++i) {
        entry.Text[i] = Local(typed[i]);
        entry.Negative[i] = typed[i].front() == '-';
    }
    return entry;
}

/// A rosette in microstrain with E = 200 GPa and Poisson's ratio 0.3, stresses in MPa.
inline MohrEntry Rosette(MohrMode mode, const std::array<std::string, 3>& typed)
{
    MohrEntry entry = Entry(mode, typed, 5);
    entry.Stresses = {true, 0, Local("200"), 3, Local("0.3"), 3};
    return entry;
}

struct Solved {
    StressState State;
    MohrEntry Entry;
};

/// The state that an entry gives, which must not be refused.
inline Solved Solve(MohrEntry entry, double degrees = 0)
{
    Solved solved{{}, std::move(entry)};
    const auto refusal = ComputeMohr(solved.State, solved.Entry);
    EXPECT_FALSE(refusal) << refusal->Text;
    solved.State.RotationAngle = degrees * kDegrees;
    return solved;
}

inline Solved PlaneStress(double x, double y, double clockwise, double degrees = 0)
{
    return Solve(Entry(MohrMode::PlaneStress,
                       {std::to_string(x), std::to_string(y), std::to_string(clockwise)}, 3),
                 degrees);
}

/// A random solved state of an analysis, with four decimals at most, from a seed.
inline Solved RandomState(MohrMode mode, unsigned seed)
{
    std::mt19937 random(seed);
    const int first[] = {0, 4, 4, 4, 6};
    const int choices = mode == MohrMode::PlaneStress ? 4 : 2;
    const int unit = first[static_cast<int>(mode)] + static_cast<int>(random() % choices);
    const int digits = static_cast<int>(random() % 4);
    const bool strain = unit == 4;
    const auto number = [&] {
        const double size = strain ? 1e-5 : unit == 7 ? 1e4 : std::pow(10.0, digits - 2);
        const long whole = static_cast<long>(random() % 20001) - 10000;
        char text[40];
        std::snprintf(text, sizeof text, "%.8f", static_cast<double>(whole) * size / 10);
        return std::string(text);
    };
    MohrEntry entry = Entry(mode, {number(), number(), number()}, unit);
    entry.ShowAbsMaxShear = mode != MohrMode::MomentOfInertia && random() % 2 == 0;
    entry.Stresses = {IsRosette(mode) && random() % 2 == 0,
                      static_cast<int>(random() % 2),
                      Local("200"),
                      3,
                      Local("0.3"),
                      static_cast<int>(random() % 4)};
    return Solve(entry, static_cast<double>(random() % 36001) * 0.005 - 90);
}

inline constexpr MohrMode kAllModes[] = {MohrMode::PlaneStress, MohrMode::PlaneStrain,
                                         MohrMode::Rosette45, MohrMode::Rosette60,
                                         MohrMode::MomentOfInertia};

} // namespace forcelab::transform::test
