#include "beams/forms/frmDetails.h"

#include "beams/AllowableForces.h"
#include "beams/DiagramRequest.h"
#include "beams/KeyStresses.h"
#include "beams/StressDrawing.h"
#include "core/MainModule.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/Services.h"

namespace forcelab::beams {

using screen::Forms;

namespace {

constexpr const char* kBeamForm = "frmBeamStuf";
constexpr int kEndButton = 3;
constexpr int kMohrCaller = 4500;
constexpr int kHelpTopic = 4000;

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : "\n") + line;
    return text;
}

} // namespace

frmDetails::frmDetails()
{
    BuildMenus();
    ConnectPoint();
    ConnectForces();
    ConnectCoordinates();
    ConnectPictures();
}

void frmDetails::Form_Load()
{
    for (const auto& [index, box] : txtVM.Members()) box->SetText(Format(0, "0.00"));
    WriteCoords();
    CloseView();
    ShowStressPart(false);
    OnPointForDetails = [this] { Guard([this] { ShowPoint(); }); };
    ShowPoint();
    FitWindow();
    move(screen::Services::Current().Screen->WorkArea().topLeft());
}

void frmDetails::Form_Activate()
{
    if (!beamFormPlace_ && Forms::IsVisible(kBeamForm))
        beamFormPlace_ = Forms::Load(kBeamForm)->pos();
    ShowPoint();
    SetupDetailsForm();
}

void frmDetails::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    End();
}

void frmDetails::Form_Unload()
{
    OnPointForDetails = nullptr;
}

// What stood there belongs to another x.
void frmDetails::txtSpecificPoint_Change()
{
    CurrentPoint.XText = txtSpecificPoint->Text();
    ClearPoint(CurrentPoint);
    TellPointChanged();
}

void frmDetails::cmdSpecificPoint_click()
{
    taken_.reset(); // whoever asks for the values wants the forces, too
    CurrentPoint.XText = txtSpecificPoint->Text();
    CalculatePoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    TellPointChanged();
}

void frmDetails::ShowPoint()
{
    const PointCaptions captions = CaptionsOfPoint(CurrentPoint.SlopeView, ShownDiagramUnits);
    fraPoint->SetCaption(captions.Frame);
    SetPointButton(captions.Button);
    lblSpecificPoint->SetCaption("x " + captions.Length);
    if (txtSpecificPoint->Text() != CurrentPoint.XText)
        txtSpecificPoint->SetText(CurrentPoint.XText);
    for (int i = 0; i < 2; ++i) {
        const std::string& finer = CurrentPoint.Finer[std::size_t(i)];
        lblPointName(i).SetCaption(captions.Names[std::size_t(i)]);
        lblPointValue(i).SetCaption(CurrentPoint.Texts[std::size_t(i)]);
        lblPointUnit(i).SetCaption(captions.Units[std::size_t(i)]);
        lblPointFiner(i).SetCaption(finer.empty() ? "" : "= " + finer);
    }
    TakeForces();
}

// Only what is new comes over, so that a force which was typed since then stays.
void frmDetails::TakeForces()
{
    const auto forces = ForcesOfPoint(CurrentPoint, CurrentBeam, ShownDiagramUnits);
    const std::array units{ShownDiagramUnits.Force, ShownDiagramUnits.Moment};
    const bool isNew = forces && (forces != taken_ || units != takenUnits_);
    taken_ = forces;
    takenUnits_ = units;
    if (!isNew) return;
    txtVM(1).SetText((*forces)[0]);
    txtVM(2).SetText((*forces)[1]);
    optForceUnits.Choose(units[0]);
    optMomentUnits.Choose(units[1]);
    FollowQuietly();
}

void frmDetails::cmdVM_click(int Index)
{
    if (Index == kEndButton) return End();
    Follow();
    WriteCoords();
    const int view = Index + 1;
    if (const auto refusal = CheckForces(details_, view)) return Show(*refusal);
    if (view == kPointView) return OpenMohr();
    OpenView(view);
}

