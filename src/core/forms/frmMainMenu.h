#pragma once

#include "core/forms/BigButton.h"
#include "core/forms/TitlePicture.h"
#include "core/screen/Form.h"

#include <QFrame>

#include <functional>
#include <string_view>

namespace forcelab {

/// The start-up form: prepares what all modules share and opens them from a menu and from a panel
/// of picture buttons. Closing it ends the program.
class frmMainMenu : public screen::Form {
  public:
    frmMainMenu();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Resize() override;
    void Form_Unload() override;
    static void Form_GotFocus();

    void cmdBigWord_MouseUp(int Index, int Button);

    bool PresetUsed = false; ///< an example has filled the beam module
    int TabSetupCount = 0;   ///< how often SetupSSTBrant has been called
    /// What ends the program after Exit.
    std::function<void()> EndProgram;

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    using Handler = void (frmMainMenu::*)();
    /// An item of the menu bar, or of the menu named before it.
    struct MenuRow {
        enum class Kind { Menu, Item, BarItem, Separator } What;
        const char* Name;
        std::string_view Caption;
        Handler Click = nullptr;
        std::string_view Opens = {}; ///< the module's form
    };
    /// A pair of big buttons, one of each set.
    struct BigWord {
        std::string_view Caption;
        std::string_view Picture;
        Handler Click;
        std::string_view Opens;
    };
    static const MenuRow kMenu[];
    static const BigWord kBigWords[];

    void mnuStartOver_Click();
    void mnuExit_Click();
    void mnuClassic_Click();
    void mnuAxialDeterminate_Click();
    void mnuTruss_click();
    void mnuIndet_Click();
    void mnuTorsion_click();
    void mnuBeams_click();
    void mnuSectionProperties_Click();
    void mnuStiffness_Click();
    void mnuColumns_Click();
    void mnuCombinedStress_Click();
    void mnuMohrCircle_Click();
    void mnuForcelabHelpMain_Click();
    void mnuAbout_Click();
    void cmdBigBeams_Click();
    static void sysMainMenu_DisplayChanged();

    /// The form that opens in the name of a module's form.
    static std::string_view FormFor(std::string_view form);
    [[nodiscard]] static bool IsBuilt(std::string_view form);
    void OpenModule(std::string_view form);
    void SetupSSTBrant();
    void TakeWorkArea();

    // Layout.
    void BuildMenu();
    QAction* BuildMenuRow(const MenuRow& row, QMenu*& menu);
    void BuildButtons();
    void ArrangeButtons(int set, int columns);
    void SetTabOrder();
    void BuildWindow();
    void ChooseButtonSet();

    screen::ControlArray<QFrame> fraBigButtons{this, "fraBigButtons", 2};
    screen::ControlArray<BigButton> cmdBigWord{
        this, "cmdBigWord", {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,
                             30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42}};
    TitlePicture* imgBookCover = Make<TitlePicture>("imgBookCover");
    screen::Label* lblHint = Make<screen::Label>("lblHint");
};

} // namespace forcelab
