#pragma once

#include "support/FormTest.h"
#include "support/MonkeyAnswers.h"

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace forcelab::test {

/// What a form tells a monkey of itself.
struct MonkeyGround {
    std::vector<std::string> Texts;     ///< typed into boxes
    std::vector<std::string> Items;     ///< menu items to trigger, frequent ones twice; none: all
    std::vector<std::string> Titles;    ///< of message boxes that may come, besides "Forcelab"
    std::vector<std::string> OffLimits; ///< controls and items left alone
};

/// Sends a form random keys, clicks, drags and choices, the same ones from the same seed. The
/// environment's FORCELAB_SEED takes the place of the seed given; the one in use is printed.
class Monkey {
  public:
    Monkey(std::uint32_t seed, MonkeyGround ground);

    int Pick(std::size_t count); ///< 0 to count - 1
    bool OneIn(int chances) { return Pick(std::size_t(chances)) == 0; }
    template <class T>
    const T& AnyOf(const std::vector<T>& list)
    {
        return list[std::size_t(Pick(list.size()))];
    }

    /// A control that a person could use now; nothing where the form shows none of the kind.
    template <class Control>
    Control* AnyVisible(const screen::Form& form)
    {
        std::vector<Control*> found;
        for (QWidget* widget : form.findChildren<QWidget*>())
            if (auto* control = dynamic_cast<Control*>(widget); control && MayUse(*widget))
                found.push_back(control);
        return found.empty() ? nullptr : AnyOf(found);
    }

    // Each does nothing where the form shows nothing of the kind.
    void Type(screen::Form& form); ///< a text of the ground, sometimes with Enter
    void TypeInto(screen::TextBox& box, const std::string& text);
    void Press(screen::Form& form);        ///< a button, option or check box
    void PressKey(screen::Form& form);     ///< on the focused control
    void ClickPicture(screen::Form& form); ///< now and then with the right button
    void DragPicture(screen::Form& form);
    void Choose(screen::Form& form);  ///< a line of a combo box or list, a place of a scroll bar
    void Trigger(screen::Form& form); ///< an item of the ground whose menus are on

    [[nodiscard]] bool Knows(const MsgBox& box) const;

  private:
    [[nodiscard]] bool MayUse(const QWidget& widget) const;
    QPoint PlaceOn(const QWidget& widget);
    QAction* AnyItem(const screen::Form& form);

    MonkeyGround ground_;
    std::mt19937 random_;
};

/// Lets a monkey loose on a form of a fixture.
template <class Fixture>
class MonkeyTest : public Fixture {
  protected:
    using Deed = std::function<void()>;

    MonkeyTest(std::uint32_t seed, MonkeyGround ground)
        : Ape(seed, std::move(ground)),
          answering_([this](screen::Form& form) { AnswerModal(form); })
    {
        this->Messages->AcceptAny = true;
    }

    /// What must hold after every step.
    virtual void ExpectSound() = 0;
    /// A modal form has come up; unless the test works it, it gives way.
    virtual void AnswerModal(screen::Form& form)
    {
        screen::Forms::Hide(form.objectName().toStdString());
    }
    /// Goes to the form in use, before and after every deed.
    virtual void Return(const std::string& form)
    {
        if (screen::Forms::IsVisible(form))
            this->Use(form);
        else
            this->Open(form);
    }

    /// One of the monkey's own deeds on the form in use.
    Deed Does(void (Monkey::*deed)(screen::Form&))
    {
        return [this, deed] { (Ape.*deed)(this->TheForm()); };
    }

    /// Does deeds at random, those that stand there twice twice as often. No box may come that the
    /// ground does not name, and the form is opened again where it went.
    void Run(const std::string& form, int steps, const std::vector<Deed>& deeds)
    {
        answering_.Start();
        for (int step = 0; step < steps; ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            Return(form);
            Ape.AnyOf(deeds)();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            Return(form);
            ExpectKnownBoxes();
            ASSERT_NO_FATAL_FAILURE(ExpectSound());
        }
        answering_.Stop();
    }

    /// Does something on the way of which modal forms may come up.
    void AnswerWhile(const Deed& work)
    {
        answering_.Start();
        work();
        answering_.Stop();
    }

    Monkey Ape;

  private:
    void ExpectKnownBoxes()
    {
        for (const MsgBox& box : this->Messages->Shown)
            EXPECT_TRUE(Ape.Knows(box)) << box.Title << ": " << box.Text;
        this->Messages->Shown.clear();
    }

    Answering answering_;
};

} // namespace forcelab::test
