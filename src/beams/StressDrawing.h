#pragma once

#include "beams/StressInput.h"
#include "core/Picture.h"

namespace forcelab::beams {

/// The section with its axes and the specified point; while the shear stresses show, the part
/// above the point is hatched, whose first moment is Q.
void DrawStressSection(Picture& pic, const sections::CrossSection& section,
                       const StressDetails& details);
/// The normal stress over the height of the section, tension to the right.
void DrawNormalStress(Picture& pic, const sections::CrossSection& section,
                      const StressDetails& details);
/// The cut face from the side: what the axial force and the moment do, and their sum.
void DrawStressSideView(Picture& pic, const sections::CrossSection& section,
                        const StressDetails& details);
/// The shear stress over the height, with jumps where the width changes.
void DrawShearStress(Picture& pic, const sections::CrossSection& section,
                     const StressDetails& details);

/// The picture of picST(index).
void DrawStressPicture(Picture& pic, int index, const sections::CrossSection& section,
                       const StressDetails& details);

/// The point of the section under a point of picST(0) as it was drawn last, which is in the scale
/// of that picture: z and y upward, in the unit of the form.
PicturePoint PointOfPicture(const Picture& pic, const sections::CrossSection& section,
                            const StressDetails& details, PicturePoint at);

} // namespace forcelab::beams
