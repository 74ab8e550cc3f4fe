// Fills each form with a worked problem and writes its picture into the folder given. The
// environment's QT_SCALE_FACTOR draws them as on a finer screen.

#include "Gallery.h"
#include "app/FormList.h"
#include "core/screen/Forms.h"
#include "core/screen/HelpViewer.h"
#include "core/screen/Style.h"

#include <QApplication>

#include <cstdio>

namespace {

using namespace forcelab::gallery;

// The platform without a display says for each window what it cannot do.
void PassOn(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void DrawHelp(const QDir& folder)
{
    forcelab::screen::HelpViewer viewer;
    viewer.resize(860, 1100);
    viewer.show();
    for (const int topic : {1, 2000, 3000, 4000, 6000}) {
        viewer.OpenTopic(topic);
        Save(viewer, folder, ("help-" + std::to_string(topic)).c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(PassOn);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("gallery"));
    if (!folder.mkpath(QStringLiteral("."))) Complain("cannot make the folder");
    forcelab::screen::ApplyStyle(*qApp);
    SetServices();
    forcelab::RegisterForms();
    for (const auto& scenes : {MenuScenes(), MohrScenes(), FailureScenes(), SectionScenes(),
                               ReportScenes(), EquationScenes(), TrussScenes(), BeamScenes()}) {
        for (const Scene& scene : scenes) Draw(scene, folder);
    }
    DrawHelp(folder);
    forcelab::screen::Forms::UnloadAll();
    return HasFailed() ? 1 : 0;
}
