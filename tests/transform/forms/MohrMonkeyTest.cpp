#include "MohrFormTest.h"
#include "support/Monkey.h"

#include <cmath>

namespace forcelab::transform {
namespace {

using test::Monkey;

constexpr int kSteps = 2000;
constexpr std::uint32_t kSeed = 20251;

const test::MonkeyGround kGround{
    {"0",  "1",    "-5",  "12.5",   "1e+400", "abc", "",       "3e+6", "1e-300", "90",
     "45", "1e+5", "0.3", "999999", "1,5",    "-",   "1e+300", "7",    "1e+8",   "200"},
    {"mnuPlaneStress", "mnuPlaneStrain", "mnuRosette45", "mnuRosette60", "mnuMomentOfInertia",
     "mnuFailure", "mnuHelp", "mnuNew", "mnuPrintDiagrams", "mnuBack"},
    {"Stress Transformation Warning", "Strain Transformation Warning",
     "Moments of Inertia Transformation Warning"},
    {}};

/// Whatever it does, no number that is not finite may stand in the state.
class MohrMonkey : public test::MonkeyTest<MohrFormTest> {
  protected:
    MohrMonkey() : MonkeyTest(kSeed, kGround) {}

    void ExpectSound() override
    {
        ASSERT_TRUE(std::isfinite(CurrentStress.PrincipalOne));
        ASSERT_TRUE(std::isfinite(CurrentStress.RotationAngle));
    }

    void RunOn(const std::string& form)
    {
        Run(form, kSteps,
            {Does(&Monkey::Type), Does(&Monkey::Type), Does(&Monkey::Press), Does(&Monkey::Press),
             Does(&Monkey::Press), Does(&Monkey::ClickPicture), Does(&Monkey::DragPicture),
             Does(&Monkey::PressKey), Does(&Monkey::Choose), Does(&Monkey::Trigger)});
    }
};

TEST_F(MohrMonkey, OnTheCircle)
{
    RunOn("frmMohr");
}

TEST_F(MohrMonkey, OnTheTheoriesOfFailure)
{
    screen::FormAs<frmFailure>("frmFailure").TakeState({70, -30, 3});
    RunOn("frmFailure");
}

} // namespace
} // namespace forcelab::transform
