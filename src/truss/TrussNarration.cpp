#include "truss/TrussNarration.h"

#include "core/Narration.h"
#include "core/NumericText.h"
#include "truss/GlobalEquilibrium.h"
#include "truss/JointWalk.h"
#include "truss/TrussWorkings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace forcelab::truss {

namespace {

constexpr double kNothing = 1e-9; // of the largest force: rounding, not a force
constexpr double kZeroForce = 0.001;
constexpr double kAcross = 1e-7; // a coefficient that is none

std::string Joined(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t k = 0; k < names.size(); ++k)
        text += (k == 0 ? "" : k + 1 == names.size() ? " and " : ", ") + names[k];
    return text;
}

/// The component of a force's unit vector: 0 in X, 1 in Y.
double Along(const JointForce& force, int axis)
{
    return axis == 0 ? force.CosX : force.SinY;
}

constexpr std::array<const char*, 2> kAxis{"x", "y"};

class TrussExplanation {
  public:
    TrussExplanation(const TrussModel& model, const TrussResults& results)
        : model_(model), results_(results), zeros_(ZeroMembers(model, results))
    {
        for (int joint = 1; joint <= results.Joints.JointCount; ++joint)
            for (const JointForce& force : ForcesAt(model, results, joint))
                largest_ = std::max(largest_, std::abs(force.Size));
    }

    std::string Text()
    {
        ExplainCount();
        ExplainReactions(text_, model_, results_);
        ExplainZeros();
        const JointWalk walk = WalkJoints(model_, results_, zeros_, HasThreeReactions(results_));
        for (const JointStep& step : walk.Steps) ExplainStep(step);
        ExplainLeft(walk.Left);
        ExplainGlobalChecks(text_, model_, results_);
        return text_.Text();
    }

  private:
    void ExplainCount()
    {
        const auto members = model_.Members().size();
        const int joints = results_.Joints.JointCount;
        const auto number = [](auto count) { return Format(static_cast<double>(count), "0"); };
        text_.Heading("Count");
        text_.Line("Members + reactions = " + number(members) + " + " +
                   number(2 * joints - static_cast<int>(members)) + " = " + number(2 * joints));
        text_.Line("Equations = 2 × joints = " + Times("2", number(joints)) + " = " +
                   number(2 * joints));
        text_.Line("There are as many equations as unknowns. Forces are counted positive to the "
                   "right and upward, member forces positive in tension. A member that is neither "
                   "level nor "
                   "upright acts with its run and its rise over its length.");
    }

    /// The unit vectors of members that are neither level nor upright, at the first joint whose
    /// equations hold them.
    void ExplainDirections(const std::vector<JointForce>& forces)
    {
        for (const JointForce& force : forces)
            if (force.IsMember && force.CosX != 0 && force.SinY != 0 &&
                directed_.insert(force.Index).second)
                ExplainDirection(model_.TrussMembers[force.Index], force.Name);
    }

    void ExplainDirection(const TrussMember& member, const std::string& name)
    {
        const TrussGridPoint& a = model_.GridPoints[member.FromPoint];
        const TrussGridPoint& b = model_.GridPoints[member.ToPoint];
        const double dx = static_cast<double>(b.X) - a.X;
        const double dy = static_cast<double>(b.Y) - a.Y;
        const Expression run = Number(std::abs(dx), kLength);
        const Expression rise = Number(std::abs(dy), kLength);
        const Expression length = Number(std::hypot(dx, dy), kForce);
        text_.Line(
            WriteLine({"Length " + name, "", {Root(Raised(run, 2) + Raised(rise, 2))}, kForce}));
        for (const auto& [axis, along] : {std::pair{"x", run}, {"y", rise}})
            text_.Line(WriteLine({name + axis, "", {along / length}, kComponent}));
    }

    [[nodiscard]] std::string Names(const std::vector<int>& members) const
    {
        std::vector<std::string> names;
        names.reserve(members.size());
        for (const int member : members) names.push_back(results_.MemberName[member]);
        return Joined(names);
    }

    [[nodiscard]] std::string RuleText(const ZeroMember& zero) const
    {
        const std::string others = Names(zero.Others);
        switch (zero.Why) {
        case ZeroMember::Rule::Alone:
            return "no other force acts there";
        case ZeroMember::Rule::PairOutOfLine:
            return "it meets only " + others +
                   " there, not in line with it, without load or support";
        case ZeroMember::Rule::ThirdBesideTwoInLine:
            return "without load or support, " + others +
                   " in one line leave nothing there that could hold it";
        case ZeroMember::Rule::LoadAlongTheOther:
            return "the load there acts along " + others + ", the only other member";
        default:
            return "";
        }
    }

