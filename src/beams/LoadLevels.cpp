#include "beams/LoadLevels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace forcelab::beams {

namespace {

constexpr double kGap = 4;    // pixels between labels of a level
constexpr double kFlag = 3;   // pixels from a leader to its label
constexpr double kColumn = 1; // half the room of a leader
constexpr double kStep = 3;   // pixels of the search for a free place
constexpr int kRounds = 6;    // of trying again in another order
constexpr double kLevelCost = 6;
constexpr double kCoverCost = 4;     // of standing in the way of a label
constexpr double kBlockingCost = 60; // of a label that would be shut in
constexpr double kAnchorCost = 1;    // of naming a load elsewhere than at its middle

struct Interval {
    double From, To;
    bool IsLeader;
};

/// Where a label stands to its anchor: this share of its width, and so many pixels, to the left.
struct Lean {
    double Share, Pixels, Cost;
};
constexpr std::array<Lean, 5> kLeans{
    {{0.5, 0, 0}, {0, -kFlag, 1}, {0.25, 0, 2}, {0.75, 0, 2}, {1, kFlag, 2}}};
/// Where on its load a label may be anchored.
constexpr std::array<double, 5> kShares{0.5, 0.25, 0.75, 0.1, 0.9};

struct Place {
    int Level = -1;
    double Left = 0;
    double Anchor = 0;
    double Cost = std::numeric_limits<double>::max();
};

class Levels {
  public:
    Levels(double left, double right, int count) : left_(left), right_(right), rows_(count) {}

    /// Places a label; `waiting` are those that still have to find room.
    bool TakeBest(LevelLabel& label, const std::vector<LevelLabel*>& waiting)
    {
        Place best;
        const bool isPoint = label.From == label.To;
        for (int level = 0; level < Count() && level * kLevelCost < best.Cost; ++level)
            for (const double share : kShares) {
                if (isPoint && share != kShares[0]) break;
                TryAnchor(best, label, waiting, level, share);
            }
        if (best.Level < 0) return false;
        Take(label, best, true);
        return true;
    }
    /// The nearest free place, whatever its leader passes.
    bool TakeNearest(LevelLabel& label)
    {
        const double anchor = (label.From + label.To) / 2;
        for (double away = 0; away < right_ - left_; away += kStep)
            for (int level = 0; level < Count(); ++level)
                for (const double x : {anchor + kFlag + away, anchor + kFlag - away}) {
                    if (x < left_ || x + label.Width > right_) continue;
                    if (!LabelFits(level, x, label.Width)) continue;
                    Take(label, {level, x, anchor, 0}, false);
                    return true;
                }
        return false;
    }

  private:
    [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] bool LabelFits(int level, double x, double width) const
    {
        return std::none_of(rows_[level].begin(), rows_[level].end(), [&](const Interval& used) {
            const double gap = used.IsLeader ? 0 : kGap;
            return x < used.To + gap && used.From < x + width + gap;
        });
    }
    /// True where a leader at the column passes no label on its way to the level.
    [[nodiscard]] bool LeaderFits(int level, double column) const
    {
        for (int k = 0; k < level; ++k)
            for (const Interval& used : rows_[k])
                if (!used.IsLeader && column - kColumn < used.To && used.From < column + kColumn)
                    return false;
        return true;
    }
    void TryAnchor(Place& best, const LevelLabel& label, const std::vector<LevelLabel*>& waiting,
                   int level, double share) const
    {
        const double anchor = label.From + share * (label.To - label.From);
        if (!LeaderFits(level, anchor)) return;
        for (const Lean& lean : kLeans) {
            const double x = std::clamp(anchor - lean.Share * label.Width - lean.Pixels, left_,
                                        std::max(left_, right_ - label.Width));
            double cost = level * kLevelCost + lean.Cost + (share == kShares[0] ? 0 : kAnchorCost);
            if (cost >= best.Cost || !LabelFits(level, x, label.Width)) continue;
            // What is shut in by this label needs a level beneath it.
            const int shutIn = Covered(waiting, label, x);
            cost += kCoverCost * shutIn + kBlockingCost * std::max(0, shutIn - level);
            if (cost < best.Cost) best = {level, x, anchor, cost};
        }
    }
    /// How many waiting labels can only be led to through the place of a label.
    static int Covered(const std::vector<LevelLabel*>& waiting, const LevelLabel& label, double x)
    {
        return static_cast<int>(
            std::count_if(waiting.begin(), waiting.end(), [&](const LevelLabel* other) {
                return other != &label && other->From > x - kColumn &&
                       other->To < x + label.Width + kColumn;
            }));
    }
    void Take(LevelLabel& label, const Place& place, bool leader)
    {
        label.Level = place.Level;
        label.Left = place.Left;
        label.Anchor = place.Anchor;
        rows_[place.Level].push_back({place.Left, place.Left + label.Width, false});
        for (int k = 0; leader && k < place.Level; ++k)
            rows_[k].push_back({place.Anchor - kColumn, place.Anchor + kColumn, true});
    }

    double left_;
    double right_;
    std::vector<std::vector<Interval>> rows_;
};

/// Points before stretches, which have more places to choose from, each from right to left.
std::vector<LevelLabel*> InOrder(std::vector<LevelLabel>& labels)
{
    std::vector<LevelLabel*> order;
    order.reserve(labels.size());
    for (LevelLabel& label : labels) order.push_back(&label);
    std::stable_sort(order.begin(), order.end(), [](const LevelLabel* a, const LevelLabel* b) {
        const bool aLong = a->To > a->From;
        const bool bLong = b->To > b->From;
        return aLong != bLong ? bLong : a->From + a->To > b->From + b->To;
    });
    return order;
}

/// Places all labels in an order; gives the first that finds no place, or nothing.
LevelLabel* PlaceAll(Levels stack, const std::vector<LevelLabel*>& order, bool loose)
{
    std::vector<LevelLabel*> waiting = order;
    for (LevelLabel* label : order) {
        label->Level = -1;
        waiting.erase(waiting.begin());
        if (!stack.TakeBest(*label, waiting) && !(loose && stack.TakeNearest(*label)) && !loose)
            return label;
    }
    return nullptr;
}

} // namespace

int ArrangeLevels(std::vector<LevelLabel>& labels, double left, double right, int levels,
                  bool loose)
{
    if (labels.empty()) return 0;
    if (levels < 1) return -1;
    const Levels stack(left, right, levels);
    std::vector<LevelLabel*> order = InOrder(labels);
    LevelLabel* shutIn = PlaceAll(stack, order, loose);
    for (int round = 0; shutIn != nullptr && round < kRounds; ++round) {
        // What found no place goes first.
        const auto at = std::find(order.begin(), order.end(), shutIn);
        std::rotate(order.begin(), at, at + 1);
        shutIn = PlaceAll(stack, order, loose);
    }
    if (shutIn != nullptr) return -1;
    int used = 0;
    for (const LevelLabel& label : labels) used = std::max(used, label.Level + 1);
    return used;
}

} // namespace forcelab::beams
