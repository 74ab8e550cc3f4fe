#include "beams/PieceTeller.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr double kHere = 0.000006; // key points lie further apart than that
constexpr double kNoise = 1e-9;    // of the largest value; what is left of 0 after all sums

} // namespace

bool PieceTeller::IsHere(double a, double x) const
{
    return std::abs(a - x) <= kHere;
}

/// The rightmost of the positions that count as one key point, so that all of them are behind it.
double PieceTeller::Settled(double x) const
{
    double settled = x;
    const auto consider = [&](double a) {
        if (IsHere(a, x)) settled = std::max(settled, a);
    };
    consider(Beam.SupportA);
    consider(Beam.SupportB);
    for (int row = 1; row <= Beam.LoadCount; ++row) {
        consider(Beam.LoadX[row][1]);
        consider(Beam.LoadX[row][2]);
    }
    return settled;
}

std::vector<Jump> PieceTeller::ShearJumpsAt(double x) const
{
    std::vector<Jump> jumps;
    const bool upwardAdds = ShearSign > 0;
    if (Beam.SupportType != kFixedRight && IsHere(Beam.SupportA, x))
        jumps.push_back({"A", upwardAdds, Reactions.ReactionA[Case]});
    if (Beam.SupportType != kFixedLeft && IsHere(Beam.SupportB, x))
        jumps.push_back({"B", upwardAdds, Reactions.ReactionB[Case]});
    for (int row = 1; row <= Beam.LoadCount; ++row)
        if (Beam.LoadClass[row] == kPointLoad && IsHere(Beam.LoadX[row][1], x))
            jumps.push_back({Beam.LoadName[row], !upwardAdds, Magnitude(row)});
    return jumps;
}

std::vector<Jump> PieceTeller::MomentJumpsAt(double x) const
{
    std::vector<Jump> jumps;
    if (Beam.SupportType == kFixedLeft && IsHere(Beam.SupportA, x))
        jumps.push_back({"MA", false, Reactions.MomentA[Case]});
    if (Beam.SupportType == kFixedRight && IsHere(Beam.SupportB, x))
        jumps.push_back({"MB", false, Reactions.MomentB[Case]});
    for (int row = 1; row <= Beam.LoadCount; ++row)
        if (Beam.LoadClass[row] == kMomentLoad && IsHere(Beam.LoadX[row][1], x))
            jumps.push_back({Beam.LoadName[row], false, Magnitude(row)});
    return jumps;
}

std::vector<Piece> PieceTeller::Pieces() const
{
    const PointList keys = BuildKeyPoints(Beam);
    std::vector<Piece> pieces;
    for (int i = 1; i < keys.Count; ++i) {
        Piece piece{keys.At[i], keys.At[i + 1], false, false, 0, {}};
        const double middle = (piece.From + piece.To) / 2;
        for (int row = 1; row <= Beam.LoadCount; ++row) {
            const auto& x = Beam.LoadX[row];
            const double steps = StepAt(middle, x[1]) - StepAt(middle, x[2]);
            if (Beam.LoadClass[row] != kUniformLoad || steps == 0) continue;
            piece.Load += steps * Magnitude(row);
            piece.Rows.push_back(row);
        }
        piece.ShearJumps = !ShearJumpsAt(piece.To).empty();
        piece.MomentJumps = !MomentJumpsAt(piece.To).empty();
        pieces.push_back(piece);
    }
    return pieces;
}

std::string PieceTeller::Name(const std::string& letter, double x, bool left) const
{
    return letter + (left ? " just left of " : " at ") + LengthText(x, Units);
}

void PieceTeller::TellJump(const std::string& letter, double x, const std::vector<Jump>& jumps,
                           double right, bool moment) const
{
    if (jumps.empty()) return;
    double left = right;
    for (const Jump& jump : jumps) left -= jump.Adds ? jump.Amount : -jump.Amount;
    std::string symbols = Name(letter, x, true);
    const auto number = [&](double value) { return moment ? Moment(value) : Force(value); };
    std::vector<SignedTerm> terms{{false, number(left)}};
    for (const Jump& jump : jumps) {
        symbols += (jump.Adds ? " + " : " - ") + jump.Name;
        terms.push_back({!jump.Adds, number(jump.Amount)});
    }
    const std::string name = Name(letter, x, false);
    if (moment)
        MomentLine(name, symbols, Sum(terms), right);
    else
        ForceLine(name, symbols, Sum(terms), right);
}

void PieceTeller::TellShearJump(double x) const
{
    TellJump("V", x, ShearJumpsAt(x), RightOf(x).Shear, false);
}

void PieceTeller::TellMomentJump(double x) const
{
    TellJump("M", x, MomentJumpsAt(x), RightOf(x).Moment, true);
}

