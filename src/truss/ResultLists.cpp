#include "truss/ResultLists.h"

#include "core/NumericText.h"

#include <cmath>
#include <string_view>

namespace forcelab::truss {

namespace {

constexpr std::string_view kResultMask = "###,##0.000";

std::string ResultLine(const std::string& name, double size, std::string_view what)
{
    return name + " = " + Format(size, kResultMask) + " " + std::string(what);
}

std::string ReactionLine(const std::string& name, double reaction, std::string_view positive,
                         std::string_view otherwise)
{
    return ResultLine(name, std::abs(reaction), reaction > 0 ? positive : otherwise);
}

} // namespace

void FillResultLists(TrussResults& results)
{
    for (std::size_t m = 1; m < results.MemberForce.size(); ++m) {
        const double force = results.MemberForce[m];
        // A force of exactly 0 reads as compression.
        results.MemberLines.push_back(ResultLine(results.MemberName[m], std::abs(force),
                                                 force > 0 ? "Tension" : "Compression"));
        results.MemberNames.push_back(results.MemberName[m]);
        results.MemberForces.push_back(Format(force, ""));
    }
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const std::string& name = results.JointName[joint];
        if (results.EquationX[joint] == 0)
            results.ReactionLines.push_back(ReactionLine(name + "x", results.ReactionX[joint],
                                                         "Left to Right", "Right to Left"));
        if (results.EquationY[joint] == 0)
            results.ReactionLines.push_back(
                ReactionLine(name + "y", results.ReactionY[joint], "Upward", "Downward"));
    }
}

} // namespace forcelab::truss
