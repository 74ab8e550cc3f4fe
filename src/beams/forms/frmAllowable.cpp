#include "beams/forms/frmAllowable.h"

#include "core/NumericText.h"
#include "core/Units.h"
#include "core/screen/Forms.h"
#include "sections/SectionRecord.h"

#include <algorithm>

namespace forcelab::beams {

using sections::CurrentSection;

namespace {

constexpr std::string_view kMask = "#,###,##0.0####";
constexpr int kOk = 0;
constexpr int kForEach = 1;

bool HasTwoLimits(const StressLimits& limits)
{
    const auto& stress = limits.AllowableStress;
    return stress[kTensionLimit] != stress[kCompressionLimit] ||
           stress[kTensionLimitB] != stress[kCompressionLimitB];
}

} // namespace

frmAllowable::frmAllowable() : Form("frmAllowable", "Stress Limits")
{
    SetCaptions();
    BuildWindow();
    DescribeControls();
    Connect();
}

void frmAllowable::Form_Load()
{
    const QSignalBlocker filling(cboASD);
    for (const std::string_view material : LimitMaterials()) cboASD->AddItem(material);
    ShowUserDefined();
}

// The limits in force stand there, whatever was typed and cancelled before.
void frmAllowable::Form_Activate()
{
    composite_ = CurrentSection.ShapeIndex > 0 && CurrentSection.CompositeSection;
    material_ = 0;
    for (const auto& [box, text] : txtASD.Members()) {
        text->clear();
        written_[std::size_t(box)].reset();
        if (CurrentLimits.AllowableSet)
            WriteBox(box, CurrentLimits.AllowableStress[std::size_t(box)]);
    }
    ShowUserDefined();
    if (CurrentLimits.AllowableSet) optSame.Choose(HasTwoLimits(CurrentLimits) ? kForEach : 0);
    ShowBoxes();
    txtASD(kTensionLimit).SetFocus();
    txtASD(kTensionLimit).selectAll();
}

void frmAllowable::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    cmdASD_Click(1);
}

void frmAllowable::cboASD_Click(int ListIndex)
{
    if (ListIndex >= 0 && ListIndex < cboASD->count() - 1) ShowStrength();
}

// The limit of compression starts as that of tension.
void frmAllowable::optSame_Click(int Index)
{
    if (Index == kForEach)
        for (const int tension : {kTensionLimit, kTensionLimitB}) {
            const int compression = tension + kCompressionLimit;
            if (txtASD(compression).text().isEmpty())
                txtASD(compression).SetText(txtASD(tension).Text());
        }
    ShowBoxes();
}

// A number that cannot be read keeps its unit.
void frmAllowable::optStressUnits_Click(int Index)
{
    if (Index == unit_) return;
    try {
        ConvertBoxes(Index);
    } catch (const ArithmeticFault&) {
        optStressUnits.Choose(unit_);
        throw;
    }
    if (cboASD->ListIndex() < cboASD->count() - 1) ShowStrength();
}

void frmAllowable::cmdASD_Click(int Index)
{
    if (Index == kOk) {
        StressLimits limits;
        SetLimits(limits, ReadEntry(), composite_);
        for (const double stress : limits.AllowableStress) Finite(stress);
        CurrentLimits = limits;
    }
    screen::Forms::Hide("frmAllowable");
}

// A number of one's own is that of no material.
void frmAllowable::txtASD_Change(int Index)
{
    written_[std::size_t(Index)].reset();
    if (Index < kShearLimit) ShowUserDefined();
}

// The list fills the row that was worked on last.
void frmAllowable::txtASD_LostFocus(int Index)
{
    const int material = Index % 2;
    if (material == material_) return;
    material_ = material;
    ShowUserDefined();
    ShowBoxes();
}

LimitsEntry frmAllowable::ReadEntry() const
{
    LimitsEntry entry;
    for (const auto& [box, text] : txtASD.Members()) entry.Box[std::size_t(box)] = text->Text();
    entry.StressUnit = unit_;
    entry.Same = IsSame();
    return entry;
}

void frmAllowable::ConvertBoxes(int unit)
{
    StressLimits limits;
    ReadAllowableBoxes(limits, ReadEntry());
    unit_ = unit;
    for (const auto& [box, text] : txtASD.Members()) {
        const auto i = std::size_t(box);
        if (!text->text().isEmpty())
            WriteBox(box, written_[i] ? *written_[i] : limits.AllowableStress[i]);
    }
}

void frmAllowable::WriteBox(int box, double psi)
{
    txtASD(box).SetText(Format(psi / StressFactor(unit_), kMask));
    written_[std::size_t(box)] = psi;
}

// A material without a strength in the table leaves nothing of the one before it.
void frmAllowable::ShowStrength()
{
    const auto yield = YieldOf(cboASD->ListIndex(), unit_);
    for (const int box : {kTensionLimit + material_, kCompressionLimit + material_}) {
        txtASD(box).SetText(yield ? Format(*yield, kMask) : "");
        written_[std::size_t(box)].reset();
    }
}

void frmAllowable::ShowBoxes()
{
    const auto heads = LimitHeads(IsSame());
    for (int head = 0; head < 2; ++head) {
        const bool shown = head < int(heads.size());
        lblHead(head).setVisible(shown);
        if (shown) lblHead(head).SetCaption(heads[std::size_t(head)]);
    }
    for (const auto& [box, text] : txtASD.Members()) {
        const bool compression = box == kCompressionLimit || box == kCompressionLimitB;
        text->setVisible((box % 2 == 0 || composite_) && !(compression && IsSame()));
    }
    for (const auto& [material, label] : lblMaterial.Members()) label->setVisible(composite_);
    lblASD->SetCaption(!composite_ ? "Yield strength of"
                                   : "Yield strength, " + lblMaterial(material_).Caption());
}

void frmAllowable::ShowUserDefined()
{
    const QSignalBlocker quiet(cboASD);
    cboASD->SetListIndex(cboASD->count() - 1);
}

} // namespace forcelab::beams
