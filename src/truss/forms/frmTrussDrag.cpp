#include "core/screen/Forms.h"
#include "core/screen/Services.h"
#include "truss/forms/frmTruss.h"
#include "truss/forms/frmTrussLoad.h"

#include <QKeyEvent>

#include <utility>

// What the mouse and the keyboard do in the picture.
namespace forcelab::truss {

using screen::Forms;

namespace {

constexpr int kArrowShare = 10; // of the picture
constexpr int kGap = 8;         // between the arrow and the form that asks for its size, pixels
constexpr int kFoot = 40;       // kept free at the lower edge of the screen, pixels

/// A step of the cursor.
struct KeyStep {
    int Key, Right, Up;
};
constexpr KeyStep kSteps[] = {
    {Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, 1}, {Qt::Key_Down, 0, -1}};

} // namespace

void frmTruss::picTruss_MouseDown(const screen::MouseAction& mouse)
{
    if (mouse.Button != screen::kLeftButton) return;
    keys_.Hide();
    Press(mouse.X, mouse.Y);
}

void frmTruss::picTruss_MouseMove(const screen::MouseAction& mouse)
{
    if ((mouse.Button & screen::kLeftButton) != 0) DragOn(mouse.X, mouse.Y);
}

void frmTruss::picTruss_MouseUp(const screen::MouseAction& mouse)
{
    if (mouse.Button == screen::kLeftButton) Release(mouse.X, mouse.Y);
}

// The explanation stays open until the release, or the grid would move away under the mouse.
void frmTruss::Press(double x, double y)
{
    StopMotion();
    drag_ = PressPoint(CurrentTruss, TrussMode, x, y, true);
    if (!ResultsShown || !drag_.DragActive) return picTruss->RefreshOver();
    ResultsShown = false;
    picTruss->Refresh();
}

void frmTruss::DragOn(double x, double y)
{
    if (!drag_.DragActive) return;
    DragTo(CurrentTruss, TrussMode, drag_, x, y);
    picTruss->RefreshOver();
}

void frmTruss::Release(double x, double y)
{
    const ReleaseOutcome outcome = ReleasePoint(CurrentTruss, TrussMode, drag_, x, y);
    if (!outcome.Redraw) return;
    if (outcome.Question) return DefineJointLoad(*outcome.Question);
    if (outcome.Refused == MemberRefusal::None) ForgetResults();
    DrawModel();
}

bool frmTruss::GiveUp()
{
    if (!std::exchange(drag_.DragActive, false)) return false;
    keys_.Settle(CurrentTruss);
    DrawModel();
    return true;
}

bool frmTruss::picTruss_KeyDown(const QKeyEvent& key)
{
    if (!CurrentTruss.HasGrid() || key.modifiers().testFlag(Qt::AltModifier)) return false;
    if (key.key() == Qt::Key_Escape) return GiveUp();
    if (key.key() == Qt::Key_Space) return PressOrRelease();
    for (const KeyStep& step : kSteps) {
        if (step.Key != key.key()) continue;
        MoveCursor(step.Right, step.Up);
        return true;
    }
    return false;
}

bool frmTruss::PressOrRelease()
{
    if (!keys_.Shown()) {
        MoveCursor(0, 0);
    } else if (drag_.DragActive) {
        const double x = keys_.X();
        const double y = keys_.Y();
        keys_.Settle(CurrentTruss);
        Release(x, y);
    } else {
        Press(keys_.X(), keys_.Y());
    }
    return true;
}

void frmTruss::MoveCursor(int right, int up)
{
    if (drag_.DragActive && GivesDirection(TrussMode))
        keys_.PointFrom(CurrentTruss, drag_, right, up);
    else
        keys_.Move(CurrentTruss, right, up);
    DragOn(keys_.X(), keys_.Y());
    picTruss->RefreshOver();
}

// The arrow stays on the picture while its size is asked for.
void frmTruss::DefineJointLoad(const LoadQuestion& question)
{
    auto& asked = screen::FormAs<frmTrussLoad>("frmTrussLoad");
    asked.TakeQuestion(question.Prompt(), LastLoadText);
    const TrussScale scale = SetGridScale(CurrentTruss);
    drag_.DragX1 = drag_.DragX0 + question.DirX * scale.LoadArrowX;
    drag_.DragY1 = drag_.DragY0 + question.DirY * scale.LoadArrowY;
    drag_.DragActive = true;
    picTruss->Refresh();
    PlaceLoadForm(question);
    Forms::ShowModal("frmTrussLoad");
    drag_.DragActive = false;
    DrawModel();
    if (!asked.Accepted()) return;
    LastLoadText = StoreJointLoad(CurrentTruss, question, asked.Magnitude());
    ForgetResults();
    DrawModel();
}

// Beside the arrow; on its other side where the form would leave the picture or the screen.
void frmTruss::PlaceLoadForm(const LoadQuestion& question)
{
    auto& asked = *Forms::Load("frmTrussLoad");
    asked.adjustSize();
    const QSize size = asked.size();
    const QPoint joint = picTruss->mapToGlobal(picTruss->PixelOf(drag_.DragX0, drag_.DragY0));
    const QRect picture(picTruss->mapToGlobal(QPoint(0, 0)), picTruss->size());
    const QRect desk = screen::Services::Current().Screen->WorkArea().adjusted(0, 0, 0, -kFoot);
    const QRect room = picture & desk;
    const int across = question.DirX != 0 ? picture.width() / kArrowShare : 0;
    QPoint corner = joint + QPoint(across + kGap, kGap);
    if (corner.x() + size.width() > room.right())
        corner.setX(joint.x() - across - kGap - size.width());
    if (corner.y() + size.height() > room.bottom()) corner.setY(joint.y() - kGap - size.height());
    asked.move(std::max(corner.x(), desk.left()), std::max(corner.y(), desk.top()));
}

} // namespace forcelab::truss
