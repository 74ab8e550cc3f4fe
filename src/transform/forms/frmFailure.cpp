#include "transform/forms/frmFailure.h"

#include "core/NumericText.h"
#include "core/screen/Forms.h"
#include "transform/MohrModes.h"

namespace forcelab::transform {

namespace {

constexpr int kPlaces = 3;
constexpr std::string_view kUserDefined = "User Defined";
constexpr std::string_view kUnitMask = "###"; // psi, the unit 0, is an empty text, which reads 0

} // namespace

frmFailure::frmFailure() : Form("frmFailure", "Theories of Failure")
{
    Build();
    Connect();
}

void frmFailure::Form_Load()
{
    const QSignalBlocker filling(cboYieldStress);
    screen::FillMaterialList(*cboYieldStress);
    cboYieldStress->AddItem(kUserDefined);
    TheoryIndex = 0;
    LastStressUnit = 0;
    optFailure.Choose(0);
    txtYieldStress->SetFocus();
}

void frmFailure::Form_Activate()
{
    ShowUnit();
    DecimalPlaces = kPlaces;
    PlainNumbers = false;
    if (StressUnitIndex != LastStressUnit) {
        txtYieldStress->SetText(
            ConvertLimit(txtYieldStress->Text(), LastStressUnit, StressUnitIndex));
        LastStressUnit = StressUnitIndex;
    }
    txtCompression->SetText(txtYieldStress->Text());
    Judge();
}

void frmFailure::Form_QueryUnload(bool& cancel, int unloadMode)
{
    if (unloadMode != 0) return;
    cancel = true;
    mnuBack_Click();
}

void frmFailure::TakeState(const FailureInput& input)
{
    lblSigma1->SetCaption(Format(input.Sigma1, ""));
    lblSigma2->SetCaption(Format(input.Sigma2, ""));
    lblStressUnits->SetCaption(Format(input.Unit, kUnitMask));
}

void frmFailure::mnuBack_Click()
{
    screen::Forms::Hide("frmFailure");
}

void frmFailure::optFailure_Click(int Index)
{
    TheoryIndex = static_cast<std::int16_t>(Index);
    lblYieldStress(0).SetCaption(kFailureTheories[Index].InputLabel);
    ShowCompression(kFailureTheories[Index].HasCompression);
    Judge();
}

void frmFailure::cmdRefresh_Click(int Index)
{
    if (Index == 1) return mnuBack_Click();
    Judge();
}

void frmFailure::cboYieldStress_Click(int ListIndex)
{
    if (ListIndex < 0) return;
    txtYieldStress->SetText(MaterialLimit(ListIndex, StressUnitIndex));
    Judge();
}

void frmFailure::txtYieldStress_LostFocus()
{
    if (ParseNumber(txtCompression->Text()) == 0) txtCompression->SetText(txtYieldStress->Text());
}

void frmFailure::txtYieldStress_KeyPress()
{
    if (kFailureTheories[TheoryIndex].HasCompression) return txtCompression->SetFocus();
    Judge();
}

void frmFailure::picFailure_Paint(Picture& pic)
{
    const FailureEntry entry = ReadEntry();
    if (kFailureTheories[TheoryIndex].HasCompression)
        txtCompression->SetText(FormatValue(entry.Compression).Joined());
    DrawFailure(pic, entry);
}

FailureEntry frmFailure::ReadEntry() const
{
    const bool two = kFailureTheories[TheoryIndex].HasCompression;
    return ReadFailureEntry(TheoryIndex, lblSigma1->Caption(), lblSigma2->Caption(),
                            txtYieldStress->Text(), two ? txtCompression->Text() : std::string());
}

// A limit that cannot be read ends here, before the picture is painted anew.
void frmFailure::Judge()
{
    static_cast<void>(ReadEntry());
    picFailure->Refresh();
}

void frmFailure::ShowUnit()
{
    StressUnitIndex = static_cast<std::int16_t>(StringValue(lblStressUnits->Caption()));
    UnitCaption = "(" + std::string(kMohrUnits[StressUnitIndex]) + ")";
    lblYieldStress(1).SetCaption(UnitCaption);
    lblYieldStress(3).SetCaption(UnitCaption);
}

} // namespace forcelab::transform
