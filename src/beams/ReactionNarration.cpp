#include "beams/BeamTeller.h"

#include <cmath>

namespace forcelab::beams {

namespace {

/// The moments of all loads about a point: as expressions, with the exact sum and the names.
struct MomentSum {
    Terms PutIn;
    double Exact = 0;
    std::vector<std::string> Names;
};

/// Which sense counts positive about which point.
struct Axis {
    std::string Name; ///< "A" or "B", as the reaction there
    std::string At;   ///< "a" or "b", its x
    double X;
    bool Counterclockwise;
};

class ReactionTeller : public BeamTeller {
  public:
    using BeamTeller::BeamTeller;

    void Explain() const
    {
        constexpr std::array kExplain{&ReactionTeller::TwoSupports, &ReactionTeller::Wall,
                                      &ReactionTeller::Wall};
        if (Beam.SupportType == kNoBeam) return;
        Text.Heading("Reactions");
        if (Beam.LoadCount == 0)
            return void(Text.Sentence("No load acts on the beam, so that all reactions are 0."));
        (this->*kExplain.at(Beam.SupportType - 1))();
    }

  private:
    void TwoSupports() const
    {
        Text.Sentence("Cut the beam free of its supports and let the forces A and B act upward in "
                      "their place. Two equations of moments give them, a sum of forces checks "
                      "them.");
        Text.Line("The supports stand at a = " + Position(Beam.SupportA) +
                  " and b = " + Position(Beam.SupportB) + ".");
        ListResultants();
        SolveOne({"B", "b", Beam.SupportB, true}, "A", Reactions.ReactionA[Case]);
        SolveOne({"A", "a", Beam.SupportA, false}, "B", Reactions.ReactionB[Case]);
        CheckForces();
    }

    /// One equation of moments about a support gives the reaction at the other.
    void SolveOne(const Axis& axis, const std::string& unknown, double reaction) const
    {
        Text.Heading("Sum of moments about " + axis.Name);
        Text.Sentence(axis.Name +
                      " has no arm about its own support and drops out. The moments "
                      "of the loads, " +
                      (axis.Counterclockwise ? "counterclockwise" : "clockwise") +
                      " positive, balance that of " + unknown + ".");
        const MomentSum sum = ListMoments(axis);
        Total(axis, sum);
        ForceLine(unknown, "Sum ÷ (b - a)",
                  Moment(sum.Exact) / Distance(Beam.SupportA, Beam.SupportB));
        TellDirection(unknown, reaction);
    }

    /// A line for each load. About B distances run to the left, about A to the right.
    [[nodiscard]] MomentSum ListMoments(const Axis& axis) const
    {
        MomentSum sum;
        const auto keep = [&](const std::string& name, double moment) {
            sum.PutIn.push_back(Moment(moment));
            sum.Exact += moment;
            sum.Names.push_back(name);
        };
        for (const NamedForce& load : Forces()) {
            const double arm = axis.Counterclockwise ? axis.X - load.X : load.X - axis.X;
            const Expression distance =
                axis.Counterclockwise ? Distance(load.X, axis.X) : Distance(axis.X, load.X);
            const std::string symbols =
                axis.Counterclockwise ? " × (" + axis.At + " - x)" : " × (x - " + axis.At + ")";
            MomentLine("Moment of " + load.Name, load.Name + symbols, Force(load.Force) * distance);
            keep(load.Name, load.Force * arm);
        }
        for (const NamedMoment& load : Moments()) {
            const double moment = axis.Counterclockwise ? load.Moment : -load.Moment;
            const std::string sign = axis.Counterclockwise ? "" : "-";
            MomentLine("Moment of " + load.Name, sign + load.Name, Moment(moment));
            keep(load.Name, moment);
        }
        return sum;
    }

    void Total(const Axis& axis, const MomentSum& sum) const
    {
        MomentLine("Sum about " + axis.Name, "", Sum(sum.PutIn));
    }

    void TellDirection(const std::string& name, double reaction) const
    {
        if (reaction < 0)
            Text.Line("The negative sign says that " + name +
                      " acts downward: the support holds the beam down.");
    }

    [[nodiscard]] double SumOfForces() const
    {
        Terms terms;
        std::vector<std::string> names;
        double sum = 0;
        for (const NamedForce& load : Forces()) {
            terms.push_back(Force(load.Force));
            names.push_back(load.Name);
            sum += load.Force;
        }
        if (terms.empty())
            Text.Line("No load has a vertical part: their sum is " + ForceShown(0) + ".");
        else
            ForceLine("Sum of loads", JoinNames(names), Sum(terms));
        return sum;
    }

    void CheckForces() const
    {
        Text.Heading("Check by the sum of vertical forces");
        const double loads = SumOfForces();
        const double a = Reactions.ReactionA[Case];
        const double b = Reactions.ReactionB[Case];
        ForceLine("A + B", "", Force(a) + Force(b));
        ForceLine("A + B - Sum of loads", "", Force(a) + Force(b) - Force(loads), 0);
    }

    /// A cantilever: the wall gives a force and a moment.
    void Wall() const
    {
        const bool left = Beam.SupportType == kFixedLeft;
        const Axis axis{left ? "A" : "B", left ? "a" : "b", left ? Beam.SupportA : Beam.SupportB,
                        !left};
        const std::string moment = "M" + axis.Name;
        Text.Sentence("Cut the beam free of its wall, which gives it an upward force " + axis.Name +
                      " and a counterclockwise moment " + moment + ".");
        Text.Line("The wall stands at " + axis.At + " = " + Position(axis.X) + ".");
        ListResultants();
        Text.Heading("Sum of vertical forces");
        const double force = SumOfForces();
        ForceLine(axis.Name, "Sum of loads", Force(force));
        TellDirection(axis.Name, force);
        Text.Heading("Sum of moments about the wall");
        Text.Sentence(std::string("Moments of the loads, ") +
                      (left ? "clockwise" : "counterclockwise") + " positive:");
        const MomentSum sum = ListMoments(axis);
        Total(axis, sum);
        WallMoment(moment, left, sum.Exact);
    }

    void WallMoment(const std::string& name, bool left, double sum) const
    {
        const double exact = left ? sum : -sum;
        MomentLine(name, left ? "Sum" : "-Sum", Moment(exact));
        if (exact == 0) return;
        Text.Line(std::string("The wall turns the beam ") +
                  (exact > 0 ? "counterclockwise" : "clockwise") + " with " +
                  MomentShown(std::abs(exact)) + ".");
    }
};

} // namespace

std::string ExplainReactions(const BeamView& view, int loadCase)
{
    Narration text;
    const ReactionTeller teller(text, view, loadCase);
    teller.ListLoads();
    teller.Explain();
    return text.Text();
}

} // namespace forcelab::beams
