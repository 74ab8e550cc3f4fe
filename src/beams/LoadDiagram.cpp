#include "beams/LoadDiagram.h"

#include "beams/DiagramFrame.h"
#include "beams/LoadPlan.h"
#include "beams/LoadSymbols.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr double kArrowDistance = 16; // pixels between the arrows of a uniform load
constexpr double kHalfSpot = 7;       // pixels to each side of an arrow
constexpr double kLabelGap = 3;
constexpr double kTick = 5;
constexpr double kLeaderFrom = 8; // pixels from what is named to its label
constexpr Colour kLeader = Rgb(0x9a, 0xa5, 0xae);

class LoadSheet {
  public:
    LoadSheet(Picture& pic, const BeamRecord& beam, const DiagramUnits& units, int loadCase,
              std::vector<LoadItem> items)
        : pic_(pic), beam_(beam), units_(units), case_(loadCase), items_(std::move(items)),
          board_(pic)
    {
        ScaleFrame(pic, beam.BeamLength, 0, -pic.HeightPixels());
        plan_ = PlanLoads(pic, beam, items_);
        ScaleFrame(pic, beam.BeamLength, plan_.BandTop, plan_.BandTop - pic.HeightPixels());
        areas_.BeamLength = beam.BeamLength;
        areas_.BandHeight = kBandHeight;
    }

    LoadDiagramAreas Draw()
    {
        DrawUniformLoads();
        if (beam_.SupportType == kFixedLeft) DrawWall(pic_, 0, kBandHeight, -1);
        if (beam_.SupportType == kFixedRight) DrawWall(pic_, beam_.BeamLength, kBandHeight, 1);
        DrawBeamBand(pic_, beam_.BeamLength, kBandHeight);
        if (beam_.SupportType == kTwoSupports) {
            DrawPin(pic_, beam_.SupportA, -kBandHeight);
            DrawRoller(pic_, beam_.SupportB, -kBandHeight);
        }
        for (const LoadItem& item : items_) DrawItem(item);
        DrawRuler();
        for (const LoadItem& item : items_) DrawLeaderOf(item);
        for (const LoadItem& item : items_) PrintItem(item);
        SaveSpots();
        return areas_;
    }

  private:
    using What = LoadItem::What;

    /// The height of something so far beyond the beam's edge, on the item's side.
    [[nodiscard]] static double Beyond(const LoadItem& item, double pixels)
    {
        return item.Below ? -kBandHeight - pixels : pixels;
    }
    [[nodiscard]] double Arm(const LoadItem& item) const
    {
        return item.Below ? plan_.ArmBelow : plan_.ArmAbove;
    }
    /// How far what is named reaches beyond the beam's edge.
    [[nodiscard]] double Reach(const LoadItem& item) const
    {
        if (item.Is == What::Uniform) return (item.Lane + 1) * plan_.Lane;
        if (item.Is == What::Moment || item.Is == What::ReactionMoment)
            return kArcRadius - kBandHeight / 2;
        return Arm(item);
    }
    /// Where an arrow of a uniform load ends: on the highest lane beneath it, or on the beam.
    [[nodiscard]] double Floor(const LoadItem& load, double x) const
    {
        int lanes = 0;
        for (const LoadItem& other : items_)
            if (other.Is == What::Uniform && other.Below == load.Below && other.Lane < load.Lane &&
                x >= other.X1 && x <= other.X2)
                lanes = std::max(lanes, other.Lane + 1);
        return lanes * plan_.Lane;
    }

    void DrawUniformLoads()
    {
        for (const LoadItem& item : items_)
            if (item.Is == What::Uniform) FillLane(item);
        for (const LoadItem& item : items_)
            if (item.Is == What::Uniform) DrawRow(item);
    }

    void FillLane(const LoadItem& item)
    {
        const Colour before = std::exchange(pic_.ForeColor, kUniformFill);
        pic_.FilledBox(item.X1, Beyond(item, 0), item.X2,
                       Beyond(item, (item.Lane + 1) * plan_.Lane));
        pic_.ForeColor = before;
    }

    void DrawRow(const LoadItem& item)
    {
        const double far = Beyond(item, Reach(item));
        const double width = pic_.ScaleX(item.X2 - item.X1);
        const int arrows = std::max(1, static_cast<int>(std::round(width / kArrowDistance)));
        for (int k = 0; k <= arrows; ++k) {
            const double x = item.X1 + (item.X2 - item.X1) * k / arrows;
            DrawUpright(pic_, x, far, Beyond(item, Floor(item, x)), kUniformColour);
        }
        const PicturePoint from = pic_.ToPixels({item.X1, far});
        PixelLine(pic_, from, {from.X + width, from.Y}, kUniformColour, 2);
    }

    void DrawItem(const LoadItem& item)
    {
        const double middle = -kBandHeight / 2;
        switch (item.Is) {
        case What::Uniform:
            break; // under the beam's outline
        case What::Point:
            DrawUpright(pic_, item.X1, Beyond(item, Arm(item)), Beyond(item, 0), item.Ink);
            break;
        case What::Moment:
            DrawMomentArc(pic_, item.X1, middle, item.Turned, item.Ink);
            break;
        case What::ReactionMoment:
            DrawMomentArc(pic_, MomentX(item), middle, item.Turned, item.Ink);
            break;
        case What::ReactionForce:
            DrawReaction(item);
        }
    }

    [[nodiscard]] double MomentX(const LoadItem& item) const
    {
        return item.X1 + (item.AtA ? -1 : 1) * pic_.UserWidth(kReactionMomentAway);
    }