// The point keeps its place in the section.
void frmDetails::optShapeUnits_Click()
{
    WriteCoords();
    Follow();
    WriteCoords();
}

// A number beyond the section shows where the point went. One that cannot be read stays, and the
// next button tells.
void frmDetails::txtCoord_LostFocus()
{
    try {
        static_cast<void>(Read());
    } catch (const ArithmeticFault&) {
        return;
    }
    WriteCoords();
}

void frmDetails::hsbZ_Change()
{
    MoveTo(barZ_.CoordinateAt(hsbZ->value()), -details_.PointY);
}

void frmDetails::vsbY_Change()
{
    MoveTo(details_.PointZ, -barY_.CoordinateAt(vsbY->value()));
}

void frmDetails::picST_Paint(int Index, Picture& pic)
{
    StressDetails shown = details_;
    shown.KeyStressView = pictures_; // Mohr's circle takes no hatching away
    pic.Cls();
    if (!HasStressSection(section_)) return;
    DrawStressPicture(pic, Index, section_, shown);
}

void frmDetails::picST_Mouse(const screen::MouseAction& mouse)
{
    if ((mouse.Button & screen::kLeftButton) == 0) return;
    const PicturePoint at =
        PointOfPicture(picST(0).Sheet(), section_, details_, {mouse.X, mouse.Y});
    MoveTo(Finite(at.X), Finite(at.Y));
}

void frmDetails::mnuBack_Click()
{
    End();
}

void frmDetails::mnuAllowable_Click()
{
    MainModule::SectionCaller = 1;
    Forms::ShowModal("frmAllowable");
    FollowQuietly();
}

void frmDetails::mnuHelp_Click()
{
    MainModule::HelpContext = kHelpTopic;
    screen::ShowHelpTopic();
}

void frmDetails::SetupDetailsForm()
{
    const bool hasSection = HasStressSection(sections::CurrentSection);
    const bool appears = hasSection != StressPartShown();
    picST(0).setVisible(hasSection);
    if (appears) ShowStressPart(hasSection);
    if (!hasSection)
        CloseView();
    else if (appears || !IsSameSection(section_, sections::CurrentSection))
        TakeSection();
    else
        FollowQuietly(); // the limits may be others
    if (appears) FitWindow();
}

void frmDetails::TakeSection()
{
    section_ = sections::CurrentSection;
    CloseView();
    WriteCoords();
    try {
        TakeUp(Read());
    } catch (const ArithmeticFault&) {
        for (const auto& [index, box] : txtVM.Members()) box->SetText(Format(0, "0.00"));
        TakeUp(Read());
    }
    WriteCoords();
}

void frmDetails::OpenView(int view)
{
    StressDetails viewed = details_;
    viewed.KeyStressView = view;
    const std::string text = KeyText(viewed);
    details_ = viewed;
    wanted_.KeyStresses = view;
    if (view != kPointView) wanted_.Pictures = pictures_ = view;
    ShowView(text);
}

void frmDetails::CloseView()
{
    wanted_ = {};
    HideView();
}

void frmDetails::HideView()
{
    pictures_ = details_.KeyStressView = kNoKeyStresses;
    ShowView("");
}

void frmDetails::OpenMohr()
{
    const transform::MohrHandOver state = HandOverToMohr(section_, details_);
    OpenView(kPointView);
    MainModule::MohrCaller = kMohrCaller;
    transform::CurrentHandOver = state;
    Forms::Show("frmMohr");
}

void frmDetails::End()
{
    CloseView();
    picST(0).hide();
    Forms::Show(kBeamForm);
    if (beamFormPlace_ && Forms::IsLoaded(kBeamForm)) Forms::Load(kBeamForm)->move(*beamFormPlace_);
    beamFormPlace_.reset();
    if (MainModule::MohrCaller == kMohrCaller) Forms::Hide("frmMohr");
    Forms::Hide("frmDetails");
}

