#pragma once

#include "beams/BeamReactions.h"
#include "beams/BeamTexts.h"
#include "beams/HotSpots.h"
#include "core/Picture.h"

#include <string>

namespace forcelab::beams {

/// The size of a load in the unit of its entry: at least one decimal, and up to four where the load
/// has them. Without a direction: "10.0 kips".
std::string LoadSizeText(const BeamRecord& beam, int row, int loadCase);

/// Draws the beam with its supports, loads, reactions and positions, and tells where the mouse
/// finds them.
///
/// Downward loads stand on the beam and upward ones under it, uniform loads that overlap in lanes.
/// Loads carry name and size, "1P = 10.0 kips"; where these find no room even in small type, only
/// the names. Without loads no reactions are drawn. Magnitudes are those of `loadCase`. Draws
/// nothing without a beam.
LoadDiagramAreas DrawLoadDiagram(Picture& pic, const BeamRecord& beam,
                                 const BeamReactions& reactions, const DiagramUnits& units,
                                 int loadCase);

} // namespace forcelab::beams
