#include "core/MainModule.h"
#include "truss/TrussEditor.h"

#include <algorithm>
#include <array>

namespace forcelab::truss {

namespace {

struct Instruction {
    int Mode;
    ChangedBy By;
    std::array<std::string_view, 3> Pieces;
};

// A mode that stands only once here reads the same after both groups.
constexpr std::array<Instruction, 7> kInstructions{{
    {kCreateMembers,
     ChangedBy::Define,
     {"To define a truss member, click on the desired starting grid point with the left mouse "
      "button and drag to the desired ending grid point.",
      "Remember, truss members can only be connected and loaded at their end points."}},
    {kCreateSupports,
     ChangedBy::Define,
     {"Click on the supported truss joint with the left mouse button and drag in either the X- or "
      "Y-direction.",
      "A statically determinate truss requires three support conditions.  Usually one joint is "
      "pinned while a second joint is supported with a roller."}},
    {kCreateSupports,
     ChangedBy::MakeOrTake,
     {"To define a support, click on the desired truss joint with the left mouse button and drag "
      "in either the X- or Y-direction.",
      "A statically determinate truss requires three support conditions.",
      "Usually one joint will be supported in both the X- and Y-directions while a second joint is "
      "supported in either the X- or Y-direction."}},
    {kCreateLoads,
     ChangedBy::Define,
     {"To specify a load, click on the desired truss joint with the left mouse button and drag "
      "either up, down, left, or right.",
      "After releasing the mouse button, a box will appear in which the force magnitude is "
      "entered."}},
    {kEraseMembers, ChangedBy::Define, {"Using the mouse, trace over the member to be removed."}},
    {kEraseSupports,
     ChangedBy::Define,
     {"Using the left mouse button, click at the desired joint and drag in the direction for which "
      "the support is to be removed."}},
    {kEraseLoads,
     ChangedBy::Define,
     {"Using the left mouse button, click at the desired joint and drag in the direction of the "
      "load to be removed."}},
}};

const Instruction* Find(int mode, ChangedBy by)
{
    const auto found =
        std::find_if(kInstructions.begin(), kInstructions.end(),
                     [=](const Instruction& row) { return row.Mode == mode && row.By == by; });
    return found == kInstructions.end() ? nullptr : &*found;
}

} // namespace

std::string WelcomeText()
{
    return "A grid of points will be defined to control layout of the truss members, supports, and "
           "loads." +
           MainModule::CrLf + "Click the &New Truss button to begin.";
}

std::string InstructionText(int mode, ChangedBy by)
{
    const Instruction* row = Find(mode, by);
    if (!row) row = Find(mode, ChangedBy::Define);
    std::string text;
    if (!row) return text;
    for (const std::string_view piece : row->Pieces) {
        if (piece.empty()) continue;
        if (!text.empty()) text += MainModule::CrLf + MainModule::CrLf;
        text += piece;
    }
    return text;
}

} // namespace forcelab::truss
