#include "sections/forms/CrossSectionPrint.h"

#include "core/screen/Printer.h"

#include <algorithm>

namespace forcelab::sections {

namespace {

constexpr double kTitleFactor = 1.4;  // of the title's size to that of the lines
constexpr double kSpacing = 1.15;     // of lines
constexpr double kGroupGap = 0.6;     // lines before a heading
constexpr double kColumnGap = 18;     // pixels
constexpr double kPictureGap = 12;    // pixels
constexpr double kLeastPicture = 140; // pixels; without so much room it is left out
constexpr double kLargestPicture = 420;

constexpr std::string_view kTitle = "Printed Output Error";
constexpr std::string_view kTooWide =
    "The printed output will be too wide to fit on the page for the selected font.  "
    "Choose a smaller font.";
constexpr std::string_view kTooLong =
    "The printed output will be too long to fit on the page for the selected font.  "
    "Choose a smaller font.";

/// The page's text, measured and then printed on one sheet in pixels.
class ReportPage {
  public:
    ReportPage(Picture& pic, const PrintedReport& report) : pic_(pic), report_(report)
    {
        pic.ScaleToPixels();
        pic.FontName = "Arial";
        Take(false, false);
        line_ = pic.TextHeight("X") * kSpacing;
        for (const SummaryLine& line : report.Lines) {
            if (line.Heading) continue;
            symbols_ = std::max(symbols_, pic.TextWidth(line.Symbol));
            values_ = std::max(values_, pic.TextWidth(line.Value));
            meanings_ = std::max(meanings_, pic.TextWidth(line.Meaning));
        }
    }

    [[nodiscard]] double Width()
    {
        double width = symbols_ + values_ + meanings_ + 2 * kColumnGap;
        Take(true, true);
        width = std::max(width, pic_.TextWidth(report_.Caption));
        Take(true, false);
        for (const SummaryLine& line : report_.Lines)
            if (line.Heading) width = std::max(width, pic_.TextWidth(line.Symbol));
        return width;
    }

    [[nodiscard]] double Height()
    {
        double lines = kTitleFactor;
        for (const SummaryLine& line : report_.Lines) lines += 1 + (line.Heading ? kGroupGap : 0);
        return lines * line_;
    }

    void Print()
    {
        Take(true, true);
        PrintAt(0, 0, report_.Caption);
        double top = kTitleFactor * line_;
        for (const SummaryLine& line : report_.Lines) {
            if (line.Heading) top += kGroupGap * line_;
            PrintLine(line, top);
            top += line_;
        }
    }

  private:
    void Take(bool bold, bool title)
    {
        pic_.FontBold = bold;
        pic_.FontSize = report_.FontSize * (title ? kTitleFactor : 1);
    }

    void PrintLine(const SummaryLine& line, double top)
    {
        Take(line.Heading, false);
        PrintAt(0, top, line.Symbol);
        const double right = symbols_ + kColumnGap + values_; // values end flush
        PrintAt(right - pic_.TextWidth(line.Value), top, line.Value);
        PrintAt(right + kColumnGap, top, line.Meaning);
    }

    void PrintAt(double left, double top, const std::string& text)
    {
        pic_.CurrentX = left;
        pic_.CurrentY = top;
        pic_.Print(text);
    }

    Picture& pic_;
    const PrintedReport& report_;
    double line_ = 0, symbols_ = 0, values_ = 0, meanings_ = 0;
};

// Below the text, as large as the page allows.
void PrintPicture(screen::Printer& printer, const PrintedReport& report, double below)
{
    const double top = below + kPictureGap;
    const double height = std::min(printer.Height() - top, kLargestPicture);
    if (height < kLeastPicture) return;
    report.Paint(*printer.Area(0, top, std::min(printer.Width(), 1.5 * height), height));
}

Refusal TooLarge(std::string_view text)
{
    return {kExclamation, std::string(kTitle), std::string(text), "cboPrintSize"};
}

} // namespace

PrintOutcome PrintReport(QWidget* owner, const PrintedReport& report)
{
    const auto printer = screen::AskForPrinter(owner);
    if (!printer) return {};
    const auto sheet = printer->Area(0, 0, printer->Width(), printer->Height());
    ReportPage page(*sheet, report);
    const bool tooWide = page.Width() > printer->Width();
    const double height = page.Height();
    if (tooWide || height > printer->Height()) {
        printer->Abort();
        return {false, TooLarge(tooWide ? kTooWide : kTooLong)};
    }
    page.Print();
    PrintPicture(*printer, report, height);
    printer->EndDoc();
    return {true, {}};
}

} // namespace forcelab::sections
