#include "BeamDiagramsFormTest.h"

#include <QAction>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace forcelab::beams {
namespace {

constexpr int kSteps = 1500;
constexpr std::uint32_t kDefaultSeed = 40023;

/// Presses, clicks, drags and changes the beam at random. The form must follow the beam: what it
/// shows of the point belongs to the beam of now, and only boxes that it knows may come.
class DiagramMonkey : public BeamDiagramsFormTest {
  protected:
    DiagramMonkey()
    {
        const char* given = std::getenv("FORCELAB_SEED");
        const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : kDefaultSeed;
        std::printf("seed %u (FORCELAB_SEED)\n", seed);
        random_.seed(seed);
        Messages->AcceptAny = true;
    }

    int Pick(std::size_t count) { return static_cast<int>(random_() % count); }
    template <class Choice, std::size_t Count>
    Choice OneOf(const Choice (&choices)[Count])
    {
        return choices[Pick(Count)];
    }

    void ChangeTheBeam()
    {
        Entry();
        const auto number = [this](int from, int to) {
            return std::to_string(from + Pick(std::size_t(to - from + 1)));
        };
        switch (CurrentBeam.SupportType == kNoBeam ? 0 : Pick(9)) {
        case 0:
            DefineSimple(number(5, 30), "0", number(1, 5), Pick(4));
            break;
        case 1:
            DefineCantilever(1 + Pick(2), number(1, 30), Pick(4));
            break;
        case 2:
        case 3:
            EnterPoint(Pick(2), number(0, 20), number(0, 900));
            break;
        case 4:
            EnterUniform(2 + Pick(2), number(0, 9), number(0, 20), number(0, 50));
            break;
        case 5:
            EnterMoment(4 + Pick(2), number(0, 20), number(0, 900));
            break;
        case 6:
            EnterPoint(1, number(0, 9), "1e305"); // its moments overflow
            break;
        case 7:
            Trigger("mnuUndoLoadEntry");
            break;
        default:
            Trigger(OneOf({"mnuLF(0)", "mnuLF(1)", "mnuLoadFac(0)", "mnuRedoLoadEntry"}));
        }
    }

    void ChooseSomething()
    {
        static const char* kOptions[] = {"optLengthUnits", "optForceUnits", "optMomentUnits",
                                         "optSlopeUnits", "optDeflectionUnits"};
        const int array = Pick(5);
        const std::string name =
            std::string(kOptions[array]) + "(" + std::to_string(Pick(array < 3 ? 4 : 2)) + ")";
        if (IsVisible(name)) Choose(name);
    }

    void TriggerSomething()
    {
        static const char* kItems[] = {"mnuShearMoment",  "mnuSlopeDeflection",    "mnuExplain",
                                       "mnuExplainShear", "mnuSpecificPoint",      "mnuHelp",
                                       "mnuBack",         "mnuShearSignConvention"};
        const std::string item = OneOf(kItems);
        if (IsEnabled(item)) Trigger(item);
        if (!Use("frmBeamDiagrams").isVisible()) Open("frmBeamDiagrams");
    }

    void PressSomeKey()
    {
        static const Qt::Key kKeys[] = {Qt::Key_Left,   Qt::Key_Right, Qt::Key_PageUp, Qt::Key_Down,
                                        Qt::Key_Escape, Qt::Key_End,   Qt::Key_Home,   Qt::Key_Tab};
        static const char* kControls[] = {"hsbX", "hsbX", "cboLoads", "cboReactions"};
        const std::string control = OneOf(kControls);
        if (IsEnabled(control)) Press(control, OneOf(kKeys));
    }

    void UseTheMouse()
    {
        static const char* kPictures[] = {"picLoadDiagram", "picLoadDiagram", "picShearDiagram",
                                          "picMomentDiagram", "picDeflectionDiagram"};
        auto& picture = Picture(OneOf(kPictures));
        if (!picture.isVisible()) return;
        const QPoint at(Pick(std::size_t(picture.width())), Pick(std::size_t(picture.height())));
        static const Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::MiddleButton};
        QTest::mouseMove(&picture, at);
        const auto button = &picture == &Picture("picLoadDiagram") && Pick(3) == 0
                                ? Qt::RightButton
                                : OneOf(kButtons);
        if (Pick(4) == 0)
            QTest::mouseDClick(&picture, button, Qt::NoModifier, at);
        else
            QTest::mouseClick(&picture, button, Qt::NoModifier, at);
    }

    void ClickSomeButton()
    {
        const std::string name =
            OneOf({"cmdDiscontinuity(", "cmdCloseExplain("}) + std::to_string(Pick(3)) + ")";
        if (IsVisible(name) && IsEnabled(name)) Click(name);
    }

    void Step()
    {
        switch (Pick(10)) {
        case 0:
            return ChangeTheBeam();
        case 1:
            return ChooseSomething();
        case 2:
            return TriggerSomething();
        case 3:
        case 4:
            return PressSomeKey();
        case 5:
            return ClickSomeButton();
        case 6:
            return TheForm().resize(394 + Pick(900), 700 + Pick(200));
        default:
            return UseTheMouse();
        }
    }

    void ExpectTheFormFollows(int step)
    {
        const int loads = CurrentBeam.LoadCount;
        EXPECT_EQ(Find<screen::ComboBox>("cboLoads").count(), std::max(1, loads)) << step;
        EXPECT_LE(OpenPanes().size(), 1U) << step;
        EXPECT_EQ(IsChosen("mnuSlopeDeflection"), CurrentPoint.SlopeView) << step;
        EXPECT_EQ(ShownDiagramUnits.Length,
                  Find<screen::OptionButton>("optLengthUnits(0)").Value()   ? 0
                  : Find<screen::OptionButton>("optLengthUnits(1)").Value() ? 1
                  : Find<screen::OptionButton>("optLengthUnits(2)").Value() ? 2
                                                                            : 3)
            << step;
        if (!CurrentPoint.X) return;
        PointReadout again = CurrentPoint;
        CalculatePoint(again, CurrentBeam, ShownDiagramUnits);
        EXPECT_EQ(again.Texts, CurrentPoint.Texts) << step;
        EXPECT_LE(*CurrentPoint.X, CurrentBeam.BeamLength) << step;
    }

    void ExpectKnownBoxes(int step)
    {
        for (const test::MsgBox& box : Messages->Shown)
            EXPECT_TRUE(box.Title == "Forcelab" || box.Title == "Beam Definition Error" ||
                        box.Title == "Load Location Error" || box.Title == "Load Data Warning" ||
                        box.Title == "Slope/Deflection Message" ||
                        box.Title.ends_with("Diagram Error Message"))
                << step << " " << box.Title;
        Messages->Shown.clear();
    }

  private:
    std::mt19937 random_;
};

TEST_F(DiagramMonkey, TheFormFollowsTheBeam)
{
    MetreBeam();
    int points = 0;
    for (int step = 0; step < kSteps && !HasFailure(); ++step) {
        if (!screen::Forms::IsVisible("frmBeamDiagrams")) Open("frmBeamDiagrams");
        Use("frmBeamDiagrams");
        Step();
        QCoreApplication::processEvents();
        Use("frmBeamDiagrams");
        Find<screen::ComboBox>("cboLoads").hidePopup();
        Find<screen::ComboBox>("cboReactions").hidePopup();
        ExpectKnownBoxes(step);
        ExpectTheFormFollows(step);
        points += CurrentPoint.X.has_value();
    }
    EXPECT_GE(points, kSteps / 10);
}

} // namespace
} // namespace forcelab::beams
