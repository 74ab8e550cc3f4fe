#pragma once

#include "core/Picture.h"
#include "transform/MohrCalculation.h"

#include <string>

namespace forcelab::transform {

// The pictures of frmMohr. Each clears the sheet, sets its scale and draws; a state that is bad
// leaves it empty. One unit is as long across as along, whatever the sheet's proportions.

/// The circle with its axes, diameter, points X and Y, and the labelled values.
void DrawMohrCircle(Picture& pic, const StressState& state, const MohrEntry& entry);

/// The element (for inertia: the axes) turned to the principal directions, with its stresses.
void DrawPrincipalElement(Picture& pic, const StressState& state, const MohrEntry& entry);
/// The element of maximum in-plane shear.
void DrawMaxShearElement(Picture& pic, const StressState& state, const MohrEntry& entry);
/// The element at the state's rotation angle.
void DrawRotatedElement(Picture& pic, const StressState& state, const MohrEntry& entry);

/// The small picture of the axes X and X' with the rotation angle.
void DrawRotationAngle(Picture& pic, const StressState& state, MohrMode mode);
/// The rotation in degrees, -90 to 90, from a click at (x, y) of that picture, by "##0.0".
std::string RotationFromClick(double x, double y);

/// The gauges of a rosette at their angles.
void DrawRosette(Picture& pic, MohrMode mode);
/// The element with the positive senses of the strains, beside the rosette.
void DrawStrainOrient(Picture& pic);
/// The sign convention of the analysis: the element as typed, with unknown sizes.
void DrawSignConvention(Picture& pic, MohrMode mode);

} // namespace forcelab::transform
