#include "core/screen/Printer.h"
#include "truss/MemberStress.h"
#include "truss/forms/frmTruss.h"

#include <algorithm>

namespace forcelab::truss {

namespace {

constexpr double kFontSize = 8; // points
// Line widths are 20 and 8 dots of a printer with 600 dots to the inch.
constexpr double kDotsPerPixel = 6.25;
constexpr double kMemberWidth = 20 / kDotsPerPixel;
constexpr double kJointWidth = 8 / kDotsPerPixel;
constexpr double kSpace = 24;       // between the picture and the table, pixels
constexpr std::size_t kFewRows = 5; // fewer of them do not begin below the picture

void SetFont(Picture& pic)
{
    pic.FontName = "Arial";
    pic.FontSize = kFontSize;
}

} // namespace

void frmTruss::PrintTrussResults(int option)
{
    const auto printer = screen::AskForPrinter(this);
    if (!printer) return;
    const double below = PrintPicture(*printer);
    if (option == 2) PrintTable(*printer, below + kSpace);
    printer->EndDoc();
}

// As large as the page allows in the picture's shape, with a border; hands back where it ends.
double frmTruss::PrintPicture(screen::Printer& printer)
{
    const double shape = static_cast<double>(picTruss->height()) / std::max(1, picTruss->width());
    const double width = std::min(printer.Width(), printer.Height() / shape);
    const double height = width * shape;
    const auto sheet = printer.Area(0, 0, width, height);
    SetFont(*sheet);
    DrawResults(*sheet, kMemberWidth, kJointWidth);
    sheet->ScaleToPixels();
    sheet->ForeColor = IndexedColour(0);
    sheet->Box(0, 0, width - 1, height - 1);
    return height;
}

void frmTruss::PrintTable(screen::Printer& printer, double top)
{
    const std::vector<StressRow> rows = StressTable(CurrentTruss, results_, CurrentAreas);
    std::size_t printed = 0;
    while (printed < rows.size()) {
        const double height = std::max(0.0, printer.Height() - top);
        const auto sheet = printer.Area(0, top, printer.Width(), std::max(1.0, height));
        sheet->ScaleToPixels();
        SetFont(*sheet);
        const auto room = static_cast<std::size_t>(StressRowsOn(*sheet, height));
        if (room >= std::min(kFewRows, rows.size() - printed)) {
            PrintStressTable(*sheet, rows, printed, room);
            printed += room;
        }
        top = 0;
        if (printed < rows.size()) printer.NewPage();
    }
}

} // namespace forcelab::truss
