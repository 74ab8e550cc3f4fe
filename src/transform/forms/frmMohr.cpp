#include "transform/forms/frmMohr.h"

#include "core/MainModule.h"
#include "core/Materials.h"
#include "core/Modulus.h"
#include "core/NumericText.h"
#include "core/Units.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/NarrationBox.h"
#include "core/screen/Services.h"
#include "transform/MohrDrawing.h"
#include "transform/MohrNarration.h"
#include "transform/Rosette.h"
#include "transform/forms/frmFailure.h"

#include <algorithm>

namespace forcelab::transform {

using screen::Forms;

namespace {

constexpr int kHelpTopic = 3000;
constexpr int kDegrees = 1;           // unit of AngleFactor
constexpr double kScrollStep = 0.005; // degrees of one position of vsbRotater
constexpr int kBeams = 4000;          // this caller opens the form without a state
constexpr std::string_view kDegreeMask = "##0.0#####";

/// Who opened the form and gets the screen back.
struct Caller {
    int Code;
    const char* Form;
};
constexpr std::array<Caller, 5> kCallers{{{1, "frmMainMenu"},
                                          {kBeams, "frmBeamStuf"},
                                          {4500, "frmDetails"},
                                          {5000, "frmPower"},
                                          {6000, "frmProperties"}}};

const char* CallerForm()
{
    for (const Caller& caller : kCallers)
        if (caller.Code == MainModule::MohrCaller && Forms::IsKnown(caller.Form))
            return caller.Form;
    return kCallers.front().Form;
}

} // namespace

frmMohr::frmMohr()
{
    BuildMenus();
    ConnectInputs();
    ConnectStresses();
    ConnectRotation();
    ConnectPictures();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    resize(std::min(1240, desk.width()), std::min(860, desk.height()));
}

void frmMohr::Form_Load()
{
    MainModule::MohrInputKind = 1;
    CurrentStress = {};
    const QSignalBlocker filling(cboElasticModulus);
    screen::FillMaterialList(*cboElasticModulus);
    txtElasticModulus->SetText(Format(0, "0.0"));
    txtRotater->SetText(Format(0, kDegreeMask));
    analyses_.front()->setChecked(true);
    MohrSetupOptions(MohrMode::PlaneStress);
    txtStress(0).SetFocus();
}

// The main menu opens the form as it was left, with the circle that it still shows.
void frmMohr::Form_Activate()
{
    if (CurrentHandOver.Pending) {
        CurrentHandOver.Pending = false;
        const MohrEntry entry = EntryOf(CurrentHandOver);
        ResetMohrMenu(entry.Mode);
        if (MainModule::MohrCaller == kBeams) return;
        FillFrom(entry);
        cmdMohr_Click(0);
    } else if (CurrentStress.CircleRadius > 0) {
        MainModule::MohrInputKind = 0;
    }
}

void frmMohr::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmMohr::mnuBack_Click()
{
    Forms::Show(CallerForm());
    Forms::Hide("frmMohr");
}

void frmMohr::mnuNew_Click()
{
    CurrentHandOver = {};
    Forms::Unload("frmMohr");
    Forms::Show("frmMohr");
}

void frmMohr::mnuAnalysis_Click(MohrMode mode)
{
    if (mode != mode_) MohrSetupOptions(mode);
}

void frmMohr::mnuFailure_Click()
{
    const FailureInput input = FailureInputOf(CurrentStress, shown_);
    screen::FormAs<frmFailure>("frmFailure").TakeState(input);
    Forms::ShowModal("frmFailure");
}

void frmMohr::mnuHelp_Click()
{
    MainModule::HelpContext = kHelpTopic;
    screen::ShowHelpTopic();
}

void frmMohr::cmdMohr_Click(int Index)
{
    if (Index == 3) return Clear();
    MohrEntry entry = ReadEntry();
    StressState state = CurrentStress;
    const auto refusal = ComputeMohr(state, entry);
    callerLinkUsed_ = callerLinkUsed_ || Index == 1;
    MainModule::MohrInputKind = 0;
    WriteBack(entry);
    if (refusal) return Show(*refusal);
    TakeUp(state, entry);
    if (Index == 1) ToggleDetails();
}

void frmMohr::ToggleDetails()
{
    const bool show = txtDetails->isHidden();
    if (show) screen::ShowNarration(*txtDetails, ExplainMohr(CurrentStress, shown_));
    ShowDetails(show);
}

void frmMohr::txtStress_KeyPress(int Index)
{
    if (Index < 2) return txtStress(Index + 1).SetFocus();
    cmdMohr(0).setFocus(Qt::TabFocusReason);
    cmdMohr_Click(0);
}

void frmMohr::chkRosette_Click()
{
    ShowStressFrame(IsRosette(mode_) && chkRosette->Value());
    ShowAgain();
}

void frmMohr::optElasticModulus_Click(int Index)
{
    txtElasticModulus->SetText(ConvertModulusText(txtElasticModulus->Text(), modulusUnit_, Index));
    modulusUnit_ = Index;
    ShowAgain();
}

void frmMohr::cboElasticModulus_Click(int ListIndex)
{
    if (ListIndex < 0) return;
    txtElasticModulus->SetText(MaterialModulusText(ListIndex, modulusUnit_));
    Describe(*txtPoisson, "Poisson's ratio",
             std::string(MaterialNames()[ListIndex]) + ": " +
                 Format(MaterialConstants[ListIndex][kPoisson], "0.0##"));
    ShowAgain();
}

void frmMohr::cmdRotater_click()
{
    const double degrees = RotationFromText(txtRotater->Text());
    TurnTo(degrees, Format(degrees, kDegreeMask));
}

void frmMohr::cmdRotaterNull_Click()
{
    TurnTo(0, Format(0, kDegreeMask));
}

void frmMohr::vsbRotater_Change()
{
    const double degrees = vsbRotater->value() * kScrollStep;
    TurnTo(degrees, Format(degrees, kDegreeMask));
}

void frmMohr::picXprime_MouseUp(const screen::MouseAction& mouse)
{
    if (mouse.Button != screen::kLeftButton) return;
    txtRotater->SetText(RotationFromClick(mouse.X, mouse.Y));
    cmdRotater_click();
}

// Everything that names the angle follows; the scroll bar stands at the last whole
// position before it.
void frmMohr::TurnTo(double degrees, const std::string& shownAs)
{
    StressState turned = CurrentStress;
    turned.RotationAngle = degrees * AngleFactor(kDegrees);
    TakeUp(turned, shown_);
    txtRotater->SetText(shownAs);
    const QSignalBlocker quiet(vsbRotater);
    const int position = static_cast<int>(degrees / kScrollStep);
    if (vsbRotater->value() != position) vsbRotater->setValue(position);
}

void frmMohr::picMohr_Paint(Picture& pic)
{
    const bool nothing = NothingToDraw();
    mnuFailure->setEnabled(!nothing && mode_ == MohrMode::PlaneStress);
    if (nothing) return pic.Cls();
    DrawMohrCircle(pic, CurrentStress, shown_);
}

void frmMohr::picPrincipal_Paint(Picture& pic)
{
    if (NothingToDraw()) return pic.Cls();
    DrawPrincipalElement(pic, CurrentStress, shown_);
}

void frmMohr::picMaxShear_Paint(Picture& pic)
{
    if (NothingToDraw()) return pic.Cls();
    DrawMaxShearElement(pic, CurrentStress, shown_);
}

void frmMohr::picRotater_Paint(Picture& pic)
{
    if (NothingToDraw()) return pic.Cls();
    DrawRotatedElement(pic, CurrentStress, shown_);
}

void frmMohr::picXprime_Paint(Picture& pic)
{
    DrawRotationAngle(pic, CurrentStress, mode_);
}

// Another module hands its state over: the analysis is its own, and nothing is computed yet.
void frmMohr::ResetMohrMenu(MohrMode mode)
{
    analyses_[static_cast<int>(mode)]->setChecked(true);
    Clear();
    MohrSetupOptions(mode);
}

void frmMohr::MohrSetupOptions(MohrMode mode)
{
    mode_ = mode;
    SetupLabels(mode);
    picSignConvention->Refresh();
    ForgetResults();
}

void frmMohr::Clear()
{
    for (const auto& [row, box] : txtStress.Members()) {
        box->clear();
        optSigX.Choose(2 * row);
    }
    ForgetResults();
    cmdRotaterNull_Click();
}

void frmMohr::ForgetResults()
{
    MainModule::MohrInputKind = 1;
    const double angle = CurrentStress.RotationAngle;
    CurrentStress = {};
    CurrentStress.Mode = mode_;
    CurrentStress.RotationAngle = angle;
    shown_ = {};
    shown_.Mode = mode_;
    for (const auto& [row, label] : lblRotatedValue.Members()) label->clear();
    for (const auto& [row, label] : lblStressFromStrains.Members()) label->clear();
    txtDetails->clear();
    ShowDetails(false);
    RepaintPictures();
}

void frmMohr::FillFrom(const MohrEntry& entry)
{
    WriteBack(entry);
    for (int row = 0; row < 3; ++row) optSigX.Choose(2 * row + (entry.Negative[row] ? 1 : 0));
    optStressUnits.Choose(entry.Unit);
}

void frmMohr::WriteBack(const MohrEntry& entry)
{
    for (int row = 0; row < 3; ++row) txtStress(row).SetText(entry.Text[row]);
}

MohrEntry frmMohr::ReadEntry() const
{
    MohrEntry entry;
    entry.Mode = mode_;
    for (int row = 0; row < 3; ++row) {
        entry.Text[row] = txtStress(row).Text();
        entry.Negative[row] = optSigX(2 * row + 1).Value();
    }
    const ModeLabels& labels = LabelsOf(mode_);
    entry.Unit = optStressUnits.Chosen(labels.FirstUnit);
    entry.ShowAbsMaxShear = !labels.AbsMaxShear.empty() && chkAbsMaxShear->Value();
    entry.Stresses = ReadStresses();
    return entry;
}

StrainToStress frmMohr::ReadStresses() const
{
    return {IsRosette(mode_) && chkRosette->Value(),
            optStressOrStrain.Chosen(),
            txtElasticModulus->Text(),
            optElasticModulus.Chosen(),
            txtPoisson->Text(),
            optUnitsStress.Chosen()};
}

bool frmMohr::NothingToDraw() const
{
    return MainModule::MohrInputKind == 1 || CurrentStress.CircleRadius == 0 ||
           CurrentStress.CircleBad;
}

// Works everything out before anything changes, so that a fault leaves all as it was.
void frmMohr::TakeUp(StressState state, const MohrEntry& entry)
{
    if (state.CircleRadius > 0) {
        const auto rotated = RotatedTexts(state, entry);
        const auto stresses = entry.Stresses.Wanted ? PrincipalStressesFromStrains(state, entry)
                                                    : std::array<std::string, 3>{};
        const std::string details = txtDetails->isHidden() ? "" : ExplainMohr(state, entry);
        for (int row = 0; row < 3; ++row) lblRotatedValue(row).SetCaption(rotated[row]);
        lblStressFromStrains(1).SetCaption(stresses[0]);
        lblStressFromStrains(2).SetCaption(stresses[1]);
        lblStressFromStrains(4).SetCaption(stresses[2]);
        screen::ShowNarration(*txtDetails, details);
    }
    CurrentStress = state;
    shown_ = entry;
    RepaintPictures();
}

// A unit or a view has changed: the same state is shown anew, whatever the boxes say meanwhile.
void frmMohr::ShowAgain()
{
    if (NothingToDraw()) return;
    MohrEntry entry = ReadEntry();
    entry.Text = shown_.Text;
    entry.Negative = shown_.Negative;
    StressState state = CurrentStress;
    CalculateCircle(state, entry);
    TakeUp(state, entry);
}

void frmMohr::RepaintPictures()
{
    picMohr->PaintNow(); // it decides whether the theories of failure can be asked
    for (screen::PictureBox* picture : {picPrincipal, picMaxShear, picRotater, picXprime})
        picture->Refresh();
}

} // namespace forcelab::transform
