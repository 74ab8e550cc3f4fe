#include "beams/BeamCurves.h"

#include "core/SharedMath.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr double kDistinct = 0.000005;
constexpr double kWidestJump = 0.00002; // a pair no further apart is the two sides of a jump
constexpr double kRootTolerance = 0.00001;
constexpr int kSlopeRounds = 30;
constexpr int kMomentRounds = 20;
constexpr int kSubSteps = 5;

/// One load case of a beam, to be evaluated at many points.
struct Evaluation {
    const BeamRecord& Beam;
    const BeamReactions& Reactions;
    int Case;
    BeamValues operator()(double x) const { return BeamValuesAt(Beam, Reactions, Case, x); }
};

using Quantity = double BeamValues::*;

bool ChangesSign(double a, double b)
{
    return a * b < 0;
}

struct Bracket {
    double A, B, ValueA, ValueB;
};

/// Adds the root between the ends of a bracket to a list, by false position.
bool FindRoot(const Evaluation& at, Quantity quantity, Bracket bracket, int rounds, double& root)
{
    auto [a, b, va, vb] = bracket;
    for (int round = 0; round < rounds; ++round) {
        root = a - va / ((vb - va) / (b - a));
        const double value = at(root).*quantity;
        if (std::abs(value) < kRootTolerance) return true;
        if (ChangesSign(va, value)) {
            b = root;
            vb = value;
        } else {
            a = root;
            va = value;
        }
    }
    return false;
}

bool IsOnBeam(const BeamRecord& beam, double x)
{
    return x >= 0 && x <= beam.BeamLength;
}

void AddOnBeam(PointList& list, const BeamRecord& beam, double x)
{
    if (IsOnBeam(beam, x)) list.Add(x);
}

/// The points just left of the jumps of shear, and those of them where the moment has a label.
struct JumpPoints {
    PointList Shear, Moment;
};
JumpPoints PointsLeftOfJumps(const BeamRecord& beam)
{
    JumpPoints jumps;
    const auto add = [&](double x, bool moment) {
        AddOnBeam(jumps.Shear, beam, x - kLeftOfJump);
        if (moment) AddOnBeam(jumps.Moment, beam, x - kLeftOfJump);
    };
    if (beam.SupportType == kTwoSupports) {
        add(beam.SupportB, false);
        if (beam.SupportA > 0) add(beam.SupportA, false);
    }
    if (beam.SupportType == kFixedRight) add(beam.SupportB, true);
    for (int row = 1; row <= beam.LoadCount; ++row)
        if (beam.LoadClass[row] != kUniformLoad)
            add(beam.LoadX[row][1], beam.LoadClass[row] == kMomentLoad);
    return jumps;
}

PointList FindZeroShear(const Evaluation& at, const PointList& points)
{
    PointList zeros;
    for (int i = 1; i < points.Count; ++i) {
        const double a = points.At[i];
        const double b = points.At[i + 1];
        if (b - a <= kWidestJump) continue;
        const double va = at(a).Shear;
        const double vb = at(b).Shear;
        double root = 0;
        if (ChangesSign(va, vb) &&
            FindRoot(at, &BeamValues::Shear, {a, b, va, vb}, kSlopeRounds, root))
            zeros.Add(root);
    }
    return zeros;
}

/// Copies points to a list of the curves, as many as it holds, and gives their number.
int StorePoints(const PointList& points, CurveList& list)
{
    const int count = std::min(points.Count, kCurvePoints);
    std::copy_n(points.At.begin() + 1, count, list.begin() + 1);
    return count;
}

int StoreLabels(const Evaluation& at, const PointList& points, Quantity quantity, CurveList& x,
                CurveList& value)
{
    const int count = StorePoints(points, x);
    for (int i = 1; i <= count; ++i) value[i] = at(x[i]).*quantity;
    return count;
}

