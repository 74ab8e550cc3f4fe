#include "beams/DiagramFrame.h"
#include "beams/DiagramRequest.h"
#include "beams/LoadDiagram.h"
#include "beams/forms/frmBeamDiagrams.h"
#include "beams/forms/frmStiffPrint.h"
#include "core/DrawingHelpers.h"
#include "core/screen/Printer.h"

namespace forcelab::beams {

namespace {

constexpr const char* kFont = "Arial";
constexpr double kTitleSize = 14; // points
constexpr double kTextSize = 9;
constexpr double kTitleHeight = 32; // pixels
constexpr double kLineHeight = 16;
constexpr double kPartSpace = 14;  // between the parts of the page
constexpr double kLoadShare = 0.4; // of the height that the texts leave
constexpr double kTallest = 330;   // higher pictures leave the page's rest empty

std::unique_ptr<screen::PainterPicture> Sheet(screen::Printer& printer, double top, double height)
{
    auto sheet = printer.Area(0, top, printer.Width(), height);
    sheet->FontName = kFont;
    return sheet;
}

} // namespace

void frmBeamDiagrams::mnuPrintDiagrams_Click()
{
    if (!HasBeam()) return;
    const auto title = frmStiffPrint::AskTitle();
    if (!title) return;
    const auto printer = screen::AskForPrinter(this);
    if (!printer) return;
    try {
        PrintPage(*printer, *title);
        printer->EndDoc();
    } catch (const ArithmeticFault&) {
        printer->Abort();
        Show(PlotFailure(CurveKind(int(ShownCurves().front()))));
    }
}

void frmBeamDiagrams::PrintPage(screen::Printer& printer, const std::string& title)
{
    KeepStiffness();
    stale_ = true;
    Recompute();
    PrintDiagrams(printer, PrintTexts(printer, title) + kPartSpace);
}

/// The title, and what stands beside the diagrams on the screen; hands back where they end.
double frmBeamDiagrams::PrintTexts(screen::Printer& printer, const std::string& title)
{
    const std::vector<std::string> notes = PrintedNotes();
    const double height = kTitleHeight + double(notes.size()) * kLineHeight;
    const auto sheet = Sheet(printer, 0, height);
    sheet->ScaleToPixels();
    sheet->FontSize = kTitleSize;
    sheet->FontBold = true;
    const std::string heading = title.empty() ? windowTitle().toStdString() : title;
    FitText(*sheet, heading);
    PrintText(*sheet, 0, 0, heading);
    sheet->FontSize = kTextSize;
    sheet->FontBold = false;
    double top = kTitleHeight;
    for (const std::string& note : notes) {
        PrintText(*sheet, 0, top, note);
        top += kLineHeight;
    }
    return height;
}

std::vector<std::string> frmBeamDiagrams::PrintedNotes() const
{
    const DiagramUnits& units = ShownDiagramUnits;
    const auto in = [](const char* quantity, std::string_view unit) {
        return quantity + std::string(" (") + std::string(unit) + ")";
    };
    std::string line = in("Length", kLengthUnits.at(units.Length));
    if (CurrentPoint.SlopeView)
        line += in(", slope", kSlopeUnits.at(units.Slope)) +
                in(", deflection", kDeflectionUnits.at(units.Deflection));
    else
        line += in(", force", kForceUnits.at(units.Force)) +
                in(", moment", kMomentUnits.at(units.Moment));
    std::vector<std::string> notes{line};
    for (const auto& [index, message] : lblEIMessage.Members())
        if (CurrentPoint.SlopeView && !message->isHidden()) notes.push_back(message->Caption());
    if (CurrentPoint.X) notes.push_back(PointLine());
    return notes;
}

void frmBeamDiagrams::PrintDiagrams(screen::Printer& printer, double top)
{
    const double rest = printer.Height() - top - 2 * kPartSpace;
    const double load = std::min(kTallest, rest * kLoadShare);
    const double curve = std::min(kTallest, (rest - load) / 2);
    DrawLoadDiagram(*Sheet(printer, top, load), CurrentBeam, CurrentReactions, ShownDiagramUnits,
                    LoadCaseShown());
    top += load + kPartSpace;
    for (const Diagram diagram : ShownCurves()) {
        DrawCurveDiagram(*Sheet(printer, top, curve), CurveKind(int(diagram)), CurrentBeam, curves_,
                         ShownDiagramUnits, CurrentPoint.X);
        top += curve + kPartSpace;
    }
}

} // namespace forcelab::beams
