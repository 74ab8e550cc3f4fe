#include "sections/KeptShapes.h"

namespace forcelab::sections {

namespace {

using BoxNames = std::array<std::string_view, kBoxes>;

constexpr BoxNames kFlanged{"top flange width", "top flange thickness", "web height",
                            "web thickness",    "bottom flange width",  "bottom flange thickness"};
constexpr BoxNames kEqualFlanges{"flange width", "flange thickness", "web height", "web thickness"};
constexpr BoxNames kStem{"flange width", "flange thickness", "stem height", "stem thickness"};
constexpr BoxNames kLegs{"horizontal leg length", "horizontal leg thickness", "vertical leg length",
                         "vertical leg thickness"};
constexpr BoxNames kHatNames{"crown width",    "crown thickness", "stem height",
                             "stem thickness", "lip width",       "lip thickness"};
constexpr BoxNames kTwoWebs{"top flange width",    "top flange thickness",   "web height",
                            "web thickness",       "gap between the webs",   "",
                            "bottom flange width", "bottom flange thickness"};
constexpr BoxNames kBackToBack{"flange width", "flange thickness", "web height", "web thickness",
                               "gap between the channels"};
constexpr BoxNames kToeToToe{"flange width", "flange thickness", "web height", "web thickness",
                             "distance from channel back to channel back"};
constexpr BoxNames kTwoStems{"flange width", "flange thickness", "stem height", "stem thickness",
                             "gap between the stems"};
constexpr BoxNames kTwoAngles{"horizontal leg length", "horizontal leg thickness",
                              "vertical leg length", "vertical leg thickness",
                              "gap between the angles"};
constexpr BoxNames kStiffened{"flange width",   "flange thickness", "stem height",
                              "stem thickness", "stiffener height", "stiffener thickness"};
constexpr BoxNames kSolid{"width", "height"};
constexpr BoxNames kHollowBox{"outer width", "outer height", "inner width", "inner height"};
constexpr BoxNames kRound{"diameter"};
constexpr BoxNames kTube{"outer diameter", "inner diameter"};
constexpr BoxNames kProperties{"Distance from centroid to right edge",
                               "Distance from centroid to top edge",
                               "Distance from left edge to centroid",
                               "Distance from bottom edge to centroid",
                               "Moment of inertia about Z-Z",
                               "Moment of inertia about Y-Y",
                               "Cross-sectional area"};

// By the index of the shape's layout, from 1.
constexpr std::array<const BoxNames*, kPipe> kNames{
    &kFlanged,   &kFlanged, &kEqualFlanges, &kEqualFlanges, &kStem,     &kLegs,      &kEqualFlanges,
    &kHatNames,  &kTwoWebs, &kBackToBack,   &kToeToToe,     &kTwoStems, &kTwoAngles, &kStiffened,
    &kStiffened, &kSolid,   &kHollowBox,    &kRound,        &kTube};

} // namespace

std::string DimensionName(int shapeIndex, int box)
{
    if (shapeIndex == kSpecified) return std::string(kProperties[box]);
    const std::string name((*kNames[LayoutOf(shapeIndex) - 1])[box]);
    if (InfoOf(shapeIndex).HasSpacing && box == 4) return "Spacing: " + name;
    const int element = box / 2 + 1;
    const int dimension = box % 2 + 1;
    return "Dimension " + std::to_string(dimension) + " of element " + std::to_string(element) +
           ": " + name;
}

} // namespace forcelab::sections
