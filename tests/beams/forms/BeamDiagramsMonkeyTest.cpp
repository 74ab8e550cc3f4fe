#include "BeamDiagramsFormTest.h"
#include "core/Units.h"
#include "support/Monkey.h"

namespace forcelab::beams {
namespace {

using test::Monkey;

constexpr int kSteps = 1500;
constexpr std::uint32_t kSeed = 40023;

const test::MonkeyGround kGround{
    {},
    {"mnuShearMoment", "mnuSlopeDeflection", "mnuExplain", "mnuExplainShear", "mnuSpecificPoint",
     "mnuHelp", "mnuBack", "mnuShearSignConvention"},
    {"Beam Definition Error", "Load Location Error", "Load Data Warning",
     "Slope/Deflection Message", "Shear Diagram Error Message", "Moment Diagram Error Message",
     "Slope Diagram Error Message", "Deflection Diagram Error Message"},
    {}};

/// Presses, clicks, drags and changes the beam at random. The form must follow the beam: what it
/// shows of the point belongs to the beam of now, and only boxes that it knows may come.
class DiagramMonkey : public test::MonkeyTest<BeamDiagramsFormTest> {
  protected:
    DiagramMonkey() : MonkeyTest(kSeed, kGround) {}

    void ExpectSound() override
    {
        EXPECT_EQ(Find<screen::ComboBox>("cboLoads").count(), std::max(1, CurrentBeam.LoadCount));
        EXPECT_LE(OpenPanes().size(), 1U);
        EXPECT_EQ(IsChosen("mnuSlopeDeflection"), CurrentPoint.SlopeView);
        EXPECT_TRUE(IsChosen("optLengthUnits(" + std::to_string(ShownDiagramUnits.Length) + ")"));
        if (!CurrentPoint.X) return;
        ++points_;
        PointReadout again = CurrentPoint;
        RenewPoint(again, CurrentBeam, ShownDiagramUnits);
        EXPECT_EQ(again.Texts, CurrentPoint.Texts);
        EXPECT_EQ(
            PointText(*CurrentPoint.X, ShownDiagramUnits),
            PointText(StringValue(CurrentPoint.XText) * LengthFactor(ShownDiagramUnits.Length),
                      ShownDiagramUnits));
        EXPECT_LE(*CurrentPoint.X, CurrentBeam.BeamLength);
    }

    void ChangeTheBeam()
    {
        Entry();
        const auto number = [this](int from, int to) {
            return std::to_string(from + Ape.Pick(std::size_t(to - from + 1)));
        };
        switch (CurrentBeam.SupportType == kNoBeam ? 0 : Ape.Pick(9)) {
        case 0:
            DefineSimple(number(5, 30), "0", number(1, 5), Ape.Pick(4));
            break;
        case 1:
            DefineCantilever(1 + Ape.Pick(2), number(1, 30), Ape.Pick(4));
            break;
        case 2:
        case 3:
            EnterPoint(Ape.Pick(2), number(0, 20), number(0, 900));
            break;
        case 4:
            EnterUniform(2 + Ape.Pick(2), number(0, 9), number(0, 20), number(0, 50));
            break;
        case 5:
            EnterMoment(4 + Ape.Pick(2), number(0, 20), number(0, 900));
            break;
        case 6:
            EnterPoint(1, number(0, 9), "1e305"); // its moments overflow
            break;
        case 7:
            Trigger("mnuUndoLoadEntry");
            break;
        default:
            Trigger(Ape.AnyOf<std::string>(
                {"mnuLF(0)", "mnuLF(1)", "mnuLoadFac(0)", "mnuRedoLoadEntry"}));
        }
    }

    void PressAKey()
    {
        static const std::vector<Qt::Key> kKeys{Qt::Key_Left,   Qt::Key_Right, Qt::Key_PageUp,
                                                Qt::Key_Escape, Qt::Key_End,   Qt::Key_Home};
        FormTest::Press("hsbX", Ape.AnyOf(kKeys));
    }

    // Points come from the middle button and the double click too.
    void UseTheMouse()
    {
        auto* picture = Ape.AnyVisible<screen::PictureBox>(TheForm());
        if (!picture) return;
        const QPoint at(Ape.Pick(std::size_t(picture->width())),
                        Ape.Pick(std::size_t(picture->height())));
        QTest::mouseMove(picture, at);
        const auto button = Ape.OneIn(2) ? Qt::LeftButton : Qt::MiddleButton;
        if (Ape.OneIn(4))
            QTest::mouseDClick(picture, button, Qt::NoModifier, at);
        else
            QTest::mouseClick(picture, button, Qt::NoModifier, at);
    }

    void ShapeWindow() { TheForm().resize(394 + Ape.Pick(900), 700 + Ape.Pick(200)); }

    int points_ = 0; ///< steps after which a point showed
};

TEST_F(DiagramMonkey, TheFormFollowsTheBeam)
{
    MetreBeam();
    const Deed key = [this] { PressAKey(); };
    const Deed mouse = [this] { UseTheMouse(); };
    Run("frmBeamDiagrams", kSteps,
        {[this] { ChangeTheBeam(); }, [this] { ShapeWindow(); }, key, mouse, mouse,
         Does(&Monkey::ClickPicture), Does(&Monkey::DragPicture), Does(&Monkey::PressKey),
         Does(&Monkey::Choose), Does(&Monkey::Press), Does(&Monkey::Press),
         Does(&Monkey::Trigger)});
    EXPECT_GE(points_, kSteps / 10);
}

} // namespace
} // namespace forcelab::beams
