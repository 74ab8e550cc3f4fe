#include "beams/BeamReactions.h"

#include <cmath>

namespace forcelab::beams {

namespace {

/// Magnitude / n! (s - x)^n behind x, n = class + order: what a load gives to EI times slope
/// (order 1) or deflection (order 2), with its sign reversed. A uniform load stops at its end.
double LoadTerm(const BeamRecord& beam, int row, int loadCase, double s, int order)
{
    const int n = beam.LoadClass[row] + order;
    const auto term = [&](double x) {
        return beam.LoadMagnitude[row][loadCase] / Factorial(n) * std::pow(s - x, n) * StepAt(s, x);
    };
    const double start = term(beam.LoadX[row][1]);
    return beam.LoadClass[row] == kUniformLoad ? start - term(beam.LoadX[row][2]) : start;
}

double LoadTerms(const BeamRecord& beam, int loadCase, double s, int order)
{
    double sum = 0;
    for (int row = 1; row <= beam.LoadCount; ++row) sum += LoadTerm(beam, row, loadCase, s, order);
    return sum;
}

void SolveSimpleBeam(const BeamRecord& beam, BeamReactions& r, int c, const LoadSums& sums)
{
    const double a = beam.SupportA;
    const double b = beam.SupportB;
    const double span = b - a;
    r.MomentA[c] = r.MomentB[c] = 0;
    if (span == 0) return;
    r.ReactionA[c] = (sums.Force * b - sums.Moment) / span;
    r.ReactionB[c] = (sums.Moment - a * sums.Force) / span;
    const auto deflection = [&](double s) {
        const auto own = [s](double force, double x) {
            return force * std::pow(s - x, 3) / Factorial(3) * StepAt(s, x);
        };
        return LoadTerms(beam, c, s, 2) - own(r.ReactionA[c], a) - own(r.ReactionB[c], b);
    };
    const double da = deflection(a);
    const double db = deflection(b);
    r.SlopeConstant[c] = (da - db) / (a - b);
    r.DeflectionConstant[c] = (a * db - b * da) / (a - b);
}

void SolveLeftCantilever(BeamReactions& r, int c, const LoadSums& sums)
{
    r.ReactionA[c] = sums.Force;
    r.MomentA[c] = sums.Moment;
    r.ReactionB[c] = r.MomentB[c] = 0;
    r.SlopeConstant[c] = r.DeflectionConstant[c] = 0;
}

void SolveRightCantilever(const BeamRecord& beam, BeamReactions& r, int c, const LoadSums& sums)
{
    const double b = beam.SupportB;
    r.ReactionA[c] = r.MomentA[c] = 0;
    r.ReactionB[c] = sums.Force;
    r.MomentB[c] = sums.Moment - sums.Force * b;
    r.SlopeConstant[c] = LoadTerms(beam, c, b, 1);
    r.DeflectionConstant[c] = LoadTerms(beam, c, b, 2) - r.SlopeConstant[c] * b;
}

/// Adds a force P acting from x = 0, that is at distance u, with its three integrals.
void AddForce(BeamValues& v, double force, double u)
{
    v.Shear += force;
    v.Moment += force * u;
    v.Slope += force * u * u / 2;
    v.Deflection += force * u * u * u / 6;
}

void AddMoment(BeamValues& v, double moment, double u)
{
    v.Moment += moment;
    v.Slope += moment * u;
    v.Deflection += moment * u * u / 2;
}

void AddUniform(BeamValues& v, double load, double u)
{
    v.Shear += load * u;
    v.Moment += load * u * u / 2;
    v.Slope += load * u * u * u / 6;
    v.Deflection += load * u * u * u * u / 24;
}

void AddLoad(BeamValues& v, const BeamRecord& beam, int row, int loadCase, double x)
{
    const double magnitude = beam.LoadMagnitude[row][loadCase];
    const auto& at = beam.LoadX[row];
    constexpr std::array kAdd{AddMoment, AddForce, AddUniform}; // in the order of LoadFamily
    if (x >= at[1]) kAdd[beam.LoadClass[row]](v, -magnitude, x - at[1]);
    if (beam.LoadClass[row] == kUniformLoad && x >= at[2]) AddUniform(v, magnitude, x - at[2]);
}

} // namespace

double StepAt(double x, double a)
{
    return x >= a ? 1.0 : 0.0;
}

double Factorial(int n)
{
    double product = 1;
    for (int i = 2; i <= n; ++i) product *= i;
    return product;
}

LoadSums SumLoads(const BeamRecord& beam, int loadCase)
{
    LoadSums sums;
    for (int row = 1; row <= beam.LoadCount; ++row) {
        const double q = beam.LoadMagnitude[row][loadCase];
        const double x1 = beam.LoadX[row][1];
        const double x2 = beam.LoadX[row][2];
        if (beam.LoadClass[row] == kMomentLoad) {
            sums.Moment -= q;
        } else if (beam.LoadClass[row] == kPointLoad) {
            sums.Force += q;
            sums.Moment += q * x1;
        } else {
            sums.Force += q * (x2 - x1);
            sums.Moment += q / 2 * (x2 * x2 - x1 * x1);
        }
    }
    return sums;
}

void CalculateReactions(const BeamRecord& beam, BeamReactions& reactions)
{
    const int first = beam.FactoredLoads ? kService : kUnfactored;
    const int last = beam.FactoredLoads ? kFactored : kService;
    for (int c = first; c <= last; ++c) {
        const LoadSums sums = SumLoads(beam, c);
        if (beam.SupportType == kTwoSupports) SolveSimpleBeam(beam, reactions, c, sums);
        if (beam.SupportType == kFixedLeft) SolveLeftCantilever(reactions, c, sums);
        if (beam.SupportType == kFixedRight) SolveRightCantilever(beam, reactions, c, sums);
    }
}

BeamValues BeamValuesAt(const BeamRecord& beam, const BeamReactions& reactions, int loadCase,
                        double x)
{
    const int c = loadCase;
    BeamValues v{0, 0, reactions.SlopeConstant[c],
                 reactions.SlopeConstant[c] * x + reactions.DeflectionConstant[c]};
    if (x >= beam.SupportA) {
        AddForce(v, reactions.ReactionA[c], x - beam.SupportA);
        AddMoment(v, -reactions.MomentA[c], x - beam.SupportA);
    }
    if (x >= beam.SupportB) {
        AddForce(v, reactions.ReactionB[c], x - beam.SupportB);
        AddMoment(v, -reactions.MomentB[c], x - beam.SupportB);
    }
    for (int row = 1; row <= beam.LoadCount; ++row) AddLoad(v, beam, row, c, x);
    if (beam.ReverseShearSign) v.Shear = -v.Shear;
    return v;
}

} // namespace forcelab::beams
