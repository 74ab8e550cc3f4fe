#include "core/Units.h"
#include "truss/TrussDrawing.h"
#include "truss/TrussNarration.h"
#include "truss/forms/frmTruss.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <cmath>

// What the picture shows: the model in editing, the results, or a mechanism in motion.
namespace forcelab::truss {

namespace {

constexpr double kFontSize = 9; // points
constexpr double kMemberWidth = 3;
constexpr double kJointWidth = 5;
constexpr int kTickTime = 20; // milliseconds
constexpr int kTicksOfSwing = 100;
constexpr int kSwings = 2;
constexpr int kCursorColour = 5;
constexpr double kCursorSize = 7; // pixels from the middle to a side
constexpr int kCreateColour = 0;
constexpr int kEraseColour = 12;
constexpr int kLoadColour = 9;
constexpr int kSupportColour = 1;

int BandColour(int mode)
{
    switch (mode) {
    case kCreateMembers:
        return kCreateColour;
    case kCreateSupports:
        return kSupportColour;
    case kCreateLoads:
        return kLoadColour;
    default:
        return kEraseColour;
    }
}

} // namespace

void frmTruss::picTruss_Paint(Picture& pic)
{
    pic.FontSize = kFontSize;
    if (!CurrentTruss.HasGrid()) return pic.Cls();
    if (motion_) {
        const double turn = 2 * kPi * tick_ / kTicksOfSwing;
        return DrawMotion(pic, CurrentTruss, *motion_, std::sin(turn));
    }
    if (ResultsShown) return DrawResults(pic, kMemberWidth, kJointWidth);
    DrawTruss(pic, CurrentTruss, motionTold_ ? moving_ : std::vector<std::string>{});
}

// The rubber band and the cursor, for which nothing under them is drawn again.
void frmTruss::DrawOver(Picture& pic) const
{
    if (!CurrentTruss.HasGrid() || motion_ || ResultsShown) return;
    DrawBand(pic);
    DrawCursor(pic);
}

void frmTruss::DrawResults(Picture& pic, double memberWidth, double jointWidth) const
{
    pic.Cls();
    ScalePicture(pic, CurrentTruss);
    DrawGridMarks(pic, CurrentTruss);
    DrawTrussResults(pic, CurrentTruss, results_, memberWidth, jointWidth);
}

void frmTruss::DrawBand(Picture& pic) const
{
    if (!drag_.DragActive) return;
    pic.ForeColor = IndexedColour(BandColour(TrussMode));
    DrawRubberBand(pic, CurrentTruss, TrussMode, drag_);
}

void frmTruss::DrawCursor(Picture& pic) const
{
    if (!keys_.Shown() || !picTruss->hasFocus()) return;
    const double x = pic.UserWidth(kCursorSize);
    const double y = pic.UserHeight(kCursorSize);
    pic.ForeColor = IndexedColour(kCursorColour);
    pic.DrawWidth = 2;
    pic.FillStyle = FillPattern::Transparent;
    pic.Box(keys_.X() - x, keys_.Y() - y, keys_.X() + x, keys_.Y() + y);
    pic.DrawWidth = 1;
}

void frmTruss::StartMotion(const Mechanism& motion)
{
    motion_ = motion;
    tick_ = 0;
    Instruct(ExplainMotion(motion));
    motionTold_ = true;
    moving_ = motion.Moving;
    QCoreApplication::instance()->installEventFilter(this);
    timMotion->start(kTickTime);
    picTruss->Refresh();
}

void frmTruss::timMotion_Timer()
{
    if (++tick_ >= kSwings * kTicksOfSwing) {
        StopMotion();
        return;
    }
    picTruss->Refresh();
}

// What the motion means stays to be read until the truss is drawn on.
bool frmTruss::StopMotion()
{
    if (!motion_) return false;
    timMotion->stop();
    motion_.reset();
    QCoreApplication::instance()->removeEventFilter(this);
    picTruss->Refresh();
    return true;
}

// Any click and any key ends a motion; a key does nothing else then.
bool frmTruss::eventFilter(QObject* watched, QEvent* event)
{
    const bool key = event->type() == QEvent::KeyPress;
    if (event->type() == QEvent::MouseButtonPress) StopMotion();
    if (key && StopMotion()) return true;
    if (!key || watched != picTruss) return frmTrussLayout::eventFilter(watched, event);
    bool taken = false;
    Guard([&] { taken = picTruss_KeyDown(*static_cast<QKeyEvent*>(event)); });
    return taken || frmTrussLayout::eventFilter(watched, event);
}

} // namespace forcelab::truss
