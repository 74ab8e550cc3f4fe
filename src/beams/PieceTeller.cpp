#include "beams/PieceTeller.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr double kHere = 0.000006; // key points lie further apart than that
constexpr double kNoise = 1e-9;    // of the largest value; what is left of 0 after all sums

Expression Two()
{
    return [](int) { return Printed{"2", 2}; };
}

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
    const auto add = [&](const std::string& name, double upward, bool up) {
        jumps.push_back({name, up == (ShearSign > 0) ? " + " : " - ", ShearSign * upward});
    };
    if (Beam.SupportType != kFixedRight && IsHere(Beam.SupportA, x))
        add("A", Reactions.ReactionA[Case], true);
    if (Beam.SupportType != kFixedLeft && IsHere(Beam.SupportB, x))
        add("B", Reactions.ReactionB[Case], true);
    for (int row = 1; row <= Beam.LoadCount; ++row)
        if (Beam.LoadClass[row] == kPointLoad && IsHere(Beam.LoadX[row][1], x))
            add(Beam.LoadName[row], -Magnitude(row), false);
    return jumps;
}

std::vector<Jump> PieceTeller::MomentJumpsAt(double x) const
{
    std::vector<Jump> jumps;
    if (Beam.SupportType == kFixedLeft && IsHere(Beam.SupportA, x))
        jumps.push_back({"MA", " - ", -Reactions.MomentA[Case]});
    if (Beam.SupportType == kFixedRight && IsHere(Beam.SupportB, x))
        jumps.push_back({"MB", " - ", -Reactions.MomentB[Case]});
    for (int row = 1; row <= Beam.LoadCount; ++row)
        if (Beam.LoadClass[row] == kMomentLoad && IsHere(Beam.LoadX[row][1], x))
            jumps.push_back({Beam.LoadName[row], " - ", -Magnitude(row)});
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
    for (const Jump& jump : jumps) left -= jump.Amount;
    std::string symbols = Name(letter, x, true);
    const auto number = [&](double value) { return moment ? Moment(value) : Force(value); };
    Terms terms{number(left)};
    for (const Jump& jump : jumps) {
        symbols += jump.Sign + jump.Name;
        terms.push_back(number(jump.Amount));
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
    UniformLine("w", LoadName(piece), Sum(loads), piece.Load);
    const double end = piece.ShearJumps ? piece.To - kLeftOfJump : piece.To;
    const Expression change = Product({Uniform(piece.Load), Distance(piece.From, end)});
    const bool reversed = ShearSign < 0;
    ForceLine(Name("V", piece.To, piece.ShearJumps),
              Name("V", piece.From, false) + (reversed ? " + w × length" : " - w × length"),
              reversed ? Sum({Force(from), change}) : Difference(Force(from), change),
              from - ShearSign * piece.Load * (end - piece.From));
}

void PieceTeller::TellArea(const Stretch& stretch, bool even) const
{
    const double length = stretch.To - stretch.From;
    const Expression distance = Distance(stretch.From, stretch.To);
    const double exact = (stretch.ShearFrom + stretch.ShearTo) / 2 * length;
    if (even)
        return MomentLine("Area", "V × length", Product({Force(stretch.ShearFrom), distance}),
                          exact);
    const Expression mean =
        Quotient(Grouped(Sum({Force(stretch.ShearFrom), Force(stretch.ShearTo)})), Two());
    MomentLine("Area", "(V left + V right) ÷ 2 × length", Product({mean, distance}), exact);
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
    const std::string sign = ShearSign > 0 ? " + Area" : " - Area";
    MomentLine(stretch.MomentName, start + sign,
               ShearSign > 0 ? Sum({Moment(stretch.MomentFrom), Moment(area)})
                             : Difference(Moment(stretch.MomentFrom), Moment(area)),
               end);
    if (std::abs(area) > kNoise * most * length)
        Text.Line(std::string("The moment ") + (rise > 0 ? "rises" : "falls") +
                  (even ? " along a straight line, as the shear is constant."
                        : " along a parabola, as the shear changes evenly."));
    return end;
}

void PieceTeller::TellZeroShear(const Piece& piece, double from, double zero, double shear) const
{
    Text.Line("The shear passes zero on the way. There the moment has its turning point.");
    const double load = ShearSign * piece.Load;
    LengthLine("x", "start + V ÷ w", Sum({Length(from), Quotient(Force(shear), Uniform(load))}),
               zero);
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
        TellZeroShear(piece, piece.From, zero, shear);
        stretch.MomentFrom = TellStretch(
            {piece.From, zero, shear, 0, stretch.MomentFrom, Name("M", zero, false)}, false);
        stretch.From = zero;
        stretch.ShearFrom = 0;
    }
    TellStretch(stretch, piece.Rows.empty());
}

} // namespace forcelab::beams