StressDetails frmDetails::Read() const
{
    if (!HasStressSection(section_)) return details_;
    DetailsEntry entry;
    for (const auto& [index, box] : txtVM.Members()) entry.VM[std::size_t(index)] = box->Text();
    for (const auto& [index, box] : txtCoord.Members())
        entry.Coord[std::size_t(index)] = box->Text();
    entry.ForceUnitIndex = optForceUnits.Chosen();
    entry.MomentUnitIndex = optMomentUnits.Chosen();
    entry.StressUnitIndex = optStressUnits.Chosen();
    entry.ShapeUnitIndex = optShapeUnits.Chosen();
    return ReadDetailsAgain(section_, entry, details_);
}

// Stresses that no longer belong to what the boxes say must not stand.
void frmDetails::Follow()
{
    try {
        TakeUp(Read());
    } catch (const ArithmeticFault&) {
        HideView();
        throw;
    }
}

// While a person types, what cannot be read needs no message; the buttons give it.
void frmDetails::FollowQuietly()
{
    try {
        Follow();
    } catch (const ArithmeticFault&) {
        return;
    }
}

// A view without its force waits for it.
void frmDetails::TakeUp(StressDetails read)
{
    if (!HasStressSection(section_)) return;
    const bool waits = wanted_.Pictures != kNoKeyStresses && CheckForces(read, wanted_.Pictures);
    const View view = waits ? View{} : wanted_;
    read.KeyStressView = view.KeyStresses;
    const std::string text = KeyText(read);
    details_ = read;
    pictures_ = view.Pictures;
    ShowBars();
    ShowView(text);
}

void frmDetails::MoveTo(double z, double y)
{
    StressDetails moved = details_;
    MovePoint(moved, z, y);
    TakeUp(moved);
    WriteCoords();
}

std::string frmDetails::KeyText(const StressDetails& details) const
{
    if (details.KeyStressView == kNoKeyStresses) return "";
    std::string text = Joined(KeyStressLines(section_, details));
    if (details.KeyStressView == kNormalView && CurrentLimits.AllowableSet) {
        const AllowableForces forces = AllowableForcesOf(section_, CurrentLimits, details);
        text += "\n\n" + Joined(AllowableLines(forces, details));
    }
    return text;
}

void frmDetails::ShowView(const std::string& keyText)
{
    ArrangePictures(pictures_, details_.KeyStressView != kNoKeyStresses);
    lblQnote->setVisible(pictures_ == kShearView && ShearLawOf(section_) == ShearLaw::ByElements);
    lblKeyStresses->SetCaption(KeyStressNotes[std::size_t(details_.KeyStressView)]);
    const QString text = screen::Q(keyText);
    if (txtKeyStresses(0).toPlainText() != text) txtKeyStresses(0).setPlainText(text);
    RepaintPictures();
}

void frmDetails::WriteCoords()
{
    const auto texts = CoordTexts(details_);
    for (const auto& [index, box] : txtCoord.Members()) box->SetText(texts[std::size_t(index)]);
}

void frmDetails::ShowBars()
{
    const SectionBounds& b = details_.Bounds;
    barZ_ = CoordinateBarOf(b.SectionLeft, b.SectionRight);
    barY_ = CoordinateBarOf(-b.SectionTop, -b.SectionBottom);
    const QSignalBlocker quietZ(hsbZ);
    const QSignalBlocker quietY(vsbY);
    hsbZ->setRange(barZ_.First, barZ_.Last);
    vsbY->setRange(barY_.First, barY_.Last);
    hsbZ->setValue(barZ_.PlaceOf(details_.PointZ));
    vsbY->setValue(barY_.PlaceOf(details_.PointY));
}

void frmDetails::RepaintPictures()
{
    for (const auto& [index, picture] : picST.Members()) picture->Refresh();
}

} // namespace forcelab::beams
