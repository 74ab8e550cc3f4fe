#include "core/screen/FloodRegion.h"

#include <QPolygonF>

#include <algorithm>
#include <cstdint>
#include <map>
#include <unordered_map>

namespace forcelab::screen {

namespace {

constexpr QRgb kColourBits = 0x00ffffff;

// The pixels of an image that a fill may still enter.
class OpenPixels {
  public:
    OpenPixels(const QImage& image, QRgb boundary)
        : width_(image.width()), height_(image.height()),
          open_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_))
    {
        const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < height_; ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(pixels.constScanLine(y));
            for (int x = 0; x < width_; ++x)
                open_[At(x, y)] = ((row[x] ^ boundary) & kColourBits) != 0;
        }
    }

    [[nodiscard]] bool IsOpen(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < width_ && y < height_ && open_[At(x, y)] != 0;
    }
    // The open run around a pixel, which is then closed.
    PixelRun Take(int x, int y)
    {
        PixelRun run{y, x, x + 1};
        while (IsOpen(run.Left - 1, y)) --run.Left;
        while (IsOpen(run.Right, y)) ++run.Right;
        std::fill(open_.begin() + static_cast<std::ptrdiff_t>(At(run.Left, y)),
                  open_.begin() + static_cast<std::ptrdiff_t>(At(run.Right, y)), std::uint8_t{0});
        return run;
    }

  private:
    [[nodiscard]] std::size_t At(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }
    int width_;
    int height_;
    std::vector<std::uint8_t> open_;
};

struct Edge {
    QPoint From, To;
};

// The pieces of row y that are in `inner` and not in `outer`, both sorted.
void Difference(const std::vector<PixelRun>& inner, const std::vector<PixelRun>& outer,
                std::vector<PixelRun>& pieces)
{
    pieces.clear();
    for (const PixelRun& run : inner) {
        int left = run.Left;
        for (const PixelRun& other : outer) {
            if (other.Right <= left || other.Left >= run.Right) continue;
            if (other.Left > left) pieces.push_back({run.Y, left, other.Left});
            left = other.Right;
        }
        if (left < run.Right) pieces.push_back({run.Y, left, run.Right});
    }
}

// The sides of the region, clockwise as seen: along its tops to the right, down its right sides.
std::vector<Edge> EdgesOf(const std::map<int, std::vector<PixelRun>>& rows)
{
    static const std::vector<PixelRun> none;
    const auto row = [&rows](int y) -> const std::vector<PixelRun>& {
        const auto found = rows.find(y);
        return found == rows.end() ? none : found->second;
    };
    std::vector<Edge> edges;
    std::vector<PixelRun> pieces;
    for (const auto& [y, runs] : rows) {
        for (const PixelRun& run : runs) {
            edges.push_back({{run.Left, y + 1}, {run.Left, y}});
            edges.push_back({{run.Right, y}, {run.Right, y + 1}});
        }
        Difference(runs, row(y - 1), pieces);
        for (const PixelRun& top : pieces) edges.push_back({{top.Left, y}, {top.Right, y}});
        Difference(runs, row(y + 1), pieces);
        for (const PixelRun& low : pieces) edges.push_back({{low.Right, y + 1}, {low.Left, y + 1}});
    }
    return edges;
}

std::uint64_t Key(QPoint point)
{
    return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(point.x())) << 32) |
           static_cast<std::uint32_t>(point.y());
}

// Adds a corner, or moves the last one where the line goes straight on.
void AddCorner(QPolygonF& loop, QPoint corner)
{
    const qsizetype n = loop.size();
    const bool straight =
        n >= 2 && ((loop[n - 1].x() == corner.x() && loop[n - 2].x() == corner.x()) ||
                   (loop[n - 1].y() == corner.y() && loop[n - 2].y() == corner.y()));
    if (straight)
        loop[n - 1] = corner;
    else
        loop.append(corner);
}

} // namespace

std::vector<PixelRun> FloodRuns(const QImage& image, QPoint seed, QRgb boundary)
{
    OpenPixels pixels(image, boundary);
    std::vector<PixelRun> runs;
    std::vector<QPoint> seeds{seed};
    while (!seeds.empty()) {
        const QPoint at = seeds.back();
        seeds.pop_back();
        if (!pixels.IsOpen(at.x(), at.y())) continue;
        const PixelRun run = pixels.Take(at.x(), at.y());
        runs.push_back(run);
        for (const int y : {run.Y - 1, run.Y + 1})
            for (int x = run.Left; x < run.Right; ++x)
                if (pixels.IsOpen(x, y) && (x == run.Left || !pixels.IsOpen(x - 1, y)))
                    seeds.emplace_back(x, y);
    }
    return runs;
}

QPainterPath OutlineOf(const std::vector<PixelRun>& runs)
{
    std::map<int, std::vector<PixelRun>> rows;
    for (const PixelRun& run : runs) rows[run.Y].push_back(run);
    for (auto& [y, row] : rows)
        std::sort(row.begin(), row.end(),
                  [](const PixelRun& a, const PixelRun& b) { return a.Left < b.Left; });

    std::unordered_multimap<std::uint64_t, QPoint> next;
    for (const Edge& edge : EdgesOf(rows)) next.emplace(Key(edge.From), edge.To);

    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    while (!next.empty()) {
        QPolygonF loop;
        for (auto edge = next.begin(); edge != next.end();
             edge = next.find(Key(loop.back().toPoint()))) {
            AddCorner(loop, edge->second);
            next.erase(edge);
        }
        path.addPolygon(loop);
        path.closeSubpath();
    }
    return path;
}

} // namespace forcelab::screen
