// Opens every form of the program and sends random keys, clicks and drags into whatever is shown.

#include "app/FormList.h"
#include "core/MainModule.h"
#include "sections/SectionRecord.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QMenu>
#include <QTimer>

#include <cmath>
#include <random>

namespace forcelab::test {
namespace {

using screen::Form;
using screen::Forms;

constexpr int kSteps = 3000;
constexpr std::uint32_t kDefaultSeed = 20253;
constexpr int kCloserMilliseconds = 2;

class ProgramMonkey : public FormTest {
  protected:
    ProgramMonkey()
    {
        sections::CurrentSection = {};
        RegisterForms();
        MainModule::DataPath = STEEL_FOLDER;
        Messages->AcceptAny = true;
        // What waits for a person, a menu that dropped down or a modal form, is closed.
        QObject::connect(&closer_, &QTimer::timeout, [] {
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
            if (Form* form = Forms::Active(); form && form->isModal())
                Forms::Hide(form->objectName().toStdString());
        });
        closer_.start(kCloserMilliseconds);
    }

    int Pick(std::size_t count) { return static_cast<int>(random_() % count); }

    /// The form to work on; the main menu where none is shown.
    Form& Current()
    {
        if (!Forms::Active() || !Forms::Active()->isVisible()) Forms::Show("frmMainMenu");
        return *Forms::Active();
    }

    QWidget* AnyControl()
    {
        std::vector<QWidget*> found;
        for (QWidget* widget : Current().findChildren<QWidget*>())
            if (widget->isVisible() && widget->isEnabled() && !qobject_cast<QMenu*>(widget) &&
                !widget->size().isEmpty())
                found.push_back(widget);
        return found.empty() ? nullptr : found[std::size_t(Pick(found.size()))];
    }

    QPoint AnyPlace(const QWidget& widget)
    {
        return {Pick(std::size_t(widget.width())), Pick(std::size_t(widget.height()))};
    }

    Qt::MouseButton AnyButton() { return Pick(6) == 0 ? Qt::RightButton : Qt::LeftButton; }

    void ClickSomewhere()
    {
        if (QWidget* control = AnyControl())
            QTest::mouseClick(control, AnyButton(), Qt::NoModifier, AnyPlace(*control));
    }

    void DragSomewhere()
    {
        const QPointer<QWidget> control = AnyControl();
        if (!control) return;
        QTest::mousePress(control, Qt::LeftButton, Qt::NoModifier, AnyPlace(*control));
        if (control) QTest::mouseMove(control, AnyPlace(*control));
        if (control)
            QTest::mouseRelease(control, Qt::LeftButton, Qt::NoModifier, AnyPlace(*control));
    }

    void TypeSomewhere()
    {
        static const std::vector<std::string> kTexts{"0",   "-1",   "12.5",   "1e+400",
                                                     "abc", "3e+6", "1e-6",   "45",
                                                     "0,3", "8",    "1e+200", "999999"};
        const QPointer<QWidget> control = AnyControl();
        if (!control) return;
        control->setFocus();
        QTest::keyClicks(control, screen::Q(kTexts[std::size_t(Pick(kTexts.size()))]));
        if (control && Pick(3) == 0) QTest::keyClick(control, Qt::Key_Return);
    }

    void PressSomeKey()
    {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Tab,  Qt::Key_Space,  Qt::Key_Return,
                                            Qt::Key_Down, Qt::Key_Up,     Qt::Key_Left,
                                            Qt::Key_Menu, Qt::Key_Escape, Qt::Key_Delete};
        QWidget* focused = Current().focusWidget();
        QTest::keyClick(focused ? focused : &Current(), kKeys[Pick(std::size(kKeys))]);
    }

    void TriggerSomeItem()
    {
        std::vector<QAction*> items;
        for (QAction* item : Current().findChildren<QAction*>())
            if (item->objectName().startsWith(QLatin1String("mnu")) && !item->menu() &&
                item->isEnabled() && item->objectName() != QLatin1String("mnuExit"))
                items.push_back(item);
        if (!items.empty()) items[std::size_t(Pick(items.size()))]->trigger();
    }

    void Step()
    {
        using Action = void (ProgramMonkey::*)();
        static constexpr Action kActions[] = {
            &ProgramMonkey::ClickSomewhere, &ProgramMonkey::ClickSomewhere,
            &ProgramMonkey::TypeSomewhere,  &ProgramMonkey::DragSomewhere,
            &ProgramMonkey::PressSomeKey,   &ProgramMonkey::TriggerSomeItem};
        (this->*kActions[Pick(std::size(kActions))])();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::mt19937 random_;
    QTimer closer_;
};

TEST_F(ProgramMonkey, DoesNoHarm)
{
    const char* given = std::getenv("FORCELAB_SEED");
    const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
    std::printf("seed %u (FORCELAB_SEED)\n", seed);
    random_.seed(seed);
    std::map<std::string, int> visited;
    for (int step = 0; step < kSteps; ++step) {
        ++visited[Current().objectName().toStdString()];
        Step();
    }
    EXPECT_GE(visited.size(), 3u);
    for (const MsgBox& box : Messages->Shown) EXPECT_FALSE(box.Text.empty());
    for (int row = 0; row <= 18; ++row)
        for (int column = 1; column <= 8; ++column)
            EXPECT_TRUE(std::isfinite(sections::CurrentSection.Record.At(row, column)));
}

} // namespace
} // namespace forcelab::test
