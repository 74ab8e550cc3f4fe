#pragma once

#include "truss/TrussSolver.h"

#include <string>
#include <vector>

namespace forcelab::truss {

/// A force at a joint, as the joint's equations see it: unit vector away from the joint times a
/// size, which is the member force (tension positive), the reaction or 1 times a load.
struct JointForce {
    std::string Name; ///< "AB", "Ax"; empty: a load
    double CosX = 0;
    double SinY = 0;
    double Size = 0;
    bool IsMember = false;
    int Index = 0; ///< of the member; of a reaction 2 * joint, one more for the upright one
};

/// All forces at a joint: loads, reactions and members, in this order.
std::vector<JointForce> ForcesAt(const TrussModel& model, const TrussResults& results, int joint);

/// A member that carries nothing, and the joint that shows it.
struct ZeroMember {
    int Member = 0;
    int Joint = 0; ///< 0: no rule shows it, its joints' equations do
    enum class Rule { None, Alone, PairOutOfLine, ThirdBesideTwoInLine, LoadAlongTheOther };
    Rule Why = Rule::None;
    std::vector<int> Others; ///< the members that the rule names beside it
};

/// The zero-force members, sizes of at most 0.001, in the order in which the rules show them.
std::vector<ZeroMember> ZeroMembers(const TrussModel& model, const TrussResults& results);

/// One joint of the walk and what its equations give.
struct JointStep {
    int Joint = 0;
    std::vector<JointForce> Known;
    std::vector<JointForce> Unknown; ///< none: the equations are a check; at most two
};

/// An order in which every joint has at most two unknowns, as far as there is one; joints
/// without unknowns come as soon as they have none. The joints of `Left` stay with more, or with
/// two in one line.
struct JointWalk {
    std::vector<JointStep> Steps;
    std::vector<int> Left;
};
JointWalk WalkJoints(const TrussModel& model, const TrussResults& results,
                     const std::vector<ZeroMember>& zeros, bool reactionsKnown);

} // namespace forcelab::truss
