#include "DetailsFormTest.h"
#include "support/Monkey.h"

namespace forcelab::beams {
namespace {

// The helpers of the fixture have a namespace test of their own.
using forcelab::test::Monkey;

constexpr int kSteps = 2000;
constexpr std::uint32_t kSeed = 45001;
constexpr int kDialogDeeds = 6;

const forcelab::test::MonkeyGround kGround{
    {"0",   "1",    "-5",       "12.5",   "1,5",    "abc", "",      "3e+6", "1e-300",
     "100", "0.01", "5",        "1e+400", "1e+307", "-",   "7",     "10",   "-0.5",
     "25",  "4",    "1e+99999", "nan",    "inf",    "--1", "9e+300"},
    {"mnuAllowable", "mnuAllowable", "mnuBack", "mnuHelp"},
    {"Stress Calculation Error", "Stress Transformation Warning"},
    {}};

/// Types, presses, drags and changes beams and sections at random. What shows must always be a
/// number, and no box may come that the forms do not know.
class DetailsMonkey : public forcelab::test::MonkeyTest<DetailsFormTest> {
  protected:
    DetailsMonkey() : MonkeyTest(kSeed, kGround) {}

    void ExpectSound() override
    {
        screen::Forms::Hide("frmMohr");
        std::string all;
        for (const char* shown :
             {"txtKeyStresses(0)", "lblPointValue(0)", "lblPointValue(1)", "lblPointFiner(0)"})
            all += Shown(shown) + "\n";
        for (const char* picture : {"picST(0)", "picST(1)", "picST(2)", "picST(3)"})
            if (IsVisible(picture)) all += Shown(picture) + "\n";
        EXPECT_EQ(all.find("nan"), std::string::npos) << all;
        EXPECT_EQ(all.find("inf"), std::string::npos) << all;
        const bool view = IsVisible("picST(1)");
        EXPECT_EQ(view, IsVisible("picST(2)") || IsVisible("picST(3)"));
        EXPECT_TRUE(IsVisible("fraKeyStresses") || !view);
        views_ += view;
    }

    /// Sets some of the allowable stresses.
    void AnswerModal(screen::Form& form) override
    {
        const std::string name = form.objectName().toStdString();
        for (int deed = 0; deed < kDialogDeeds && screen::Forms::IsVisible(name); ++deed)
            Ape.OneIn(2) ? Ape.Type(form) : Ape.Press(form);
        screen::Forms::Hide(name);
    }

    // Rarely: the stresses that show go with the section.
    void ChangeTheWorld()
    {
        if (!Ape.OneIn(3)) return;
        if (Ape.OneIn(3)) UseSimpleBeam();
        CurrentPoint.SlopeView = Ape.OneIn(3);
        ShownDiagramUnits.Force = Ape.Pick(4);
        ShownDiagramUnits.Moment = Ape.Pick(4);
        ClearPoint(CurrentPoint);
        TellPointChanged();
        const int shape = 1 + Ape.Pick(sections::kPipe);
        sections::CurrentSection =
            Ape.OneIn(6) ? sections::CrossSection{}
                         : test::Computed(shape, test::SampleDimensions(shape)).Section;
        screen::Forms::Hide("frmDetails");
    }

    void ShowAgain() { screen::Forms::Show("frmDetails"); }

    int views_ = 0; ///< steps after which stresses showed
};

TEST_F(DetailsMonkey, ShowsNumbersAlways)
{
    UseSimpleBeam();
    TakeSection(test::Tee());
    const Deed type = Does(&Monkey::Type);
    const Deed press = Does(&Monkey::Press);
    Run("frmDetails", kSteps,
        {type,
         type,
         type,
         type,
         type,
         press,
         press,
         press,
         press,
         press,
         press,
         press,
         press,
         press,
         Does(&Monkey::Choose),
         Does(&Monkey::Choose),
         Does(&Monkey::ClickPicture),
         Does(&Monkey::DragPicture),
         Does(&Monkey::PressKey),
         Does(&Monkey::Trigger),
         [this] { ChangeTheWorld(); },
         [this] { ShowAgain(); }});
    EXPECT_GE(views_, kSteps / 20);
}

} // namespace
} // namespace forcelab::beams
