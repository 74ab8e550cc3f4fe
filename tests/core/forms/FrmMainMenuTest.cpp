#include "core/forms/frmMainMenu.h"

#include "core/MainModule.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QMenuBar>

#include <set>

namespace forcelab::test {
namespace {

using screen::Form;
using screen::Forms;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Happened;
int Ended = 0;
int SectionsForgotten = 0;

// Stands in for a module's form and notes its life.
class Stub : public Form {
  public:
    explicit Stub(const std::string& name) : Form(name.c_str(), name) {}
    void Form_Load() override
    {
        Note("load");
        HourglassAtLoad = QApplication::overrideCursor() != nullptr;
    }
    void Form_Activate() override { Note("show"); }
    void Form_Unload() override { Note("unload"); }
    static bool HourglassAtLoad;

  private:
    void Note(const char* what)
    {
        Happened.push_back(std::string(what) + " " + objectName().toStdString());
    }
};
bool Stub::HourglassAtLoad = false;

void RegisterStub(const std::string& name)
{
    Forms::Register(name, [name] { return new Stub(name); });
}

const std::vector<std::string> kOpened{
    "frmStressStrain", "frmStrut", "frmTruss",  "frmIndet",    "frmPower", "frmBeamStuf",
    "frmProperties",   "frmStiff", "frmColumn", "frmComSolid", "frmMohr",  "frmAbout"};

const std::vector<std::string> kUnloadedByFileNew{
    "frmAllowable",    "frmBeamDiagrams", "frmBeamStuf",  "frmColumn",       "frmComSolid",
    "frmCrossSection", "frmDefGrid",      "frmDetails",   "frmExplain",      "frmIndet",
    "frmLinSolve",     "frmMatrix",       "frmMohr",      "frmPower",        "frmProperties",
    "frmStiff",        "frmStiffPrint",   "frmStiffPlot", "frmStressStrain", "frmStrut",
    "frmTorsion",      "frmTruss",        "frmTrussLoad", "frmTrussStress"};

class MainMenu : public FormTest {
  protected:
    MainMenu()
    {
        Happened.clear();
        Ended = 0;
        SectionsForgotten = 0;
        MainModule::ForgetSection = [] { ++SectionsForgotten; };
        Forms::Register("frmMainMenu", [] {
            auto* form = new frmMainMenu;
            form->EndProgram = [] { ++Ended; };
            return form;
        });
    }
    frmMainMenu& OpenMenu()
    {
        for (const std::string& form : kOpened) RegisterStub(form);
        return dynamic_cast<frmMainMenu&>(Open("frmMainMenu"));
    }
    std::string Opened()
    {
        for (const std::string& form : kOpened)
            if (Forms::IsVisible(form)) return form;
        return "";
    }
};

TEST_F(MainMenu, TheEquationSolverStandsInForTheGeneralAnalysis)
{
    RegisterStub("frmLinSolve");
    Open("frmMainMenu");
    EXPECT_TRUE(IsEnabled("mnuStiffness"));
    EXPECT_TRUE(IsEnabled("cmdBigWord(10)"));
    EXPECT_FALSE(IsEnabled("mnuColumns"));
    Trigger("mnuStiffness");
    EXPECT_TRUE(Forms::IsVisible("frmLinSolve"));
    EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(MainMenu, HasItsCaptionAndTheMenuOfTheProgram)
{
    EXPECT_EQ(OpenMenu().windowTitle(), "Forcelab  --  Strength of Materials Teaching Software");
    std::vector<std::string> bar;
    for (const QAction* action : TheForm().menuBar()->actions())
        bar.push_back(action->text().toStdString());
    EXPECT_THAT(bar, ElementsAre("&File", "&Axial", "&Torsion", "&Beams", "Section &Properties",
                                 "&General", "&Columns", "Combine&d", "&Mohr's Circle", "&Help"));
}

struct Items {
    const char* Menu;
    std::vector<std::string> Captions;
};
class MainMenuItems : public MainMenu, public testing::WithParamInterface<Items> {};

TEST_P(MainMenuItems, StandInTheirOrder)
{
    OpenMenu();
    std::vector<std::string> captions;
    for (const QAction* action : MenuItem(GetParam().Menu).menu()->actions())
        captions.push_back(action->text().toStdString());
    EXPECT_EQ(captions, GetParam().Captions);
}

INSTANTIATE_TEST_SUITE_P(
    Menus, MainMenuItems,
    testing::Values(Items{"mnuFile", {"&New", "&Exit"}},
                    Items{"mnuAxial",
                          {"&Stress and Strain", "&Beam and Strut", "&Trusses", "&Indeterminate"}},
                    Items{"mnuHelp", {"&Forcelab Help Topics", "", "&About"}}));

TEST_F(MainMenu, LoadingSetsWhatAllModulesShare)
{
    MainModule::HelpContext = 4000;
    MainModule::BookEdition = true;
    MainModule::CurrentModule = 8000;
    MainModule::StartingOver = true;
    MainModule::FirstSectionUse = false;
    PlainNumbers = true;
    OpenMenu();
    EXPECT_EQ(MainModule::HelpContext, 1);
    EXPECT_FALSE(MainModule::BookEdition);
    EXPECT_EQ(MainModule::CurrentModule, 0);
    EXPECT_FALSE(MainModule::StartingOver);
    EXPECT_TRUE(MainModule::FirstSectionUse);
    EXPECT_FALSE(PlainNumbers);
}

TEST(SharedTexts, AreThePiecesOfNarratedArithmetic)
{
    EXPECT_EQ(MainModule::CrLf, "\r\n");
    EXPECT_EQ(MainModule::TimesText, " × ");
    EXPECT_EQ(MainModule::EqualsText, " = ");
    EXPECT_EQ(MainModule::DivideText, " ÷ ");
    EXPECT_EQ(MainModule::SquaredText, " ² ");
}

TEST_F(MainMenu, TakesTheWorkAreaWithItsFrame)
{
    Screen->Area = QRect(20, 10, 1100, 800);
    OpenMenu();
    EXPECT_EQ(TheForm().frameGeometry().topLeft(), QPoint(20, 10));
    EXPECT_EQ(TheForm().frameGeometry().size(), QSize(1100, 800));
    EXPECT_EQ(TheForm().windowState(), Qt::WindowNoState);
}

constexpr const char* kScreenTitle = "Forcelab Screen Resolution Requirements";
const std::string kResolution =
    "Forcelab requires SVGA screen resolution (800 x 600) to fit all of its features on your "
    "screen.  Please change your display resolution.  Thanks.";
const std::string kFontSize =
    "Forcelab requires the Small Fonts font size (i.e., 96 pixels per inch) to fit all of its "
    "features on your screen.  Please change your display resolution.  Thanks.";

struct ScreenRow {
    const char* Name;
    int Pixels;
    double Twips;
    std::string Message; ///< empty: none
};
class ScreenTest : public MainMenu, public testing::WithParamInterface<ScreenRow> {};

TEST_P(ScreenTest, IsToldOnceAndTheMenuOpensAllTheSame)
{
    const ScreenRow& row = GetParam();
    Screen->Width = static_cast<int>(row.Pixels * row.Twips);
    Screen->Twips = row.Twips;
    if (!row.Message.empty()) Expect({kExclamation, kScreenTitle, row.Message});
    OpenMenu();
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_EQ(Messages->Shown.size(), row.Message.empty() ? 0U : 1U);
}

INSTANTIATE_TEST_SUITE_P(Screens, ScreenTest,
                         testing::Values(ScreenRow{"narrow", 640, 15, kResolution},
                                         ScreenRow{"narrowWithLargeFonts", 640, 12, kResolution},
                                         ScreenRow{"justTooNarrow", 779, 15, kResolution},
                                         ScreenRow{"justWideEnough", 780, 15, ""},
                                         ScreenRow{"wideWithLargeFonts", 1024, 12, kFontSize},
                                         ScreenRow{"wide", 1024, 15, ""}),
                         [](const auto& row) { return std::string(row.param.Name); });

struct FontRow {
    const char* Name;
    QStringList Fonts;
    bool Present;
};
class FontScan : public MainMenu, public testing::WithParamInterface<FontRow> {};

TEST_P(FontScan, FindsTheExactNameOnly)
{
    Screen->FontNames = GetParam().Fonts;
    OpenMenu();
    EXPECT_EQ(MainModule::SymbolFontPresent, GetParam().Present);
}

INSTANTIATE_TEST_SUITE_P(
    Fonts, FontScan,
    testing::Values(FontRow{"last", {"Arial", "Symbol"}, true},
                    FontRow{"first", {"Symbol", "Arial"}, true},
                    FontRow{"lowerCase", {"symbol"}, false},
                    FontRow{"longerName", {"Symbol Neu", "Standard Symbols PS"}, false},
                    FontRow{"none", {}, false}),
    [](const auto& row) { return std::string(row.param.Name); });

TEST_F(MainMenu, LearnsTheDecimalSeparatorFromItsOwnFormat)
{
    const bool comma = Regional::Current.DecimalPoint == ',';
    MainModule::CommaDecimal = !comma;
    MainModule::DecimalChar = 0;
    OpenMenu();
    EXPECT_EQ(Format(1, "0."), Local("1."));
    EXPECT_EQ(MainModule::CommaDecimal, comma);
    EXPECT_EQ(MainModule::DecimalChar, comma ? 44 : 46);
}

TEST_F(MainMenu, TheScrollBarSizeIsInPixelsPlusTwoAndTruncated)
{
    Screen->ScrollBar = 16 * 15 + 14;
    OpenMenu();
    EXPECT_EQ(MainModule::ScrollBarPixels, 18);
    Screen->ScrollBar = 20 * 15;
    frmMainMenu::Form_GotFocus();
    EXPECT_EQ(MainModule::ScrollBarPixels, 22);
}

TEST_F(MainMenu, ActivatingAgainRestoresTheWidth)
{
    frmMainMenu& menu = OpenMenu();
    const int width = menu.width();
    menu.resize(900, 600);
    Open("frmMohr");
    Open("frmMainMenu");
    EXPECT_EQ(menu.width(), width);
    EXPECT_EQ(menu.height(), 600);
}

struct ModuleRow {
    const char* Item;
    int Button;
    const char* Form;
    int HelpTopic;
};
const ModuleRow kModules[] = {
    {"mnuColumns", 1, "frmColumn", 1000},
    {"mnuTruss", 2, "frmTruss", 2000},
    {"mnuMohrCircle", 3, "frmMohr", 3000},
    {"mnuBeams", 4, "frmBeamStuf", 4000},
    {"mnuTorsion", 5, "frmPower", 5000},
    {"mnuSectionProperties", 6, "frmProperties", 6000},
    {"mnuAxialDeterminate", 7, "frmStrut", 7000},
    {"mnuIndet", 8, "frmIndet", 8000},
    {"mnuClassic", 9, "frmStressStrain", 1},
    {"mnuStiffness", 10, "frmStiff", 1},
    {"mnuCombinedStress", 12, "frmComSolid", 1},
};
class Module : public MainMenu, public testing::WithParamInterface<ModuleRow> {};

TEST_P(Module, OpensFromItsMenuItem)
{
    OpenMenu();
    Trigger(GetParam().Item);
    EXPECT_EQ(Opened(), GetParam().Form);
    EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
}

TEST_P(Module, OpensFromBothOfItsBigButtonsUnderTheHourglass)
{
    for (const int index : {GetParam().Button, GetParam().Button + 30}) {
        Happened.clear();
        OpenMenu().cmdBigWord_MouseUp(index, 1);
        EXPECT_EQ(Opened(), GetParam().Form);
        EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
        EXPECT_TRUE(Stub::HourglassAtLoad);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        Forms::Unload(GetParam().Form);
    }
    EXPECT_THAT(Help->Opened, IsEmpty());
}

TEST_P(Module, GivesHelpForTheRightButtonAndOpensNothing)
{
    OpenMenu();
    for (const int index : {GetParam().Button, GetParam().Button + 30}) {
        Happened.clear();
        dynamic_cast<frmMainMenu&>(TheForm()).cmdBigWord_MouseUp(index, 2);
        EXPECT_THAT(Happened, IsEmpty());
    }
    const std::pair<std::string, int> topic("forcelab.hlp", GetParam().HelpTopic);
    EXPECT_THAT(Help->Opened, ElementsAre(topic, topic));
    EXPECT_EQ(MainModule::HelpContext, GetParam().HelpTopic);
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

INSTANTIATE_TEST_SUITE_P(Modules, Module, testing::ValuesIn(kModules),
                         [](const auto& row) { return std::string(row.param.Item); });

TEST_F(MainMenu, ModulesLearnWhoOpenedThem)
{
    MainModule::MohrCaller = 6000;
    MainModule::MohrInputKind = 0;
    OpenMenu();
    Trigger("mnuMohrCircle");
    EXPECT_EQ(MainModule::MohrCaller, 1);
    EXPECT_EQ(MainModule::MohrInputKind, 1);
    Open("frmMainMenu");
    Trigger("mnuSectionProperties");
    EXPECT_EQ(MainModule::SectionCaller, 3);
}

TEST_F(MainMenu, IndicesBetweenTheTwoSetsDoNothing)
{
    frmMainMenu& menu = OpenMenu();
    Happened.clear();
    for (int index = 13; index < 30; ++index) {
        menu.cmdBigWord_MouseUp(index, 1);
        menu.cmdBigWord_MouseUp(index, 2);
    }
    EXPECT_THAT(Happened, IsEmpty());
    EXPECT_THAT(Help->Opened, IsEmpty());
    EXPECT_EQ(Ended, 0);
}

TEST_F(MainMenu, ClicksOfThePersonReachTheButtons)
{
    OpenMenu();
    Click("cmdBigWord(3)", Qt::RightButton);
    EXPECT_THAT(Help->Opened, ElementsAre(std::pair<std::string, int>("forcelab.hlp", 3000)));
    EXPECT_EQ(Opened(), "");
    Click("cmdBigWord(3)", Qt::MiddleButton);
    EXPECT_EQ(Opened(), "");
    Click("cmdBigWord(3)");
    EXPECT_EQ(Opened(), "frmMohr");
}

TEST_F(MainMenu, AMouseThatComesUpBesideTheButtonDoesNothing)
{
    OpenMenu();
    QWidget& button = Widget("cmdBigWord(3)");
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
    EXPECT_EQ(Opened(), "");
}

class Keys : public MainMenu, public testing::WithParamInterface<Qt::Key> {};

TEST_P(Keys, OpenABigButtonsModule)
{
    OpenMenu();
    Press("cmdBigWord(5)", GetParam());
    EXPECT_EQ(Opened(), "frmPower");
}

INSTANTIATE_TEST_SUITE_P(OfAButton, Keys,
                         testing::Values(Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter));

TEST_F(MainMenu, F1GivesHelpOnABigButton)
{
    OpenMenu();
    Press("cmdBigWord(7)", Qt::Key_F1);
    EXPECT_THAT(Help->Opened, ElementsAre(std::pair<std::string, int>("forcelab.hlp", 7000)));
}

TEST_F(MainMenu, TheExitButtonGivesHelpOrEndsTheProgram)
{
    OpenMenu();
    Click("cmdBigWord(0)", Qt::RightButton);
    EXPECT_EQ(Ended, 0);
    EXPECT_EQ(MainModule::HelpContext, 1);
    EXPECT_EQ(Help->Opened.size(), 1U);
    Click("cmdBigWord(0)");
    EXPECT_EQ(Ended, 1);
    EXPECT_FALSE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(MainMenu, TheHelpButtonAndItemOpenTheContents)
{
    OpenMenu();
    MainModule::HelpContext = 4000;
    Click("cmdBigWord(11)");
    MainModule::HelpContext = 4000;
    Trigger("mnuForcelabHelpMain");
    const std::pair<std::string, int> contents("forcelab.hlp", 1);
    EXPECT_THAT(Help->Opened, ElementsAre(contents, contents));
}

TEST_F(MainMenu, AboutIsShownBesideTheMenu)
{
    OpenMenu();
    Trigger("mnuAbout");
    EXPECT_TRUE(Forms::IsVisible("frmAbout"));
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(MainMenu, AfterAnExampleTheBigBeamsButtonStartsAnew)
{
    frmMainMenu& menu = OpenMenu();
    RegisterStub("frmBeamDiagrams");
    Forms::Load("frmBeamStuf");
    Forms::Load("frmBeamDiagrams");
    menu.PresetUsed = true;
    Happened.clear();
    Click("cmdBigWord(4)");
    EXPECT_THAT(Happened, ElementsAre("unload frmBeamDiagrams", "unload frmBeamStuf",
                                      "load frmBeamStuf", "show frmBeamStuf"));
    EXPECT_FALSE(menu.PresetUsed);
}

TEST_F(MainMenu, AfterAnExampleTheBeamsItemShowsWhatItLeft)
{
    frmMainMenu& menu = OpenMenu();
    Forms::Load("frmBeamStuf");
    menu.PresetUsed = true;
    Happened.clear();
    Trigger("mnuBeams");
    EXPECT_THAT(Happened, ElementsAre("show frmBeamStuf"));
    EXPECT_TRUE(menu.PresetUsed);
}

TEST_F(MainMenu, WithoutAnExampleTheBigBeamsButtonKeepsTheForm)
{
    OpenMenu();
    Forms::Load("frmBeamStuf");
    Happened.clear();
    Click("cmdBigWord(4)");
    EXPECT_THAT(Happened, ElementsAre("show frmBeamStuf"));
}

TEST_F(MainMenu, FileNewUnloadsTheModulesInOrderAndForgetsTheSection)
{
    OpenMenu();
    std::vector<std::string> expected;
    for (const std::string& form : kUnloadedByFileNew) {
        RegisterStub(form);
        Forms::Load(form);
        expected.push_back("unload " + form);
    }
    Happened.clear();
    Trigger("mnuStartOver");
    EXPECT_EQ(Happened, expected);
    EXPECT_TRUE(MainModule::StartingOver);
    EXPECT_EQ(SectionsForgotten, 1);
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
    EXPECT_EQ(Ended, 0);
}

TEST_F(MainMenu, FileNewLeavesTheFormsThatAreNoModules)
{
    OpenMenu();
    const std::vector<std::string> kept{"frmAbout", "frmFailure", "frmReverseShear",
                                        "frmShadeSolid", "frmTwoRods"};
    for (const std::string& form : kept) {
        RegisterStub(form);
        Forms::Load(form);
    }
    Trigger("mnuStartOver");
    for (const std::string& form : kept) EXPECT_TRUE(Forms::IsLoaded(form)) << form;
}

TEST_F(MainMenu, ExitUnloadsTheModulesAndEnds)
{
    OpenMenu();
    Forms::Load("frmColumn");
    Trigger("mnuExit");
    EXPECT_FALSE(Forms::IsLoaded("frmColumn"));
    EXPECT_EQ(Ended, 1);
}

TEST_F(MainMenu, ClosingTheWindowIsExit)
{
    OpenMenu();
    Forms::Load("frmColumn");
    TheForm().close();
    EXPECT_FALSE(Forms::IsLoaded("frmColumn"));
    EXPECT_EQ(Ended, 1);
}

TEST_F(MainMenu, AModuleThatIsNotBuiltCannotBeOpenedAndSaysWhy)
{
    RegisterStub("frmMohr");
    Open("frmMainMenu");
    EXPECT_FALSE(IsEnabled("mnuBeams"));
    EXPECT_FALSE(IsEnabled("cmdBigWord(4)"));
    EXPECT_FALSE(IsEnabled("cmdBigWord(34)"));
    EXPECT_EQ(Widget("cmdBigWord(4)").toolTip(), "This module is not built yet.");
    EXPECT_EQ(MenuItem("mnuBeams").toolTip(), "This module is not built yet.");
    EXPECT_EQ(MenuItem("mnuTruss").toolTip(), "This module is not built yet.");
    EXPECT_TRUE(MenuItem("mnuAxial").menu()->toolTipsVisible());
    EXPECT_TRUE(IsEnabled("mnuMohrCircle"));
    EXPECT_EQ(Widget("cmdBigWord(3)").toolTip(), "Right click for Help");
    EXPECT_EQ(Widget("cmdBigWord(0)").toolTip(), "Right click for Help");
    dynamic_cast<frmMainMenu&>(TheForm()).cmdBigWord_MouseUp(4, 1);
    EXPECT_TRUE(Forms::IsVisible("frmMainMenu"));
}

TEST_F(MainMenu, EachButtonSaysItsName)
{
    OpenMenu();
    const std::vector<std::string> captions{"Exit",
                                            "Columns",
                                            "Trusses",
                                            "Mohr's Circle",
                                            "Beams",
                                            "Torsion",
                                            "Section Properties",
                                            "Beam and Strut",
                                            "Indeterminate",
                                            "Stress and Strain",
                                            "General Analysis",
                                            "Help",
                                            "Combined Stress"};
    for (int i = 0; i < 13; ++i)
        for (const int index : {i, i + 30}) {
            const std::string name = "cmdBigWord(" + std::to_string(index) + ")";
            EXPECT_EQ(Shown(name), captions[i]);
            EXPECT_EQ(Widget(name).accessibleName().toStdString(), captions[i]);
        }
}

TEST_F(MainMenu, ASmallWindowShowsTheCompactSet)
{
    OpenMenu();
    EXPECT_TRUE(IsVisible("fraBigButtons(0)"));
    EXPECT_FALSE(IsVisible("fraBigButtons(1)"));
    TheForm().resize(800, 520);
    EXPECT_FALSE(IsVisible("fraBigButtons(0)"));
    EXPECT_TRUE(IsVisible("fraBigButtons(1)"));
    EXPECT_EQ(TheForm().size(), QSize(800, 520));
    TheForm().resize(1100, 700);
    EXPECT_TRUE(IsVisible("cmdBigWord(12)"));
}

TEST_F(MainMenu, ThePicturesOfTheButtonsAreDrawn)
{
    OpenMenu();
    for (int i = 0; i < 13; ++i) {
        const QImage image = Widget("cmdBigWord(" + std::to_string(i) + ")").grab().toImage();
        std::set<QRgb> tones;
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y) tones.insert(image.pixel(x, y));
        // The family's line tone, on every picture.
        EXPECT_TRUE(tones.count(0xFF1F4E79)) << i;
    }
}

TEST_F(MainMenu, TheTextbookFrontEndStaysUnbuilt)
{
    frmMainMenu& menu = OpenMenu();
    EXPECT_GE(menu.TabSetupCount, 1);
    EXPECT_EQ(TheForm().ControlNamed("sstBrant"), nullptr);
}

} // namespace
} // namespace forcelab::test
