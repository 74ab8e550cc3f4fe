// Fills each form with a worked problem and writes its picture into the folder given. The
// environment's QT_SCALE_FACTOR draws them as on a finer screen.

#include "app/FormList.h"
#include "core/MainModule.h"
#include "core/screen/Form.h"
#include "core/screen/Forms.h"
#include "core/screen/HelpViewer.h"
#include "core/screen/Services.h"
#include "core/screen/Style.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using forcelab::screen::Form;
using forcelab::screen::Forms;
using forcelab::screen::Q;
using forcelab::screen::Services;

bool Failed = false;

// The platform without a display says for each window what it cannot do.
void PassOn(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void Complain(const std::string& what)
{
    std::fprintf(stderr, "gallery: %s\n", what.c_str());
    Failed = true;
}

// A worked problem brings no message.
class NoMessages : public forcelab::screen::MessageService {
  public:
    int Show(QWidget* /*owner*/, int /*code*/, const std::string& text,
             const std::string& /*title*/) override
    {
        Complain("a message that was not expected: " + text);
        return forcelab::kAnswerOk;
    }
};

// A usual screen, whatever the platform behind the pictures.
class UsualScreen : public forcelab::screen::ScreenService {
  public:
    [[nodiscard]] int WidthTwips() const override { return 1280 * 15; }
    [[nodiscard]] double TwipsPerPixel() const override { return 15; }
    [[nodiscard]] QRect WorkArea() const override { return {0, 0, 1280, 800}; }
    [[nodiscard]] int ScrollBarTwips() const override { return 16 * 15; }
    [[nodiscard]] QStringList Fonts() const override { return {QStringLiteral("Symbol")}; }
    [[nodiscard]] forcelab::Regional Separators() const override { return {}; }
};

struct Step {
    enum class Kind { Text, Click, Menu } What;
    std::string Name;
    std::string Value;
};
using Steps = std::vector<Step>;

Step Text(const std::string& name, const std::string& value)
{
    return {Step::Kind::Text, name, value};
}

Step Click(const std::string& name)
{
    return {Step::Kind::Click, name, ""};
}

Step Menu(const std::string& name)
{
    return {Step::Kind::Menu, name, ""};
}

void Trigger(const Form& form, const std::string& name)
{
    if (auto* action = form.findChild<QAction*>(Q(name))) return action->trigger();
    Complain("no menu item " + name);
}

void SetText(QWidget& widget, const std::string& text)
{
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) return box->setText(Q(text));
    if (auto* label = qobject_cast<QLabel*>(&widget)) return label->setText(Q(text));
    Complain("no text on " + widget.objectName().toStdString());
}

void Do(const Form& form, const Step& step)
{
    if (step.What == Step::Kind::Menu) return Trigger(form, step.Name);
    QWidget* widget = form.ControlNamed(step.Name);
    if (!widget) return Complain("no control " + step.Name);
    if (step.What == Step::Kind::Text) return SetText(*widget, step.Value);
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (!button || !button->isEnabled()) return Complain("cannot click " + step.Name);
    button->click();
}

struct Scene {
    const char* File;
    const char* Form;
    QSize Size;
    Steps Before; ///< while the form is not shown yet
    Steps Then;
};