    void DrawReaction(const LoadItem& item)
    {
        const double near = -kBandHeight - kSupportDepth;
        const double far = Beyond(item, plan_.ArmBelow);
        DrawUpright(pic_, item.X1, item.Turned ? near : far, item.Turned ? far : near, item.Ink);
        const double half = pic_.UserWidth(kHalfSpot + kTick);
        areas_.Reactions.push_back({item.AtA ? kOverReactionA : kOverReactionB, item.X1 - half,
                                    -kBandHeight, item.X1 + half, far});
        if (beam_.SupportType != kTwoSupports) AddMomentArea(item, half);
    }

    /// A wall answers for its moment too.
    void AddMomentArea(const LoadItem& item, double half)
    {
        const double reach = pic_.UserWidth(kReactionMomentAway + kArcRadius);
        areas_.Reactions.push_back(
            {item.AtA ? kOverReactionA : kOverReactionB, item.AtA ? -reach : item.X1 + half / 4,
             kWallReach, item.AtA ? -half / 4 : item.X1 + reach, -kBandHeight - kWallReach});
    }

    void DrawRuler()
    {
        const double y = plan_.RulerTop;
        const double right = ColumnOf(pic_, beam_.BeamLength);
        PixelLine(pic_, {ColumnOf(pic_, 0), y}, {right, y}, kBaseline);
        const PointList keys = BuildKeyPoints(beam_);
        for (int k = 1; k <= keys.Count; ++k) {
            const double x = ColumnOf(pic_, keys.At[k]);
            PixelLine(pic_, {x, y - kTick / 2}, {x, y + kTick}, kBaseline);
        }
        const std::string unit = "X (" + std::string(kLengthUnits.at(units_.Length)) + ")";
        board_.Put(board_.BoxOf(unit, kTick, y + kTick + 1, HAlign::Left, VAlign::Top), unit, kInk);
        PrintPositions(pic_, board_, PositionsToPrint(beam_, {}), units_, y + kTick + 1,
                       pic_.HeightPixels());
    }

    /// The box of an item's label; the picture has the font of the plan.
    [[nodiscard]] PixelBox LabelBox(const LoadItem& item) const
    {
        const double line = board_.LineHeight();
        const double beyond = Arm(item) + kLabelGap + (item.Label.Level + 1) * line;
        const double top =
            item.Below ? plan_.BandTop + kBandHeight + beyond - line : plan_.BandTop - beyond;
        return {item.Label.Left, top, item.Label.Left + item.Label.Width, top + line};
    }

    void DrawLeaderOf(const LoadItem& item)
    {
        if (item.Label.Level < 0) return;
        const double fontSize = std::exchange(pic_.FontSize, plan_.FontSize);
        const PixelBox box = LabelBox(item);
        pic_.FontSize = fontSize;
        const double column = item.Label.Anchor;
        const double tail = plan_.BandTop - Beyond(item, Reach(item));
        const double edge = item.Below ? box.Y1 : box.Y2;
        const bool under = column >= box.X1 && column <= box.X2;
        const bool flag = item.Label.Level > 0 && column < box.X1 && box.X1 - column < kTick;
        if (std::abs(edge - tail) < kLeaderFrom && (under || box.X1 - column < kTick)) return;
        const double end = flag ? (box.Y1 + box.Y2) / 2 : edge;
        const double arm = plan_.BandTop - Beyond(item, Arm(item));
        PixelLine(pic_, {column, tail}, {column, under || flag ? end : arm}, kLeader);
        if (!under && !flag)
            PixelLine(pic_, {column, arm}, {std::clamp(column, box.X1, box.X2), end}, kLeader);
    }

    void PrintItem(const LoadItem& item)
    {
        if (item.Label.Level < 0) return;
        const double fontSize = std::exchange(pic_.FontSize, plan_.FontSize);
        board_.Put(LabelBox(item), plan_.NamesOnly ? item.Name : item.Text, item.Ink);
        pic_.FontSize = fontSize;
    }

    void SaveSpots()
    {
        for (const LoadItem& item : items_) {
            if (item.Row == 0) continue;
            const HotSpotLoad load{beam_.LoadType[item.Row], beam_.LoadX[item.Row][1],
                                   beam_.LoadMagnitude[item.Row][case_], item.Row};
            const double far = Beyond(item, Reach(item));
            if (item.Is == What::Uniform)
                SaveHotSpot(areas_.HotSpots, load, item.X1, far, item.X2);
            else
                SaveNarrowSpot(item, load, far);
        }
    }

    void SaveNarrowSpot(const LoadItem& item, const HotSpotLoad& load, double far)
    {
        const bool moment = item.Is == What::Moment;
        const double half = moment ? kArcRadius : kHalfSpot;
        pic_.CurrentX = item.X1 - pic_.UserWidth(half);
        pic_.CurrentY = moment ? -kBandHeight / 2 - kArcRadius : Beyond(item, 0);
        SaveHotSpot(areas_.HotSpots, pic_, load, 2 * pic_.UserWidth(half), far - pic_.CurrentY);
    }

    Picture& pic_;
    const BeamRecord& beam_;
    const DiagramUnits& units_;
    int case_;
    std::vector<LoadItem> items_;
    LabelBoard board_;
    LoadPlan plan_;
    LoadDiagramAreas areas_;
};

} // namespace

LoadDiagramAreas DrawLoadDiagram(Picture& pic, const BeamRecord& beam,
                                 const BeamReactions& reactions, const DiagramUnits& units,
                                 int loadCase)
{
    pic.Cls();
    if (beam.SupportType == kNoBeam || beam.BeamLength <= 0) return {};
    return LoadSheet(pic, beam, units, loadCase, CollectItems(beam, reactions, units, loadCase))
        .Draw();
}

} // namespace forcelab::beams
