#include "beams/forms/frmDetails.h"

namespace forcelab::beams {

void frmDetails::BuildMenus()
{
    AddMenuItem("mnuBack", "&Back", [this] { mnuBack_Click(); });
    AddMenuItem("mnuAllowable", "&Allowable Stresses", [this] { mnuAllowable_Click(); });
    AddMenuItem("mnuHelp", "&Help", [this] { mnuHelp_Click(); });
}

void frmDetails::ConnectPoint()
{
    On(txtSpecificPoint, &QLineEdit::textEdited, [this] { txtSpecificPoint_Change(); });
    On(cmdSpecificPoint, &QPushButton::clicked, [this] { cmdSpecificPoint_click(); });
    txtSpecificPoint->OnEnter = [this] { Guard([this] { cmdSpecificPoint_click(); }); };
}

// A force keeps its number when its unit changes: the number is what a person gave.
void frmDetails::ConnectForces()
{
    OnClick(cmdVM, [this](int index) { cmdVM_click(index); });
    for (const auto& [index, box] : txtVM.Members()) {
        On(box, &QLineEdit::textEdited, [this] { FollowQuietly(); });
        screen::TextBox* next = &txtVM((index + 1) % txtVM.Count());
        box->OnEnter = [next] { next->SetFocus(); };
    }
    for (const auto* units : {&optForceUnits, &optMomentUnits, &optStressUnits})
        OnClick(*units, [this](int) { Follow(); });
}

void frmDetails::ConnectCoordinates()
{
    for (const auto& [index, box] : txtCoord.Members()) {
        On(box, &QLineEdit::textEdited, [this] { FollowQuietly(); });
        box->OnLostFocus = [this] { Guard([this] { txtCoord_LostFocus(); }); };
        screen::TextBox* other = &txtCoord(1 - index);
        box->OnEnter = [other] { other->SetFocus(); };
    }
    OnClick(optShapeUnits, [this](int) { optShapeUnits_Click(); });
    On(hsbZ, &QScrollBar::valueChanged, [this] { hsbZ_Change(); });
    On(vsbY, &QScrollBar::valueChanged, [this] { vsbY_Change(); });
}

void frmDetails::ConnectPictures()
{
    for (const auto& [index, picture] : picST.Members())
        picture->OnPaint = [this, i = index](Picture& pic) { picST_Paint(i, pic); };
    const auto move = [this](const screen::MouseAction& mouse) { picST_Mouse(mouse); };
    picST(0).OnMouseDown = move;
    picST(0).OnMouseMove = move;
}

} // namespace forcelab::beams
