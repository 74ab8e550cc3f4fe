#include "core/forms/frmMainMenu.h"

#include "core/MainModule.h"
#include "core/NumericText.h"
#include "core/screen/Forms.h"
#include "core/screen/Help.h"
#include "core/screen/PictureBox.h"
#include "core/screen/Services.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace forcelab {

using screen::Forms;
using screen::ScreenService;
using screen::Services;

namespace {

constexpr int kLeastScreenWidth = 780; // pixels
constexpr double kUsualTwipsPerPixel = 15;
constexpr int kPoint = 46; // character codes
constexpr int kComma = 44;
constexpr const char* kScreenTitle = "Forcelab Screen Resolution Requirements";
constexpr const char* kResolutionText =
    "Forcelab requires SVGA screen resolution (800 x 600) to fit all of its features on your "
    "screen.  Please change your display resolution.  Thanks.";
constexpr const char* kFontSizeText =
    "Forcelab requires the Small Fonts font size (i.e., 96 pixels per inch) to fit all of its "
    "features on your screen.  Please change your display resolution.  Thanks.";

// What File New unloads, in this order.
constexpr std::string_view kModuleForms[] = {
    "frmAllowable",    "frmBeamDiagrams", "frmBeamStuf",  "frmColumn",       "frmComSolid",
    "frmCrossSection", "frmDefGrid",      "frmDetails",   "frmExplain",      "frmIndet",
    "frmLinSolve",     "frmMatrix",       "frmMohr",      "frmPower",        "frmProperties",
    "frmStiff",        "frmStiffPrint",   "frmStiffPlot", "frmStressStrain", "frmStrut",
    "frmTorsion",      "frmTruss",        "frmTrussLoad", "frmTrussStress",
};

const ScreenService& sysMainMenu()
{
    return *Services::Current().Screen;
}

// At most one of the two messages; neither stops the program.
void TestScreen()
{
    const double twips = sysMainMenu().TwipsPerPixel();
    const bool narrow = sysMainMenu().WidthTwips() / twips < kLeastScreenWidth;
    if (narrow || twips != kUsualTwipsPerPixel)
        screen::MsgBox(narrow ? kResolutionText : kFontSizeText, kExclamation, kScreenTitle);
}

void ScanFonts()
{
    const QStringList fonts = sysMainMenu().Fonts();
    MainModule::SymbolFontPresent =
        std::find(fonts.begin(), fonts.end(), QStringLiteral("Symbol")) != fonts.end();
}

void FindDecimalSeparator()
{
    MainModule::CommaDecimal = Format(1, "0.").substr(1, 1) == ",";
    MainModule::DecimalChar = MainModule::CommaDecimal ? kComma : kPoint;
}

void FindScrollBarSize()
{
    const double pixels = sysMainMenu().ScrollBarTwips() / sysMainMenu().TwipsPerPixel();
    MainModule::ScrollBarPixels = static_cast<int>(pixels + 2);
}

constexpr int kSecondSet = 30; // first index of the other set of buttons
constexpr int kButtons = 13;

// The number of a button in its set; -1 where no button has the index.
int NumberInSet(int index)
{
    const int number = index >= kSecondSet ? index - kSecondSet : index;
    return number >= 0 && number < kButtons ? number : -1;
}

int HelpTopicOf(int number)
{
    constexpr int kLastWithTopic = 8;
    return number >= 1 && number <= kLastWithTopic ? number * 1000 : 1;
}

} // namespace

frmMainMenu::frmMainMenu()
    : Form("frmMainMenu", "Forcelab  --  Strength of Materials Teaching Software"),
      EndProgram([] { QCoreApplication::quit(); })
{
    BuildMenu();
    BuildButtons();
    BuildWindow();
    setFocusPolicy(Qt::ClickFocus);
    connect(QGuiApplication::primaryScreen(), &QScreen::geometryChanged, this,
            &frmMainMenu::sysMainMenu_DisplayChanged);
}

void frmMainMenu::Form_Load()
{
    MainModule::HelpContext = 1;
    MainModule::BookEdition = false;
    MainModule::CurrentModule = 0;
    MainModule::StartingOver = false;
    MainModule::FirstSectionUse = true;
    MainModule::DataPath = "./";
    PlainNumbers = false;
    const QRect area = sysMainMenu().WorkArea();
    move(area.topLeft());
    resize(width(), area.height());
    setWindowState(Qt::WindowNoState);
    TestScreen();
    ScanFonts();
    FindDecimalSeparator();
}

