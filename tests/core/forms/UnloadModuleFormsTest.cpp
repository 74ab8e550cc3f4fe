#include "core/screen/UnloadModuleForms.h"

#include "core/MainModule.h"
#include "support/FormTest.h"

namespace forcelab::test {
namespace {

using screen::Form;
using screen::Forms;

std::vector<std::string> Happened;

class Module : public Form {
  public:
    explicit Module(const std::string& name) : Form(name.c_str(), name) {}
    void Form_Load() override { Happened.push_back("load " + objectName().toStdString()); }
    void Form_Unload() override { Happened.push_back("unload " + objectName().toStdString()); }
};

struct Row {
    int CurrentModule;
    std::vector<std::string> Events;
};
class UnloadForms : public FormTest, public testing::WithParamInterface<Row> {};

TEST_P(UnloadForms, UnloadsTheFormsOfTheModuleAndShowsItsFirst)
{
    for (const std::string name : {"frmBeamStuf", "frmBeamDiagrams", "frmDetails", "frmPower",
                                   "frmTorsion", "frmStrut", "frmIndet"}) {
        Forms::Register(name, [name] { return new Module(name); });
        Forms::Load(name);
    }
    Happened.clear();
    MainModule::CurrentModule = GetParam().CurrentModule;
    screen::UnloadModuleForms();
    EXPECT_EQ(Happened, GetParam().Events);
    const bool shows = !GetParam().Events.empty();
    EXPECT_EQ(Forms::Active() != nullptr, shows);
    if (shows) {
        EXPECT_EQ("load " + Forms::Active()->objectName().toStdString(), Happened.back());
    }
}

const std::vector<std::string> kBeams{"unload frmBeamStuf", "unload frmBeamDiagrams",
                                      "unload frmDetails", "load frmBeamStuf"};

INSTANTIATE_TEST_SUITE_P(Modules, UnloadForms,
                         testing::Values(Row{4000, kBeams}, Row{4300, kBeams},
                                         Row{5000, {"unload frmPower", "load frmPower"}},
                                         Row{5700, {"unload frmTorsion", "load frmTorsion"}},
                                         Row{7000, {"unload frmStrut", "load frmStrut"}},
                                         Row{8000, {"unload frmIndet", "load frmIndet"}},
                                         Row{0, {}}, Row{3000, {}}, Row{6000, {}}));

} // namespace
} // namespace forcelab::test
