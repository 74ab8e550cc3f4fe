#pragma once

#include "beams/BeamCurves.h"
#include "beams/BeamReactions.h"
#include "beams/BeamRecord.h"
#include "beams/BeamTexts.h"

#include <string>

namespace forcelab::beams {

/// A solved beam as the diagrams show it.
struct BeamView {
    const BeamRecord& Beam;
    const BeamReactions& Reactions;
    const BeamCurves& Curves;
    DiagramUnits Units;
};

/// The four diagrams, in the order of the buttons "Discontinuity function".
enum class Diagram { Shear, Moment, Slope, Deflection };

// The tutor. Every text has the numbers of the diagrams in the units shown, and every line of
// arithmetic can be computed from its own print to the last digit of its result.

/// Loads, reactions, shear and moment piece by piece, and where the extremes lie.
std::string BeamExplanations(const BeamView& view);

/// The equations of equilibrium of a load case, with each term named, put in and summed.
std::string ExplainReactions(const BeamView& view, int loadCase);

/// How the shear diagram (or, for a moment load, the moment diagram) follows from load `row`.
std::string ExplainLoadDiagram(const BeamView& view, int row);

/// How the moment diagram follows from the area under the shear curve, for the piece between two
/// key points in which x lies.
std::string ExplainShearDiagram(const BeamView& view, double x);

/// The function of x in angle brackets, its constants of integration, and its largest value
/// computed from it.
std::string DisplaySingularity(const BeamView& view, Diagram diagram);

} // namespace forcelab::beams
