#include "beams/CurveLabels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace forcelab::beams {

namespace {

constexpr double kNear = 2;       // pixels from the curve to its label
constexpr double kClear = 1.5;    // pixels kept off the curve
constexpr double kOtherSide = 5;  // what the less liked side costs, in pixels of distance
constexpr double kFalseSide = 25; // what the other side costs where it misleads
constexpr double kOtherLean = 3;
constexpr double kWrongLean = 9; // on the other side of a jump
constexpr double kBaselineCost = 7;
constexpr double kAside = 5;       // pixels from the point to a label beside it
constexpr double kLeaderFrom = 12; // pixels
constexpr double kLeaderGap = 2;
constexpr double kSmallestFont = 6;
constexpr Colour kLeader = Rgb(0x9a, 0xa5, 0xae);

struct Placed {
    const CurveLabel* Label;
    PixelBox Box;
};

PicturePoint NearestOf(const PixelBox& box, PicturePoint at)
{
    return {std::clamp(at.X, box.X1, box.X2), std::clamp(at.Y, box.Y1, box.Y2)};
}

/// The room of the line from a point to a label that stands far off.
std::optional<PixelBox> LeaderOf(const CurveLabel& label, const PixelBox& box)
{
    const PicturePoint at{label.Column, label.Y};
    const PicturePoint near = NearestOf(box, at);
    if (std::hypot(near.X - at.X, near.Y - at.Y) <= kLeaderFrom) return {};
    // Less the label's own gap, and what other labels keep off the curve anyway.
    const double y1 = std::min(at.Y, near.Y) + kLeaderGap;
    const double y2 = std::max(at.Y, near.Y) - kLeaderGap;
    return PixelBox{std::min(at.X, near.X), y1, std::max(at.X, near.X), y2};
}

/// The height of a curve in each pixel column.
class CurveColumns {
  public:
    CurveColumns(const std::vector<PicturePoint>& curve, double width)
        : low_(static_cast<std::size_t>(std::max(1.0, width)) + 1, -kNone),
          high_(low_.size(), kNone)
    {
        for (std::size_t i = 1; i < curve.size(); ++i) Mark(curve[i - 1], curve[i]);
    }
    [[nodiscard]] bool Crosses(const PixelBox& box) const
    {
        for (int column = Index(box.X1 - kClear); column <= Index(box.X2 + kClear); ++column)
            if (high_[column] <= box.Y2 + kClear && low_[column] >= box.Y1 - kClear) return true;
        return false;
    }

  private:
    static constexpr double kNone = std::numeric_limits<double>::max();

    [[nodiscard]] int Index(double x) const
    {
        return static_cast<int>(std::clamp(x, 0.0, static_cast<double>(low_.size() - 1)));
    }
    void Mark(PicturePoint a, PicturePoint b)
    {
        if (b.X < a.X) std::swap(a, b);
        for (int column = Index(a.X); column <= Index(b.X); ++column) {
            const double from = std::max(a.X, static_cast<double>(column));
            const double to = std::min(b.X, static_cast<double>(column + 1));
            const double steep = b.X > a.X ? (b.Y - a.Y) / (b.X - a.X) : 0;
            const double y1 = b.X > a.X ? a.Y + steep * (from - a.X) : a.Y;
            const double y2 = b.X > a.X ? a.Y + steep * (to - a.X) : b.Y;
            low_[column] = std::max({low_[column], y1, y2});
            high_[column] = std::min({high_[column], y1, y2});
        }
    }

