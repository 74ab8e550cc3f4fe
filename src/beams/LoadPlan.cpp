#include "beams/LoadPlan.h"

#include "beams/DiagramFrame.h"
#include "beams/LoadSymbols.h"

#include <algorithm>
#include <cmath>

namespace forcelab::beams {

namespace {

constexpr double kPad = 3; // pixels
constexpr double kLowLane = 7, kHighLane = 24;
constexpr double kShortArrow = 14; // beyond the lanes, or of a reaction
constexpr double kMoreAbove = 24, kMoreBelow = 14;
constexpr double kRulerTicks = 7;
constexpr double kPositionWidth = 36; // pixels that a position takes on average

/// What stands on one side of the beam.
struct Side {
    std::vector<LevelLabel> Labels;
    std::vector<LoadItem*> Items;
    int Lanes = 0;
    bool Points = false, Moments = false, Supports = false;

    /// The least room for arrows with lanes of so many pixels.
    [[nodiscard]] double Arm(double lane) const
    {
        double arm = Lanes * lane + (Points ? kShortArrow : 0);
        if (Moments) arm = std::max(arm, kArcRadius);
        if (Supports) arm = std::max(arm, kSupportDepth + kShortArrow);
        return arm;
    }
};

class Planner {
  public:
    Planner(Picture& pic, const BeamRecord& beam, std::vector<LoadItem>& items)
        : pic_(pic), board_(pic)
    {
        below_.Supports = beam.SupportType == kTwoSupports || beam.LoadCount > 0;
        above_.Moments = beam.SupportType != kTwoSupports; // as high as a wall
        for (LoadItem& item : items) Add(item.Below ? below_ : above_, item);
        const double needed = BuildKeyPoints(beam).Count * kPositionWidth;
        const double wide = pic.ScaleX(beam.BeamLength);
        const int rows = needed < wide ? 1 : pic.HeightPixels() < 240 ? 2 : 3;
        rulerText_ = rows * board_.LineHeight();
    }

    LoadPlan Find()
    {
        const double fontSize = pic_.FontSize;
        const auto steps = FontSteps(fontSize);
        bool found = false;
        for (const bool namesOnly : {false, true})
            for (const double step : steps) found = found || Try(step, namesOnly, false);
        if (!found) Try(steps.back(), true, true);
        ShareOut();
        Keep(above_);
        Keep(below_);
        pic_.FontSize = fontSize;
        return plan_;
    }

  private:
    static void Add(Side& side, LoadItem& item)
    {
        side.Items.push_back(&item);
        side.Labels.emplace_back();
        if (item.Is == LoadItem::What::Uniform) side.Lanes = std::max(side.Lanes, item.Lane + 1);
        if (item.Is == LoadItem::What::Point) side.Points = true;
        if (item.Is == LoadItem::What::Moment) side.Moments = true;
    }

    void Measure(Side& side) const
    {
        for (std::size_t i = 0; i < side.Items.size(); ++i) {
            LoadItem& item = *side.Items[i];
            double away = 0;
            if (item.Is == LoadItem::What::ReactionMoment)
                away = item.AtA ? -kReactionMomentAway : kReactionMomentAway;
            const PixelBox box = board_.BoxOf(plan_.NamesOnly ? item.Name : item.Text, 0, 0,
                                              HAlign::Left, VAlign::Top);
            side.Labels[i] = {
                ColumnOf(pic_, item.X1) + away, ColumnOf(pic_, item.X2) + away, box.X2, -1, 0, 0};
        }
    }

    [[nodiscard]] double LeastHeight() const
    {
        return 4 * kPad + above_.Arm(kLowLane) + kBandHeight + below_.Arm(kLowLane) + kRulerTicks +
               rulerText_;
    }

    bool Try(double fontSize, bool namesOnly, bool loose)
    {
        pic_.FontSize = fontSize;
        plan_.FontSize = fontSize;
        plan_.NamesOnly = namesOnly;
        Measure(above_);
        Measure(below_);
        const double line = board_.LineHeight();
        const int levels =
            std::max(2, static_cast<int>(std::floor((pic_.HeightPixels() - LeastHeight()) / line)));
        const double right = pic_.WidthPixels() - kPad;
        levelsBelow_ = ArrangeLevels(below_.Labels, kPad, right, levels - 1, loose);
        if (levelsBelow_ < 0) return false;
        levelsAbove_ = ArrangeLevels(above_.Labels, kPad, right, levels - levelsBelow_, loose);
        return levelsAbove_ >= 0;
    }

    /// Gives what is left of the height to lanes, to arrows, and then to the sheet's edges.
    void ShareOut()
    {
        const double line = board_.LineHeight();
        double spare = pic_.HeightPixels() - LeastHeight() -
                       (std::max(0, levelsAbove_) + std::max(0, levelsBelow_)) * line;
        const auto give = [&spare](double share, double most) {
            const double given = std::clamp(share * spare, 0.0, most);
            spare -= given;
            return given;
        };
        const int lanes = above_.Lanes + below_.Lanes;
        plan_.Lane = kLowLane;
        if (lanes > 0) plan_.Lane += give(0.5, (kHighLane - kLowLane) * lanes) / lanes;
        plan_.ArmAbove = above_.Arm(plan_.Lane) + (above_.Points ? give(0.4, kMoreAbove) : 0);
        plan_.ArmBelow = below_.Arm(plan_.Lane) + give(0.4, kMoreBelow);
        plan_.RulerTop = pic_.HeightPixels() - kPad - kRulerTicks - rulerText_;
        const double below =
            kBandHeight + plan_.ArmBelow + 2 * kPad + std::max(0, levelsBelow_) * line;
        const double above = plan_.ArmAbove + 2 * kPad + std::max(0, levelsAbove_) * line;
        const double slack = plan_.RulerTop - below - above;
        plan_.BandTop = above + slack / 2;
    }

    static void Keep(Side& side)
    {
        for (std::size_t i = 0; i < side.Items.size(); ++i) side.Items[i]->Label = side.Labels[i];
    }

    Picture& pic_;
    LabelBoard board_;
    Side above_, below_;
    double rulerText_ = 0; ///< height of the positions, in the sheet's own type
    int levelsAbove_ = 0, levelsBelow_ = 0;
    LoadPlan plan_;
};

} // namespace

LoadPlan PlanLoads(Picture& pic, const BeamRecord& beam, std::vector<LoadItem>& items)
{
    return Planner(pic, beam, items).Find();
}

} // namespace forcelab::beams
