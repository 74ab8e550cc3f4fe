#include "beams/BeamTeller.h"

#include "beams/LoadFactors.h"
#include "core/NumericText.h"
#include "core/Units.h"

#include <cmath>

namespace forcelab::beams {

namespace {

constexpr double kSameUnit = 1e-12;
constexpr double kLargeLoad = 100; // from there on two decimals tell enough

std::string UniformText(double load)
{
    return Format(load, std::abs(load) < kLargeLoad ? "##0.0####" : "###,###,##0.0#");
}

/// a ÷ c, or a × 1 / c where c is below 1; a itself where c is 1.
Expression Converted(const Expression& a, double c)
{
    if (std::abs(c - 1) < kSameUnit) return a;
    return c > 1 ? a / Number(c) : a * Number(1 / c);
}

} // namespace

Expression Number(double value)
{
    return forcelab::Number(value, {"#,###,###,##0.0"});
}

BeamTeller::BeamTeller(Narration& text, const BeamView& view, int loadCase)
    : Text(text), Beam(view.Beam), Reactions(view.Reactions), Curves(view.Curves),
      Units(view.Units), Case(loadCase), ShearSign(view.Beam.ReverseShearSign ? -1 : 1),
      forceFactor_(ForceFactor(view.Units.Force)), lengthFactor_(LengthFactor(view.Units.Length)),
      momentFactor_(MomentFactor(view.Units.Moment))
{}

BeamValues BeamTeller::At(double x) const
{
    return BeamValuesAt(Beam, Reactions, Case, x);
}

double BeamTeller::Consistent(double value, int power) const
{
    return value / forceFactor_ / std::pow(lengthFactor_, power);
}

Expression BeamTeller::Uniform(double load) const
{
    return Number(Consistent(load, -1));
}

Expression BeamTeller::Moment(double poundInches) const
{
    return Number(Consistent(poundInches, 1));
}

Expression BeamTeller::Distance(double from, double to) const
{
    return Length(to) - Length(from);
}

std::string BeamTeller::LengthUnit() const
{
    return std::string(kLengthUnits.at(Units.Length));
}

std::string BeamTeller::MomentUnit() const
{
    return std::string(kMomentUnits.at(Units.Moment));
}

std::string BeamTeller::Position(double x) const
{
    return WithUnit(LengthText(x, Units), LengthUnit());
}

std::string BeamTeller::ForceShown(double pounds) const
{
    return WithUnit(ForceText(pounds, Units), ForceUnit());
}

std::string BeamTeller::MomentShown(double poundInches) const
{
    return WithUnit(MomentText(poundInches, Units), MomentUnit());
}

std::string BeamTeller::UniformShown(double load) const
{
    return WithUnit(UniformText(Consistent(load, -1)), UniformUnit());
}

void BeamTeller::ForceLine(const std::string& name, const std::string& symbols,
                           const Expression& putIn, Exact exact) const
{
    if (exact) *exact /= forceFactor_;
    Text.Line(WriteLine({name, symbols, {putIn}, PlainText, ForceUnit(), exact}));
}

void BeamTeller::MomentLine(const std::string& name, const std::string& symbols,
                            const Expression& putIn, Exact exact) const
{
    if (exact) *exact /= momentFactor_;
    const double conversion = momentFactor_ / (forceFactor_ * lengthFactor_);
    Text.Line(
        WriteLine({name, symbols, {Converted(putIn, conversion)}, PlainText, MomentUnit(), exact}));
}

void BeamTeller::LengthLine(const std::string& name, const std::string& symbols,
                            const Expression& putIn) const
{
    Text.Line(WriteLine({name, symbols, {putIn}, NumberStyle{"######0.0#"}, LengthUnit()}));
}

void BeamTeller::UniformLine(const std::string& name, const std::string& symbols,
                             const Expression& putIn) const
{
    Text.Line(WriteLine({name, symbols, {putIn}, UniformText, UniformUnit()}));
}

std::vector<NamedForce> BeamTeller::Forces() const
{
    std::vector<NamedForce> forces;
    for (int row = 1; row <= Beam.LoadCount; ++row) {
        const double x1 = Beam.LoadX[row][1];
        const double x2 = Beam.LoadX[row][2];
        if (Beam.LoadClass[row] == kPointLoad)
            forces.push_back({Beam.LoadName[row], Magnitude(row), x1});
        if (Beam.LoadClass[row] == kUniformLoad)
            forces.push_back(
                {"W of " + Beam.LoadName[row], Magnitude(row) * (x2 - x1), (x1 + x2) / 2});
    }
    return forces;
}

std::vector<NamedMoment> BeamTeller::Moments() const
{
    std::vector<NamedMoment> moments;
    for (int row = 1; row <= Beam.LoadCount; ++row)
        if (Beam.LoadClass[row] == kMomentLoad)
            moments.push_back({Beam.LoadName[row], Magnitude(row), Beam.LoadX[row][1]});
    return moments;
}

void BeamTeller::ListLoad(int row) const
{
    const double unit = Beam.LoadUnitFactor[row][2];
    const auto number = [&](int column) { return Number(Beam.LoadMagnitude[row][column] / unit); };
    Expression entered = number(kUnfactored);
    if (Beam.FactoredLoads)
        entered = Case == kFactored ? Number(Beam.DeadFactor) * number(kDead) +
                                          Number(Beam.LiveFactor) * number(kLive)
                                    : number(kDead) + number(kLive);
    const std::string& name = Beam.LoadName[row];
    const int family = Beam.LoadClass[row];
    if (family == kPointLoad) ForceLine(name, "", Converted(entered, forceFactor_ / unit));
    if (family == kUniformLoad)
        UniformLine(name, "", Converted(entered, forceFactor_ / lengthFactor_ / unit));
    if (family == kMomentLoad)
        Text.Line(WriteLine(
            {name, "", {Converted(entered, momentFactor_ / unit)}, PlainText, MomentUnit()}));
}

void BeamTeller::ListLoads() const
{
    Text.Heading("The loads");
    if (Beam.LoadCount == 0) {
        Text.Sentence("There are none.");
        return;
    }
    Text.Sentence("Downward forces and counterclockwise moments count positive.");
    if (Beam.FactoredLoads && Case == kFactored)
        Text.Sentence("Dead and live loads are multiplied by their factors and added.");
    if (Beam.FactoredLoads && Case != kFactored)
        Text.Sentence("Dead and live loads are added without factors: these are service loads.");
    if (std::abs(momentFactor_ / (forceFactor_ * lengthFactor_) - 1) > kSameUnit)
        Text.Sentence("The last number of a line brings products of " + ForceUnit() + " and " +
                      LengthUnit() + " to " + MomentUnit() + ".");
    for (int row = 1; row <= Beam.LoadCount; ++row) ListLoad(row);
}

void BeamTeller::ListResultants() const
{
    if (Beam.UniformLoadCount == 0) return;
    Text.Line("For the reactions a uniform load counts as one force W in its middle.");
    for (int row = 1; row <= Beam.LoadCount; ++row) {
        if (Beam.LoadClass[row] != kUniformLoad) continue;
        const std::string& name = Beam.LoadName[row];
        const double x1 = Beam.LoadX[row][1];
        const double x2 = Beam.LoadX[row][2];
        ForceLine("W of " + name, name + " × length", Uniform(Magnitude(row)) * Distance(x1, x2));
        LengthLine("x of " + name, "(start + end) ÷ 2", (Length(x1) + Length(x2)) / 2);
    }
}

std::string JoinNames(const std::vector<std::string>& names)
{
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : " + ") + name;
    return joined.empty() ? "0" : joined;
}

} // namespace forcelab::beams
