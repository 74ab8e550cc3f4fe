#pragma once

#include "sections/SectionRecord.h"

#include <array>
#include <string>
#include <string_view>

namespace forcelab::sections {

/// The shapes by their index.
enum Shape : int {
    kNoShape = 0,
    kGeneralFlanged = 1,
    kGeneralChannel = 2,
    kIShape = 3,
    kCShape = 4,
    kTShape = 5,
    kLShape = 6,
    kZShape = 7,
    kHat = 8,
    kDoubleI = 9,
    kDoubleCBack = 10,
    kDoubleCToe = 11,
    kDoubleT = 12,
    kDoubleL = 13,
    kStiffenedTDown = 14,
    kStiffenedTUp = 15,
    kRectangle = 16,
    kBox = 17,
    kCircle = 18,
    kPipe = 19,
    kSteelW = 20,
    kSteelC = 21,
    kSteelWT = 22,
    kSteelL = 23,
    kSteel2L = 24,
    kSteelTS = 25,
    kSteelPipe = 26,
    kSpecified = 27,
};
inline constexpr int kShapes = 27;

/// What the catalogue says of a shape.
struct ShapeInfo {
    std::string_view Menu;    ///< name of the menu that holds it: "mnuFlanged"
    std::string_view Caption; ///< of its menu item
    std::string_view Title;   ///< of lblShapeTitle; steel shapes take theirs from the family
    int LastElement;
    std::array<bool, kBoxes> Box; ///< which dimension boxes it shows
    bool HasSpacing;              ///< box 4 is the gap, no dimension of an element
    bool MayBeComposite;
    bool MayRotate;
    std::array<Corners, kElements> Outline; ///< on a 10-unit field, before any number is typed
    std::array<int, kElements> Style;
    std::array<int, kElements> Lie;
};

/// The shape with this index, 1 to 27; any other index has no boxes and no title.
const ShapeInfo& InfoOf(int shapeIndex);
constexpr bool IsSteel(int shapeIndex)
{
    return shapeIndex >= kSteelW && shapeIndex <= kSteelPipe;
}
/// The user shape with the same outline as a steel shape; any other shape is its own.
int LayoutOf(int shapeIndex);
/// Makes a shape the section's own as the catalogue has it: its elements with the default outline,
/// styles and lies. Dimensions, moduli and results stay.
void TakeShape(CrossSection& section, int shapeIndex);

/// What is kept of a shape while another one is current, by shape index. Texts of the boxes,
/// corners, lies, styles, colours, moduli, units, captions of the materials.
struct KeptShape {
    bool Kept = false;
    CrossSection Section;
    std::array<std::string, kBoxes> Box;
    std::array<std::string, 3> Modulus;
    std::array<std::string, 2> Material;
    int LengthUnit = 0;
};

} // namespace forcelab::sections