    void ExplainZeros()
    {
        if (zeros_.empty()) return;
        text_.Heading("Zero-force members");
        std::vector<std::string> rest;
        for (const ZeroMember& zero : zeros_) {
            const std::string& name = results_.MemberName[zero.Member];
            if (zero.Joint == 0)
                rest.push_back(name);
            else
                text_.Line(name + " carries nothing, as joint " + results_.JointName[zero.Joint] +
                           " shows: " + RuleText(zero) + ".");
        }
        if (!rest.empty())
            text_.Line("By no such rule, but by the equations of the joints: " + Joined(rest) +
                       ".");
    }

    /// What a force adds along an axis: the force itself, or a member's component of it.
    static SignedTerm TermOf(const JointForce& force, int axis)
    {
        const double along = Along(force, axis);
        const NumberStyle style = force.Name.empty() ? kLoad : kForce;
        if (std::abs(along) == 1) return SignedNumber(along * force.Size, style);
        return SignedProduct(along, kCosine, force.Size, style);
    }

    [[nodiscard]] SignedTerms Terms(const std::vector<JointForce>& forces, int axis) const
    {
        SignedTerms sum;
        for (const JointForce& force : forces)
            if (Along(force, axis) != 0 && std::abs(force.Size) > kNothing * largest_)
                sum.push_back(TermOf(force, axis));
        return sum;
    }

    void ExplainStep(const JointStep& step)
    {
        text_.Heading("Joint " + results_.JointName[step.Joint]);
        if (step.Unknown.empty()) return ExplainCheck(step.Known);
        std::vector<std::string> names;
        for (const JointForce& force : step.Unknown) names.push_back(force.Name);
        text_.Line("Unknown here: " + Joined(names) + ".");
        ExplainDirections(step.Unknown);
        for (const int axis : {0, 1}) ExplainEquation(step, axis);
        if (step.Unknown.size() == 1) return ExplainOne(step);
        ExplainTwo(step);
    }

    /// P, the sum of what is known, and the equation with the unknowns.
    void ExplainEquation(const JointStep& step, int axis)
    {
        const auto known = Terms(step.Known, axis);
        const std::string p = std::string("P") + kAxis[axis];
        if (!known.empty()) text_.Line(WriteLine({p, "", {Sum(known)}, kForce}));
        std::string equation;
        const auto append = [&equation](bool minus, const std::string& term) {
            equation += equation.empty() ? (minus ? "-" : "") : (minus ? " - " : " + ");
            equation += term;
        };
        for (const JointForce& force : step.Unknown)
            if (std::abs(Along(force, axis)) >= kAcross)
                append(Along(force, axis) < 0, UnknownTerm(force, axis));
        if (!known.empty()) append(false, p);
        if (!equation.empty())
            text_.Line(std::string("Sum F") + kAxis[axis] + ": " + equation + " = 0");
    }

    /// Without its sign.
    static std::string UnknownTerm(const JointForce& force, int axis)
    {
        const double size = std::abs(Along(force, axis));
        return size == 1 ? force.Name : Times(kCosine(size), force.Name);
    }

    [[nodiscard]] double KnownSum(const JointStep& step, int axis) const
    {
        return Sum(Terms(step.Known, axis)).Unrounded().Value;
    }

    void Conclude(const JointForce& unknown, const Expression& working)
    {
        std::string line = WriteLine({unknown.Name, "", {working}, kForce});
        if (unknown.IsMember) {
            const bool none = std::abs(unknown.Size) <= kZeroForce;
            line += none ? " (zero-force member)" : unknown.Size > 0 ? " (T)" : " (C)";
        }
        text_.Line(line);
    }

    /// One equation with one unknown: -(P + what the solved one adds) over its component.
    void SolveAlong(const JointStep& step, const JointForce& unknown, const JointForce* solved,
                    int axis)
    {
        SignedTerms sum;
        if (!Terms(step.Known, axis).empty())
            sum.push_back(SignedNumber(KnownSum(step, axis), kForce));
        if (solved && std::abs(Along(*solved, axis)) >= kAcross)
            sum.push_back(TermOf(*solved, axis));
        if (sum.empty())
            return void(text_.Line(unknown.Name + " is zero: nothing else acts along this axis."));
        const double along = Along(unknown, axis);
        if (std::abs(along) == 1) return Conclude(unknown, along < 0 ? Sum(sum) : -Sum(sum));
        Conclude(unknown, -Sum(sum) / Number(along, kCosine));
    }

