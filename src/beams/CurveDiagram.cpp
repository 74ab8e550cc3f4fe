#include "beams/CurveDiagram.h"

#include "beams/CurveLabels.h"
#include "beams/DiagramFrame.h"
#include "beams/DiagramScale.h"
#include "core/ArithmeticFault.h"
#include "core/MainModule.h"
#include "core/Units.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr double kLinesAbove = 2.5; // text heights added to the scale
constexpr double kLinesBelow = 3.5;
constexpr double kUnitPlace = -3.2; // widths of a character
constexpr double kLinesOfJump = 1.5;
constexpr double kCurveWidth = 2; // pixels
constexpr double kTitleLeft = 4;
constexpr double kArrowHead = 6;
constexpr double kDot = 3;
constexpr double kJump = 2 * kLeftOfJump; // neighbours this near stand for one x
constexpr double kNoSpacing = 0.1;        // taken where neighbours coincide
constexpr double kExtremeWeight = 10;
constexpr double kRoundedOff = 1e-9; // of the largest value

/// What differs between the four diagrams.
struct CurveTable {
    std::string_view Title;
    CurveList BeamCurves::*Values;
    CurveList BeamCurves::*LabelX;
    CurveList BeamCurves::*LabelValue;
    int BeamCurves::*LabelCount;
    ExtremeTable BeamCurves::*Extremes;
    CurveList BeamCurves::*ZeroX; ///< where the curve, or the next one, has its extremes
    int BeamCurves::*ZeroCount;
    int SizeRow;
    double (*ValueScale)(const DiagramUnits&);
    std::string_view (*Unit)(const DiagramUnits&);
    std::string (*Text)(double, const DiagramUnits&);
    Colour Line, Fill;
};

double ShearScale(const DiagramUnits& units)
{
    return 1 / ForceFactor(units.Force);
}
double MomentScale(const DiagramUnits& units)
{
    return 1 / MomentFactor(units.Moment);
}

const std::array<CurveTable, 4> kTables{{
    {"Shear", &BeamCurves::CurveShear, &BeamCurves::ShearLabelX, &BeamCurves::ShearLabelValue,
     &BeamCurves::ShearLabelCount, &BeamCurves::ShearMomentExtremes, &BeamCurves::ZeroShearX,
     &BeamCurves::ZeroShearCount, kFirstSize, ShearScale,
     [](const DiagramUnits& units) { return kForceUnits.at(units.Force); }, ForceText,
     Rgb(0x1f, 0x5f, 0xa8), Rgb(0xe3, 0xed, 0xf8)},
    {"Moment", &BeamCurves::CurveMoment, &BeamCurves::MomentLabelX, &BeamCurves::MomentLabelValue,
     &BeamCurves::MomentLabelCount, &BeamCurves::ShearMomentExtremes, &BeamCurves::ZeroShearX,
     &BeamCurves::ZeroShearCount, kSecondSize, MomentScale,
     [](const DiagramUnits& units) { return kMomentUnits.at(units.Moment); }, MomentText,
     Rgb(0xa8, 0x3f, 0x2b), Rgb(0xfa, 0xec, 0xe6)},
    {"Slope", &BeamCurves::CurveSlope, &BeamCurves::SlopeLabelX, &BeamCurves::SlopeLabelValue,
     &BeamCurves::SlopeLabelCount, &BeamCurves::SlopeDeflectionExtremes, &BeamCurves::ZeroMomentX,
     &BeamCurves::ZeroMomentCount, kFirstSize, SlopeScale,
     [](const DiagramUnits& units) { return kSlopeUnits.at(units.Slope); }, SlopeText,
     Rgb(0x2d, 0x74, 0x4a), Rgb(0xe6, 0xf3, 0xea)},
    {"Deflection", &BeamCurves::CurveDeflection, &BeamCurves::DeflectionLabelX,
     &BeamCurves::DeflectionLabelValue, &BeamCurves::DeflectionLabelCount,
     &BeamCurves::SlopeDeflectionExtremes, &BeamCurves::ZeroSlopeX, &BeamCurves::ZeroSlopeCount,
     kSecondSize, DeflectionScale,
     [](const DiagramUnits& units) { return kDeflectionUnits.at(units.Deflection); },
     DeflectionText, Rgb(0x6b, 0x46, 0x95), Rgb(0xf0, 0xea, 0xf7)},
}};