Steps operator+(Steps first, const Steps& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Steps Values(const char* first, const char* second, const char* third)
{
    return {Text("txtStress(0)", first), Text("txtStress(1)", second), Text("txtStress(2)", third)};
}

Steps Rotated(const char* degrees)
{
    return {Text("txtRotater", degrees), Click("cmdRotater")};
}

const Steps kCompute{Click("cmdMohr(0)")};
const Steps kPlaneStress = Steps{Click("optStressUnits(3)"), Click("optSigX(3)")} +
                           Values("50", "10", "40") + kCompute + Rotated("30");
const Steps kRosetteStresses{Click("chkRosette"), Click("optElasticModulus(3)"),
                             Text("txtElasticModulus", "200"), Text("txtPoisson", "0.3"),
                             Click("optUnitsStress(3)")};

// 70 and -30 MPa, the principal stresses of the first scene.
Steps Failure(const char* sigma1, const char* sigma2)
{
    return {Text("lblSigma1", sigma1), Text("lblSigma2", sigma2), Text("lblStressUnits", "3")};
}

Steps Theory(int index, const char* limit)
{
    const std::string option = "optFailure(" + std::to_string(index) + ")";
    return {Click(option), Text("txtYieldStress", limit), Click("cmdRefresh(0)")};
}

constexpr QSize kUsual{1280, 800};
constexpr QSize kSmall{1024, 700};
constexpr QSize kFailure{1064, 640};

std::vector<Scene> MenuScenes()
{
    return {
        {"main-menu", "frmMainMenu", kUsual, {}, {}},
        {"main-menu-small", "frmMainMenu", {820, 540}, {}, {}},
        {"about", "frmAbout", {}, {}, {}},
    };
}

std::vector<Scene> MohrScenes()
{
    const Steps strain = Steps{Menu("mnuPlaneStrain"), Click("optSigX(3)")} +
                         Values("400", "200", "300") + kCompute + Rotated("20");
    const Steps gauges45 = Steps{Menu("mnuRosette45")} + Values("340", "315", "110");
    const Steps gauges60 =
        Steps{Menu("mnuRosette60"), Click("optSigX(5)")} + Values("400", "150", "50");
    const Steps inertia =
        Steps{Menu("mnuMomentOfInertia")} + Values("120", "45", "-30") + kCompute + Rotated("15");
    return {
        {"mohr-empty", "frmMohr", kUsual, {}, {}},
        {"mohr-plane-stress", "frmMohr", kUsual, {}, kPlaneStress},
        {"mohr-plane-stress-small", "frmMohr", kSmall, {}, kPlaneStress},
        {"mohr-details", "frmMohr", kUsual, {}, kPlaneStress + Steps{Click("cmdMohr(1)")}},
        {"mohr-abs-max-shear",
         "frmMohr",
         kUsual,
         {},
         Steps{Click("optStressUnits(3)"), Click("chkAbsMaxShear")} + Values("80", "30", "20") +
             kCompute},
        {"mohr-plane-strain", "frmMohr", kUsual, {}, strain},
        {"mohr-rosette-45", "frmMohr", kUsual, {}, gauges45 + kCompute},
        {"mohr-rosette-60-stresses", "frmMohr", kUsual, {}, gauges60 + kRosetteStresses + kCompute},
        {"mohr-inertia", "frmMohr", kUsual, {}, inertia},
    };
}

std::vector<Scene> FailureScenes()
{
    const Steps state = Failure("70", "-30");
    return {
        {"failure-tresca", "frmFailure", kFailure, state, Theory(0, "250")},
        {"failure-von-mises", "frmFailure", kFailure, state, Theory(1, "80")},
        {"failure-rankine", "frmFailure", kFailure, state, Theory(2, "100")},
        {"failure-mohr", "frmFailure", kFailure, state,
         Steps{Click("optFailure(3)"), Text("txtCompression", "300")} + Theory(3, "100")},
    };
}

void Save(QWidget& window, const QDir& folder, const char* name)
{
    QCoreApplication::processEvents();
    const QString file = folder.filePath(QStringLiteral("%1.png").arg(QLatin1String(name)));
    if (!window.grab().save(file)) Complain("cannot write " + file.toStdString());
}

void Draw(const Scene& scene, const QDir& folder)
{
    Forms::UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    forcelab::MainModule::MohrCaller = 1;
    forcelab::MainModule::MohrInputKind = 1;
    Form* form = Forms::Load(scene.Form);
    if (!form) return Complain(std::string("no form ") + scene.Form);
    for (const Step& step : scene.Before) Do(*form, step);
    Forms::Show(scene.Form);
    if (scene.Size.isValid()) form->resize(scene.Size);
    QCoreApplication::processEvents();
    for (const Step& step : scene.Then) Do(*form, step);
    if (form->size() != scene.Size && scene.Size.isValid())
        Complain(std::string(scene.File) + " does not fit its window");
    Save(*form, folder, scene.File);
}

void DrawHelp(const QDir& folder)
{
    forcelab::screen::HelpViewer viewer;
    viewer.resize(860, 1100);
    viewer.show();
    for (const int topic : {1, 3000}) {
        viewer.OpenTopic(topic);
        Save(viewer, folder, ("help-" + std::to_string(topic)).c_str());
    }
    viewer.resize(860, 5600);
    Save(viewer, folder, "help-3000-whole");
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(PassOn);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("gallery"));
    if (!folder.mkpath(QStringLiteral("."))) Complain("cannot make the folder");
    forcelab::screen::ApplyStyle(application);
    Services::Current().UseSystem();
    Services::Current().Messages = std::make_unique<NoMessages>();
    Services::Current().Screen = std::make_unique<UsualScreen>();
    forcelab::RegisterForms();
    for (const auto& scenes : {MenuScenes(), MohrScenes(), FailureScenes()}) {
        for (const Scene& scene : scenes) Draw(scene, folder);
    }
    DrawHelp(folder);
    Forms::UnloadAll();
    return Failed ? 1 : 0;
}
