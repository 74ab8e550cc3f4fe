#include "beams/DiagramRequest.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "core/screen/Forms.h"

namespace forcelab::beams {

namespace {

constexpr int kEnteredByHand = 4000; // values of DiagramEntry
constexpr int kExample = 1;
constexpr std::string_view kSignHint = "Double click to change sign convention";
constexpr std::string_view kNoHint = "Point at the diagrams: a click explains what lies there.";

} // namespace

void frmBeamDiagrams::ShowHint(screen::PictureBox& picture, std::string_view hint)
{
    picture.setToolTip(screen::Q(hint));
    lblHint->SetCaption(hint.empty() && HasLoads() ? kNoHint : hint);
}

void frmBeamDiagrams::picLoadDiagram_MouseMove(const screen::MouseAction& mouse)
{
    hover_ =
        HoverAt(areas_, {mouse.X, mouse.Y}, CurrentBeam, ShownDiagramUnits, CurrentPoint.SlopeView);
    ShowHint(*picLoadDiagram, hover_.Hint);
}

void frmBeamDiagrams::picLoadDiagram_MouseUp(const screen::MouseAction& mouse)
{
    picLoadDiagram_MouseMove(mouse);
    switch (hover_.HoverCode) {
    case kOverBeam:
        return ClickOnBeam(mouse.X);
    case kOverLoad:
        return ClickOnLoad(mouse.Button);
    case kOverReactionA:
    case kOverReactionB:
        return cboReactions_Click();
    default:
        return;
    }
}

void frmBeamDiagrams::ClickOnBeam(double x)
{
    CurrentPoint.XText = PointClickText(x, ShownDiagramUnits);
    cmdSpecificPoint_click();
}

void frmBeamDiagrams::ClickOnLoad(int button)
{
    const int row = int(areas_.HotSpots[std::size_t(hover_.HoverRow)][kSpotLoad]);
    const int entry = CurrentBeam.DiagramEntry;
    if (button != screen::kRightButton || entry == kExample) return cboLoads_Click(row - 1);
    if (entry == kEnteredByHand && row != 0) EditLoad(row);
}

void frmBeamDiagrams::EditLoad(int row)
{
    CurrentBeam.CurrentLoad = row;
    EditWanted = true;
    screen::Forms::Show("frmBeamStuf");
}

void frmBeamDiagrams::picLoadDiagram_DblClick(const screen::MouseAction& mouse)
{
    if (mouse.Button == screen::kLeftButton && !EntryFrameOpen && CurrentBeam.LoadCount > 0)
        mnuSpecificPoint_Click();
}

bool frmBeamDiagrams::IsOverSignSketch(const screen::MouseAction& mouse) const
{
    const PicturePoint at = picShearDiagram->Sheet().ToPixels({mouse.X, mouse.Y});
    const SignSketchBox& box = kSignSketch;
    return HasBeam() && at.X >= box.Left && at.X <= box.Left + box.Width && at.Y >= box.Top &&
           at.Y <= box.Top + box.Height;
}

std::string frmBeamDiagrams::ShearHint(const screen::MouseAction& mouse) const
{
    if (IsOverSignSketch(mouse)) return std::string(kSignHint);
    const CurveFrame& frame = frames_[std::size_t(Diagram::Shear)];
    if (frame.ValueScale == 0) return "";
    return std::string(ShearHintAt(CurrentBeam, curves_, mouse.X, frame.ValueAt(mouse.Y)));
}

void frmBeamDiagrams::picShearDiagram_MouseMove(const screen::MouseAction& mouse)
{
    ShowHint(*picShearDiagram, ShearHint(mouse));
}

void frmBeamDiagrams::picShearDiagram_MouseUp(const screen::MouseAction& mouse)
{
    if (IsOverSignSketch(mouse) || ShearHint(mouse).empty()) return;
    ExplainPiece(mouse.X);
}

void frmBeamDiagrams::imgReverseShear_DblClick(const screen::MouseAction& mouse)
{
    if (IsOverSignSketch(mouse)) mnuShearSignConvention_Click();
}

} // namespace forcelab::beams
