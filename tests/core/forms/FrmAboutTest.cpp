#include "core/forms/frmAbout.h"

#include "core/forms/SysInfo.h"
#include "support/FormTest.h"

namespace forcelab::test {
namespace {

using screen::Forms;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kInfoKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
const std::string kLocationKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
const MsgBox kUnavailable{kInformation, "Forcelab",
                          "System Information Is Unavailable At This Time"};

class About : public FormTest {
  protected:
    About()
    {
        Forms::Register("frmAbout", [] { return new frmAbout; });
        Open("frmAbout");
    }
};

TEST_F(About, NamesTheProgramAndItsVersion)
{
    EXPECT_EQ(TheForm().windowTitle(), "About Forcelab");
    EXPECT_EQ(Shown("lblTitle"), "Forcelab Version 1.0");
    EXPECT_NE(Shown("lblAuthors"), "");
    EXPECT_EQ(Shown("cmdOK"), "OK");
    EXPECT_EQ(Shown("cmdSysInfo"), "&System Info...");
}

TEST_F(About, OkClosesIt)
{
    Click("cmdOK");
    EXPECT_FALSE(Forms::IsLoaded("frmAbout"));
}

TEST_F(About, EscapeClosesIt)
{
    Press("cmdOK", Qt::Key_Escape);
    EXPECT_FALSE(Forms::IsLoaded("frmAbout"));
}

TEST_F(About, RunsTheToolWhosePathTheRegistryHas)
{
    Registry->Values[{kInfoKey, "PATH"}] = R"(C:\Tools\info.exe)";
    Registry->Values[{kLocationKey, "MSINFO"}] = R"(C:\Other)";
    Registry->Files = {R"(C:\Tools\info.exe)", R"(C:\Other\MSINFO32.EXE)"};
    Click("cmdSysInfo");
    EXPECT_THAT(Registry->Started, ElementsAre(R"(C:\Tools\info.exe)"));
}

TEST_F(About, ElseRunsTheToolInTheSharedFolder)
{
    Registry->Values[{kLocationKey, "MSINFO"}] = R"(C:\Shared)";
    Registry->Files = {R"(C:\Shared\MSINFO32.EXE)"};
    Click("cmdSysInfo");
    EXPECT_THAT(Registry->Started, ElementsAre(R"(C:\Shared\MSINFO32.EXE)"));
}

TEST_F(About, SaysSoWhereTheRegistryKnowsNoTool)
{
    Expect(kUnavailable);
    Click("cmdSysInfo");
    EXPECT_THAT(Registry->Started, IsEmpty());
}

TEST_F(About, SaysSoWhereTheFileIsGone)
{
    Registry->Values[{kInfoKey, "PATH"}] = R"(C:\Tools\info.exe)";
    Expect(kUnavailable);
    Click("cmdSysInfo");
    EXPECT_THAT(Registry->Started, IsEmpty());
}

TEST_F(About, AValueEndsAtItsFirstZeroCharacter)
{
    Registry->Values[{"Key", "Name"}] = std::string("abc\0def", 7);
    EXPECT_EQ(GetKeyValue("Key", "Name"), "abc");
}

TEST_F(About, AValueHasAtMost1024Characters)
{
    Registry->Values[{"Key", "Name"}] = std::string(2000, 'x');
    EXPECT_EQ(GetKeyValue("Key", "Name"), std::string(1024, 'x'));
}

TEST_F(About, AMissingOrEmptyValueIsToldApart)
{
    Registry->Values[{"Key", "Empty"}] = "";
    EXPECT_EQ(GetKeyValue("Key", "Empty"), "");
    EXPECT_EQ(GetKeyValue("Key", "Name"), std::nullopt);
}

} // namespace
} // namespace forcelab::test
