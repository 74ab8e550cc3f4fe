#pragma once

#include "core/Picture.h"
#include "truss/TrussSolver.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace forcelab::truss {

/// The areas that were typed, by the two grid points of a member.
using MemberAreas = std::map<std::pair<short, short>, std::string>;

/// The areas of the truss that is being worked on; a new grid forgets them.
inline MemberAreas CurrentAreas;

/// A line of the member stress table, as it prints.
struct StressRow {
    std::pair<short, short> Member; ///< its grid points
    std::string Name;
    std::string Force;  ///< tension positive
    std::string Area;   ///< as typed; empty: not given
    std::string Stress; ///< tension positive; empty where there is no area above 0
};

/// Force over area in the user's own units, tension positive; empty for an area that is empty, 0
/// or below. Throws ArithmeticFault where area or stress is too large.
std::string StressText(double force, std::string_view area);

/// The table of a truss that was solved, in the order of its members.
std::vector<StressRow> StressTable(const TrussModel& model, const TrussResults& results,
                                   const MemberAreas& areas);

/// The captions of the table's columns.
inline constexpr std::string_view kStressColumns[] = {"Member", "Force", "Area", "Stress"};

/// How many lines of the table go on a page of this height, pixels.
int StressRowsOn(const Picture& pic, double height);

/// Prints lines of the table under their captions, from the top of a sheet scaled to pixels.
void PrintStressTable(Picture& pic, const std::vector<StressRow>& rows, std::size_t first,
                      std::size_t count);

} // namespace forcelab::truss
