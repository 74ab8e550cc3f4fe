#include "BeamStufFormTest.h"

#include <QAction>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace forcelab::beams {
namespace {

constexpr int kSteps = 2000;
constexpr std::uint32_t kDefaultSeed = 40001;

/// Presses, types and chooses at random. Whatever it does, no box may come that the form does not
/// know, and the record must stay one that can be calculated with.
class BeamMonkey : public BeamStufFormTest {
  protected:
    explicit BeamMonkey()
    {
        const char* given = std::getenv("FORCELAB_SEED");
        const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
        std::printf("seed %u (FORCELAB_SEED)\n", seed);
        random_.seed(seed);
    }

    int Pick(std::size_t count) { return static_cast<int>(random_() % count); }

    template <class Control>
    Control* AnyVisible()
    {
        std::vector<Control*> found;
        for (QWidget* widget : TheForm().findChildren<QWidget*>()) {
            auto* control = dynamic_cast<Control*>(widget);
            // Qt's own parts of the menu bar and of a list open menus that wait.
            if (control && control->isVisible() && control->isEnabled() &&
                !control->objectName().startsWith(QLatin1String("qt_")))
                found.push_back(control);
        }
        return found.empty() ? nullptr : found[std::size_t(Pick(found.size()))];
    }

    void TypeSomething()
    {
        auto* box = AnyVisible<screen::TextBox>();
        if (!box) return;
        static const std::vector<std::string> kTexts{
            "0", "1", "-5", "2", "12.5", "1,5", "abc", "",       "3e+6",   "7",      "10", "1e-300",
            "4", "3", "5",  "8", "6.5",  "9",   "100", "1e+400", "1e+307", "9e+300", "-",  "6"};
        box->SetFocus();
        box->selectAll();
        if (box->objectName() == QLatin1String("txtBeamLength") && Pick(4) > 0)
            return QTest::keyClicks(box, QStringLiteral("1000")); // room for loads
        QTest::keyClicks(box, screen::Q(kTexts[std::size_t(Pick(kTexts.size()))]));
        if (Pick(3) == 0) QTest::keyClick(box, Qt::Key_Return);
    }

    void PressSomething()
    {
        auto* button = AnyVisible<QAbstractButton>();
        if (button) QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    }

    void TriggerSomething()
    {
        static const std::vector<std::string> kItems{
            "mnuUndoLoadEntry", "mnuRedoLoadEntry",    "mnuEnterLoads(1)", "mnuEnterLoads(2)",
            "mnuEnterLoads(5)", "mnuLoadFac(0)",       "mnuLF(0)",         "mnuLF(1)",
            "mnuLF(2)",         "mnuRedoLoadEntry",    "mnuEnterLoads(0)", "mnuEnterLoads(3)",
            "mnuEnterLoads(4)", "mnuRedoLoadEntry",    "mnuNew",           "mnuBack",
            "mnuMohr",          "mnuSectionProperties"};
        const std::string& name = kItems[std::size_t(Pick(kItems.size()))];
        if (name == "mnuNew" && Pick(4) > 0) return; // rarely: it takes all loads away
        const bool inLoads = name.starts_with("mnuUndo") || name.starts_with("mnuRedo") ||
                             name.starts_with("mnuEnter") || name.starts_with("mnuL");
        if (inLoads && !IsEnabled("mnuLoadsMoments")) return;
        if (MenuItem(name).isEnabled()) MenuItem(name).trigger();
    }

    void PressSomeKey()
    {
        static const Qt::Key kKeys[] = {Qt::Key_Tab,    Qt::Key_Return, Qt::Key_Space,
                                        Qt::Key_Escape, Qt::Key_Down,   Qt::Key_Up,
                                        Qt::Key_Left,   Qt::Key_Delete};
        QWidget* focused = TheForm().focusWidget();
        if (focused && focused->isVisible())
            QTest::keyClick(focused, kKeys[Pick(std::size(kKeys))]);
        Find<screen::ComboBox>("cboLoadBackup").hidePopup();
    }

    void Step()
    {
        switch (Pick(8)) {
        case 0:
        case 1:
            return TypeSomething();
        case 2:
            return TriggerSomething();
        case 3:
            return PressSomeKey();
        default:
            return PressSomething();
        }
    }

    void ExpectASoundRecord(int step)
    {
        ASSERT_GE(CurrentBeam.LoadCount, 0) << step;
        ASSERT_LE(CurrentBeam.LoadCount, kMaxLoads) << step;
        ASSERT_TRUE(std::isfinite(CurrentBeam.BeamLength)) << step;
        ASSERT_EQ(LoadLines().size(), std::size_t(CurrentBeam.LoadCount)) << step;
        for (int row = 1; row <= CurrentBeam.LoadCount; ++row)
            for (const double magnitude : CurrentBeam.LoadMagnitude[row])
                ASSERT_TRUE(std::isfinite(magnitude)) << step;
    }

    void ExpectKnownBoxes(int step)
    {
        for (const test::MsgBox& box : Messages->Shown)
            EXPECT_TRUE(box.Title == "Forcelab" || box.Title == "Beam Definition Error" ||
                        box.Title == "Load Location Error" || box.Title == "Load Data Warning" ||
                        box.Title == "Too Many Specified Loads")
                << step << ": " << box.Title << ": " << box.Text;
        Messages->Shown.clear();
    }

  private:
    std::mt19937 random_;
};

TEST_F(BeamMonkey, LeavesASoundRecord)
{
    Messages->AcceptAny = true;
    int gained = 0; // times that a load came
    for (int step = 0; step < kSteps; ++step) {
        if (!screen::Forms::IsVisible("frmBeamStuf") || Pick(20) == 0) Open("frmBeamStuf");
        Use("frmBeamStuf");
        const int before = CurrentBeam.LoadCount;
        Step();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        Use("frmBeamStuf");
        ExpectKnownBoxes(step);
        ASSERT_NO_FATAL_FAILURE(ExpectASoundRecord(step));
        gained += CurrentBeam.LoadCount > before;
    }
    EXPECT_GE(gained, 3);
}

} // namespace
} // namespace forcelab::beams
