#include "core/DrawingHelpers.h"
#include "core/screen/Printer.h"
#include "transform/MohrDrawing.h"
#include "transform/MohrTexts.h"
#include "transform/forms/frmMohr.h"

#include <algorithm>

namespace forcelab::transform {

namespace {

constexpr double kTitleSize = 14;    // points
constexpr double kTextSize = 9;      // points
constexpr double kLineHeight = 16;   // pixels
constexpr double kTitleHeight = 36;  // pixels
constexpr double kSketch = 110;      // side of a small picture, pixels
constexpr double kCaption = 18;      // height of a caption above a picture, pixels
constexpr double kSpace = 12;        // between the parts of the page, pixels
constexpr double kCircleShare = 0.6; // of the height that the texts leave

using Painter = std::function<void(Picture&)>;

/// Where a picture stands on the page, pixels.
struct Place {
    double Left, Top, Width, Height;
};

void PrintCaption(screen::Printer& printer, const Place& place, std::string_view caption)
{
    const auto line = printer.Area(place.Left, place.Top, place.Width, kCaption);
    line->ScaleToPixels();
    line->FontSize = kTextSize;
    line->FontBold = true;
    PrintText(*line, place.Width / 2, 0, std::string(caption), HAlign::Centre);
}

void PrintPicture(screen::Printer& printer, const Place& place, std::string_view caption,
                  const Painter& paint)
{
    PrintCaption(printer, place, caption);
    paint(*printer.Area(place.Left, place.Top + kCaption, place.Width, place.Height - kCaption));
}

void PrintLines(Picture& pic, double left, double top, const std::vector<std::string>& lines)
{
    for (const std::string& line : lines) {
        PrintText(pic, left, top, line);
        top += kLineHeight;
    }
}

} // namespace

void frmMohr::mnuPrintDiagrams_Click()
{
    if (const auto printer = screen::AskForPrinter(this)) PrintPage(*printer);
}

void frmMohr::PrintPage(screen::Printer& printer)
{
    const double below = PrintTexts(printer);
    PrintSketches(printer);
    if (!NothingToDraw()) PrintPictures(printer, below + kSpace);
    printer.EndDoc();
}

// The title, what was typed and what came out, at the left; hands back where they end.
double frmMohr::PrintTexts(screen::Printer& printer)
{
    const auto inputs = PrintedInputs();
    const auto results = PrintedResults();
    const double lines = static_cast<double>(inputs.size() + results.size()) + 1;
    const double height = std::max(kTitleHeight + lines * kLineHeight, kTitleHeight + kSketch);
    const auto sheet = printer.Area(0, 0, printer.Width(), height);
    sheet->ScaleToPixels();
    sheet->FontSize = kTitleSize;
    sheet->FontBold = true;
    PrintText(*sheet, 0, 0, windowTitle().toStdString());
    sheet->FontSize = kTextSize;
    sheet->FontBold = false;
    const double inputsEnd = kTitleHeight + static_cast<double>(inputs.size()) * kLineHeight;
    PrintLines(*sheet, 0, kTitleHeight, inputs);
    PrintLines(*sheet, 0, inputsEnd + kLineHeight, results);
    return height;
}

// The sign convention or the gauges, and the angle, at the right of the texts.
void frmMohr::PrintSketches(screen::Printer& printer)
{
    std::vector<screen::PictureBox*> sketches{picXprime};
    if (IsRosette(mode_)) sketches.push_back(picStrainOrient);
    sketches.push_back(mode_ == MohrMode::Rosette45   ? picRosette45
                       : mode_ == MohrMode::Rosette60 ? picRosette60
                                                      : picSignConvention);
    double left = printer.Width();
    for (const screen::PictureBox* sketch : sketches) {
        left -= kSketch;
        sketch->OnPaint(*printer.Area(left, kTitleHeight, kSketch, kSketch));
        left -= kSpace;
    }
}

void frmMohr::PrintPictures(screen::Printer& printer, double top)
{
    const double rest = printer.Height() - top;
    const double circle = rest * kCircleShare;
    PrintPicture(printer, {0, top, printer.Width(), circle}, lblMohr->Caption(), picMohr->OnPaint);
    std::vector<std::pair<screen::Label*, screen::PictureBox*>> elements{
        {lblPrincipal, picPrincipal}, {lblMaxShear, picMaxShear}, {lblRotater, picRotater}};
    if (LabelsOf(mode_).MaxShear.empty()) elements.erase(elements.begin() + 1);
    const double width = printer.Width() / static_cast<double>(elements.size());
    Place place{0, top + circle + kSpace, width - kSpace, rest - circle - kSpace};
    for (const auto& [label, picture] : elements) {
        PrintPicture(printer, place, label->Caption(), picture->OnPaint);
        place.Left += width;
    }
}

std::vector<std::string> frmMohr::PrintedInputs() const
{
    const MohrEntry entry = NothingToDraw() ? ReadEntry() : shown_;
    const ModeLabels& labels = LabelsOf(mode_);
    std::vector<std::string> lines{fraStress->title().toStdString()};
    for (int row = 0; row < 3; ++row) {
        std::string name(labels.Direction[row]);
        if (!labels.Kind[row].empty()) name += ", " + std::string(labels.Kind[row]);
        const std::string_view sense = labels.Sense[row][entry.Negative[row] ? 1 : 0];
        lines.push_back(name + ": " + entry.Text[row] + " " + std::string(kMohrUnits[entry.Unit]) +
                        (sense.empty() ? "" : " " + std::string(sense)));
    }
    if (!entry.Stresses.Wanted) return lines;
    const StrainToStress& stresses = entry.Stresses;
    lines.push_back("Elastic Modulus: " + stresses.ElasticModulus + " " +
                    optElasticModulus(stresses.ElasticModulusUnit).text().toStdString());
    lines.push_back("Poisson's Ratio: " + stresses.Poisson);
    return lines;
}

std::vector<std::string> frmMohr::PrintedResults() const
{
    if (NothingToDraw()) return {};
    const StressState& state = CurrentStress;
    const auto words = [this](Quantity quantity) {
        return std::string(QuantityWords(mode_, quantity));
    };
    std::vector<std::string> lines{
        words(Quantity::One) + NormalText(state, shown_, state.PrincipalOne),
        words(Quantity::Two) + NormalText(state, shown_, state.PrincipalTwo)};
    if (ShowsThreeCircles(shown_)) {
        lines.push_back(words(Quantity::Three) + NormalText(state, shown_, state.PrincipalThree));
        lines.push_back(words(Quantity::AbsMaxShear) + ShearText(state, shown_, state.AbsMaxShear));
    }
    lines.push_back(words(Quantity::MaxShear) + ShearText(state, shown_, state.CircleRadius));
    lines.push_back("Direction of the first principal value: " +
                    TurnText(PrincipalDirection(state)));
    lines.push_back(lblAngle->Caption() + ": " + TurnText(state.RotationAngle));
    for (int row = 0; row < 3; ++row)
        lines.push_back(lblRotated(row).Caption() + " = " + lblRotatedValue(row).Caption());
    for (const auto& [index, label] : lblStressFromStrains.Members())
        if (!label->Caption().empty()) lines.push_back(label->Caption());
    return lines;
}

} // namespace forcelab::transform
