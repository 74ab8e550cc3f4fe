#include "BeamStufFormTest.h"
#include "support/Monkey.h"

#include <cmath>

namespace forcelab::beams {
namespace {

using test::Monkey;

constexpr int kSteps = 2000;
constexpr std::uint32_t kSeed = 40001;

const test::MonkeyGround kGround{
    {"0", "1", "-5", "2", "12.5", "1,5", "abc", "",       "3e+6",   "7",      "10", "1e-300",
     "4", "3", "5",  "8", "6.5",  "9",   "100", "1e+400", "1e+307", "9e+300", "-",  "6"},
    {"mnuUndoLoadEntry", "mnuRedoLoadEntry", "mnuRedoLoadEntry", "mnuRedoLoadEntry",
     "mnuEnterLoads(0)", "mnuEnterLoads(1)", "mnuEnterLoads(2)", "mnuEnterLoads(3)",
     "mnuEnterLoads(4)", "mnuEnterLoads(5)", "mnuLoadFac(0)", "mnuLF(0)", "mnuLF(1)", "mnuLF(2)",
     "mnuBack", "mnuMohr", "mnuSectionProperties"},
    {"Beam Definition Error", "Load Location Error", "Load Data Warning",
     "Too Many Specified Loads"},
    {"txtBeamLength"}}; // typed by the test

/// Whatever it does, the record must stay one that can be calculated with.
class BeamMonkey : public test::MonkeyTest<BeamStufFormTest> {
  protected:
    BeamMonkey() : MonkeyTest(kSeed, kGround) {}

    void ExpectSound() override
    {
        ASSERT_GE(CurrentBeam.LoadCount, 0);
        ASSERT_LE(CurrentBeam.LoadCount, kMaxLoads);
        ASSERT_TRUE(std::isfinite(CurrentBeam.BeamLength));
        ASSERT_EQ(LoadLines().size(), std::size_t(CurrentBeam.LoadCount));
        for (int row = 1; row <= CurrentBeam.LoadCount; ++row)
            for (const double magnitude : CurrentBeam.LoadMagnitude[row])
                ASSERT_TRUE(std::isfinite(magnitude));
        gained_ += CurrentBeam.LoadCount > loads_ ? 1 : 0;
        loads_ = CurrentBeam.LoadCount;
    }

    // Mostly one that leaves room for loads.
    void TypeLength()
    {
        auto& box = Find<screen::TextBox>("txtBeamLength");
        if (!box.isVisible()) return;
        Ape.TypeInto(box, Ape.OneIn(4) ? Ape.AnyOf(kGround.Texts) : "1000");
        if (Ape.OneIn(2)) Click("cmdBeamDefineOK");
    }

    void EnterSomeLoad()
    {
        if (!IsVisible("picToolBarNew")) return;
        Click("optLoadType(" + std::to_string(Ape.Pick(kLoadKinds)) + ")");
        for (int box = 0; box < 3; ++box) Ape.Type(TheForm());
        Click("cmdEnterLoad");
    }

    // Rarely: it takes all loads away.
    void StartAfresh()
    {
        if (Ape.OneIn(8)) Trigger("mnuNew");
    }

    void ShowAgain() { screen::Forms::Show("frmBeamStuf"); }

    int gained_ = 0; ///< times that a load came
    int loads_ = 0;
};

TEST_F(BeamMonkey, LeavesASoundRecord)
{
    const Deed length = [this] { TypeLength(); };
    const Deed load = [this] { EnterSomeLoad(); };
    Run("frmBeamStuf", kSteps,
        {Does(&Monkey::Type), Does(&Monkey::Type), Does(&Monkey::Trigger), Does(&Monkey::Trigger),
         Does(&Monkey::PressKey), Does(&Monkey::PressKey), Does(&Monkey::Press),
         Does(&Monkey::Press), Does(&Monkey::Press), Does(&Monkey::Press), Does(&Monkey::Choose),
         length, length, load, load, load, [this] { StartAfresh(); }, [this] { ShowAgain(); }});
    EXPECT_GE(gained_, 20);
}

} // namespace
} // namespace forcelab::beams
