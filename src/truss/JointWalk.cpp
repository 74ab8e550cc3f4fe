#include "truss/JointWalk.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

namespace forcelab::truss {

namespace {

constexpr double kInLine = 1e-6;     // of the sine of the angle between two members
constexpr double kZeroForce = 0.001; // as the picture has it
constexpr std::size_t kEquations = 2;

double Cross(const JointForce& a, const JointForce& b)
{
    return a.CosX * b.SinY - a.SinY * b.CosX;
}

bool InLine(const JointForce& a, const JointForce& b)
{
    return std::abs(Cross(a, b)) < kInLine;
}

const TrussGridPoint& PointOfJoint(const TrussModel& model, const TrussResults& results, int joint)
{
    return model.GridPoints[results.Joints.JointGridPoint[joint]];
}

/// Applies the rules joint by joint until none shows another member.
class ZeroSearch {
  public:
    ZeroSearch(const TrussModel& model, const TrussResults& results)
        : model_(model), results_(results)
    {}

    std::vector<ZeroMember> Find()
    {
        for (bool found = true; found;) {
            found = false;
            for (int joint = 1; joint <= results_.Joints.JointCount; ++joint)
                found = TryJoint(joint) || found;
        }
        for (std::size_t m = 1; m < results_.MemberForce.size(); ++m)
            if (IsZero(static_cast<int>(m)) && !known_.contains(static_cast<int>(m)))
                zeros_.push_back({static_cast<int>(m), 0, ZeroMember::Rule::None, {}});
        return zeros_;
    }

  private:
    using Rule = ZeroMember::Rule;
    [[nodiscard]] bool IsZero(int member) const
    {
        return std::abs(results_.MemberForce[member]) <= kZeroForce;
    }

    void Add(const JointForce& member, int joint, Rule why, std::vector<int> others)
    {
        if (!IsZero(member.Index) || !known_.insert(member.Index).second) return;
        zeros_.push_back({member.Index, joint, why, std::move(others)});
    }

    /// True where a rule showed a member that was not known before.
    bool TryJoint(int joint)
    {
        const TrussGridPoint& point = PointOfJoint(model_, results_, joint);
        if (point.SupportX != 0 || point.SupportY != 0) return false;
        const std::size_t before = zeros_.size();
        std::vector<JointForce> members = ForcesAt(model_, results_, joint);
        std::erase_if(members, [this](const JointForce& force) {
            return !force.IsMember || known_.contains(force.Index);
        });
        if (point.LoadX == 0 && point.LoadY == 0)
            TryUnloaded(joint, members);
        else
            TryLoaded(joint, point, members);
        return zeros_.size() > before;
    }

    void TryUnloaded(int joint, const std::vector<JointForce>& members)
    {
        if (members.size() == 1) Add(members[0], joint, Rule::Alone, {});
        if (members.size() == 2 && !InLine(members[0], members[1]))
            for (const int k : {0, 1})
                Add(members[k], joint, Rule::PairOutOfLine, {members[1 - k].Index});
        if (members.size() != 3) return;
        for (const int k : {0, 1, 2}) {
            const JointForce& a = members[(k + 1) % 3];
            const JointForce& b = members[(k + 2) % 3];
            if (InLine(a, b) && !InLine(a, members[k]))
                Add(members[k], joint, Rule::ThirdBesideTwoInLine, {a.Index, b.Index});
        }
    }

    void TryLoaded(int joint, const TrussGridPoint& point, const std::vector<JointForce>& members)
    {
        if (members.size() != 2 || InLine(members[0], members[1])) return;
        const double size = std::hypot(point.LoadX, point.LoadY);
        const JointForce load{"", point.LoadX / size, point.LoadY / size, size, false, 0};
        for (const int k : {0, 1})
            if (InLine(members[1 - k], load))
                Add(members[k], joint, Rule::LoadAlongTheOther, {members[1 - k].Index});
    }

