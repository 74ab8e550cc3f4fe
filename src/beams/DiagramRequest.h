#pragma once

#include "beams/BeamRecord.h"
#include "beams/BeamTexts.h"

#include <functional>
#include <optional>

namespace forcelab::beams {

/// The pictures of frmBeamDiagrams; a request names a sum of them.
enum DiagramPicture : int {
    kLoadPicture = 1,
    kShearPicture = 2,
    kMomentPicture = 4,
    kSlopePicture = 8,
    kDeflectionPicture = 16,
    kCurvePictures = kShearPicture | kMomentPicture | kSlopePicture | kDeflectionPicture,
    kAllPictures = kLoadPicture | kCurvePictures,
};

/// What other forms want of frmBeamDiagrams. Requests add up until the form takes them.
struct DiagramRequest {
    int Pictures = 0;              ///< to paint anew; a hidden one when it is shown
    std::optional<int> LengthUnit; ///< options to select, which paints what depends on them
    std::optional<int> ForceUnit;
    std::optional<int> MomentUnit;
    bool ShearMomentView = false; ///< check mnuShearMoment and show its pictures and point frames
    bool ListsChanged = false;    ///< fill cboLoads anew, from MakeLabels
    bool NoLoads = false;         ///< hide the captions of shear and moment
};

/// The options that frmBeamDiagrams has selected, and the EI of its last painting; it keeps them up
/// to date.
inline DiagramUnits ShownDiagramUnits;

/// What has been asked for and not been taken yet.
inline DiagramRequest PendingDiagrams;
/// frmBeamDiagrams answers requests here while it is loaded, and clears this when it unloads;
/// without it a request waits for the form's next activation.
inline std::function<void()> OnDiagramRequest;

/// frmBeamDiagrams wants the load CurrentLoad to be edited on frmBeamStuf, which it then shows.
inline bool EditWanted = false;
/// frmBeamStuf has a frame open; what opens other forms from the beam is off.
inline bool EntryFrameOpen = false;

/// Adds to what is asked for, and tells frmBeamDiagrams.
void RequestDiagrams(const DiagramRequest& request);
/// Gives what is asked for and leaves nothing pending.
DiagramRequest TakeDiagramRequest();

/// After a definition: its length unit is selected, the load diagram is painted, and with loads the
/// shear and moment too.
DiagramRequest RequestAfterDefinition(const BeamRecord& beam);
/// After row `row` was stored: the diagrams take the force unit of a force or uniform load and the
/// moment unit of a moment where they show another one.
DiagramRequest RequestAfterEntry(const BeamRecord& beam, int row);
/// After loads came, went or changed without a unit: everything is painted anew.
DiagramRequest RequestAfterChange(const BeamRecord& beam);

} // namespace forcelab::beams
