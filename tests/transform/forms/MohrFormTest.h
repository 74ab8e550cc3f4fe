#pragma once

#include "support/FormTest.h"
#include "transform/StressState.h"
#include "transform/forms/frmFailure.h"
#include "transform/forms/frmMohr.h"

#include <array>
#include <string>
#include <vector>

namespace forcelab::transform {

/// Works frmMohr and frmFailure; forms of other modules are empty windows with their names.
class MohrFormTest : public test::FormTest {
  protected:
    MohrFormTest()
    {
        CurrentStress = {};
        CurrentHandOver = {};
        screen::Forms::Register("frmMohr", [] { return new frmMohr; });
        screen::Forms::Register("frmFailure", [] { return new frmFailure; });
        RegisterEmpty("frmMainMenu");
    }

    static void RegisterEmpty(const char* name)
    {
        screen::Forms::Register(name, [name] { return new screen::Form(name, name); });
    }

    void OpenAnalysis(const std::string& menuItem)
    {
        Open("frmMohr");
        if (menuItem != "mnuPlaneStress") Trigger(menuItem);
    }

    void TypeValues(const std::array<std::string, 3>& values)
    {
        for (int box = 0; box < 3; ++box)
            Type("txtStress(" + std::to_string(box) + ")", test::Local(values[box]));
    }

    void Compute(const std::array<std::string, 3>& values,
                 const std::vector<std::string>& options = {})
    {
        TypeValues(values);
        for (const std::string& option : options) Choose(option);
        Click("cmdMohr(0)");
    }

    /// 50 tension, 10 compression, 40 clockwise, in MPa: principal stresses 70 and -30.
    void ComputeStandard()
    {
        OpenAnalysis("mnuPlaneStress");
        Compute({"50", "10", "40"}, {"optSigX(3)", "optStressUnits(3)"});
    }

    std::string Rotated(int row) { return Shown("lblRotatedValue(" + std::to_string(row) + ")"); }
    std::string StressText(int index)
    {
        return Shown("lblStressFromStrains(" + std::to_string(index) + ")");
    }
};

} // namespace forcelab::transform