    std::vector<double> low_;
    std::vector<double> high_;
};

class Arranger {
  public:
    Arranger(LabelBoard board, const CurveColumns& columns, const LabelledCurve& curve)
        : board_(std::move(board)), columns_(columns), curve_(curve)
    {}
    /// Nothing where one finds no room, unless it `mayLeaveOut`.
    std::optional<std::vector<Placed>> Arrange(const std::vector<const CurveLabel*>& labels,
                                               bool mayLeaveOut)
    {
        std::vector<Placed> placed;
        for (const CurveLabel* label : labels) {
            best_ = {};
            cost_ = std::numeric_limits<double>::max();
            Search(*label);
            if (cost_ == std::numeric_limits<double>::max()) {
                if (!mayLeaveOut) return std::nullopt;
                continue;
            }
            board_.Take(best_);
            if (const auto leader = LeaderOf(*label, best_)) board_.Take(*leader);
            placed.push_back({label, best_});
        }
        return placed;
    }

  private:
    void Search(const CurveLabel& label)
    {
        const double half = board_.LineHeight() / 2;
        const double otherSide = label.KeepSide ? kFalseSide : kOtherSide;
        constexpr int kSteps = 7;
        for (int step = 0; step < kSteps; ++step)
            for (const bool above : {label.Above, !label.Above})
                for (const HAlign lean :
                     {label.Lean, HAlign::Centre, HAlign::Left, HAlign::Right}) {
                    const double away = kNear + step * half;
                    const double cost =
                        away + (above == label.Above ? 0 : otherSide) + LeanCost(label.Lean, lean);
                    if (cost < cost_) Consider(label, away, above, lean, cost);
                }
    }
    static double LeanCost(HAlign wanted, HAlign lean)
    {
        if (lean == wanted) return 0;
        return wanted == HAlign::Centre || lean == HAlign::Centre ? kOtherLean : kWrongLean;
    }
    void Consider(const CurveLabel& label, double away, bool above, HAlign lean, double cost)
    {
        const double aside = lean == HAlign::Left ? kAside : lean == HAlign::Right ? -kAside : 0;
        const PixelBox box =
            board_.BoxOf(label.Text, label.Column + aside, label.Y + (above ? -away : away), lean,
                         above ? VAlign::Bottom : VAlign::Top);
        if (box.Y1 <= curve_.Baseline && box.Y2 >= curve_.Baseline) cost += kBaselineCost;
        if (cost >= cost_ || box.Y1 < curve_.Top || box.Y2 > curve_.Bottom ||
            columns_.Crosses(box) || !board_.IsFree(box))
            return;
        if (const auto leader = LeaderOf(label, box); leader && !board_.IsFree(*leader)) return;
        best_ = box;
        cost_ = cost;
    }

    LabelBoard board_;
    const CurveColumns& columns_; // NOLINT: these two outlive the search
    const LabelledCurve& curve_;  // NOLINT
    PixelBox best_;
    double cost_ = 0;
};

void PrintOne(LabelBoard& board, Picture& pic, const Placed& placed, Colour ink)
{
    const PicturePoint at{placed.Label->Column, placed.Label->Y};
    if (LeaderOf(*placed.Label, placed.Box)) PixelLine(pic, at, NearestOf(placed.Box, at), kLeader);
    board.Put(placed.Box, placed.Label->Text, ink);
}

} // namespace

void PrintCurveLabels(Picture& pic, LabelBoard& board, const LabelledCurve& curve,
                      const std::vector<CurveLabel>& labels)
{
    std::vector<const CurveLabel*> order;
    order.reserve(labels.size());
    for (const CurveLabel& label : labels) order.push_back(&label);
    std::stable_sort(order.begin(), order.end(), [](const CurveLabel* a, const CurveLabel* b) {
        return a->Repeats != b->Repeats ? b->Repeats : a->Weight > b->Weight;
    });
    const CurveColumns columns(curve.Points, pic.WidthPixels());
    const double fontSize = pic.FontSize;
    for (const double step : FontSteps(fontSize)) {
        pic.FontSize = step;
        const auto placed = Arranger(board, columns, curve).Arrange(order, step <= kSmallestFont);
        if (!placed) continue;
        for (const Placed& one : *placed) PrintOne(board, pic, one, curve.Ink);
        break;
    }
    pic.FontSize = fontSize;
}

} // namespace forcelab::beams
