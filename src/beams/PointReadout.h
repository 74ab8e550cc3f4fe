#pragma once

#include "beams/BeamReactions.h"
#include "beams/BeamRecord.h"
#include "beams/BeamTexts.h"

#include <array>
#include <functional>
#include <optional>
#include <string>

namespace forcelab::beams {

inline constexpr const char* kNotCalculated = "Not calculated";

/// The point of the beam whose values frmDetails shows and frmBeamDiagrams marks. Both forms work
/// on CurrentPoint and tell each other of a change.
struct PointReadout {
    std::string XText;       ///< of txtSpecificPoint, in the length unit of the diagrams
    bool SlopeView = false;  ///< slope and deflection instead of shear and moment
    std::optional<double> X; ///< inches; set while the values stand, and the marker with them
    BeamValues Values{};     ///< at X, for the case of the view; a shear as it is plotted
    std::array<std::string, 2> Texts{kNotCalculated, kNotCalculated};
    /// Slope and deflection with the digits that the mask of Texts hides, "0.00124"; else empty.
    std::array<std::string, 2> Finer;
};
inline PointReadout CurrentPoint;

/// frmDetails shows CurrentPoint here while it is loaded, frmBeamDiagrams moves its marker and its
/// bar; both clear theirs when they unload.
inline std::function<void()> OnPointForDetails;
inline std::function<void()> OnPointForDiagrams;
/// Calls both.
void TellPointChanged();

/// Takes the values away and keeps x, as after every change that they do not belong to any more.
void ClearPoint(PointReadout& point);
/// What cmdSpecificPoint does: reads XText, held inside the beam (then written back), and takes
/// shear and moment or slope and deflection there in the units of the diagrams. Without a beam the
/// values are cleared. Throws ArithmeticFault where a number overflows.
void CalculatePoint(PointReadout& point, const BeamRecord& beam, const DiagramUnits& units);
/// Takes the values again where they stand, after a change of the beam or the units: at X itself,
/// of which XText may be no more than the rounded print. Cleared where none stand. Throws
/// ArithmeticFault where a number overflows.
void RenewPoint(PointReadout& point, const BeamRecord& beam, const DiagramUnits& units);

/// The captions of the readout on frmDetails.
struct PointCaptions {
    std::string Frame;                ///< "Shear/Moment Along the Beam"
    std::string Button;               ///< "&Shear/Moment"
    std::array<std::string, 2> Names; ///< "Shear Force", "Bending Moment"
    std::array<std::string, 2> Units; ///< "(kips)", "(ft-kips)"
    std::string Length;               ///< "(ft)"
};
PointCaptions CaptionsOfPoint(bool slopeView, const DiagramUnits& units);

/// A point with its values in one line: "At X = 3.00 m: shear force 7.60 kN, bending moment 69.30
/// kN-m".
std::string PointSentence(const PointReadout& point, const DiagramUnits& units);

/// What the boxes txtVM(1) and txtVM(2) take over from a point with shear and moment, in the units
/// of the diagrams: the shear with its usual sign, whichever way it is plotted. Nothing where the
/// point has none.
std::optional<std::array<std::string, 2>>
ForcesOfPoint(const PointReadout& point, const BeamRecord& beam, const DiagramUnits& units);

// The bar hsbX: whole steps, each a round part of the length unit.

/// Steps of the bar to one length unit: a power of ten, so that a beam has 1000 to 10000 steps, at
/// most 1000 (the box shows three decimals).
double PointStepOf(const BeamRecord& beam, const DiagramUnits& units);
/// Where the bar ends, at BeamLength or the next step.
int PointBarEnd(const BeamRecord& beam, const DiagramUnits& units);
/// The place of the bar for an x in inches.
int PointBarValue(double x, const BeamRecord& beam, const DiagramUnits& units);
/// The text of txtSpecificPoint for a place of the bar; mask "###,##0.00#".
std::string PointBarText(int value, const BeamRecord& beam, const DiagramUnits& units);
/// The text of txtSpecificPoint for an x in inches; mask "###,##0.00#".
std::string PointText(double x, const DiagramUnits& units);
/// The text for a click on the beam at x inches; mask "#,###,##0.00".
std::string PointClickText(double x, const DiagramUnits& units);

} // namespace forcelab::beams
