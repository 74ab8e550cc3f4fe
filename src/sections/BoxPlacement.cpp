#include "sections/BoxPlacement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace forcelab::sections {

namespace {

constexpr double kStep = 4;    // pixels between the places that are tried
constexpr double kBoxGap = 2;  // between two boxes
constexpr double kEdgeGap = 1; // to the edge of the picture
constexpr double kNoPlace = std::numeric_limits<double>::infinity();

double Within(double middle, double half, double size)
{
    const double least = half + kEdgeGap;
    return std::clamp(middle, least, std::max(least, size - least));
}

/// Looks for the cheapest place in square rings about the wish, as far as a ring can still hold
/// a cheaper one.
class Search {
  public:
    Search(BoxSize box, double width, double height, std::span<const Obstacle> obstacles,
           std::span<const PixelRect> taken)
        : box_(box), width_(width), height_(height), obstacles_(obstacles), taken_(taken)
    {}

    [[nodiscard]] PicturePoint Nearest(const BoxPlace& place)
    {
        const PicturePoint wish = place.Middle;
        owner_ = place.Box;
        wish_ = {Within(wish.X, box_.Width / 2, width_), Within(wish.Y, box_.Height / 2, height_)};
        best_ = wish_;
        cost_ = kNoPlace;
        Try(0, 0);
        const double farthest = std::max(width_, height_);
        for (double ring = kStep; ring < std::min(cost_, farthest); ring += kStep) TryRing(ring);
        return best_;
    }

  private:
    void TryRing(double ring)
    {
        for (double along = -ring; along <= ring; along += kStep) {
            Try(along, -ring);
            Try(along, ring);
            Try(-ring, along);
            Try(ring, along);
        }
    }

    void Try(double dx, double dy)
    {
        const double distance = std::hypot(dx, dy);
        if (distance >= cost_) return;
        const PicturePoint middle{wish_.X + dx, wish_.Y + dy};
        const double cost = distance + CostAt(RectAround(middle, box_));
        if (cost >= cost_) return;
        cost_ = cost;
        best_ = middle;
    }

    [[nodiscard]] double CostAt(const PixelRect& rect) const
    {
        if (rect.Lo[0] < kEdgeGap || rect.Lo[1] < kEdgeGap || rect.Hi[0] > width_ - kEdgeGap ||
            rect.Hi[1] > height_ - kEdgeGap)
            return kNoPlace;
        const auto meets = [&rect](const PixelRect& other) { return Meet(rect, other, kBoxGap); };
        if (std::any_of(taken_.begin(), taken_.end(), meets)) return kNoPlace;
        double cost = 0;
        for (const Obstacle& obstacle : obstacles_)
            if (obstacle.Owner != owner_ && Meet(rect, obstacle.Where, 0)) cost += obstacle.Cost;
        return cost;
    }

    BoxSize box_;
    double width_, height_;
    std::span<const Obstacle> obstacles_;
    std::span<const PixelRect> taken_;
    int owner_ = -1;
    PicturePoint wish_, best_;
    double cost_ = kNoPlace;
};

} // namespace

std::vector<BoxPlace> PlaceBoxes(std::span<const BoxPlace> wishes, BoxSize box, double width,
                                 double height, std::span<const Obstacle> obstacles)
{
    std::vector<BoxPlace> places;
    std::vector<PixelRect> taken;
    for (const BoxPlace& wish : wishes) {
        const PicturePoint middle = Search(box, width, height, obstacles, taken).Nearest(wish);
        places.push_back({wish.Box, middle});
        taken.push_back(RectAround(middle, box));
    }
    return places;
}

} // namespace forcelab::sections
