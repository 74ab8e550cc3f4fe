#include "beams/BeamNarration.h"

#include "beams/PieceTeller.h"

#include <cmath>

namespace forcelab::beams {

namespace {

/// How far apart positions may lie and still be one key point.
constexpr double kHere = 0.000006;
/// What is left of zero after all sums, of the largest value.
constexpr double kNoise = 1e-9;

void TellSignConvention(const PieceTeller& teller)
{
    teller.Text.Sentence(teller.ShearSign > 0
                             ? "Walk from left to right. An upward force lifts the diagram, a "
                               "downward force lowers it."
                             : "Walk from left to right. The diagram is drawn with the other sign: "
                               "an upward force lowers it, a downward force lifts it.");
}

void TellShearDiagram(const PieceTeller& teller)
{
    teller.Text.Heading("The shear diagram");
    TellSignConvention(teller);
    teller.TellShearJump(0);
    for (const Piece& piece : teller.Pieces()) {
        teller.TellShear(piece);
        teller.TellShearJump(piece.To);
    }
    teller.Text.Line("Beyond the right end nothing is left: the diagram has come back to zero.");
}

void TellMomentDiagram(const PieceTeller& teller)
{
    teller.Text.Heading("The moment diagram");
    teller.Text.Sentence(
        "The slope of the moment is the shear, so that the moment grows by the "
        "area under the shear curve. A counterclockwise moment lowers it at once.");
    teller.TellMomentJump(0);
    for (const Piece& piece : teller.Pieces()) {
        teller.TellMoment(piece);
        teller.TellMomentJump(piece.To);
    }
}

bool IsIn(const CurveList& list, int count, double x)
{
    for (int i = 1; i <= count; ++i)
        if (std::abs(list[i] - x) <= kHere) return true;
    return false;
}

/// The jump at x or just to the right of it: extremes are taken at either side of one.
template <typename Jumps>
bool HasJumpAt(const PieceTeller& teller, Jumps jumps, double x)
{
    return !(teller.*jumps)(x).empty() || !(teller.*jumps)(x + kLeftOfJump).empty();
}

std::string ReasonForMoment(const PieceTeller& teller, double x)
{
    if (IsIn(teller.Curves.ZeroShearX, teller.Curves.ZeroShearCount, x))
        return "the shear is zero there, so that the moment neither rises nor falls";
    const double noise = kNoise * teller.Curves.ShearMomentExtremes[2][kFirstSize];
    const double left = teller.At(std::max(0.0, x - kLeftOfJump)).Shear;
    const double right = teller.At(x).Shear;
    if (left * right < 0 && std::min(std::abs(left), std::abs(right)) > noise)
        return "the shear jumps through zero there";
    if (HasJumpAt(teller, &PieceTeller::MomentJumpsAt, x))
        return "the diagram jumps there by a moment that acts on the beam";
    const bool end = x <= kHere || x >= teller.Beam.BeamLength - kHere;
    return end ? "the beam ends there" : "the shear comes to zero there";
}

std::string ReasonForShear(const PieceTeller& teller, double x)
{
    return HasJumpAt(teller, &PieceTeller::ShearJumpsAt, x)
               ? "the diagram jumps there by a force that acts on the beam"
               : "a uniform load ends or changes its direction there";
}

/// Where a quantity has its extreme: one point, or a stretch along which it stays.
struct Stretch {
    double From, To;
    [[nodiscard]] bool IsPoint() const { return To - From <= 2 * kLeftOfJump; }
};

/// The first place of a value among the samples; what differs by rounding counts as equal.
Stretch PlaceOf(const PieceTeller& teller, const CurveList& values, double value, double noise)
{
    const auto has = [&](int k) { return std::abs(values[k] - value) <= noise; };
    int first = 1;
    while (first < kCurvePoints && !has(first)) ++first;
    int last = first;
    while (last < kCurvePoints && has(last + 1)) ++last;
    return {teller.Curves.CurveX[first], teller.Curves.CurveX[last]};
}

std::string TellPlace(const PieceTeller& teller, const Stretch& place, bool moment)
{
    if (place.IsPoint())
        return " at " + teller.Position(place.From) + ": " +
               (moment ? ReasonForMoment(teller, place.From) : ReasonForShear(teller, place.From));
    return " from " + LengthText(place.From, teller.Units) + " to " + teller.Position(place.To) +
           ": " + (moment ? "the shear is zero along it" : "no load is spread along it");
}

void TellExtreme(const PieceTeller& teller, const std::string& what, int row)
{
    const auto& table = teller.Curves.ShearMomentExtremes;
    const bool moment = row >= kSecondSize;
    const double value = table[2][row];
    const double noise = kNoise * table[2][moment ? kSecondSize : kFirstSize];
    if (std::abs(value) <= noise) return;
    const CurveList& values = moment ? teller.Curves.CurveMoment : teller.Curves.CurveShear;
    const Stretch place = PlaceOf(teller, values, value, noise);
    teller.Text.Line("The " + what + " is " +
                     (moment ? teller.MomentShown(value) : teller.ForceShown(value)) +
                     TellPlace(teller, place, moment) + ".");
}

void TellExtremes(const PieceTeller& teller)
{
    teller.Text.Heading("Where the largest values lie");
    TellExtreme(teller, "largest shear", kFirstLargest);
    TellExtreme(teller, "smallest shear", kFirstSmallest);
    TellExtreme(teller, "largest moment", kSecondLargest);
    TellExtreme(teller, "smallest moment", kSecondSmallest);
    if (teller.Curves.ShearMomentExtremes[2][kSecondSize] == 0)
        teller.Text.Sentence("The moment is zero everywhere.");
}

void ExplainPoint(const PieceTeller& teller, int row)
{
    const double x = teller.Beam.LoadX[row][1];
    teller.Text.Sentence("At a point the whole load acts at once, so that the shear diagram "
                         "jumps by it. The moment diagram gets a kink there: its slope jumps as "
                         "the shear does.");
    teller.TellShearJump(x);
}

void ExplainMoment(const PieceTeller& teller, int row)
{
    const double x = teller.Beam.LoadX[row][1];
    teller.Text.Sentence(
        "A moment has no vertical part: the shear diagram stays as it is. The moment "
        "diagram jumps, down for a counterclockwise moment and up for a clockwise one.");
    teller.TellMomentJump(x);
}

void ExplainUniform(const PieceTeller& teller, int row)
{
    teller.Text.Sentence(
        "Under a uniform load the slope of the shear diagram has the size of the load: the "
        "diagram " +
        std::string(teller.ShearSign > 0
                        ? "falls under a downward load and rises under an upward one."
                        : "rises under a downward load and falls under an upward one."));
    for (const Piece& piece : teller.Pieces()) {
        bool under = false;
        for (const int other : piece.Rows) under = under || other == row;
        if (!under) continue;
        teller.TellShear(piece);
        const auto& x = teller.Beam.LoadX[row];
        if (piece.To < std::max(x[1], x[2]) - kHere) teller.TellShearJump(piece.To);
    }
}

} // namespace

std::string ExplainLoadDiagram(const BeamView& view, int row)
{
    if (row < 1 || row > view.Beam.LoadCount) return "";
    Narration text;
    const PieceTeller teller(text, view, ShearMomentCase(view.Beam));
    constexpr std::array kExplain{ExplainMoment, ExplainPoint, ExplainUniform}; // by LoadFamily
    text.Heading("Load " + view.Beam.LoadName[row]);
    kExplain.at(view.Beam.LoadClass[row])(teller, row);
    return text.Text();
}

std::string ExplainShearDiagram(const BeamView& view, double x)
{
    Narration text;
    const PieceTeller teller(text, view, ShearMomentCase(view.Beam));
    for (const Piece& piece : teller.Pieces()) {
        if (x < piece.From || x > piece.To) continue;
        text.Heading("The moment diagram between " + teller.Position(piece.From) + " and " +
                     teller.Position(piece.To));
        teller.TellMomentJump(piece.From);
        teller.TellMoment(piece);
        teller.TellMomentJump(piece.To);
        break;
    }
    return text.Text();
}

std::string BeamExplanations(const BeamView& view)
{
    if (view.Beam.SupportType == kNoBeam) return "";
    Narration text;
    text.Line(ExplainReactions(view, ShearMomentCase(view.Beam)));
    const PieceTeller teller(text, view, ShearMomentCase(view.Beam));
    if (view.Beam.LoadCount == 0) return text.Text();
    TellShearDiagram(teller);
    TellMomentDiagram(teller);
    TellExtremes(teller);
    return text.Text();
}

} // namespace forcelab::beams
