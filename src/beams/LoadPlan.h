#pragma once

#include "beams/BeamReactions.h"
#include "beams/BeamTexts.h"
#include "beams/LoadLevels.h"
#include "core/Picture.h"

#include <string>
#include <vector>

namespace forcelab::beams {

inline constexpr double kBandHeight = 12; ///< pixels of the beam

/// Something that the load diagram draws and names: a load or a reaction.
struct LoadItem {
    enum class What { Point, Uniform, Moment, ReactionForce, ReactionMoment };
    What Is = What::Point;
    int Row = 0;           ///< of a load
    bool AtA = true;       ///< of a reaction
    bool Below = false;    ///< drawn and named under the beam
    bool Turned = false;   ///< a reaction downward, a moment clockwise
    double X1 = 0, X2 = 0; ///< inches, X1 <= X2
    int Lane = 0;          ///< of a uniform load, 0 nearest to the beam
    std::string Name;      ///< all that is printed where room is scarce
    std::string Text;      ///< with the size
    Colour Ink;
    LevelLabel Label;
};

/// The loads and reactions of a case in drawing order, with their texts.
std::vector<LoadItem> CollectItems(const BeamRecord& beam, const BeamReactions& reactions,
                                   const DiagramUnits& units, int loadCase);

/// How the height of a load diagram is shared out, in pixels, and the type of its labels.
struct LoadPlan {
    double FontSize = 8;
    bool NamesOnly = false;
    double BandTop = 0;                ///< from the sheet's top to the beam's upper edge
    double ArmAbove = 0, ArmBelow = 0; ///< from the beam's edges to the tails of the arrows
    double Lane = 0;                   ///< height of a uniform load
    double RulerTop = 0;               ///< of the positions
};

/// Finds the largest type in which all labels have room; places the labels of the items.
LoadPlan PlanLoads(Picture& pic, const BeamRecord& beam, std::vector<LoadItem>& items);

/// How far left or right of the beam's end a moment reaction is drawn.
inline constexpr double kReactionMomentAway = 26;

} // namespace forcelab::beams
