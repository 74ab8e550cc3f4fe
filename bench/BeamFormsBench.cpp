#include "LoadedBeam.h"
#include "app/FormList.h"
#include "beams/DiagramRequest.h"
#include "core/screen/Form.h"
#include "core/screen/Forms.h"
#include "core/screen/Services.h"

#include <QApplication>
#include <QScrollBar>

#include <benchmark/benchmark.h>

// What a person feels of frmBeamDiagrams in a window of 880 x 900, with 1, 10 and 40 loads of all
// kinds on 100 ft: a changed beam within 8 ms, a move of the point within a frame of 16 ms.

namespace forcelab::beams {
namespace {

using screen::Forms;

constexpr const char* kDiagrams = "frmBeamDiagrams";

screen::Form& OpenWith(int loads)
{
    CurrentBeam = LoadedBeam(loads);
    screen::Form& form = *Forms::Load(kDiagrams);
    form.resize(880, 900);
    Forms::Show(kDiagrams);
    RequestDiagrams(RequestAfterChange(CurrentBeam));
    QCoreApplication::processEvents();
    return form;
}

/// A load changes: reactions, curves, lists and all pictures follow.
void ChangeALoad(benchmark::State& state)
{
    OpenWith(static_cast<int>(state.range(0)));
    double size = 1;
    for (auto _ : state) {
        size = size > 9 ? 1 : size + 1;
        StoreBeamLoad(CurrentBeam, 1, {kPointDown, 3, 3, 1, size, 0, 1});
        RequestDiagrams(RequestAfterChange(CurrentBeam));
        QCoreApplication::processEvents();
    }
}
BENCHMARK(ChangeALoad)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

/// A hand moves the bar: the readout and the markers follow.
void MoveThePoint(benchmark::State& state)
{
    screen::Form& form = OpenWith(static_cast<int>(state.range(0)));
    auto* bar = form.findChild<QScrollBar*>(QStringLiteral("hsbX"));
    for (auto _ : state) {
        const bool atEnd = bar->value() + bar->singleStep() >= bar->maximum();
        bar->triggerAction(atEnd ? QScrollBar::SliderToMinimum : QScrollBar::SliderSingleStepAdd);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(MoveThePoint)->Arg(1)->Arg(10)->Arg(40)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace forcelab::beams

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    forcelab::screen::Services::Current().UseSystem();
    forcelab::RegisterForms();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    forcelab::screen::Forms::UnloadAll();
    return 0;
}