class CurveSheet {
  public:
    CurveSheet(Picture& pic, CurveKind kind, const BeamRecord& beam, const BeamCurves& curves,
               const DiagramUnits& units)
        : pic_(pic), kind_(kind), table_(kTables.at(static_cast<int>(kind))), beam_(beam),
          curves_(curves), units_(units), board_(pic)
    {
        frame_.ValueScale = table_.ValueScale(units);
        const DiagramScale scale =
            ScaleOf(curves.*table_.Extremes, table_.SizeRow, frame_.ValueScale);
        frame_.YDivisor = scale.YDivisor;
        ScaleFrame(pic, beam.BeamLength, scale.Top, scale.Bottom);
        const double text = pic.TextHeight("X");
        ScaleFrame(pic, beam.BeamLength, scale.Top + kLinesAbove * text,
                   scale.Bottom - kLinesBelow * text);
        const double line = board_.LineHeight();
        const double margin = -pic.ScaleY(kLinesBelow * text);
        positionsTop_ = pic.HeightPixels() - std::max(1.0, std::floor(margin / line)) * line;
        FindZeros();
        for (int k = 1; k <= kCurvePoints; ++k)
            points_.push_back({curves.CurveX[k], Height((curves.*table_.Values)[k])});
    }

    CurveFrame Draw(std::optional<double> markerX)
    {
        FillArea();
        DrawKeyLines();
        pic_.ForeColor = kBaseline;
        pic_.Line(0, 0, beam_.BeamLength, 0);
        DrawCurve();
        if (kind_ == CurveKind::Shear) DrawSignConvention();
        PrintTitles();
        PrintPositions(pic_, board_, PositionsToPrint(beam_, zeros_), units_, positionsTop_,
                       pic_.HeightPixels());
        PrintValues();
        if (markerX) DrawMarker(*markerX);
        pic_.ForeColor = kInk;
        return frame_;
    }

  private:
    [[nodiscard]] double Height(double value) const
    {
        return Finite(value * frame_.ValueScale / frame_.YDivisor);
    }

    /// Zero points whose position does not read like that of a key point.
    void FindZeros()
    {
        const PointList keys = BuildKeyPoints(beam_);
        for (int k = 1; k <= curves_.*table_.ZeroCount; ++k) {
            const double zero = (curves_.*table_.ZeroX)[k];
            const auto readsAlike = [&, text = LengthText(zero, units_)](double key) {
                return LengthText(key, units_) == text;
            };
            if (std::none_of(keys.At.begin() + 1, keys.At.begin() + 1 + keys.Count, readsAlike))
                zeros_.push_back(zero);
        }
    }

    void FillArea()
    {
        std::vector<PicturePoint> area{{0, 0}};
        area.insert(area.end(), points_.begin(), points_.end());
        area.push_back({beam_.BeamLength, 0});
        const LinePattern line = std::exchange(pic_.DrawStyle, LinePattern::Invisible);
        const FillPattern pattern = std::exchange(pic_.FillStyle, FillPattern::Solid);
        pic_.FillColor = table_.Fill;
        pic_.Polygon(area);
        pic_.DrawStyle = line;
        pic_.FillStyle = pattern;
    }

    void DrawKeyLines()
    {
        const PointList keys = BuildKeyPoints(beam_);
        for (int k = 1; k <= keys.Count; ++k) {
            const double x = ColumnOf(pic_, keys.At[k]);
            PixelLine(pic_, {x, kDot}, {x, positionsTop_}, kKeyLine);
        }
        const LinePattern line = std::exchange(pic_.DrawStyle, LinePattern::Dash);
        for (const double zero : zeros_) {
            const double x = ColumnOf(pic_, zero);
            PixelLine(pic_, {x, kDot}, {x, positionsTop_}, kKeyLine);
        }
        pic_.DrawStyle = line;
    }

    /// The curve, and the jumps of its ends from and to the baseline.
    void DrawCurve()
    {
        pic_.ForeColor = table_.Line;
        pic_.DrawWidth = 1;
        pic_.Line(0, 0, 0, points_.front().Y);
        pic_.Line(beam_.BeamLength, 0, beam_.BeamLength, points_.back().Y);
        pic_.DrawWidth = kCurveWidth;
        pic_.Polyline(points_);
        pic_.DrawWidth = 1;
    }

