#pragma once

#include "BeamStufFormTest.h"
#include "beams/PointReadout.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "core/MainModule.h"

#include <array>
#include <string>

namespace forcelab::beams {

/// Works frmBeamStuf and frmBeamDiagrams together; frmDetails is an empty window.
class BeamDiagramsFormTest : public BeamStufFormTest {
  protected:
    BeamDiagramsFormTest()
    {
        CurrentPoint = {};
        OnPointForDetails = nullptr;
        OnPointForDiagrams = nullptr;
        MainModule::ScrollBarPixels = 18;
        screen::Forms::Register("frmBeamDiagrams", [] { return new frmBeamDiagrams; });
        RegisterEmpty("frmDetails");
    }

    screen::Form& Entry() { return Use("frmBeamStuf"); }
    screen::Form& Diagrams() { return Use("frmBeamDiagrams"); }

    /// A cantilever in a length unit; type is 1 for the left end fixed, 2 for the right end.
    void DefineCantilever(int type, const std::string& length, int unit)
    {
        Open("frmBeamStuf");
        Click("cmdBeamType(" + std::to_string(type) + ")");
        Type("txtBeamLength", test::Local(length));
        Choose("optBeamLength(" + std::to_string(unit) + ")");
        Click("cmdBeamDefineOK");
    }
    /// Chooses the force units of the load frames.
    void ChooseLoadUnits(int unit)
    {
        const std::string index = "(" + std::to_string(unit) + ")";
        for (const char* options : {"optForceUnits", "optUniformLoadUnits", "optMomentUnits"})
            Find<screen::OptionButton>(options + index).setChecked(true);
    }
    void EnterFactoredUniform(const std::string& start, const std::string& end,
                              const std::string& dead, const std::string& live)
    {
        Click("optLoadType(3)");
        Type("txtStartUniform", test::Local(start));
        Type("txtEndUniform", test::Local(end));
        Type("txtUniform(1)", test::Local(dead));
        Type("txtUniform(2)", test::Local(live));
        Click("cmdEnterLoad");
    }

    /// 10 m with 5 kN/m throughout and 8 kN at 3 m: reactions 30.6 and 27.4.
    screen::Form& MetreBeam()
    {
        DefineSimple("10", "0", "10", 3);
        ChooseLoadUnits(3);
        EnterUniform(kUniformDown, "0", "10", "5");
        EnterPoint(kPointDown, "3", "8");
        return Diagrams();
    }
    /// 10 ft with 1000 lb at midspan: reactions 500.
    screen::Form& FootBeam()
    {
        DefineSimple("10", "0", "10");
        EnterPoint(kPointDown, "5", "1000");
        return Diagrams();
    }
    /// E = 29,000,000 psi and I = 999 in^4.
    static void UseSteelSection()
    {
        using sections::Column;
        using sections::Row;
        sections::CurrentSection.ShapeIndex = 20;
        sections::CurrentSection.Record(Row::Modulus, Column::ZzInches) = 29e6;
        sections::CurrentSection.Record(Row::Inertia, Column::ZzInches) = 999;
    }

    screen::PictureBox& Picture(const std::string& name) { return Find<screen::PictureBox>(name); }
    /// The lines that a picture shows.
    std::vector<std::string> Lines(const std::string& picture)
    {
        std::vector<std::string> lines(1);
        for (const char c : Shown(picture)) {
            if (c == '\n')
                lines.emplace_back();
            else
                lines.back() += c;
        }
        return lines;
    }
    /// Moves the mouse to a place in a picture's scale.
    void MoveTo(const std::string& picture, double x, double y)
    {
        auto& box = Picture(picture);
        box.PaintNow();
        QTest::mouseMove(&box, box.PixelOf(x, y) + QPoint(1, 1));
        QTest::mouseMove(&box, box.PixelOf(x, y));
        QCoreApplication::processEvents();
    }
    std::string Hint() { return Shown("lblHint"); }
    std::string Readout() { return Shown("lblPoint"); }
    /// The names of the explanations that are open.
    std::vector<std::string> OpenPanes()
    {
        std::vector<std::string> open;
        for (const char* pane : {"fraExplainLoad", "fraExplainShear", "fraExplainReactions"})
            if (IsVisible(pane)) open.emplace_back(pane);
        return open;
    }
};

inline constexpr double kInchesOfMetre = 1 / 0.0254;

} // namespace forcelab::beams
