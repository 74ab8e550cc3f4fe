#pragma once

#include "sections/SectionInput.h"
#include "sections/SectionRecord.h"

namespace forcelab::sections {

/// Lays out the rectangles of the shape from its dimensions, upright or lying as element 0's lie
/// says, and on the sides on which the elements lie now. `spacing` is the gap of the double
/// shapes, entered unit. Elements that the shape has not keep their corners.
void BuildElements(CrossSection& section, double spacing);

/// Computes Record, Details, PrincipalAxisEnds, ElementColour and ElementCornersInches of the
/// section, and moves its corners to the centroid. Throws ArithmeticFault where a result is not
/// finite: the caller keeps the earlier section.
void ComputeSection(CrossSection& section, const SectionEntry& entry);

/// Turns all six elements about the origin; a quarter or three-quarter turn changes their lie.
void RotateElements(CrossSection& section, double angle);

/// Closed forms for the circle and the pipe.
void CircularShapeProperties(CrossSection& section);
/// The properties as typed, for shape 27.
void UserDefinedSectionProperties(CrossSection& section, const SectionEntry& entry);
/// Overwrites the sums with the published values of a steel shape.
void ApplySteelTable(CrossSection& section, const SectionEntry& entry);

} // namespace forcelab::sections
