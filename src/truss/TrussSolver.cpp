#include "truss/TrussSolver.h"

#include "general/GaussJordan.h"
#include "truss/Mechanism.h"
#include "truss/ResultLists.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace forcelab::truss {

namespace {

// Messages of several lines, which one carriage return each joins.
const Refusal kIndeterminate{kStop, "Statically Indeterminate Truss",
                             "Truss is statically indeterminate.  Make sure that there\r"
                             "are three support conditions (e.g., one pin and one roller).\r"
                             "If there are three supports, erase one truss member and\r"
                             "analyze the truss again.",
                             ""};
const Refusal kUnstable{kStop, "Unstable Truss",
                        "Truss is unstable.  Remember that all truss joints\r"
                        "are assumed to be pin connections (i.e., no moment).\r"
                        "Check to make sure that at least two truss members are\r"
                        "connected to each joint and that the members form\r"
                        "triangles throughout the truss.",
                        ""};
const Refusal kNoAnalysis{kStop, "Truss Analysis Error",
                          "Sorry, the analysis was unsuccessful.  The\r"
                          "truss appears to be geometrically unstable.\r"
                          "Check the truss input data.",
                          ""};

void WriteUnitVectors(TrussModel& model)
{
    for (int m = 1; m <= model.MemberCount; ++m) {
        TrussMember& member = model.TrussMembers[m];
        const TrussGridPoint& a = model.GridPoints[member.FromPoint];
        const TrussGridPoint& b = model.GridPoints[member.ToPoint];
        const double dx = static_cast<double>(b.X) - a.X;
        const double dy = static_cast<double>(b.Y) - a.Y;
        const double length = std::sqrt(dx * dx + dy * dy);
        member.CosX = static_cast<float>(dx / length);
        member.SinY = static_cast<float>(dy / length);
    }
}

/// Gives every free direction its equation number; returns the count of restraints.
int NumberEquations(const TrussModel& model, TrussResults& results)
{
    const int joints = results.Joints.JointCount;
    results.EquationX.assign(joints + 1, 0);
    results.EquationY.assign(joints + 1, 0);
    short next = 0;
    int restraints = 0;
    const auto number = [&](short support, short& equation) {
        if (support == 0)
            equation = ++next;
        else
            ++restraints;
    };
    for (int joint = 1; joint <= joints; ++joint) {
        const TrussGridPoint& point = model.GridPoints[results.Joints.JointGridPoint[joint]];
        number(point.SupportX, results.EquationX[joint]);
        number(point.SupportY, results.EquationY[joint]);
    }
    return restraints;
}

struct Equations {
    std::vector<double> EquilibriumMatrix; ///< row for each equation, column for each member
    std::vector<double> RightHandSide;
};

Equations Assemble(const TrussModel& model, const TrussResults& results)
{
    const std::size_t count = model.Members().size();
    Equations equations{std::vector<double>(count * count), std::vector<double>(count)};
    std::size_t column = 0;
    const auto put = [&](short equation, double value) {
        if (equation != 0) equations.EquilibriumMatrix[(equation - 1) * count + column] = value;
    };
    for (const TrussMember& member : model.Members()) {
        const int a = results.Joints.GridToJoint[member.FromPoint];
        const int b = results.Joints.GridToJoint[member.ToPoint];
        put(results.EquationX[a], member.CosX);
        put(results.EquationY[a], member.SinY);
        put(results.EquationX[b], -member.CosX);
        put(results.EquationY[b], -member.SinY);
        ++column;
    }
    const auto load = [&](short equation, float value) {
        if (equation != 0) equations.RightHandSide[equation - 1] = -value;
    };
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const TrussGridPoint& point = model.GridPoints[results.Joints.JointGridPoint[joint]];
        load(results.EquationX[joint], point.LoadX);
        load(results.EquationY[joint], point.LoadY);
    }
    return equations;
}

void AddReactions(const TrussModel& model, TrussResults& results)
{
    const int joints = results.Joints.JointCount;
    results.ReactionX.assign(joints + 1, 0);
    results.ReactionY.assign(joints + 1, 0);
    for (int joint = 1; joint <= joints; ++joint) {
        const TrussGridPoint& point = model.GridPoints[results.Joints.JointGridPoint[joint]];
        if (results.EquationX[joint] == 0) results.ReactionX[joint] = -point.LoadX;
        if (results.EquationY[joint] == 0) results.ReactionY[joint] = -point.LoadY;
    }
    const auto add = [&](int joint, double x, double y) {
        if (results.EquationX[joint] == 0) results.ReactionX[joint] += x;
        if (results.EquationY[joint] == 0) results.ReactionY[joint] += y;
    };
    int m = 0;
    for (const TrussMember& member : model.Members()) {
        const double force = results.MemberForce[++m];
        const double x = member.CosX * force;
        const double y = member.SinY * force;
        add(results.Joints.GridToJoint[member.FromPoint], -x, -y);
        add(results.Joints.GridToJoint[member.ToPoint], x, y);
    }
}

void NameJointsAndMembers(const TrussModel& model, TrussResults& results)
{
    results.JointName.assign(1, "");
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint)
        results.JointName.push_back(JointNameOf(joint));
    results.MemberName.assign(1, "");
    for (const TrussMember& member : model.Members()) {
        const auto [first, second] = std::minmax(results.Joints.GridToJoint[member.FromPoint],
                                                 results.Joints.GridToJoint[member.ToPoint]);
        results.MemberName.push_back(results.JointName[first] + results.JointName[second]);
    }
}

/// What the count of members, restraints and joints says against the truss.
const Refusal* CheckDeterminacy(int members, int restraints, int joints)
{
    if (members + restraints > 2 * joints) return &kIndeterminate;
    return members + restraints < 2 * joints ? &kUnstable : nullptr;
}

/// Finds the member forces; False where the truss is a mechanism.
bool SolveForces(const TrussModel& model, TrussResults& results)
{
    Equations equations = Assemble(model, results);
    auto& forces = equations.RightHandSide;
    const int count = static_cast<int>(forces.size());
    if (general::GaussJordanSolve(equations.EquilibriumMatrix, forces, count) != 0) return false;
    results.MemberForce.assign(1, 0);
    results.MemberForce.insert(results.MemberForce.end(), forces.begin(), forces.end());
    return true;
}

TrussAnalysis Refused(const Refusal& refusal, std::optional<Mechanism> motion)
{
    return {{}, refusal, std::move(motion)};
}

} // namespace

TrussAnalysis AnalyzeTruss(TrussModel& model)
{
    TrussResults results;
    results.Joints = BuildJointList(model);
    WriteUnitVectors(model);
    NameJointsAndMembers(model, results);
    const int restraints = NumberEquations(model, results);
    const int members = static_cast<int>(model.Members().size());
    if (const auto* refusal = CheckDeterminacy(members, restraints, results.Joints.JointCount)) {
        if (refusal == &kIndeterminate) return Refused(*refusal, std::nullopt);
        return Refused(*refusal, FindMechanism(model, results));
    }
    if (!SolveForces(model, results)) return Refused(kNoAnalysis, FindMechanism(model, results));
    AddReactions(model, results);
    FillResultLists(results);
    results.TrussSolved = true;
    return {std::move(results), std::nullopt, std::nullopt};
}

} // namespace forcelab::truss
