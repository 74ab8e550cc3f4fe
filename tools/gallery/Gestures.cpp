#include "Gallery.h"

#include "core/screen/Forms.h"
#include "core/screen/PictureBox.h"
#include "core/screen/SystemServices.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <utility>

// What takes more than a press of a button: drags, modal forms, messages and timers.
namespace forcelab::gallery {

using screen::Form;
using screen::Forms;
using screen::PictureBox;
using screen::Q;

namespace {

constexpr int kTries = 1000; // for a modal form to come up

QImage Kept;
Step Announced;

void Send(PictureBox& picture, QEvent::Type type, QPoint pixel, Qt::MouseButton button)
{
    const bool held = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, pixel, picture.mapToGlobal(pixel), button,
                      held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&picture, &event);
    QCoreApplication::processEvents();
}

void Draw(const Form& form, const Step& step)
{
    auto* picture = dynamic_cast<PictureBox*>(form.ControlNamed(step.Name));
    if (!picture) return Complain("no picture " + step.Name);
    picture->PaintNow(); // or its scale could be one of before
    const QPoint from = picture->PixelOf(step.From.x(), step.From.y());
    const QPoint to = picture->PixelOf(step.To.x(), step.To.y());
    Send(*picture, QEvent::MouseButtonPress, from, Qt::LeftButton);
    Send(*picture, QEvent::MouseMove, to, Qt::NoButton);
    if (step.What == Step::Kind::Drag)
        Send(*picture, QEvent::MouseButtonRelease, to, Qt::LeftButton);
}

void LetTick(const Form& form, const Step& step)
{
    auto* timer = form.findChild<QTimer*>(Q(step.Name));
    if (!timer) return Complain("no timer " + step.Name);
    timer->stop();
    for (int i = 0; i < std::stoi(step.Value); ++i) QMetaObject::invokeMethod(timer, "timeout");
}

void DoOn(const Step& step)
{
    if (!Forms::IsVisible(step.Name)) return Complain("no form " + step.Name);
    for (const Step& inner : step.Inner) Do(*Forms::Load(step.Name), inner);
    QCoreApplication::processEvents();
}

void DoWhenShown(const Step& step, int tries)
{
    QTimer::singleShot(0, qApp, [=] {
        if (Forms::IsVisible(step.Name) && Forms::Load(step.Name)->isActiveWindow()) {
            for (const Step& inner : step.Inner) Do(*Forms::Load(step.Name), inner);
            Forms::Hide(step.Name); // it is left, whatever the steps did
        } else if (tries > 0) {
            DoWhenShown(step, tries - 1);
        } else {
            Complain("no form " + step.Name);
        }
    });
}

/// A window in front of another, with the title that the system would write over it.
QPixmap InFront(QWidget& window, QWidget& behind)
{
    constexpr int bar = 28;
    QPixmap picture = behind.grab();
    const QPixmap front = window.grab();
    QRect place(QPoint(), front.deviceIndependentSize().toSize() + QSize(0, bar));
    place.moveCenter(behind.rect().center());
    QPainter painter(&picture);
    painter.fillRect(place, QColor(0xDD, 0xE3, 0xEA));
    painter.drawText(place.adjusted(8, 0, -8, 0).intersected({place.topLeft(), QSize(4000, bar)}),
                     Qt::AlignVCenter, window.windowTitle());
    painter.drawPixmap(place.topLeft() + QPoint(0, bar), front);
    painter.setPen(Qt::gray);
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    return picture;
}

void CloseMessage(QWidget& owner, bool keep)
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return Complain("no message came up");
    // On a usual screen the lines are not broken anew.
    box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))->setWordWrap(false);
    box->layout()->activate();
    box->setFixedSize(box->layout()->totalMinimumSize());
    if (keep) Kept = InFront(*box, owner).toImage();
    box->accept();
}

} // namespace

Step Drag(const std::string& name, QPointF from, QPointF to)
{
    return {Step::Kind::Drag, name, "", from, to};
}

Step Hold(const std::string& name, QPointF from, QPointF to)
{
    return {Step::Kind::Hold, name, "", from, to};
}

Step Tick(const std::string& name, int times)
{
    return {Step::Kind::Tick, name, std::to_string(times)};
}

Step On(const std::string& form, const Steps& steps)
{
    return {Step::Kind::On, form, "", {}, {}, steps};
}

Step Answer(const std::string& form, const Steps& steps)
{
    return {Step::Kind::Answer, form, "", {}, {}, steps};
}

Step Message(const std::string& title, bool keep)
{
    return {Step::Kind::Message, title, keep ? "keep" : ""};
}

Step Keep()
{
    return {Step::Kind::Keep, "", ""};
}

void Gesture(const Form& form, const Step& step)
{
    switch (step.What) {
    case Step::Kind::Tick:
        return LetTick(form, step);
    case Step::Kind::On:
        return DoOn(step);
    case Step::Kind::Answer:
        return DoWhenShown(step, kTries);
    case Step::Kind::Message:
        Announced = step;
        return;
    case Step::Kind::Keep:
        QCoreApplication::processEvents();
        Kept = const_cast<Form&>(form).grab().toImage();
        return;
    default:
        return Draw(form, step);
    }
}

bool AnswerMessage(QWidget* owner, int code, const std::string& text, const std::string& title)
{
    const Step expected = std::exchange(Announced, {});
    if (!owner || expected.Name != title) return false;
    QTimer::singleShot(0, owner, [&] { CloseMessage(*owner, !expected.Value.empty()); });
    screen::MakeSystemMessages()->Show(owner, code, text, title);
    return true;
}

QImage TakeKept()
{
    return std::exchange(Kept, {});
}

} // namespace forcelab::gallery