void frmMainMenu::Form_Activate()
{
    FindScrollBarSize();
    TakeWorkArea();
    SetupSSTBrant();
}

// The frame that the desktop puts around the window, known once it is shown, counts too.
void frmMainMenu::TakeWorkArea()
{
    const QSize frame = frameGeometry().size() - size();
    const QSize room = sysMainMenu().WorkArea().size() - frame;
    resize(room.width(), std::min(height(), room.height()));
}

void frmMainMenu::Form_GotFocus()
{
    FindScrollBarSize();
}

void frmMainMenu::sysMainMenu_DisplayChanged()
{
    FindScrollBarSize();
}

void frmMainMenu::focusInEvent(QFocusEvent* event)
{
    Form::focusInEvent(event);
    Guard([] { Form_GotFocus(); });
}

void frmMainMenu::Form_Resize()
{
    ChooseButtonSet();
}

void frmMainMenu::Form_Unload()
{
    mnuExit_Click();
}

// The textbook front end acts once, and only in the edition that has it, which is not built.
void frmMainMenu::SetupSSTBrant()
{
    ++TabSetupCount;
}

std::string_view frmMainMenu::FormFor(std::string_view form)
{
    // The equation solver belongs to the general analysis, and stands in for it until it is built.
    if (form == "frmStiff" && !Forms::IsKnown(form)) return "frmLinSolve";
    return form;
}

void frmMainMenu::OpenModule(std::string_view form)
{
    const std::string_view opened = FormFor(form);
    if (!Forms::IsKnown(opened)) return;
    Forms::Show(opened);
    Forms::Hide("frmMainMenu");
}

void frmMainMenu::mnuStartOver_Click()
{
    MainModule::StartingOver = true;
    for (const std::string_view form : kModuleForms) Forms::Unload(form);
    MainModule::ForgetSection();
}

void frmMainMenu::mnuExit_Click()
{
    mnuStartOver_Click();
    hide();
    EndProgram();
}

void frmMainMenu::mnuClassic_Click()
{
    OpenModule("frmStressStrain");
}

void frmMainMenu::mnuAxialDeterminate_Click()
{
    OpenModule("frmStrut");
}

void frmMainMenu::mnuTruss_click()
{
    OpenModule("frmTruss");
}

void frmMainMenu::mnuIndet_Click()
{
    OpenModule("frmIndet");
}

void frmMainMenu::mnuTorsion_click()
{
    OpenModule("frmPower");
}

void frmMainMenu::mnuBeams_click()
{
    OpenModule("frmBeamStuf");
}

void frmMainMenu::mnuSectionProperties_Click()
{
    constexpr int kFromMainMenu = 3;
    MainModule::SectionCaller = kFromMainMenu;
    OpenModule("frmProperties");
}

void frmMainMenu::mnuStiffness_Click()
{
    OpenModule("frmStiff");
}

void frmMainMenu::mnuColumns_Click()
{
    OpenModule("frmColumn");
}

void frmMainMenu::mnuCombinedStress_Click()
{
    OpenModule("frmComSolid");
}

void frmMainMenu::mnuMohrCircle_Click()
{
    MainModule::MohrCaller = 1;
    MainModule::MohrInputKind = 1;
    OpenModule("frmMohr");
}

void frmMainMenu::mnuForcelabHelpMain_Click()
{
    MainModule::HelpContext = 1;
    screen::ShowHelpTopic();
}

void frmMainMenu::mnuAbout_Click()
{
    Forms::Show("frmAbout");
}

// The menu item "Beams" shows whatever an example has left there; this button starts anew.
void frmMainMenu::cmdBigBeams_Click()
{
    if (PresetUsed) {
        Forms::Unload("frmBeamDiagrams");
        Forms::Unload("frmBeamStuf");
        PresetUsed = false;
    }
    mnuBeams_click();
}

void frmMainMenu::cmdBigWord_MouseUp(int Index, int Button)
{
    const int number = NumberInSet(Index);
    if (number < 0) return;
    const screen::Hourglass hourglass;
    if (Button == screen::kRightButton) {
        MainModule::HelpContext = HelpTopicOf(number);
        screen::ShowHelpTopic();
    } else if (Button == screen::kLeftButton) {
        (this->*kBigWords[number].Click)();
    }
}

} // namespace forcelab