std::string PieceTeller::LoadName(const Piece& piece) const
{
    std::vector<std::string> names;
    for (const int row : piece.Rows) names.push_back(Beam.LoadName[row]);
    return JoinNames(names);
}

void PieceTeller::TellShear(const Piece& piece) const
{
    const double from = RightOf(piece.From).Shear;
    const std::string between =
        "From " + LengthText(piece.From, Units) + " to " + Position(piece.To);
    if (piece.Rows.empty())
        return void(Text.Line(between + " no load is spread: the shear stays at " +
                              ForceShown(from) + "."));
    Text.Line(between + " the load is spread evenly: the shear changes by w in every " +
              LengthUnit() + ", along a straight line.");
    Terms loads;
    for (const int row : piece.Rows) {
        const bool backward = Beam.LoadX[row][1] > Beam.LoadX[row][2];
        loads.push_back(Uniform(backward ? -Magnitude(row) : Magnitude(row)));
    }
    UniformLine("w", LoadName(piece), Sum(loads));
    const double end = piece.ShearJumps ? piece.To - kLeftOfJump : piece.To;
    const Expression change = Uniform(piece.Load) * Distance(piece.From, end);
    const bool reversed = ShearSign < 0;
    ForceLine(Name("V", piece.To, piece.ShearJumps),
              Name("V", piece.From, false) + (reversed ? " + w × length" : " - w × length"),
              reversed ? Force(from) + change : Force(from) - change);
}

void PieceTeller::TellArea(const Stretch& stretch, bool even) const
{
    const Expression length = Distance(stretch.From, stretch.To);
    if (even) return MomentLine("Area", "V × length", Force(stretch.ShearFrom) * length);
    MomentLine("Area", "(V left + V right) ÷ 2 × length",
               (Force(stretch.ShearFrom) + Force(stretch.ShearTo)) / 2 * length);
}

/// Tells one stretch and returns the moment at its end.
double PieceTeller::TellStretch(const Stretch& stretch, bool even) const
{
    const double length = stretch.To - stretch.From;
    const double area = (stretch.ShearFrom + stretch.ShearTo) / 2 * length;
    const double most = Curves.ShearMomentExtremes[2][kFirstSize];
    TellArea(stretch, even);
    const double rise = ShearSign * area;
    const double end = stretch.MomentFrom + rise;
    const std::string start = Name("M", stretch.From, false);
    const Expression before = Moment(stretch.MomentFrom);
    if (ShearSign > 0)
        MomentLine(stretch.MomentName, start + " + Area", before + Moment(area));
    else
        MomentLine(stretch.MomentName, start + " - Area", before - Moment(area));
    if (std::abs(area) > kNoise * most * length)
        Text.Line(std::string("The moment ") + (rise > 0 ? "rises" : "falls") +
                  (even ? " along a straight line, as the shear is constant."
                        : " along a parabola, as the shear changes evenly."));
    return end;
}

void PieceTeller::TellZeroShear(const Piece& piece, double shear) const
{
    Text.Line("The shear passes zero on the way. There the moment has its turning point.");
    LengthLine("x", "start + V ÷ w",
               Length(piece.From) + Force(shear) / Uniform(ShearSign * piece.Load));
}

void PieceTeller::TellMoment(const Piece& piece) const
{
    const double shear = RightOf(piece.From).Shear;
    const double end = piece.MomentJumps ? piece.To - kLeftOfJump : piece.To;
    const double load = ShearSign * piece.Load;
    const double last = shear - load * (end - piece.From);
    const double noise = kNoise * Curves.ShearMomentExtremes[2][kFirstSize];
    Stretch stretch{piece.From,
                    end,
                    shear,
                    last,
                    RightOf(piece.From).Moment,
                    Name("M", piece.To, piece.MomentJumps)};
    const std::string between =
        "From " + LengthText(piece.From, Units) + " to " + Position(piece.To);
    if (std::max(std::abs(shear), std::abs(last)) <= noise)
        return void(Text.Line(between + " the shear is zero: the moment stays at " +
                              MomentShown(stretch.MomentFrom) + "."));
    Text.Line(between + " the moment changes by the area under the shear curve.");
    if (shear * last < 0 && std::min(std::abs(shear), std::abs(last)) > noise) {
        const double zero = piece.From + shear / load;
        TellZeroShear(piece, shear);
        stretch.MomentFrom = TellStretch(
            {piece.From, zero, shear, 0, stretch.MomentFrom, Name("M", zero, false)}, false);
        stretch.From = zero;
        stretch.ShearFrom = 0;
    }
    TellStretch(stretch, piece.Rows.empty());
}

} // namespace forcelab::beams
