#pragma once

#include "beams/BeamCurves.h"
#include "beams/BeamTexts.h"
#include "core/Picture.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::beams {

/// Values of HoverCode: what the mouse is over on the load diagram.
enum HoverTarget : int {
    kOverNothing = 0,
    kOverBeam = 2,
    kOverLoad = 31, ///< HoverRow is the row of HotSpots
    kOverReactionA = 32,
    kOverReactionB = 33,
};

/// Columns of HotSpots.
enum HotSpotColumn : int {
    kSpotKind = 0, ///< the load's type; in row 0 the number of rows
    kSpotLeft = 1,
    kSpotTop = 2,
    kSpotRight = 3,
    kSpotBottom = 4,
    kSpotX = 5,
    kSpotValue = 6,
    kSpotLoad = 7, ///< row of the load in the record
};
/// Where loads can be found by the mouse, in the scale of the load diagram; row 0, column 0 holds
/// the count.
using HotSpotTable = std::array<std::array<double, 8>, kLoadRows>;

/// What a hot spot tells of its load: its type, position in inches, magnitude and row.
struct HotSpotLoad {
    int Kind = 0;
    double X = 0;
    double Value = 0;
    int Number = 0;
};

/// Appends a point load or a moment: a box of that width and height from the current point.
void SaveHotSpot(HotSpotTable& spots, const Picture& pic, const HotSpotLoad& load, double width,
                 double height);
/// Appends a uniform load: a box from `top` to the beam's upper edge at 0.
void SaveHotSpot(HotSpotTable& spots, const HotSpotLoad& load, double left, double top,
                 double right);

/// A reaction on the load diagram.
struct ReactionArea {
    int HoverCode; ///< kOverReactionA or kOverReactionB
    double Left, Top, Right, Bottom;
};

/// What the load diagram left for the mouse, in its scale: x in inches, y in pixels, upward from
/// the upper edge of the beam.
struct LoadDiagramAreas {
    double BeamLength = 0; ///< 0: nothing drawn
    double BandHeight = 0;
    HotSpotTable HotSpots{};
    std::vector<ReactionArea> Reactions;
};

struct Hover {
    int HoverCode = kOverNothing;
    int HoverRow = 0;
    std::string Hint; ///< the picture's hint text, empty over nothing
};

/// What lies under a point of the load diagram and the hint that tells what a click will do. Of
/// several hot spots the smallest counts.
Hover HoverAt(const LoadDiagramAreas& areas, PicturePoint at, const BeamRecord& beam,
              const DiagramUnits& units, bool slopeView);

/// The hint over the shear diagram: given between two key points where the mouse lies between the
/// baseline and the curve, else empty. `shear` is in pounds.
std::string_view ShearHintAt(const BeamRecord& beam, const BeamCurves& curves, double x,
                             double shear);

} // namespace forcelab::beams
