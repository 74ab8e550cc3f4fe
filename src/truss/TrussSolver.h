#pragma once

#include "core/Refusal.h"
#include "truss/TrussModel.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace forcelab::truss {

/// Sorts ascending and keeps one of each; returns the new count.
int SortUniqueJoints(std::span<short> list, int count);

/// The joints of a model and where their members lie, rebuilt at every drawing. Index 0 of the
/// lists is unused.
struct JointList {
    int JointCount = 0;
    std::vector<short> JointGridPoint; ///< grid point of each joint, ascending
    std::vector<short> GridToJoint;    ///< joint of each grid point; 0: none
    std::vector<short> JointSense[2];  ///< tally in X and in Y, to place symbols and labels
};
JointList BuildJointList(const TrussModel& model);

/// "A" to "Z", then "a" and on through the character codes; beyond "~" accented letters, since no
/// character can be seen there.
std::string JointNameOf(int joint);

/// Member forces and reactions of a truss that was solved, index 0 unused.
struct TrussResults {
    bool TrussSolved = false;
    JointList Joints;
    std::vector<std::string> JointName;
    std::vector<std::string> MemberName; ///< "AB"
    std::vector<double> MemberForce;     ///< tension positive
    std::vector<double> ReactionX;       ///< on the truss, left to right positive
    std::vector<double> ReactionY;       ///< upward positive
    std::vector<short> EquationX;        ///< number of the joint's equation; 0: supported
    std::vector<short> EquationY;
    // The lines of cboTrussResults(0) to (3).
    std::vector<std::string> MemberLines;
    std::vector<std::string> ReactionLines;
    std::vector<std::string> MemberNames;
    std::vector<std::string> MemberForces;
};

/// A motion that an unstable truss can make: displacement of each joint, the largest of length 1.
/// No member changes its length and no support moves in its direction, for small motions.
struct Mechanism {
    std::vector<double> MoveX, MoveY; ///< by joint, index 0 unused
    std::vector<std::string> Moving;  ///< names of the joints that move
};

/// What Compute gives: results, or a refusal in the words of the failed test; where the truss is
/// unstable by its count or by the pivot test, the motion too.
struct TrussAnalysis {
    TrussResults Results;
    std::optional<Refusal> Failure;
    std::optional<Mechanism> Motion;
};

/// Solves the truss by the method of joints: at every joint and direction without a support, the
/// sum of the member forces along their unit vectors and of the load is zero.
///
/// Forces in the unit of the loads, tension positive. Writes the members' unit vectors into the
/// model. Refuses more or fewer members and supports than equations, and a pivot below 0.001.
TrussAnalysis AnalyzeTruss(TrussModel& model);

} // namespace forcelab::truss