    static int StrongerAxis(const JointForce& force)
    {
        return std::abs(force.SinY) > std::abs(force.CosX) ? 1 : 0;
    }

    void ExplainOne(const JointStep& step)
    {
        const JointForce& unknown = step.Unknown.front();
        const int axis = StrongerAxis(unknown);
        SolveAlong(step, unknown, nullptr, axis);
        std::vector<JointForce> all = step.Known;
        all.push_back(unknown);
        CheckAxis(all, 1 - axis);
    }

    void ExplainTwo(const JointStep& step)
    {
        for (const int axis : {0, 1})
            for (const int k : {0, 1})
                if (std::abs(Along(step.Unknown[1 - k], axis)) < kAcross) {
                    SolveAlong(step, step.Unknown[k], nullptr, axis);
                    SolveAlong(step, step.Unknown[1 - k], &step.Unknown[k], 1 - axis);
                    return;
                }
        ExplainBothEquations(step);
    }

    /// Neither equation has a single unknown: the first by elimination of the second.
    void ExplainBothEquations(const JointStep& step)
    {
        const JointForce& a = step.Unknown[0];
        const JointForce& b = step.Unknown[1];
        const auto product = [](double cosine, double other, NumberStyle style) {
            return SignedProduct(cosine, kCosine, other, style);
        };
        text_.Line("Both equations hold both unknowns; " + b.Name + " is eliminated between them.");
        Conclude(a, Sum({product(b.CosX, KnownSum(step, 1), kForce),
                         product(-b.SinY, KnownSum(step, 0), kForce)}) /
                        Sum({product(a.CosX, b.SinY, kCosine), product(-a.SinY, b.CosX, kCosine)}));
        SolveAlong(step, b, &a, StrongerAxis(b));
    }

    void CheckAxis(const std::vector<JointForce>& forces, int axis)
    {
        const auto terms = Terms(forces, axis);
        if (terms.empty()) return;
        const Expression sum = Sum(terms);
        text_.Line(WriteLine({std::string("Check: Sum F") + kAxis[axis],
                              "",
                              {sum},
                              RestStyle(sum.Unrounded().Value)}));
    }

    void ExplainCheck(const std::vector<JointForce>& forces)
    {
        if (Terms(forces, 0).empty() && Terms(forces, 1).empty())
            return void(text_.Line("No force acts here."));
        text_.Line("All forces here are known; the equations must hold.");
        for (const int axis : {0, 1}) CheckAxis(forces, axis);
    }

    void ExplainLeft(const std::vector<int>& joints)
    {
        if (joints.empty()) return;
        std::vector<std::string> names;
        names.reserve(joints.size());
        for (const int joint : joints) names.push_back(results_.JointName[joint]);
        text_.Heading("Joints with more than two unknowns");
        text_.Line(
            "No joint that is left has at most two unknowns which its equations could give: " +
            Joined(names) +
            ". Their equations must be solved all at once, as Compute does. With its "
            "results they hold:");
        for (const int joint : joints) {
            const std::vector<JointForce> forces = ForcesAt(model_, results_, joint);
            text_.Line("Joint " + results_.JointName[joint]);
            ExplainDirections(forces);
            for (const int axis : {0, 1}) CheckAxis(forces, axis);
        }
    }

    const TrussModel& model_;
    const TrussResults& results_;
    std::vector<ZeroMember> zeros_;
    std::set<int> directed_; ///< members whose direction is told
    double largest_ = 0;
    Narration text_;
};

} // namespace

std::string ExplainTruss(const TrussModel& model, const TrussResults& results)
{
    if (!results.TrussSolved || model.Members().empty()) return "";
    return TrussExplanation(model, results).Text();
}

std::string ExplainMotion(const Mechanism& motion)
{
    const std::string joints = motion.Moving.size() == 1 ? "Joint " : "Joints ";
    return joints + Joined(motion.Moving) +
           " can move without any member changing its length. The picture shows how; a member or a "
           "support that stops this motion makes the truss stable.";
}

} // namespace forcelab::truss
