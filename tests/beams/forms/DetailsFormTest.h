#pragma once

// First: the helpers below have a namespace test of their own.
#include "BeamStufFormTest.h"

#include "beams/AllowableForces.h"
#include "beams/PointReadout.h"
#include "beams/forms/frmAllowable.h"
#include "beams/forms/frmDetails.h"
#include "core/MainModule.h"
#include "transform/forms/frmMohr.h"

#include "../BeamBuilders.h"
#include "../StressCases.h"

#include <cmath>
#include <string>

namespace forcelab::beams {

/// Works frmDetails and frmAllowable on a section, with the real form of Mohr's circle.
class DetailsFormTest : public BeamStufFormTest {
  protected:
    DetailsFormTest()
    {
        CurrentPoint = {};
        CurrentLimits = {};
        OnPointForDetails = nullptr;
        OnPointForDiagrams = nullptr;
        screen::Forms::Register("frmDetails", [] { return new frmDetails; });
        screen::Forms::Register("frmAllowable", [] { return new frmAllowable; });
        screen::Forms::Register("frmMohr", [] { return new transform::frmMohr; });
    }
    ~DetailsFormTest() override { CurrentLimits = {}; }

    static void TakeSection(const test::Worked& worked)
    {
        sections::CurrentSection = worked.Section;
    }

    /// frmDetails with the T of flange 8 x 1 in and stem 1 x 9 in, under V and M in kips and
    /// ft-kips, stresses in ksi.
    void OpenTee(const std::string& shear, const std::string& moment)
    {
        TakeSection(test::Tee());
        OpenWith("0", shear, moment);
    }
    void OpenWith(const std::string& axial, const std::string& shear, const std::string& moment)
    {
        Open("frmDetails");
        for (const char* unit : {"optForceUnits(1)", "optMomentUnits(1)", "optStressUnits(1)"})
            Choose(unit);
        TypeForces(axial, shear, moment);
    }
    void TypeForces(const std::string& axial, const std::string& shear, const std::string& moment)
    {
        Type("txtVM(0)", test::Local(axial));
        Type("txtVM(1)", test::Local(shear));
        Type("txtVM(2)", test::Local(moment));
    }

    /// The number that follows a text in txtKeyStresses, up to the next blank.
    double KeyNumber(const std::string& after)
    {
        const std::string text = Shown("txtKeyStresses(0)");
        const auto at = text.find(after);
        EXPECT_NE(at, std::string::npos) << after << " in\n" << text;
        if (at == std::string::npos) return std::nan("");
        const auto from = at + after.size();
        return StringValue(text.substr(from, text.find(' ', from) - from));
    }
    /// The stress of a key location: "Top, y = 3.147 in:  -1.9 ksi".
    double KeyStressOf(const std::string& place)
    {
        const std::string text = Shown("txtKeyStresses(0)");
        const auto at = text.find(place + ", y = ");
        EXPECT_NE(at, std::string::npos) << place << " in\n" << text;
        if (at == std::string::npos) return std::nan("");
        const auto from = text.find(":  ", at) + 3;
        return StringValue(text.substr(from, text.find(' ', from) - from));
    }

    /// A simple beam of 10 ft with 1000 lb down at midspan.
    static void UseSimpleBeam()
    {
        CurrentBeam = test::Simple(10, test::kFoot);
        test::Add(CurrentBeam, kPointDown, 5, 5, 1000, test::kLb);
        ShownDiagramUnits.Length = 1;
    }
};

} // namespace forcelab::beams
