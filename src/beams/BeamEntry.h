#pragma once

#include "beams/BeamRecord.h"
#include "core/Refusal.h"

#include <array>
#include <optional>
#include <string>

namespace forcelab::beams {

/// What the definition boxes say; DefineBeam writes them back.
struct DefinitionText {
    std::string Length; ///< txtBeamLength
    std::string Left;   ///< txtLeftSimple
    std::string Right;  ///< txtRightSimple
};

/// What became of a definition: a refusal, or a beam and perhaps a notice that loads went.
struct Definition {
    std::optional<Refusal> Refused;
    std::optional<Refusal> Notice;
};

/// Stores length and supports in the length unit chosen, for the SupportType that stands.
///
/// Refuses a length of 0, equal supports and a support beyond the length; a refused definition
/// leaves its numbers, in the units typed, in the record. Supports typed in reverse order are
/// exchanged. Loads beyond the new length are deleted, and all are labelled anew.
Definition DefineBeam(BeamRecord& beam, DefinitionText& text, int lengthUnit);

/// Length and supports of a preset, in a length unit. Cantilevers take a and b as they are given.
void SetBeamGeometry(BeamRecord& beam, int type, double length, double a, double b, int unit);

/// What the open load frame says. A point or moment has its location in Start.
struct LoadText {
    int Type = kPointUp;
    std::string Start;
    std::string End;
    std::array<std::string, 3> Magnitude; ///< 0 without factors; 1 dead, 2 live
    int LengthUnit = 0;
    int MagnitudeUnit = 0; ///< force, uniform load or moment unit, as the type has it
};

/// Refuses a location that does not lie on the beam.
std::optional<Refusal> CheckLoadLocation(const BeamRecord& beam, const LoadText& text);

/// Appends a load. Refuses a location off the beam and a forty-first load; nothing has then
/// changed. A uniform load may end before it starts, and a magnitude may be missing: it is then 0.
std::optional<Refusal> EnterLoad(BeamRecord& beam, const LoadText& text);

/// Stores the frame's boxes in a row, aligns the loads and labels all anew.
void EnterLoadData(BeamRecord& beam, const LoadText& text, int row);

/// A load from numbers in its own units. Signs of the magnitudes are dropped, the type gives them:
/// w1 is the load, or dead and w2 live with FactoredLoads. Locations of points are x1.
struct LoadNumbers {
    int Type;
    double X1, X2;
    int LengthUnit;
    double W1, W2;
    int LoadUnit;
};
void StoreBeamLoad(BeamRecord& beam, int row, const LoadNumbers& load);

/// Moves rows row + 1 to last down one place; row `last` keeps what it held.
void DeleteLoad(BeamRecord& beam, int row, int last);

/// The Edit panel's Enter and Delete for the row CurrentLoad.
void EditLoad(BeamRecord& beam, const LoadText& text);
void DeleteCurrentLoad(BeamRecord& beam);
/// Moves CurrentLoad to the previous (0) or next (1) load; false where there is none.
bool MoveCurrentLoad(BeamRecord& beam, int direction);
bool HasPreviousLoad(const BeamRecord& beam);
bool HasNextLoad(const BeamRecord& beam);

/// Undo and redo move LoadCount over the table. False where nothing could be done: no load is left,
/// the row above never held a load, or there is no row above the fortieth.
bool UndoLoad(BeamRecord& beam);
bool RedoLoad(BeamRecord& beam);

/// The frame of row CurrentLoad as it was entered; the boxes that it does not use are empty.
LoadText ShowBeamLoad(const BeamRecord& beam);

/// What Form_Load does to the record: no loads, no factors. The rows remain for redo.
void StartLoads(BeamRecord& beam);

/// Throws ArithmeticFault where the beam or a load was entered too large for a number.
void RequireFinite(const BeamRecord& beam);

} // namespace forcelab::beams