    /// An element of the beam with the shear forces that are plotted upward.
    void DrawSignConvention()
    {
        const auto& box = kSignSketch;
        const double middle = box.Left + box.Width / 2;
        const double top = box.Top + 4;
        const double bottom = box.Top + box.Height - 4;
        const double half = box.Width / 6;
        const bool turned = beam_.ReverseShearSign;
        board_.Take({box.Left, box.Top, box.Left + box.Width, box.Top + box.Height});
        pic_.ForeColor = kSteel;
        pic_.FillColor = kSteelFill;
        pic_.FillStyle = FillPattern::Solid;
        const PicturePoint from = pic_.FromPixels({middle - half, top + 3});
        const PicturePoint to = pic_.FromPixels({middle + half, bottom - 3});
        const std::array<PicturePoint, 4> element{{from, {to.X, from.Y}, to, {from.X, to.Y}}};
        pic_.Polygon(element);
        pic_.FillStyle = FillPattern::Transparent;
        DrawForce(middle - half - 5, turned ? top : bottom, turned ? bottom : top);
        DrawForce(middle + half + 5, turned ? bottom : top, turned ? top : bottom);
        const double y = (top + bottom) / 2;
        Write("+", middle, y);
        Write("V", box.Left + 4, y);
        Write("V", box.Left + box.Width - 4, y);
    }

    void DrawForce(double x, double fromY, double toY)
    {
        pic_.ForeColor = table_.Line;
        DrawArrow(pic_, pic_.FromPixels({x, fromY}), pic_.FromPixels({x, toY}), kArrowHead);
    }

    void Write(const std::string& text, double x, double y)
    {
        board_.Print(board_.BoxOf(text, x, y, HAlign::Centre, VAlign::Middle), text, kInk);
    }

    void PutLeft(const std::string& text, double x, double y, Colour ink)
    {
        board_.Put(board_.BoxOf(text, x, y, HAlign::Left, VAlign::Top), text, ink);
    }

    /// The quantity with its unit beside the curve, and the unit of x in the bottom margin.
    void PrintTitles()
    {
        const double line = board_.LineHeight();
        const double top =
            std::max(pic_.HeightPixels() / 2 - line,
                     kind_ == CurveKind::Shear ? kSignSketch.Top + kSignSketch.Height + 3 : 0);
        pic_.FontBold = true;
        PutLeft(std::string(table_.Title), kTitleLeft, top, table_.Line);
        pic_.FontBold = false;
        PutLeft("(" + std::string(table_.Unit(units_)) + ")", kTitleLeft, top + line, table_.Line);
        const double x = ColumnOf(pic_, kUnitPlace * pic_.TextWidth("X"));
        const double bottom = pic_.HeightPixels();
        PutLeft("X", x, bottom - 2 * line, kInk);
        PutLeft("(" + std::string(kLengthUnits.at(units_.Length)) + ")", x, bottom - line, kInk);
    }

    void PrintValues()
    {
        std::vector<PicturePoint> curve;
        curve.reserve(points_.size() + 2);
        curve.push_back(pic_.ToPixels({0, 0}));
        for (const PicturePoint& point : points_) curve.push_back(pic_.ToPixels(point));
        curve.push_back(pic_.ToPixels({beam_.BeamLength, 0}));
        PrintCurveLabels(pic_, board_, {curve, curve.front().Y, 0, positionsTop_, table_.Line},
                         Labels());
    }

    [[nodiscard]] double LabelX(int i) const { return (curves_.*table_.LabelX)[i]; }
    [[nodiscard]] double LabelValue(int i) const { return (curves_.*table_.LabelValue)[i]; }

    /// The rise of the curve from one label point to the next; at the end that of the piece before.
    [[nodiscard]] double RiseAt(int i) const
    {
        const int count = curves_.*table_.LabelCount;
        const int from = i < count ? i : std::max(1, count - 1);
        const int to = std::min(from + 1, count);
        const double spacing = LabelX(to) - LabelX(from);
        return (LabelValue(to) - LabelValue(from)) / (spacing > kJump ? spacing : kNoSpacing) *
               frame_.ValueScale;
    }

    [[nodiscard]] std::vector<CurveLabel> Labels() const
    {
        const int count = curves_.*table_.LabelCount;
        std::vector<CurveLabel> labels;
        for (int i = 1; i <= count; ++i) {
            const CurveLabel label = LabelOf(i);
            const bool jump = i > 1 && LabelX(i) - LabelX(i - 1) < kJump;
            // Both sides of a jump that the printed digits do not show are one point.
            if (jump && !labels.empty() && labels.back().Text == label.Text) {
                labels.back().Lean = HAlign::Centre;
                continue;
            }
            labels.push_back(label);
            if (labels.size() > 1) {
                const CurveLabel& before = labels[labels.size() - 2];
                labels.back().Repeats = before.Text == label.Text && before.Y == label.Y;
            }
        }
        return labels;
    }

