#include "support/MonkeyAnswers.h"

#include <QApplication>
#include <QTimer>

namespace forcelab::test {

namespace {

constexpr int kLookingTime = 1; // milliseconds

} // namespace

void Answering::Start()
{
    on_ = true;
    if (!waiting_) LookLater();
}

// Each look asks for the next one first: what it starts may wait in turn.
void Answering::LookLater()
{
    waiting_ = true;
    QTimer::singleShot(kLookingTime, &receiver_, [this] { Look(); });
}

void Answering::Look()
{
    waiting_ = false;
    if (!on_) return;
    LookLater();
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    auto* form = dynamic_cast<screen::Form*>(QApplication::activeModalWidget());
    if (!form || (!inHand_.empty() && inHand_.back() == form)) return;
    inHand_.push_back(form);
    onModal_(*form);
    inHand_.pop_back();
}

} // namespace forcelab::test
