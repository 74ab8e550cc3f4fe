#include "core/screen/PictureBox.h"
#include "core/screen/SystemServices.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <string>

// One repaint of five pictures with 50 texts each; the budget is 4 ms.

namespace forcelab::screen {
namespace {

void PaintDiagram(Picture& pic)
{
    pic.Cls();
    pic.Scale(0, 1, 100, -1);
    pic.Line(0, 0, 100, 0);
    std::array<PicturePoint, 101> curve;
    for (int i = 0; i <= 100; ++i) curve[i] = {double(i), std::sin(i / 16.0)};
    pic.DrawWidth = 2;
    pic.ForeColor = IndexedColour(9);
    pic.Polyline(curve);
    pic.FillStyle = FillPattern::Solid;
    pic.FillColor = IndexedColour(11);
    pic.Circle(50, 0, 5);
    pic.ForeColor = IndexedColour(0);
    for (int i = 0; i < 50; ++i) {
        const std::string text = std::to_string(i) + "." + std::to_string(7 * i % 10) + " kN";
        pic.CurrentX = 2 * i - pic.TextWidth(text) / 2;
        pic.CurrentY = std::sin(i / 8.0);
        pic.Print(text);
    }
}

void RepaintFivePictures(benchmark::State& state)
{
    std::array<PictureBox, 5> boxes;
    for (PictureBox& box : boxes) {
        box.resize(600, 200);
        box.OnPaint = PaintDiagram;
    }
    for (auto _ : state)
        for (PictureBox& box : boxes) box.PaintNow();
}
BENCHMARK(RepaintFivePictures)->Unit(benchmark::kMillisecond);

void FloodAHexagon(benchmark::State& state)
{
    PictureBox box;
    box.resize(400, 400);
    box.OnPaint = [](Picture& pic) {
        pic.Cls();
        pic.Scale(-1.5, 1.5, 1.5, -1.5);
        pic.Smooth = false;
        pic.DrawWidth = 2;
        pic.FillStyle = FillPattern::Solid;
        pic.FillColor = IndexedColour(11);
        pic.Polyline(std::array<PicturePoint, 7>{
            {{1, 0}, {1, 1}, {0, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, 0}}});
        pic.FloodFill(0, 0, IndexedColour(0));
    };
    for (auto _ : state) box.PaintNow();
}
BENCHMARK(FloodAHexagon)->Unit(benchmark::kMillisecond);

void ListTheFonts(benchmark::State& state)
{
    const auto screen = MakeSystemScreen();
    for (auto _ : state) benchmark::DoNotOptimize(screen->Fonts());
}
BENCHMARK(ListTheFonts)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace forcelab::screen

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
