#pragma once

#include "core/Picture.h"
#include "truss/TrussEditor.h"
#include "truss/TrussSolver.h"

#include <string>
#include <vector>

namespace forcelab::truss {

/// Gives a picture the scale of the model's grid, y upward.
void ScalePicture(Picture& pic, const TrussModel& model);

/// The lines of the grid with their coordinates along the top and the left. Where the sheet has no
/// room for all, every second, fifth, tenth or twenty-fifth coordinate is written.
void DrawGridMarks(Picture& pic, const TrussModel& model);

/// The truss in editing: grid, members, their angles, supports and loads, and the letters of the
/// joints that are named. Clears the picture.
void DrawTruss(Picture& pic, const TrussModel& model,
               const std::vector<std::string>& lettered = {});

/// The results over a grid that is drawn already: members coloured by their force, forces, joint
/// letters and reactions. Widths in pixels.
void DrawTrussResults(Picture& pic, const TrussModel& model, const TrussResults& results,
                      double memberWidth, double jointWidth);

/// The rubber band of a drag.
void DrawRubberBand(Picture& pic, const TrussModel& model, int mode, const DragState& drag);

/// A truss that moves: the members at rest in grey, and where they are when the joints have gone
/// `share` of the way that the picture shows, -1 to 1. Clears the picture.
void DrawMotion(Picture& pic, const TrussModel& model, const Mechanism& motion, double share);

} // namespace forcelab::truss
