#include "truss/Mechanism.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace forcelab::truss {

namespace {

constexpr double kNoPivot = 1e-9; // of direction cosines
constexpr double kMoves = 1e-6;   // of the largest displacement

/// How members lengthen when joints move: a row for each member, a column for each free direction.
class Compatibility {
  public:
    Compatibility(const TrussModel& model, const TrussResults& results)
    {
        for (int joint = 1; joint <= results.Joints.JointCount; ++joint)
            columns_ =
                std::max<int>({columns_, results.EquationX[joint], results.EquationY[joint]});
        order_.resize(columns_);
        std::iota(order_.begin(), order_.end(), 0);
        for (const TrussMember& member : model.Members()) AddRow(model, results, member);
    }

    /// A vector that the matrix takes to zero, or nearest to it; empty where there are no columns.
    std::vector<double> NullVector()
    {
        if (columns_ == 0) return {};
        int rank = 0;
        const int most = std::min(static_cast<int>(rows_.size()), columns_ - 1);
        while (rank < most && TakePivot(rank)) ++rank;
        std::vector<double> moves(columns_, 0.0);
        moves[order_[rank]] = 1;
        for (int k = rank - 1; k >= 0; --k) {
            double sum = 0;
            for (int j = k + 1; j < columns_; ++j) sum += rows_[k][order_[j]] * moves[order_[j]];
            moves[order_[k]] = -sum / rows_[k][order_[k]];
        }
        return moves;
    }

  private:
    void AddRow(const TrussModel& model, const TrussResults& results, const TrussMember& member)
    {
        const TrussGridPoint& a = model.GridPoints[member.FromPoint];
        const TrussGridPoint& b = model.GridPoints[member.ToPoint];
        const double dx = static_cast<double>(b.X) - a.X;
        const double dy = static_cast<double>(b.Y) - a.Y;
        const double length = std::hypot(dx, dy);
        std::vector<double> row(columns_, 0.0);
        const auto put = [&row](short equation, double value) {
            if (equation != 0) row[equation - 1] = value;
        };
        const int from = results.Joints.GridToJoint[member.FromPoint];
        const int to = results.Joints.GridToJoint[member.ToPoint];
        put(results.EquationX[from], -dx / length);
        put(results.EquationY[from], -dy / length);
        put(results.EquationX[to], dx / length);
        put(results.EquationY[to], dy / length);
        rows_.push_back(std::move(row));
    }

    /// Brings the largest entry that is left to place k and eliminates below it. False where all
    /// that is left is zero.
    bool TakePivot(int k)
    {
        std::size_t bestRow = k;
        int bestColumn = k;
        double best = 0;
        for (std::size_t i = k; i < rows_.size(); ++i)
            for (int j = k; j < columns_; ++j)
                if (std::abs(rows_[i][order_[j]]) > best) {
                    best = std::abs(rows_[i][order_[j]]);
                    bestRow = i;
                    bestColumn = j;
                }
        if (best < kNoPivot) return false;
        std::swap(rows_[k], rows_[bestRow]);
        std::swap(order_[k], order_[bestColumn]);
        for (std::size_t i = k + 1; i < rows_.size(); ++i) {
            const double factor = rows_[i][order_[k]] / rows_[k][order_[k]];
            for (int j = k; j < columns_; ++j) rows_[i][order_[j]] -= factor * rows_[k][order_[j]];
        }
        return true;
    }

    int columns_ = 0;
    std::vector<int> order_; ///< of the columns, pivots first
    std::vector<std::vector<double>> rows_;
};

} // namespace

std::optional<Mechanism> FindMechanism(const TrussModel& model, const TrussResults& results)
{
    const std::vector<double> moves = Compatibility(model, results).NullVector();
    if (moves.empty()) return std::nullopt;
    Mechanism motion;
    motion.MoveX = motion.MoveY = std::vector<double>(1, 0.0);
    double largest = 0;
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        const auto move = [&moves](short equation) { return equation ? moves[equation - 1] : 0.0; };
        motion.MoveX.push_back(move(results.EquationX[joint]));
        motion.MoveY.push_back(move(results.EquationY[joint]));
        largest = std::max(largest, std::hypot(motion.MoveX[joint], motion.MoveY[joint]));
    }
    for (int joint = 1; joint <= results.Joints.JointCount; ++joint) {
        motion.MoveX[joint] /= largest;
        motion.MoveY[joint] /= largest;
        if (std::hypot(motion.MoveX[joint], motion.MoveY[joint]) > kMoves)
            motion.Moving.push_back(results.JointName[joint]);
    }
    return motion;
}

} // namespace forcelab::truss
