#pragma once

#include "beams/BeamRecord.h"
#include "beams/DiagramRequest.h"
#include "beams/forms/frmBeamStuf.h"
#include "beams/forms/frmReverseShear.h"
#include "beams/forms/frmStiffPrint.h"
#include "sections/SectionRecord.h"
#include "support/FormTest.h"
#include "transform/StressState.h"

#include <string>
#include <vector>

namespace forcelab::beams {

/// Works frmBeamStuf; the forms that it opens are empty windows with their names.
class BeamStufFormTest : public test::FormTest {
  protected:
    BeamStufFormTest()
    {
        CurrentBeam = {};
        ShownDiagramUnits = {};
        PendingDiagrams = {};
        OnDiagramRequest = nullptr;
        EditWanted = EntryFrameOpen = false;
        sections::CurrentSection = {};
        transform::CurrentHandOver = {};
        screen::Forms::Register("frmBeamStuf", [] { return new frmBeamStuf; });
        screen::Forms::Register("frmReverseShear", [] { return new frmReverseShear; });
        screen::Forms::Register("frmStiffPrint", [] { return new frmStiffPrint; });
        for (const char* form : {"frmMainMenu", "frmBeamDiagrams", "frmProperties", "frmMohr"})
            RegisterEmpty(form);
    }

    static void RegisterEmpty(const char* name)
    {
        screen::Forms::Register(name, [name] { return new screen::Form(name, name); });
    }

    /// Letters with Alt and Escape go to the active window.
    void Activate()
    {
        TheForm().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&TheForm()));
    }

    /// Opens the form anew; a beam on two supports in a length unit.
    void DefineSimple(const std::string& length, const std::string& left, const std::string& right,
                      int unit = 1)
    {
        Open("frmBeamStuf");
        Click("cmdBeamType(0)");
        Type("txtBeamLength", test::Local(length));
        Type("txtLeftSimple", test::Local(left));
        Type("txtRightSimple", test::Local(right));
        Choose("optBeamLength(" + std::to_string(unit) + ")");
        Click("cmdBeamDefineOK");
    }

    /// Types a load in the units that its frame has, and presses Enter's button.
    void EnterPoint(int type, const std::string& x, const std::string& load)
    {
        Click("optLoadType(" + std::to_string(type) + ")");
        Type("txtConcentratedX", test::Local(x));
        Type("txtConcentrated(0)", test::Local(load));
        Click("cmdEnterLoad");
    }
    void EnterUniform(int type, const std::string& start, const std::string& end,
                      const std::string& load)
    {
        Click("optLoadType(" + std::to_string(type) + ")");
        Type("txtStartUniform", test::Local(start));
        Type("txtEndUniform", test::Local(end));
        Type("txtUniform(0)", test::Local(load));
        Click("cmdEnterLoad");
    }
    void EnterMoment(int type, const std::string& x, const std::string& moment)
    {
        Click("optLoadType(" + std::to_string(type) + ")");
        Type("txtMomentX", test::Local(x));
        Type("txtMoment(0)", test::Local(moment));
        Click("cmdEnterLoad");
    }
    void EnterFactored(const std::string& x, const std::string& dead, const std::string& live)
    {
        Click("optLoadType(1)");
        Type("txtConcentratedX", test::Local(x));
        Type("txtConcentrated(1)", test::Local(dead));
        Type("txtConcentrated(2)", test::Local(live));
        Click("cmdEnterLoad");
    }

    /// The lines of cboLoadBackup.
    std::vector<std::string> LoadLines()
    {
        std::vector<std::string> lines;
        const auto& list = Find<screen::ComboBox>("cboLoadBackup");
        for (int row = 0; row < list.count(); ++row)
            lines.push_back(list.itemText(row).toStdString());
        return lines;
    }

    void ExpectBox(int icon, const std::string& title, const std::string& text,
                   int answer = kAnswerOk)
    {
        Expect({icon, title, text, answer});
    }

    /// True where the pictures of the loads can be pressed and the menus are on.
    bool MenusAreOn()
    {
        const bool on = IsVisible("picToolBarNew");
        for (const char* menu : {"mnuLoadsMoments", "mnuStressForm", "mnuSectionProperties"})
            EXPECT_EQ(IsEnabled(menu), on) << menu;
        return on;
    }
};

} // namespace forcelab::beams
