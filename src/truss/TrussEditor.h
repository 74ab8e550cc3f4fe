#pragma once

#include "truss/MemberRules.h"
#include "truss/TrussModel.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace forcelab::truss {

/// Index of optTrussDefine plus ten times the index of optMakeOrTake.
enum TrussMode : int {
    kCreateMembers = 0,
    kCreateSupports = 1,
    kCreateLoads = 2,
    kEraseMembers = 10,
    kEraseSupports = 11,
    kEraseLoads = 12,
};

/// What lblInstruct shows before there is a grid.
std::string WelcomeText();

/// Which of the two option groups changed the mode; the supports are told in two ways.
enum class ChangedBy { Define, MakeOrTake };
std::string InstructionText(int mode, ChangedBy by);

/// Takes a member between two grid points, in either order, or tells the rule that it breaks.
MemberRefusal AddMember(TrussModel& model, int from, int to);

/// Removes the member between two grid points, and the supports and loads of an end that no
/// other member touches. False where there is no such member.
bool EraseMember(TrussModel& model, int from, int to);

/// Removes the last member. Of an empty table the count goes to -1 and stays there: the next
/// member then goes to slot 0, where it is not counted.
void UndoMember(TrussModel& model);

/// Whether Compute is enabled: there are members, three supports and a load. Nothing where there
/// is no member: the button stays as it was.
std::optional<bool> ComputeEnabled(const TrussModel& model);

/// A drag with the left button over the grid.
struct DragState {
    bool DragActive = false;
    int DragStartPoint = 0;
    int DragEndPoint = 0;
    double DragX0 = 0, DragY0 = 0; ///< the start's grid point
    double DragX1 = 0, DragY1 = 0; ///< end of the rubber band
    double PressX = 0, PressY = 0; ///< where the button went down, held to the grid
    int DirX = 0, DirY = 0;        ///< of a drag along an axis: -1, 0 or 1
};

/// picTruss_MouseDown. Not active where the mode wants a joint and the point is none.
DragState PressPoint(const TrussModel& model, int mode, double x, double y, bool leftButton);

/// picTruss_MouseMove: takes the end of the rubber band to the mouse, or along the stronger axis.
void DragTo(const TrussModel& model, int mode, DragState& drag, double x, double y);

/// The strokes of the rubber band, in the grid's unit, for a pen that inverts what it crosses.
struct RubberBand {
    struct Stroke {
        double X1, Y1, X2, Y2;
    };
    std::vector<Stroke> Strokes;
    int Width = 1; ///< pixels
};
RubberBand BandOf(const TrussModel& model, int mode, const DragState& drag);

/// A load whose size the form must ask for.
struct LoadQuestion {
    int Point = 0;
    int DirX = 0; ///< -1, 0 or 1
    int DirY = 0;
    [[nodiscard]] std::string Prompt() const; ///< "(upward direction)"
};

/// What a release leads to; Redraw is False where there was no drag.
struct ReleaseOutcome {
    bool Redraw = false;
    MemberRefusal Refused = MemberRefusal::None;
    std::optional<LoadQuestion> Question;
};

/// picTruss_MouseUp: changes the model by the mode's rules and ends the drag.
ReleaseOutcome ReleasePoint(TrussModel& model, int mode, DragState& drag, double x, double y);

/// Stores the typed size of a load with the sign of its direction, in place of what was there.
/// Returns the text for LastLoadText. Throws ArithmeticFault where the size is too large.
std::string StoreJointLoad(TrussModel& model, const LoadQuestion& question, std::string_view typed);

/// What LastLoadText holds at first.
inline constexpr std::string_view kFirstLoadText = "1";

} // namespace forcelab::truss
