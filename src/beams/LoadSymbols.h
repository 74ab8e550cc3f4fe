#pragma once

#include "core/Picture.h"

namespace forcelab::beams {

// Symbols of the load diagram. The picture's y is in pixels, upward from the beam's upper edge;
// x is in inches, sizes across are pixels.

inline constexpr double kSupportDepth = 20; ///< pixels below the beam, hatching included
inline constexpr double kArcRadius = 15;
inline constexpr double kWallReach = 14; ///< pixels of the wall above and below the beam

/// The beam from 0 to its length, `height` pixels deep.
void DrawBeamBand(Picture& pic, double length, double height);
/// A triangle on hatched ground, its tip at (x, y).
void DrawPin(Picture& pic, double x, double y);
/// A circle on hatched ground, its top at (x, y).
void DrawRoller(Picture& pic, double x, double y);
/// A hatched wall; side -1 stands left of x, 1 right of it.
void DrawWall(Picture& pic, double x, double bandHeight, int side);
/// An arrow straight up or down.
void DrawUpright(Picture& pic, double x, double fromY, double toY, Colour colour);
/// A moment about (x, y).
void DrawMomentArc(Picture& pic, double x, double y, bool clockwise, Colour colour);

} // namespace forcelab::beams
