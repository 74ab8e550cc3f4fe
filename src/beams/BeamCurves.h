#pragma once

#include "beams/BeamReactions.h"
#include "beams/BeamRecord.h"

#include <array>

namespace forcelab::beams {

inline constexpr int kCurvePoints = 200;
/// How far left of a jump, in inches, the value before it is taken.
inline constexpr double kLeftOfJump = 0.00001;

using CurveList = std::array<double, kCurvePoints + 1>; ///< indices 1 to 200

/// Rows of the extremes: shear or slope, then moment or deflection.
enum ExtremeRow : int {
    kFirstSize = 1, ///< the largest in size, kept without sign
    kFirstLargest = 2,
    kFirstSmallest = 3,
    kSecondSize = 4,
    kSecondLargest = 5,
    kSecondSmallest = 6,
};
/// Column 1 the x, column 2 the value; rows 1 to 6. All start at 0.
using ExtremeTable = std::array<std::array<double, 7>, 3>;

/// The sampled curves of a beam with the points that carry labels, for one load case a family.
struct BeamCurves {
    CurveList CurveX{}; ///< sorted sample positions of the curves computed last
    CurveList CurveShear{}, CurveMoment{}, CurveSlope{}, CurveDeflection{};

    CurveList ShearLabelX{}, ShearLabelValue{};
    CurveList MomentLabelX{}, MomentLabelValue{};
    CurveList ZeroShearX{};
    int ShearLabelCount = 0, MomentLabelCount = 0, ZeroShearCount = 0;
    ExtremeTable ShearMomentExtremes{};

    CurveList SlopeLabelX{}, SlopeLabelValue{};
    CurveList DeflectionLabelX{}, DeflectionLabelValue{};
    CurveList ZeroMomentX{}, ZeroSlopeX{};
    int SlopeLabelCount = 0, DeflectionLabelCount = 0, ZeroMomentCount = 0, ZeroSlopeCount = 0;
    ExtremeTable SlopeDeflectionExtremes{};
};

/// Room for points in the making: three roots may lie in every piece between two loads.
inline constexpr int kMostPoints = 1024;
struct PointList {
    std::array<double, kMostPoints + 1> At{};
    int Count = 0;
    void Add(double x)
    {
        if (Count < kMostPoints) At[++Count] = x;
    }
    void Add(const PointList& other)
    {
        for (int i = 1; i <= other.Count; ++i) Add(other.At[i]);
    }
};

/// The sorted, distinct x of 0, BeamLength, the supports, all load positions and the ends of
/// uniform loads, as far as they lie on the beam.
PointList BuildKeyPoints(const BeamRecord& beam);
/// Copies a sorted list, keeping a value only when it is more than 0.000005 above its predecessor.
PointList DropDuplicates(const PointList& from);
/// Sorts, then drops duplicates.
PointList SortedPoints(PointList list);

/// Samples, labels, zero points and extremes of shear and moment. All four curves are evaluated at
/// the samples. A root search that does not converge leaves its point out.
void ComputeShearMomentCurves(const BeamRecord& beam, const BeamReactions& reactions, int loadCase,
                              BeamCurves& curves);
/// The same for slope and deflection.
void ComputeSlopeDeflectionCurves(const BeamRecord& beam, const BeamReactions& reactions,
                                  int loadCase, BeamCurves& curves);

/// What the load diagram does first at each painting: reactions, then the curves of the view,
/// each for its own load case. In the shear and moment view the samples are those of shear.
void RecomputeBeam(const BeamRecord& beam, bool slopeView, BeamReactions& reactions,
                   BeamCurves& curves);

} // namespace forcelab::beams