    /// Of the two ends of a jump lower than a label, the upper is labelled above the curve and the
    /// lower below it, or the eye would take one value for the other.
    void LeanOffJump(CurveLabel& label, HAlign lean, int otherEnd) const
    {
        label.Lean = lean;
        const double otherY = pic_.ToPixels({0, Height(LabelValue(otherEnd))}).Y;
        const double jump = std::abs(otherY - label.Y);
        label.KeepSide = jump > 0 && jump <= kLinesOfJump * board_.LineHeight();
        if (label.KeepSide) label.Above = label.Y < otherY;
    }

    [[nodiscard]] CurveLabel LabelOf(int i) const
    {
        const int count = curves_.*table_.LabelCount;
        const auto& extremes = curves_.*table_.Extremes;
        const double size = extremes[2][table_.SizeRow];
        // What rounding leaves of a zero is shown as one.
        const double value = std::abs(LabelValue(i)) > kRoundedOff * size ? LabelValue(i) : 0;
        const double x = LabelX(i);
        const PicturePoint at = pic_.ToPixels({x, Height(value)});
        CurveLabel label{at.X, at.Y, table_.Text(value, units_), RiseAt(i) >= 0};
        if (i < count && LabelX(i + 1) - x < kJump) LeanOffJump(label, HAlign::Right, i + 1);
        if (i > 1 && x - LabelX(i - 1) < kJump) LeanOffJump(label, HAlign::Left, i - 1);
        label.Weight = size > 0 ? std::abs(value) / size : 0;
        if (value != 0 &&
            (value == extremes[2][table_.SizeRow + 1] || value == extremes[2][table_.SizeRow + 2]))
            label.Weight += kExtremeWeight;
        return label;
    }

    void DrawMarker(double x)
    {
        const double at = std::clamp(x, 0.0, beam_.BeamLength);
        const double column = ColumnOf(pic_, at);
        PixelLine(pic_, {column, 0}, {column, positionsTop_}, kMarkerColour);
        const auto next = std::lower_bound(points_.begin() + 1, points_.end() - 1, at,
                                           [](const PicturePoint& p, double v) { return p.X < v; });
        const PicturePoint& before = *std::prev(next);
        const double span = next->X - before.X;
        const double share = span > 0 ? (at - before.X) / span : 1;
        pic_.ForeColor = pic_.FillColor = kMarkerColour;
        pic_.FillStyle = FillPattern::Solid;
        pic_.Circle(at, before.Y + share * (next->Y - before.Y), pic_.UserWidth(kDot));
        pic_.FillStyle = FillPattern::Transparent;
    }

    Picture& pic_;
    CurveKind kind_;
    const CurveTable& table_;
    const BeamRecord& beam_;
    const BeamCurves& curves_;
    const DiagramUnits& units_;
    LabelBoard board_;
    CurveFrame frame_;
    double positionsTop_ = 0;
    std::vector<double> zeros_; ///< where the curve is labelled between key points
    std::vector<PicturePoint> points_;
};

} // namespace

CurveFrame DrawCurveDiagram(Picture& pic, CurveKind kind, const BeamRecord& beam,
                            const BeamCurves& curves, const DiagramUnits& units,
                            std::optional<double> markerX)
{
    pic.Cls();
    if (beam.SupportType == kNoBeam || beam.BeamLength <= 0) return {};
    return CurveSheet(pic, kind, beam, curves, units).Draw(markerX);
}

Refusal PlotFailure(CurveKind kind)
{
    const std::string& line = MainModule::CrLf;
    const std::string title =
        std::string(kTables.at(static_cast<int>(kind)).Title) + " Diagram Error Message";
    if (kind == CurveKind::Shear || kind == CurveKind::Moment) {
        const std::string what = kind == CurveKind::Shear ? "shear" : "moment";
        return {kStop, title,
                "An error occurred in plotting the " + what + " diagram." + line +
                    "Please check your input.",
                ""};
    }
    return {kStop, title,
            "The elastic modulus and the moment of inertia are" + line +
                "needed for the slope and deflection calculations." + line +
                "Define a shape from the Cross-Section menu.",
            ""};
}

} // namespace forcelab::beams
