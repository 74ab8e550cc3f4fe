#pragma once

#include "truss/TrussModel.h"

#include <cmath>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace forcelab::truss::test {

/// All member forces and reactions of a truss at once, in another way than the program's: two
/// equations for every joint with the reactions among the unknowns, unit vectors in double
/// precision, and elimination with full pivoting.
struct JointSolution {
    std::vector<double> Forces;                 ///< by member, from 0
    std::map<int, double> ReactionX, ReactionY; ///< by grid point
};

namespace detail {

/// Solves the n x n + 1 system; nothing where its smallest pivot is below the limit.
inline std::optional<std::vector<double>> SolveFully(std::vector<std::vector<double>> rows)
{
    const int n = static_cast<int>(rows.size());
    std::vector<int> order(n);
    for (int k = 0; k < n; ++k) order[k] = k;
    for (int k = 0; k < n; ++k) {
        int bestRow = k;
        int bestColumn = k;
        for (int i = k; i < n; ++i)
            for (int j = k; j < n; ++j)
                if (std::abs(rows[i][order[j]]) > std::abs(rows[bestRow][order[bestColumn]])) {
                    bestRow = i;
                    bestColumn = j;
                }
        std::swap(rows[k], rows[bestRow]);
        std::swap(order[k], order[bestColumn]);
        if (std::abs(rows[k][order[k]]) < 1e-9) return std::nullopt;
        for (int i = k + 1; i < n; ++i) {
            const double factor = rows[i][order[k]] / rows[k][order[k]];
            for (int j = 0; j <= n; ++j) rows[i][j] -= factor * rows[k][j];
        }
    }
    std::vector<double> x(n);
    for (int k = n - 1; k >= 0; --k) {
        double sum = rows[k][n];
        for (int j = k + 1; j < n; ++j) sum -= rows[k][order[j]] * x[order[j]];
        x[order[k]] = sum / rows[k][order[k]];
    }
    return x;
}

} // namespace detail

inline std::optional<JointSolution> SolveJoints(const TrussModel& model)
{
    std::map<int, int> row; // of the X equation by grid point
    for (const TrussMember& member : model.Members()) {
        row.try_emplace(member.FromPoint, 0);
        row.try_emplace(member.ToPoint, 0);
    }
    int next = 0;
    for (auto& [point, first] : row) first = std::exchange(next, next + 2);
    std::vector<std::vector<double>> rows(next, std::vector<double>(next + 1, 0.0));
    int column = 0;
    for (const TrussMember& member : model.Members()) {
        const auto& a = model.GridPoints[member.FromPoint];
        const auto& b = model.GridPoints[member.ToPoint];
        const double length = std::hypot(double(b.X) - a.X, double(b.Y) - a.Y);
        for (const auto& [point, sign] : {std::pair{member.FromPoint, 1}, {member.ToPoint, -1}}) {
            rows[row[point]][column] = sign * (double(b.X) - a.X) / length;
            rows[row[point] + 1][column] = sign * (double(b.Y) - a.Y) / length;
        }
        if (++column > next) return std::nullopt;
    }
    std::vector<std::pair<int, bool>> reactions;
    for (const auto& [point, first] : row) {
        const TrussGridPoint& at = model.GridPoints[point];
        rows[first][next] = -at.LoadX;
        rows[first + 1][next] = -at.LoadY;
        for (const bool upright : {false, true}) {
            if ((upright ? at.SupportY : at.SupportX) == 0) continue;
            if (column >= next) return std::nullopt;
            rows[first + (upright ? 1 : 0)][column++] = 1;
            reactions.emplace_back(point, upright);
        }
    }
    if (column != next) return std::nullopt;
    const auto x = detail::SolveFully(std::move(rows));
    if (!x) return std::nullopt;
    const auto members = static_cast<std::ptrdiff_t>(model.Members().size());
    JointSolution solution{{x->begin(), x->begin() + members}, {}, {}};
    for (std::size_t k = 0; k < reactions.size(); ++k)
        (reactions[k].second ? solution.ReactionY : solution.ReactionX)[reactions[k].first] =
            (*x)[members + k];
    return solution;
}

} // namespace forcelab::truss::test
