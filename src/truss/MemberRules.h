#pragma once

#include "truss/TrussModel.h"

namespace forcelab::truss {

/// Why a member is not taken, in the order of the tests.
enum class MemberRefusal {
    None,
    SamePoint,   ///< both ends on one grid point
    Duplicate,   ///< the pair exists
    EndBlocked,  ///< an end lies on the inside of a member
    CoversJoint, ///< an end of another member lies on its inside
    Overlaps,    ///< it lies along another member
    TableFull,   ///< the hundredth member is in place
};

/// The first rule that a member between two grid points, from < to, would break.
MemberRefusal CheckMember(const TrussModel& model, int from, int to);

/// True where an end of a member, other than the two ends of the new one, lies on the new one.
bool MemberCoversJoint(const TrussModel& model, int from, int to);

/// True where the new member and an existing one lie along each other, as far as the parameter
/// (y + 10) / (x + 10) along the line can tell. Members of nearly equal direction (cosine within
/// 0.001 of 1) whose line constants are equal count as lying on one line.
bool MembersOverlap(const TrussModel& model, int from, int to, const TrussMember& member);

/// Sets GridPointBlocked at the points on the inside of a member, 0 everywhere else.
void MarkInteriorPoints(TrussModel& model);

} // namespace forcelab::truss
