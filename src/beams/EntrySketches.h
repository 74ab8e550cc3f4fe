#pragma once

#include "core/Picture.h"

namespace forcelab::beams {

/// The picture of a beam type on its button; supportType is 1 to 3.
void DrawBeamTypeSketch(Picture& pic, int supportType);
/// The picture of a load type on its button, over a piece of beam; loadType is 0 to 5.
void DrawLoadTypeSketch(Picture& pic, int loadType);
/// A beam element with the shear forces that are plotted as positive: downward on its right-hand
/// side, or with reversed sign upward.
void DrawShearSignSketch(Picture& pic, bool reversed);

} // namespace forcelab::beams
