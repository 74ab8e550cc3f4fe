#include "core/RecordingPicture.h"
#include "core/screen/Forms.h"
#include "core/screen/PictureBox.h"
#include "core/screen/Services.h"
#include "truss/TrussDrawing.h"
#include "truss/TrussNarration.h"
#include "truss/forms/frmTruss.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include <random>

// The largest truss: analysis within 1 ms. A drag over the largest grid repaints within 8 ms.

namespace {

using namespace forcelab;
using namespace forcelab::truss;

/// Bays with parallel chords on a grid of 50 x 50 spaces; 24 of them have 97 members.
TrussModel Bays(int count)
{
    TrussModel model;
    model.GridSpacesX = model.GridSpacesY = 50;
    MakeTrussGridCoords(model);
    const auto add = [&model](int i1, int j1, int i2, int j2) {
        AddMember(model, model.PointAt(i1, j1), model.PointAt(i2, j2));
    };
    for (int i = 0; i <= count; ++i) {
        add(i, 0, i, 1);
        if (i == count) break;
        add(i, 0, i + 1, 0);
        add(i, 1, i + 1, 1);
        add(i, 0, i + 1, 1);
        model.GridPoints[model.PointAt(i, 1)].LoadY = -10;
    }
    TrussGridPoint& pin = model.GridPoints[model.PointAt(0, 0)];
    pin.SupportX = pin.SupportY = 1;
    model.GridPoints[model.PointAt(count, 0)].SupportY = 1;
    return model;
}

void Analyze(benchmark::State& state)
{
    TrussModel model = Bays(24);
    for (auto _ : state) benchmark::DoNotOptimize(AnalyzeTruss(model));
}
BENCHMARK(Analyze)->Unit(benchmark::kMicrosecond);

void Explain(benchmark::State& state)
{
    TrussModel model = Bays(24);
    const TrussAnalysis analysis = AnalyzeTruss(model);
    for (auto _ : state) benchmark::DoNotOptimize(ExplainTruss(model, analysis.Results));
}
BENCHMARK(Explain)->Unit(benchmark::kMicrosecond);

void MarkPoints(benchmark::State& state)
{
    TrussModel model = Bays(24);
    for (auto _ : state) MarkInteriorPoints(model);
}
BENCHMARK(MarkPoints)->Unit(benchmark::kMicrosecond);

void Draw(benchmark::State& state)
{
    const TrussModel model = Bays(24);
    for (auto _ : state) {
        RecordingPicture pic(900, 600);
        DrawTruss(pic, model);
    }
}
BENCHMARK(Draw)->Unit(benchmark::kMicrosecond);

/// Members across each other anywhere on the largest grid, with supports and loads at some ends.
TrussModel CrossingMembers(int count)
{
    TrussModel model;
    model.GridSpacesX = model.GridSpacesY = 50;
    MakeTrussGridCoords(model);
    std::mt19937 random(7);
    const auto any = [&] { return static_cast<int>(random() % model.GridPointCount); };
    while (model.MemberCount < count) AddMember(model, any(), any());
    for (int m = 1; m <= std::min(count, 9); ++m) {
        TrussGridPoint& point = model.GridPoints[model.TrussMembers[m].FromPoint];
        if (m < 4) point.SupportY = 1;
        if (m > 3) point.LoadY = -10;
        if (m > 6) point.LoadX = 12.5F;
    }
    return model;
}

screen::PictureBox& OpenWith(const TrussModel& model)
{
    screen::Forms::Unload("frmTruss");
    screen::Form& form = *screen::Forms::Load("frmTruss");
    CurrentTruss = model;
    screen::Forms::Show("frmTruss");
    form.resize(1280, 800);
    QCoreApplication::processEvents();
    return dynamic_cast<screen::PictureBox&>(*form.ControlNamed("picTruss"));
}

void Send(screen::PictureBox& picture, QEvent::Type type, QPoint pixel, Qt::MouseButton button)
{
    QMouseEvent event(type, pixel, picture.mapToGlobal(pixel), button, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&picture, &event);
    QCoreApplication::processEvents();
}

/// What a person feels: the mouse moves a little, the rubber band follows.
void Drag(benchmark::State& state)
{
    screen::PictureBox& picture = OpenWith(CrossingMembers(static_cast<int>(state.range(0))));
    Send(picture, QEvent::MouseButtonPress, {200, 200}, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        step = (step + 7) % 400;
        Send(picture, QEvent::MouseMove, {200 + step, 600 - step}, Qt::NoButton);
    }
}
BENCHMARK(Drag)->Arg(0)->Arg(20)->Arg(30)->Arg(100)->Unit(benchmark::kMillisecond);

/// The whole picture anew, as after each release.
void Redraw(benchmark::State& state)
{
    screen::PictureBox& picture = OpenWith(CrossingMembers(static_cast<int>(state.range(0))));
    for (auto _ : state) picture.PaintNow();
}
BENCHMARK(Redraw)->Arg(0)->Arg(20)->Arg(30)->Arg(40)->Arg(100)->Unit(benchmark::kMillisecond);

/// The results of a truss of so many bays, with all their labels.
void RedrawResults(benchmark::State& state)
{
    screen::PictureBox& picture = OpenWith(Bays(static_cast<int>(state.range(0))));
    auto& compute = dynamic_cast<QPushButton&>(
        *picture.window()->findChild<QPushButton*>(QStringLiteral("cmdSpacing(1)")));
    compute.setEnabled(true);
    compute.click();
    for (auto _ : state) picture.PaintNow();
}
BENCHMARK(RedrawResults)->Arg(5)->Arg(9)->Arg(24)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    screen::Services::Current().UseSystem();
    screen::Forms::Register("frmTruss", [] { return new frmTruss; });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    screen::Forms::UnloadAll();
    return 0;
}
