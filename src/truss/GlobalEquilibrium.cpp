#include "truss/GlobalEquilibrium.h"

#include "truss/TrussWorkings.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace forcelab::truss {

namespace {

/// A load or reaction at a joint, along one axis.
struct OuterForce {
    std::string Name; ///< of a reaction
    bool Upright = false;
    double Value = 0;
    double X = 0, Y = 0;
    int Joint = 0;
};
using OuterForces = std::vector<OuterForce>;

struct Outside {
    OuterForces Loads, Reactions;
};

Outside Collect(const TrussModel& model, const TrussResults& results)
{
    Outside outside;
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const TrussGridPoint& point = model.GridPoints[results.Joints.JointGridPoint[joint]];
        const std::string& name = results.JointName[joint];
        const auto take = [&](float load, bool supported, bool upright, double reaction) {
            if (load != 0) outside.Loads.push_back({"", upright, load, point.X, point.Y, joint});
            if (supported)
                outside.Reactions.push_back(
                    {name + (upright ? "y" : "x"), upright, reaction, point.X, point.Y, joint});
        };
        take(point.LoadX, results.EquationX[joint] == 0, false, results.ReactionX[joint]);
        take(point.LoadY, results.EquationY[joint] == 0, true, results.ReactionY[joint]);
    }
    return outside;
}

SignedTerms SumAlong(bool upright, const OuterForces& forces, NumberStyle style)
{
    SignedTerms sum;
    for (const OuterForce& force : forces)
        if (force.Upright == upright) sum.push_back(SignedNumber(force.Value, style));
    return sum;
}

/// Reactions that are no more than the rounding of the largest count as none.
void DropNoise(OuterForces& reactions)
{
    constexpr double kNoise = 1e-9;
    double largest = 0;
    for (const OuterForce& force : reactions) largest = std::max(largest, std::abs(force.Value));
    std::erase_if(reactions, [=](const OuterForce& force) {
        return std::abs(force.Value) <= kNoise * largest;
    });
}

/// Moments about a point, counterclockwise positive: arm times upright force, less height times
/// level force. A force through the point is left out.
SignedTerms Moments(double x, double y, const OuterForces& forces, NumberStyle style)
{
    SignedTerms sum;
    for (const OuterForce& force : forces) {
        const double arm = force.Upright ? force.X - x : y - force.Y;
        if (arm != 0) sum.push_back(SignedProduct(arm, kLength, force.Value, style));
    }
    return sum;
}

void Append(SignedTerms& sum, const SignedTerms& more)
{
    sum.insert(sum.end(), more.begin(), more.end());
}

/// The one reaction that has its axis for itself, and the two of the other axis.
struct ThreeReactions {
    OuterForce Single, First, Second;
};

ThreeReactions Arrange(OuterForces reactions)
{
    const auto upright = std::count_if(reactions.begin(), reactions.end(),
                                       [](const OuterForce& force) { return force.Upright; });
    const bool singleIsUpright = upright == 1;
    std::stable_partition(reactions.begin(), reactions.end(), [=](const OuterForce& force) {
        return force.Upright == singleIsUpright;
    });
    return {reactions[0], reactions[1], reactions[2]};
}

std::string AxisSum(bool upright)
{
    return upright ? "Sum Fy" : "Sum Fx";
}

/// The reaction that balances all other forces of its axis.
void ExplainByForces(Narration& text, const Outside& outside, const OuterForce& wanted,
                     const OuterForces& others)
{
    SignedTerms sum = SumAlong(wanted.Upright, outside.Loads, kLoad);
    Append(sum, SumAlong(wanted.Upright, others, kForce));
    const std::string what = others.empty() ? "" : " and " + others.front().Name;
    if (sum.empty()) {
        text.Line(AxisSum(wanted.Upright) + ": no load acts along " + wanted.Name +
                  ", which is therefore zero.");
        return;
    }
    text.Line(AxisSum(wanted.Upright) + " of the whole truss: " + wanted.Name +
              " balances the loads" + what + ".");
    text.Line(WriteLine({wanted.Name, "", {-Sum(sum)}, kForce}));
}

/// The second reaction of its axis, by moments about the point that the other two pass through.
void ExplainByMoments(Narration& text, const Outside& outside, const ThreeReactions& three)
{
    const OuterForce& wanted = three.Second;
    const double x = wanted.Upright ? three.First.X : three.Single.X;
    const double y = wanted.Upright ? three.Single.Y : three.First.Y;
    const double arm = wanted.Upright ? wanted.X - x : y - wanted.Y;
    text.Line("Moments about (" + kLength(x) + "; " + kLength(y) +
              "), counterclockwise positive: " + three.Single.Name + " and " + three.First.Name +
              " pass through this point.");
    const SignedTerms moments = Moments(x, y, outside.Loads, kLoad);
    if (moments.empty()) {
        text.Line("No load has a moment about it: " + wanted.Name + " is zero.");
        return;
    }
    const Expression working = -Grouped(Sum(moments)) / Number(arm, kLength);
    text.Line(WriteLine({wanted.Name,
                         "-(moment of the loads) ÷ arm",
                         {working},
                         CommonStyle(working.Unrounded().Value, wanted.Value)}));
}

void CheckSum(Narration& text, const std::string& name, const SignedTerms& sum)
{
    constexpr double kSinglePrecision = 1e-6;
    if (sum.empty()) return void(text.Line(name + ": nothing acts here."));
    const Printed exact = Sum(sum).Unrounded();
    // What single precision leaves of large numbers does not count.
    const double rest = std::max(std::abs(exact.Value), kSinglePrecision * exact.Size);
    text.Line(WriteLine({name, "", {Sum(sum)}, RestStyle(rest)}));
}

} // namespace

bool HasThreeReactions(const TrussResults& results)
{
    const auto supported = [](const std::vector<short>& equations) {
        return equations.empty() ? 0 : std::count(equations.begin() + 1, equations.end(), 0);
    };
    return supported(results.EquationX) + supported(results.EquationY) == 3;
}

void ExplainReactions(Narration& text, const TrussModel& model, const TrussResults& results)
{
    text.Heading("Reactions");
    if (!HasThreeReactions(results)) {
        text.Line("There are more than three reactions: the equilibrium of the whole truss does "
                  "not give them all, and they are unknowns at their joints.");
        return;
    }
    const Outside outside = Collect(model, results);
    const ThreeReactions three = Arrange(outside.Reactions);
    ExplainByForces(text, outside, three.Single, {});
    ExplainByMoments(text, outside, three);
    ExplainByForces(text, outside, three.First, {three.Second});
}

void ExplainGlobalChecks(Narration& text, const TrussModel& model, const TrussResults& results)
{
    text.Heading("Checks of the whole truss");
    Outside outside = Collect(model, results);
    DropNoise(outside.Reactions);
    for (const bool upright : {false, true}) {
        auto sum = SumAlong(upright, outside.Loads, kLoad);
        Append(sum, SumAlong(upright, outside.Reactions, kForce));
        CheckSum(text, AxisSum(upright), sum);
    }
    auto moments = Moments(0, 0, outside.Loads, kLoad);
    Append(moments, Moments(0, 0, outside.Reactions, kForce));
    CheckSum(text, "Sum of moments about (0; 0)", moments);
}

} // namespace forcelab::truss
