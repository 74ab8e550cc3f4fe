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
constexpr double kMargin = 1;       // inch
constexpr double kSpace = 24;       // between the picture and the table, pixels
constexpr std::size_t kFewRows = 5; // fewer of them do not begin below the picture

/// The shape of a picture as large as the page allows, inside margins of one inch.
QRectF PrinterPageMap(const screen::Printer& printer, double heightToWidth)
{
    const QRectF room = printer.Inside(kMargin);
    const double width = std::min(room.width(), room.height() / heightToWidth);
    return {room.topLeft(), QSizeF(width, width * heightToWidth)};
}

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

// With a border; hands back where it ends.
double frmTruss::PrintPicture(screen::Printer& printer)
{
    const double shape = static_cast<double>(picTruss->height()) / std::max(1, picTruss->width());
    const QRectF place = PrinterPageMap(printer, shape);
    const auto sheet = printer.Area(place.left(), place.top(), place.width(), place.height());
    SetFont(*sheet);
    DrawResults(*sheet, kMemberWidth, kJointWidth);
    sheet->ScaleToPixels();
    sheet->ForeColor = IndexedColour(0);
    sheet->Box(1, 1, place.width() - 1, place.height() - 1);
    return place.bottom();
}

void frmTruss::PrintTable(screen::Printer& printer, double top)
{
    const std::vector<StressRow> rows = StressTable(CurrentTruss, results_, CurrentAreas);
    const QRectF room = printer.Inside(kMargin);
    std::size_t printed = 0;
    while (printed < rows.size()) {
        const double height = std::max(1.0, room.bottom() - top);
        const auto sheet = printer.Area(room.left(), top, room.width(), height);
        sheet->ScaleToPixels();
        SetFont(*sheet);
        const bool fresh = top <= room.top();
        const auto fit = static_cast<std::size_t>(std::max(StressRowsOn(*sheet, height), 1));
        if (fresh || fit >= std::min(kFewRows, rows.size() - printed)) {
            PrintStressTable(*sheet, rows, printed, fit);
            printed += fit;
        }
        top = room.top();
        if (printed < rows.size()) printer.NewPage();
    }
}

} // namespace forcelab::truss