    const TrussModel& model_;
    const TrussResults& results_;
    std::set<int> known_;
    std::vector<ZeroMember> zeros_;
};

/// What is known while the joints are walked.
class Walker {
  public:
    Walker(const TrussModel& model, const TrussResults& results,
           const std::vector<ZeroMember>& zeros, bool reactionsKnown)
        : model_(model), results_(results), reactionsKnown_(reactionsKnown)
    {
        for (const ZeroMember& zero : zeros)
            if (zero.Joint != 0) members_.insert(zero.Member);
        for (int joint = 1; joint <= results.Joints.JointCount; ++joint) left_.push_back(joint);
    }

    JointWalk Walk()
    {
        JointWalk walk;
        while (auto step = NextStep()) {
            for (const JointForce& force : step->Unknown) Learn(force);
            std::erase(left_, step->Joint);
            walk.Steps.push_back(std::move(*step));
        }
        walk.Left = left_;
        return walk;
    }

  private:
    [[nodiscard]] bool IsKnown(const JointForce& force) const
    {
        if (force.IsMember) return members_.contains(force.Index);
        return force.Name.empty() || reactionsKnown_ || reactions_.contains(force.Index);
    }
    void Learn(const JointForce& force)
    {
        (force.IsMember ? members_ : reactions_).insert(force.Index);
    }

    [[nodiscard]] JointStep StepAt(int joint) const
    {
        JointStep step;
        step.Joint = joint;
        for (const JointForce& force : ForcesAt(model_, results_, joint))
            (IsKnown(force) ? step.Known : step.Unknown).push_back(force);
        return step;
    }

    static bool CanBeSolved(const JointStep& step)
    {
        if (step.Unknown.size() < kEquations) return true;
        return step.Unknown.size() == kEquations && !InLine(step.Unknown[0], step.Unknown[1]);
    }

    [[nodiscard]] std::optional<JointStep> NextStep() const
    {
        for (const int joint : left_) {
            JointStep step = StepAt(joint);
            if (CanBeSolved(step)) return step;
        }
        return std::nullopt;
    }

    const TrussModel& model_;
    const TrussResults& results_;
    bool reactionsKnown_;
    std::set<int> members_, reactions_; ///< known ones
    std::vector<int> left_;
};

} // namespace

std::vector<JointForce> ForcesAt(const TrussModel& model, const TrussResults& results, int joint)
{
    std::vector<JointForce> forces;
    const TrussGridPoint& point = PointOfJoint(model, results, joint);
    if (point.LoadX != 0) forces.push_back({"", 1, 0, point.LoadX, false, 0});
    if (point.LoadY != 0) forces.push_back({"", 0, 1, point.LoadY, false, 0});
    const std::string& name = results.JointName[joint];
    if (point.SupportX != 0)
        forces.push_back({name + "x", 1, 0, results.ReactionX[joint], false, 2 * joint});
    if (point.SupportY != 0)
        forces.push_back({name + "y", 0, 1, results.ReactionY[joint], false, 2 * joint + 1});
    int m = 0;
    for (const TrussMember& member : model.Members()) {
        ++m;
        const bool from = results.Joints.GridToJoint[member.FromPoint] == joint;
        if (!from && results.Joints.GridToJoint[member.ToPoint] != joint) continue;
        const double away = from ? 1 : -1;
        forces.push_back({results.MemberName[m], away * member.CosX, away * member.SinY,
                          results.MemberForce[m], true, m});
    }
    return forces;
}

std::vector<ZeroMember> ZeroMembers(const TrussModel& model, const TrussResults& results)
{
    return ZeroSearch(model, results).Find();
}

JointWalk WalkJoints(const TrussModel& model, const TrussResults& results,
                     const std::vector<ZeroMember>& zeros, bool reactionsKnown)
{
    return Walker(model, results, zeros, reactionsKnown).Walk();
}

} // namespace forcelab::truss
