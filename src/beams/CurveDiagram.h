#pragma once

#include "beams/BeamCurves.h"
#include "beams/BeamTexts.h"
#include "core/Picture.h"
#include "core/Refusal.h"

#include <optional>

namespace forcelab::beams {

enum class CurveKind { Shear, Moment, Slope, Deflection };

/// The vertical scale of a drawn curve: a point's y is value x ValueScale / YDivisor.
struct CurveFrame {
    double ValueScale = 0; ///< from the curve's own values to the unit shown; 0: nothing drawn
    double YDivisor = 1;
    [[nodiscard]] double ValueAt(double y) const { return y * YDivisor / ValueScale; }
};

/// The box of the sign convention on the shear diagram, in pixels from the upper left corner. It is
/// imgReverseShear(0) and (1) in one, by ReverseShearSign: part of the picture, so that it prints
/// and exports with the diagram; frmBeamDiagrams gives it its hint and its double click.
struct SignSketchBox {
    double Left, Top, Width, Height;
};
inline constexpr SignSketchBox kSignSketch{3, 3, 56, 32};

/// Draws a curve over the place that the beam takes on the load diagram: key points with their
/// positions, the area under the curve, and its values in the units of the diagrams; the shear has
/// its sign convention at the upper left. `markerX`, in inches, puts a vertical line at the point
/// of the readout. Draws nothing without a beam; throws ArithmeticFault where a value is not
/// finite, for which PlotFailure has the message.
CurveFrame DrawCurveDiagram(Picture& pic, CurveKind kind, const BeamRecord& beam,
                            const BeamCurves& curves, const DiagramUnits& units,
                            std::optional<double> markerX = {});

/// The message for a curve that cannot be plotted.
Refusal PlotFailure(CurveKind kind);

} // namespace forcelab::beams
