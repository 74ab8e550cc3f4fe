#include "core/MainModule.h"
#include "core/screen/Forms.h"
#include "core/screen/PictureBox.h"
#include "core/screen/Services.h"
#include "transform/forms/frmFailure.h"
#include "transform/forms/frmMohr.h"

#include <QApplication>

#include <benchmark/benchmark.h>

// One repaint of all pictures of frmMohr in a window of 1280 x 900; the budget is 4 ms.

namespace forcelab::transform {
namespace {

screen::Form& OpenWith(MohrMode mode, std::array<double, 3> values, int unit)
{
    MainModule::MohrCaller = 5000;
    CurrentHandOver = {true, mode, {values[0], values[1], values[2]}, unit};
    screen::Forms::Hide("frmMohr");
    screen::Forms::Show("frmMohr");
    screen::Form& form = *screen::Forms::Load("frmMohr");
    form.resize(1280, 900);
    QCoreApplication::processEvents();
    return form;
}

void PaintAll(benchmark::State& state, screen::Form& form)
{
    std::vector<screen::PictureBox*> visible;
    for (auto* child : form.findChildren<QWidget*>()) {
        auto* picture = dynamic_cast<screen::PictureBox*>(child);
        if (picture && picture->isVisible()) visible.push_back(picture);
    }
    for (auto _ : state)
        for (screen::PictureBox* picture : visible) picture->PaintNow();
    state.counters["pictures"] = static_cast<double>(visible.size());
}

void PlaneStress(benchmark::State& state)
{
    PaintAll(state, OpenWith(MohrMode::PlaneStress, {50, -10, 40}, 3));
}
BENCHMARK(PlaneStress)->Unit(benchmark::kMillisecond);

void DeltaRosette(benchmark::State& state)
{
    PaintAll(state, OpenWith(MohrMode::Rosette60, {60, 135, 264}, 5));
}
BENCHMARK(DeltaRosette)->Unit(benchmark::kMillisecond);

/// What a person feels: the bar moves one step, everything follows.
void RotateByTheScrollBar(benchmark::State& state)
{
    screen::Form& form = OpenWith(MohrMode::PlaneStress, {50, -10, 40}, 3);
    auto* bar = form.findChild<QScrollBar*>(QStringLiteral("vsbRotater"));
    int position = 0;
    for (auto _ : state) {
        position = (position + 20) % 18000;
        bar->setValue(position);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(RotateByTheScrollBar)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace forcelab::transform

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    using namespace forcelab;
    screen::Services::Current().UseSystem();
    screen::Forms::Register("frmMohr", [] { return new transform::frmMohr; });
    screen::Forms::Register("frmFailure", [] { return new transform::frmFailure; });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    screen::Forms::UnloadAll();
    return 0;
}
