#pragma once

#include "beams/BeamNarration.h"
#include "core/Narration.h"
#include "core/Workings.h"

#include <optional>
#include <string>
#include <vector>

namespace forcelab::beams {

/// A downward force by its name: a point load, or what a uniform load amounts to.
struct NamedForce {
    std::string Name;
    double Force; ///< lb, downward positive
    double X;     ///< in
};
/// A moment load by its name, lb-in, counterclockwise positive.
struct NamedMoment {
    std::string Name;
    double Moment;
    double X;
};

using Terms = std::vector<Expression>;

/// A number put in, with one decimal at least.
Expression Number(double value);

/// Writes lines of arithmetic about one load case of a beam.
///
/// Numbers put in are in one consistent system, the force unit and the length unit of the
/// diagrams; results are in the units of the diagrams.
class BeamTeller {
  public:
    BeamTeller(Narration& text, const BeamView& view, int loadCase);

    // NOLINTBEGIN: what they refer to outlives the telling
    Narration& Text;
    const BeamRecord& Beam;
    const BeamReactions& Reactions;
    const BeamCurves& Curves;
    const DiagramUnits& Units;
    // NOLINTEND
    int Case;
    double ShearSign; ///< -1 where the shear diagram is drawn the other way round

    [[nodiscard]] BeamValues At(double x) const;
    [[nodiscard]] double Magnitude(int row) const { return Beam.LoadMagnitude[row][Case]; }

    // Numbers put in.
    [[nodiscard]] Expression Force(double pounds) const { return Number(pounds / forceFactor_); }
    [[nodiscard]] Expression Length(double inches) const { return Number(inches / lengthFactor_); }
    [[nodiscard]] Expression Uniform(double load) const;
    [[nodiscard]] Expression Moment(double poundInches) const;
    /// "b - a".
    [[nodiscard]] Expression Distance(double from, double to) const;
    /// Forces to the power 1 and lengths to `power`: what `value` is in the consistent system.
    [[nodiscard]] double Consistent(double value, int power) const;

    // Texts of values, with their units.
    [[nodiscard]] std::string Position(double x) const;
    [[nodiscard]] std::string ForceShown(double pounds) const;
    [[nodiscard]] std::string MomentShown(double poundInches) const;
    [[nodiscard]] std::string UniformShown(double load) const;
    [[nodiscard]] std::string ForceUnit() const { return std::string(kForceUnits.at(Units.Force)); }
    [[nodiscard]] std::string LengthUnit() const;
    [[nodiscard]] std::string UniformUnit() const { return ForceUnit() + "/" + LengthUnit(); }
    [[nodiscard]] std::string MomentUnit() const;

    // Lines of arithmetic; `exact` in pounds and inches, where the result is not of the tutor's
    // own making but a number of the diagrams.
    using Exact = std::optional<double>;
    void ForceLine(const std::string& name, const std::string& symbols, const Expression& putIn,
                   Exact exact = {}) const;
    /// `putIn` is in the consistent system and is converted where moments are shown otherwise.
    void MomentLine(const std::string& name, const std::string& symbols, const Expression& putIn,
                    Exact exact = {}) const;
    void LengthLine(const std::string& name, const std::string& symbols,
                    const Expression& putIn) const;
    void UniformLine(const std::string& name, const std::string& symbols,
                     const Expression& putIn) const;

    /// Point loads and the resultants of uniform loads, in the order of entry.
    [[nodiscard]] std::vector<NamedForce> Forces() const;
    [[nodiscard]] std::vector<NamedMoment> Moments() const;
    /// The loads of the case in the units of the diagrams, one a line, from the units of entry.
    void ListLoads() const;
    /// Tells what each uniform load amounts to and where, where there are any.
    void ListResultants() const;

  private:
    void ListLoad(int row) const;

    double forceFactor_;
    double lengthFactor_;
    double momentFactor_;
};

/// "a + b + c" or "0" of names.
std::string JoinNames(const std::vector<std::string>& names);

} // namespace forcelab::beams