/// The telling points first, then evenly spaced ones up to 200, sorted.
void FillCurveX(const PointList& points, double length, CurveList& x)
{
    const int n = StorePoints(points, x);
    for (int k = n + 1; k <= kCurvePoints; ++k)
        x[k] = double(k - n) / double(kCurvePoints - n) * length;
    ShellSort({x.data() + 1, kCurvePoints});
}

void UpdateExtremes(ExtremeTable& table, int sizeRow, double x, double value)
{
    const auto keep = [&](int row, double kept) {
        table[1][row] = x;
        table[2][row] = kept;
    };
    if (std::abs(value) > table[2][sizeRow]) keep(sizeRow, std::abs(value));
    if (value > table[2][sizeRow + 1]) keep(sizeRow + 1, value);
    if (value < table[2][sizeRow + 2]) keep(sizeRow + 2, value);
}

/// All four values at the samples, and the extremes of two of them.
void Sample(const Evaluation& at, BeamCurves& curves, Quantity one, Quantity two,
            ExtremeTable& extremes)
{
    extremes = {};
    for (int k = 1; k <= kCurvePoints; ++k) {
        const double x = curves.CurveX[k];
        const BeamValues v = at(x);
        curves.CurveShear[k] = v.Shear;
        curves.CurveMoment[k] = v.Moment;
        curves.CurveSlope[k] = v.Slope;
        curves.CurveDeflection[k] = v.Deflection;
        UpdateExtremes(extremes, kFirstSize, x, v.*one);
        UpdateExtremes(extremes, kSecondSize, x, v.*two);
    }
}

struct ZeroPoints {
    PointList Slope, Moment;
};

/// Looks for zero slope and zero moment in five equal steps between two points.
void SearchPiece(const Evaluation& at, double from, double to, ZeroPoints& zeros)
{
    BeamValues left = at(from);
    for (int step = 1; step <= kSubSteps; ++step) {
        const double a = from + (to - from) * (step - 1) / kSubSteps;
        const double b = from + (to - from) * step / kSubSteps;
        const BeamValues right = at(b);
        const auto search = [&](Quantity q, int rounds, PointList& found) {
            double root = 0;
            if (ChangesSign(left.*q, right.*q) &&
                FindRoot(at, q, {a, b, left.*q, right.*q}, rounds, root))
                found.Add(root);
        };
        search(&BeamValues::Slope, kSlopeRounds, zeros.Slope);
        search(&BeamValues::Moment, kMomentRounds, zeros.Moment);
        left = right;
    }
}

/// True where `left` and `right` are the two sides of a moment load.
bool IsMomentJump(const BeamRecord& beam, double left, double right)
{
    for (int row = 1; row <= beam.LoadCount; ++row)
        if (beam.LoadClass[row] == kMomentLoad &&
            std::abs(beam.LoadX[row][1] - kLeftOfJump - left) <= kDistinct &&
            std::abs(beam.LoadX[row][1] - right) <= kDistinct)
            return true;
    return false;
}

/// Searches all pieces of the list. The point left of a jump becomes 0 in the list, which sorting
/// then folds into the start of the beam.
ZeroPoints FindZeroSlopeAndMoment(const Evaluation& at, PointList& points)
{
    ZeroPoints zeros;
    for (int i = 1; i < points.Count; ++i) {
        if (IsMomentJump(at.Beam, points.At[i], points.At[i + 1]))
            points.At[i] = 0;
        else
            SearchPiece(at, points.At[i], points.At[i + 1], zeros);
    }
    return zeros;
}

PointList PointsForSlope(const BeamRecord& beam)
{
    PointList points = BuildKeyPoints(beam);
    for (int row = 1; row <= beam.LoadCount; ++row)
        if (beam.LoadClass[row] == kMomentLoad)
            AddOnBeam(points, beam, beam.LoadX[row][1] - kLeftOfJump);
    return SortedPoints(points);
}

} // namespace

