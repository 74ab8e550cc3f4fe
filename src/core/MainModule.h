#pragma once

#include <string>

/// What all modules share and no form owns. These variables live as long as the program; no
/// operation resets them all, each is reset by the module that it belongs to.
namespace forcelab::MainModule {

inline int HelpContext = 1;            ///< topic that ShowHelpTopic opens; 1 is the contents page
inline int CurrentModule = 0;          ///< which forms UnloadModuleForms unloads
inline bool FirstSectionUse = true;    ///< Section Properties has not been opened yet
inline bool StartingOver = false;      ///< set by File New
inline bool BookEdition = false;       ///< the textbook front end; nothing switches it on
inline std::string DataPath = "./";    ///< folder of the steel tables, from the working directory
inline bool SymbolFontPresent = false; ///< Greek letters can be drawn in the font "Symbol"
inline bool CommaDecimal = false;      ///< the system writes its decimals with a comma
inline int DecimalChar = 46;           ///< 46 or 44; what ParseNumber takes for the decimal point
inline int ScrollBarPixels = 0;        ///< width of a scroll bar plus 2, pixels

/// Leaves no current section. The program sets it to what the sections module does for that, so
/// that the shell knows nothing of sections.
inline void (*ForgetSection)() = [] {};

/// Who opened frmProperties and gets the screen back: 1 beams, 2 columns, 3 main menu,
/// 12000 combined loading.
inline int SectionCaller = 0;
/// Who opened frmMohr: 1 main menu, 4000 beams, 4500 beam section stresses, 5000 torsion,
/// 6000 section properties.
inline int MohrCaller = 0;
/// 1 while frmMohr has computed nothing yet, 0 after its Compute.
inline int MohrInputKind = 0;

// Pieces of narrated arithmetic, UTF-8.
inline const std::string CrLf = "\r\n";
inline const std::string TimesText = " \u00D7 ";
inline const std::string EqualsText = " = ";
inline const std::string DivideText = " \u00F7 ";
inline const std::string SquaredText = " \u00B2 ";

} // namespace forcelab::MainModule
