#include "core/Materials.h"
#include "core/Modulus.h"
#include "core/screen/PictureBox.h"
#include "sections/forms/frmProperties.h"

namespace forcelab::sections {

namespace {

const Colour kBlack = IndexedColour(0);
const Colour kWhite = IndexedColour(15);

Colour InkOn(Colour ground)
{
    return ground == IndexedColour(kMaterialA) ? kWhite : kBlack;
}

} // namespace

void frmProperties::optElasticModulus_Click(int Index)
{
    if (quiet_) return;
    for (const auto& [set, box] : txtElasticModulus.Members())
        box->SetText(ConvertModulusText(box->Text(), modulusUnit_, Index));
    modulusUnit_ = Index;
    ShowModulusNote();
    HideResults();
}

void frmProperties::cboElasticModulus_Click(int Index, int ListIndex)
{
    if (quiet_ || ListIndex < 0) return;
    txtElasticModulus(Index).SetText(MaterialModulusText(ListIndex, modulusUnit_));
    if (Index > 0) lblMaterial(Index).SetCaption(MaterialNames()[ListIndex]);
}

void frmProperties::txtElasticModulus_Change()
{
    if (!quiet_) HideResults();
}

void frmProperties::chkElasticModulus_Click()
{
    if (quiet_) return;
    const bool composite = chkElasticModulus->Value();
    HideResults();
    ShowModuli(composite);
    ShowModulusNote();
    PaintSwatches(composite ? assigned_ : PlainSwatches(shape_));
    picShapeDefine->Refresh();
}

// The left button gives the element Material A, the right one Material B.
void frmProperties::picShape_MouseUp(int Index, int Button)
{
    if (!chkElasticModulus->Value()) return picShape(Index).SetTextColour(kWhite);
    if (Button != screen::kLeftButton && Button != screen::kRightButton) return;
    assigned_[Index] = IndexedColour(Button == screen::kLeftButton ? kMaterialA : kMaterialB);
    picShape(Index).SetColours(assigned_[Index], InkOn(assigned_[Index]));
    HideResults();
    picShapeDefine->Refresh();
}

void frmProperties::PaintSwatches(const Swatches& swatches)
{
    for (const auto& [element, swatch] : picShape.Members())
        swatch->SetColours(swatches[element], InkOn(swatches[element]));
}

void frmProperties::ShowModulusNote()
{
    lblModulusNote->setVisible(chkElasticModulus->Value() && modulusUnit_ != 0);
}

} // namespace forcelab::sections