PointList BuildKeyPoints(const BeamRecord& beam)
{
    PointList list;
    for (const double x : {0.0, beam.BeamLength, beam.SupportA, beam.SupportB})
        AddOnBeam(list, beam, x);
    for (int row = 1; row <= beam.LoadCount; ++row) {
        AddOnBeam(list, beam, beam.LoadX[row][1]);
        if (beam.LoadClass[row] == kUniformLoad) AddOnBeam(list, beam, beam.LoadX[row][2]);
    }
    return SortedPoints(list);
}

PointList DropDuplicates(const PointList& from)
{
    PointList to;
    for (int i = 1; i <= from.Count; ++i)
        if (i == 1 || from.At[i] - from.At[i - 1] > kDistinct) to.Add(from.At[i]);
    return to;
}

PointList SortedPoints(PointList list)
{
    ShellSort({list.At.data() + 1, static_cast<std::size_t>(list.Count)});
    return DropDuplicates(list);
}

void ComputeShearMomentCurves(const BeamRecord& beam, const BeamReactions& reactions, int loadCase,
                              BeamCurves& curves)
{
    const Evaluation at{beam, reactions, loadCase};
    PointList shear = BuildKeyPoints(beam);
    PointList moment = shear;
    const JumpPoints jumps = PointsLeftOfJumps(beam);
    shear.Add(jumps.Shear);
    moment.Add(jumps.Moment);
    shear = SortedPoints(shear);
    const PointList zeros = FindZeroShear(at, shear);
    shear.Add(zeros);
    moment.Add(zeros);
    shear = SortedPoints(shear);
    moment = SortedPoints(moment);
    curves.ZeroShearCount = StorePoints(zeros, curves.ZeroShearX);
    curves.ShearLabelCount =
        StoreLabels(at, shear, &BeamValues::Shear, curves.ShearLabelX, curves.ShearLabelValue);
    curves.MomentLabelCount =
        StoreLabels(at, moment, &BeamValues::Moment, curves.MomentLabelX, curves.MomentLabelValue);
    shear.Add(moment);
    FillCurveX(SortedPoints(shear), beam.BeamLength, curves.CurveX);
    Sample(at, curves, &BeamValues::Shear, &BeamValues::Moment, curves.ShearMomentExtremes);
}

void ComputeSlopeDeflectionCurves(const BeamRecord& beam, const BeamReactions& reactions,
                                  int loadCase, BeamCurves& curves)
{
    const Evaluation at{beam, reactions, loadCase};
    PointList slope = PointsForSlope(beam);
    const ZeroPoints zeros = FindZeroSlopeAndMoment(at, slope);
    PointList deflection = slope;
    slope.Add(zeros.Moment);
    deflection.Add(zeros.Slope);
    slope = SortedPoints(slope);
    deflection = SortedPoints(deflection);
    curves.ZeroMomentCount = StorePoints(zeros.Moment, curves.ZeroMomentX);
    curves.ZeroSlopeCount = StorePoints(zeros.Slope, curves.ZeroSlopeX);
    curves.SlopeLabelCount =
        StoreLabels(at, slope, &BeamValues::Slope, curves.SlopeLabelX, curves.SlopeLabelValue);
    curves.DeflectionLabelCount = StoreLabels(at, deflection, &BeamValues::Deflection,
                                              curves.DeflectionLabelX, curves.DeflectionLabelValue);
    slope.Add(deflection);
    FillCurveX(SortedPoints(slope), beam.BeamLength, curves.CurveX);
    Sample(at, curves, &BeamValues::Slope, &BeamValues::Deflection, curves.SlopeDeflectionExtremes);
}

void RecomputeBeam(const BeamRecord& beam, bool slopeView, BeamReactions& reactions,
                   BeamCurves& curves)
{
    CalculateReactions(beam, reactions);
    const int loadCase = slopeView ? SlopeDeflectionCase(beam) : ShearMomentCase(beam);
    ComputeSlopeDeflectionCurves(beam, reactions, loadCase, curves);
    if (!slopeView) ComputeShearMomentCurves(beam, reactions, loadCase, curves);
}

} // namespace forcelab::beams
