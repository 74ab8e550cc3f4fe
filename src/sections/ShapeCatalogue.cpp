#include "sections/ShapeCatalogue.h"

namespace forcelab::sections {

namespace {

constexpr std::array<bool, kBoxes> BoxesOf(std::string_view shown)
{
    std::array<bool, kBoxes> boxes{};
    for (const char digit : shown) boxes[digit - '0'] = true;
    return boxes;
}

using Outline = std::array<Corners, kElements>;
using Marks = std::array<int, kElements>;

// Flanges and horizontal legs lie (1), webs, stems and vertical legs stand (0).
constexpr Marks kFlangeWebFlange{1, 0, 1, 0, 0, 0};
constexpr Marks kFlangeWeb{1, 0, 0, 0, 0, 0};
constexpr Marks kHatLie{1, 0, 1, 0, 1, 0};
constexpr Marks kTwoWebs{1, 0, 0, 1, 1, 1};
constexpr Marks kStiffened{1, 0, 0, 0, 0, 0};
constexpr Marks kAllLie{1, 1, 1, 1, 0, 0};

// Dimension lines: 1 beside the element, 2 of a web out to the margin, 3 of one of two webs,
// 4 of the stems and lips of a hat.
constexpr Marks kSingleWeb{1, 2, 1, 1, 1, 1};
constexpr Marks kDoubled{1, 3, 3, 1, 1, 1};
constexpr Marks kHatStyle{1, 4, 4, 4, 4, 1};
constexpr Marks kStiffenedStyle{1, 2, 3, 3, 1, 1};
constexpr Marks kPlain{1, 1, 1, 1, 1, 1};

constexpr Outline kFlangedOutline{{{-3, 3, 3, 5}, {-1, -1, 1, 3}, {-5, -3, 5, -1}}};
constexpr Outline kChannelOutline{{{-3, 3, 3, 5}, {-3, -3, -1, 3}, {-3, -5, 5, -3}}};
constexpr Outline kIOutline{{{-4, 3, 4, 5}, {-1, -3, 1, 3}, {-4, -5, 4, -3}}};
constexpr Outline kCOutline{{{-3, 3, 3, 5}, {-3, -3, -1, 3}, {-3, -5, 3, -3}}};
constexpr Outline kTOutline{{{-5, 3, 5, 5}, {-1, -5, 1, 3}}};
constexpr Outline kLOutline{{{-3, -5, 4, -3}, {-3, -3, -1, 5}}};
constexpr Outline kZOutline{{{-5, 3, 1, 5}, {-1, -3, 1, 3}, {-1, -5, 5, -3}}};
constexpr Outline kHatOutline{
    {{-3, 3, 3, 5}, {-3, -3, -1.5, 3}, {-5, -5, -1.5, -3}, {1.5, -3, 3, 3}, {1.5, -5, 5, -3}}};
constexpr Outline kDoubleIOutline{
    {{-5, 3, 5, 5}, {-2.5, -3, -1, 3}, {1, -3, 2.5, 3}, {-5, -5, 5, -3}}};
constexpr Outline kBackOutline{{{-5, 3, -1, 5},
                                {-2.5, -3, -1, 3},
                                {1, -3, 2.5, 3},
                                {1, 3, 5, 5},
                                {-5, -5, -1, -3},
                                {1, -5, 5, -3}}};
constexpr Outline kToeOutline{{{-5, 3, -1, 5},
                               {-5, -3, -3.5, 3},
                               {3.5, -3, 5, 3},
                               {1, 3, 5, 5},
                               {-5, -5, -1, -3},
                               {1, -5, 5, -3}}};
constexpr Outline kDoubleTOutline{{{-5, 3, 5, 5}, {-2.5, -5, -1, 3}, {1, -5, 2.5, 3}}};
constexpr Outline kDoubleLOutline{
    {{-5, 3, -1, 5}, {-2.5, -5, -1, 3}, {1, -5, 2.5, 3}, {1, 3, 5, 5}}};
constexpr Outline kDownOutline{
    {{-3.5, 3, 3.5, 5}, {-0.75, -5, 0.75, 3}, {-5, 0, -3.5, 5}, {3.5, 0, 5, 5}}};
constexpr Outline kUpOutline{
    {{-3.5, 0, 3.5, 2}, {-0.75, -5, 0.75, 0}, {-5, 0, -3.5, 5}, {3.5, 0, 5, 5}}};
constexpr Outline kRectangleOutline{{{-2, -5, 2, 5}}};
constexpr Outline kBoxOutline{{{-3, -5, 3, 5}, {-2, -4, 2, 4}}};
// Round shapes keep their half diameters in the heights alone; see BuildElements.
constexpr Outline kCircleOutline{{{0, -5, 0, 5}}};
constexpr Outline kPipeOutline{{{0, 5, 0, 5}, {0, 3.5, 0, 3.5}}};
constexpr Outline kSpecifiedOutline{{{0, 0, 4, 5}, {-4, -5, 0, 0}, {0, -5, 4, 0}, {-4, 0, 0, 5}}};

constexpr auto kFourBoxes = BoxesOf("0123");
constexpr auto kSixBoxes = BoxesOf("012345");
constexpr auto kWithGap = BoxesOf("01234");

// Menu, caption, title, last element, boxes, gap, composite, rotates, outline, styles, lies.
constexpr std::array<ShapeInfo, kShapes> kCatalogue{{
    {"mnuFlanged", "General &Flanged", "User-defined General Flanged Shape", 2, kSixBoxes, false,
     true, true, kFlangedOutline, kSingleWeb, kFlangeWebFlange},
    {"mnuFlanged", "General Cha&nnel", "User-defined General Channel Shape", 2, kSixBoxes, false,
     true, true, kChannelOutline, kSingleWeb, kFlangeWebFlange},
    {"mnuFlanged", "&I-Shape", "User-defined I Shape", 2, kFourBoxes, false, true, true, kIOutline,
     kSingleWeb, kFlangeWebFlange},
    {"mnuFlanged", "&C-Shape", "User-defined C Shape", 2, kFourBoxes, false, true, true, kCOutline,
     kSingleWeb, kFlangeWebFlange},
    {"mnuFlanged", "&T-Shape", "User-defined T Shape", 1, kFourBoxes, false, true, true, kTOutline,
     kSingleWeb, kFlangeWeb},
    {"mnuFlanged", "&L-Shape", "User-defined L Shape", 1, kFourBoxes, false, true, true, kLOutline,
     kSingleWeb, kFlangeWeb},
    {"mnuFlanged", "&Z-Shape", "User-defined Z Shape", 2, kFourBoxes, false, true, true, kZOutline,
     kSingleWeb, kFlangeWebFlange},
    {"mnuFlanged", "&Hat Shape", "User-defined Hat Shape", 4, kSixBoxes, false, true, true,
     kHatOutline, kHatStyle, kHatLie},
    {"mnuDouble", "Double &I-Shape", "User-defined Double I Shape", 3, BoxesOf("0123467"), true,
     true, true, kDoubleIOutline, kDoubled, kTwoWebs},
    {"mnuDouble", "Double C (&Back-to-back)", "User-defined Double C Shape (back-to-back)", 5,
     kWithGap, true, true, true, kBackOutline, kDoubled, kTwoWebs},
    {"mnuDouble", "Double C (&Toe-to-toe)", "User-defined Double C Shape (toe-to-toe)", 5, kWithGap,
     true, true, true, kToeOutline, kDoubled, kTwoWebs},
    {"mnuDouble", "Double &T-Shape", "User-defined Double T Shape", 2, kWithGap, true, true, true,
     kDoubleTOutline, kDoubled, kTwoWebs},
    {"mnuDouble", "Double &L-Shape", "User-defined Double L Shape", 3, kWithGap, true, true, true,
     kDoubleLOutline, kDoubled, kTwoWebs},
    {"mnuStiffT", "Stiffened T (&Down)", "Stiffened T Shape (Stiffeners Down)", 3, kSixBoxes, false,
     true, true, kDownOutline, kStiffenedStyle, kStiffened},
    {"mnuStiffT", "Stiffened T (&Up)", "Stiffened T Shape (Stiffeners Up)", 3, kSixBoxes, false,
     true, true, kUpOutline, kStiffenedStyle, kStiffened},
    {"mnuRectangular", "&Rectangle", "User-defined Rectangle Shape", 0, BoxesOf("01"), false, false,
     true, kRectangleOutline, kPlain, kAllLie},
    {"mnuRectangular", "&Box Shape", "User-defined Box Shape", 1, kFourBoxes, false, true, true,
     kBoxOutline, kPlain, kAllLie},
    {"mnuCircular", "&Circle", "User-defined Circle Shape", 0, BoxesOf("0"), false, false, false,
     kCircleOutline, kPlain, kAllLie},
    {"mnuCircular", "Cylinder (&Pipe/Tube)", "User-defined Pipe Shape", 1, BoxesOf("01"), false,
     false, false, kPipeOutline, kPlain, kAllLie},
    {"mnuAISC", "Flange Shapes (&W)", "", 2, kFourBoxes, false, false, true, kIOutline, kSingleWeb,
     kFlangeWebFlange},
    {"mnuAISC", "Channel Shapes (&C)", "", 2, kFourBoxes, false, false, true, kCOutline, kSingleWeb,
     kFlangeWebFlange},
    {"mnuAISC", "Tee Shapes (W&T)", "", 1, kFourBoxes, false, false, true, kTOutline, kSingleWeb,
     kFlangeWeb},
    {"mnuAISC", "Angle Shapes (&L)", "", 1, kFourBoxes, false, false, true, kLOutline, kSingleWeb,
     kFlangeWeb},
    {"mnuAISC", "Double Angle Shapes (&2L)", "", 3, kWithGap, true, false, true, kDoubleLOutline,
     kDoubled, kTwoWebs},
    {"mnuAISC", "Structural Tube Shapes (T&S)", "", 1, kFourBoxes, false, false, true, kBoxOutline,
     kPlain, kAllLie},
    {"mnuAISC", "&Pipe", "", 1, BoxesOf("01"), false, false, false, kPipeOutline, kPlain, kAllLie},
    {"mnuOtherShapes", "&Specified Properties", "Unspecified Shape with User-Defined Properties", 3,
     BoxesOf("0123456"), false, false, false, kSpecifiedOutline, kPlain, kAllLie},
}};

} // namespace

const ShapeInfo& InfoOf(int shapeIndex)
{
    static constexpr ShapeInfo kNothing{};
    const bool known = shapeIndex >= 1 && shapeIndex <= kShapes;
    return known ? kCatalogue[shapeIndex - 1] : kNothing;
}

int LayoutOf(int shapeIndex)
{
    constexpr std::array<int, 7> kSteelLayouts{kIShape,  kCShape, kTShape, kLShape,
                                               kDoubleL, kBox,    kPipe};
    return IsSteel(shapeIndex) ? kSteelLayouts[shapeIndex - kSteelW] : shapeIndex;
}

void TakeShape(CrossSection& section, int shapeIndex)
{
    const ShapeInfo& info = InfoOf(shapeIndex);
    section.ShapeIndex = shapeIndex;
    section.LastElement = info.LastElement;
    for (int k = 0; k < kElements; ++k) section.Shown[k] = k <= info.LastElement;
    section.ElementCorners = info.Outline;
    section.ElementStyle = info.Style;
    section.ElementLie = info.Lie;
}

} // namespace forcelab::sections
