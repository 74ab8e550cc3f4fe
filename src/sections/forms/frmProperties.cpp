#include "sections/forms/frmProperties.h"

#include "core/DrawingHelpers.h"
#include "core/MainModule.h"
#include "core/Units.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/Services.h"
#include "sections/SectionCalculation.h"
#include "transform/StressState.h"

#include <QLayout>

#include <algorithm>
#include <utility>

namespace forcelab::sections {

using screen::Forms;

namespace {

constexpr int kHelpTopic = 6000;
constexpr int kMohrCaller = 6000;
constexpr int kMillimetres = 1;         // of optShapeUnits
constexpr int kInertiaUnits[] = {6, 7}; // of frmMohr, by optShapeUnits: in^4, mm^4
constexpr const char* kReport = "frmCrossSection";
constexpr double kTurns[] = {0, kPi / 2, kPi, 3 * kPi / 2}; // by optShapeRotate

/// Who opened the form and gets the screen back.
struct Caller {
    int Code;
    const char* Form;
};
constexpr std::array<Caller, 4> kCallers{
    {{3, "frmMainMenu"}, {1, "frmBeamStuf"}, {2, "frmColumn"}, {12000, "frmComSolid"}}};

const char* CallerForm()
{
    for (const Caller& caller : kCallers)
        if (caller.Code == MainModule::SectionCaller && Forms::IsKnown(caller.Form))
            return caller.Form;
    return kCallers.front().Form;
}

// A saved or copied picture has no boxes: their numbers stand in their places.
void PrintNumbers(Picture& pic, const std::vector<BoxPlace>& places, const SectionEntry& entry)
{
    pic.ForeColor = IndexedColour(0);
    for (const BoxPlace& place : places) {
        const PicturePoint at = pic.FromPixels(place.Middle);
        PrintText(pic, at.X, at.Y, entry.Box[place.Box], HAlign::Centre, VAlign::Middle);
    }
}

} // namespace

frmProperties::frmProperties()
{
    BuildMenus();
    ConnectShape();
    ConnectMaterials();
    ConnectSteel();
    const QRect desk = screen::Services::Current().Screen->WorkArea();
    resize(std::min(1240, desk.width()), std::min(860, desk.height()));
}

void frmProperties::Form_Load()
{
    if (MainModule::FirstSectionUse) {
        CurrentSection = {};
        CurrentEntry = {};
    }
    MainModule::FirstSectionUse = false;
    for (const auto& [index, list] : cboElasticModulus.Members()) {
        const QSignalBlocker filling(list);
        screen::FillMaterialList(*list);
    }
}

void frmProperties::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmProperties::Form_Unload()
{
    ForgetSection();
}

void frmProperties::mnuBack_Click()
{
    cmdShape_click(2);
}

void frmProperties::mnuHelpProperties_Click()
{
    MainModule::HelpContext = kHelpTopic;
    screen::ShowHelpTopic();
}

void frmProperties::mnuShape_Click(int shapeIndex)
{
    ShowSteelFrame(false);
    cmdShape(1).setEnabled(true);
    SelectShape(shapeIndex - 1);
    FocusFirst();
}

void frmProperties::SelectShape(int menuIndex)
{
    CurrentSection.SectionComputed = false;
    picShapeDefine->hide();
    ShowInputs();
    HideResults();
    if (!collected_) CollectKeep();
    collected_ = false;
    shape_ = menuIndex + 1;
    const KeptShape& kept = kept_[shape_];
    assigned_ = kept.Kept ? kept.Section.ElementColour : UnassignedSwatches();
    SectionEntry entry;
    RestoreShape(shape_, kept, CurrentSection, entry);
    ShowControlsOf(shape_);
    ShowEntry(entry);
    if (!IsSteel(shape_)) lblShapeTitle->SetCaption(InfoOf(shape_).Title);
    picShapeDefine->show();
    centralWidget()->layout()->activate(); // the boxes stand by the drawing's new size
    picShapeDefine->PaintNow();
}

void frmProperties::cmdShape_click(int Index)
{
    using Work = void (frmProperties::*)();
    static constexpr Work kWork[] = {&frmProperties::Rotate, &frmProperties::Compute,
                                     &frmProperties::End, &frmProperties::ConvertUnits};
    (this->*kWork[Index])();
    optShapeRotate.Choose(0);
    cmdShape(1).setEnabled(true);
}

// The ends of the principal axes were those of the shape as it stood before.
void frmProperties::Rotate()
{
    RotateElements(CurrentSection, kTurns[optShapeRotate.Chosen()]);
    CurrentSection.PrincipalAxisEnds = {};
    HideResults();
    picShapeDefine->PaintNow();
}

// Nothing that is shown or shared changes where a check or a number fails.
void frmProperties::Compute()
{
    if (shape_ == kNoShape) return;
    SectionEntry entry = ReadEntry();
    CrossSection section = CurrentSection;
    if (const auto refusal = CheckEntry(section, entry)) return Show(*refusal);
    ComputeShape(section, entry);
    CurrentSection = section;
    CurrentEntry = entry;
    WriteBoxes(entry);
    picShapeDefine->PaintNow();
    cmdMohr->setEnabled(shape_ != kSpecified);
    Forms::Show(kReport);
}

void frmProperties::End()
{
    CollectKeep();
    Forms::Hide(kReport);
    Forms::Show(CallerForm());
    Forms::Hide("frmProperties");
}

void frmProperties::ConvertUnits()
{
    SectionEntry entry = ReadEntry();
    const int other = entry.LengthUnit == kMillimetres ? 0 : kMillimetres;
    ConvertLengthUnit(CurrentSection, entry);
    WriteBoxes(entry);
    optShapeUnits.Choose(other);
    picShapeDefine->Refresh();
}

void frmProperties::cmdMohr_Click()
{
    if (!Forms::IsKnown("frmMohr")) return;
    const SectionRecord& record = CurrentSection.Record;
    transform::CurrentHandOver = {true,
                                  transform::MohrMode::MomentOfInertia,
                                  {record(Row::Inertia, Column::Zz),
                                   record(Row::Inertia, Column::Yy),
                                   record(Row::ProductOfInertia, Column::Zz)},
                                  kInertiaUnits[CurrentEntry.LengthUnit]};
    MainModule::MohrCaller = kMohrCaller;
    MainModule::MohrInputKind = 1;
    Forms::Hide(kReport);
    Forms::Show("frmMohr");
    Forms::Hide("frmProperties");
}

void frmProperties::optShapeUnits_Click()
{
    const bool mm = optShapeUnits.Chosen() == kMillimetres;
    cmdShape(3).setText(screen::Q(mm ? "to in" : "to mm"));
    cmdShape(3).setToolTip(screen::Q(mm ? "Convert to US units" : "Convert to SI units"));
    HideResults();
    if (shape_ == kSpecified) picShapeDefine->Refresh();
}

void frmProperties::optShapeRotate_Click()
{
    if (shape_ != kNoShape && InfoOf(shape_).MayRotate) cmdShape(1).setEnabled(false);
}

void frmProperties::txtShape_Change()
{
    if (!quiet_) HideResults();
}

void frmProperties::picShapeDefine_Paint(Picture& pic)
{
    if (shape_ == kNoShape) return pic.Cls();
    const SectionEntry entry = ReadEntry();
    const auto places = DrawShape(pic, CurrentSection, entry, SizeOfBoxes());
    if (&pic == &picShapeDefine->Sheet())
        MoveBoxes(places);
    else
        PrintNumbers(pic, places, entry);
}

SectionEntry frmProperties::ReadEntry() const
{
    SectionEntry entry;
    for (const auto& [index, box] : txtShape.Members()) entry.Box[index] = box->Text();
    for (const auto& [set, box] : txtElasticModulus.Members()) entry.Modulus[set] = box->Text();
    for (const auto& [element, swatch] : picShape.Members())
        entry.Swatch[element] = swatch->Ground();
    for (const auto& [set, label] : lblMaterial.Members())
        entry.Material[set - 1] = label->Caption();
    entry.ModulusUnit = optElasticModulus.Chosen();
    entry.LengthUnit = optShapeUnits.Chosen();
    entry.Composite = chkElasticModulus->Value();
    if (const SteelShape* steel = SteelShapeChosen()) entry.Steel = *steel;
    return entry;
}

void frmProperties::ShowEntry(const SectionEntry& entry)
{
    Quietly([&] {
        for (const auto& [set, box] : txtElasticModulus.Members()) box->SetText(entry.Modulus[set]);
        for (const auto& [set, label] : lblMaterial.Members())
            label->SetCaption(entry.Material[set - 1]);
        for (const auto& [set, list] : cboElasticModulus.Members())
            list->setCurrentIndex(set > 0 ? list->findText(screen::Q(entry.Material[set - 1]))
                                          : -1);
        optElasticModulus.Choose(entry.ModulusUnit);
        chkElasticModulus->setChecked(entry.Composite);
        optShapeUnits.Choose(entry.LengthUnit);
    });
    WriteBoxes(entry);
    modulusUnit_ = entry.ModulusUnit;
    ShowModuli(entry.Composite);
    ShowModulusNote();
    PaintSwatches(entry.Swatch);
    optShapeUnits_Click();
}

void frmProperties::WriteBoxes(const SectionEntry& entry)
{
    Quietly([&] {
        for (const auto& [index, box] : txtShape.Members()) box->SetText(entry.Box[index]);
    });
}

void frmProperties::CollectKeep()
{
    if (shape_ == kNoShape) return;
    kept_[shape_] = CollectKeepData(CurrentSection, ReadEntry(), assigned_);
}

void frmProperties::HideResults()
{
    Forms::Hide(kReport);
    cmdMohr->setEnabled(false);
}

void frmProperties::FocusFirst()
{
    if (screen::TextBox* box = FirstBox()) box->SetFocus();
}

void frmProperties::Quietly(const std::function<void()>& work)
{
    const bool before = std::exchange(quiet_, true);
    work();
    quiet_ = before;
}

} // namespace forcelab::sections
