#pragma once

#include "core/screen/Form.h"

#include <QDir>
#include <QImage>
#include <QPointF>
#include <QSize>

#include <string>
#include <vector>

/// The pieces from which the pictures of the forms are made: scenes, each a form with a worked
/// problem, and the stage that plays them.
namespace forcelab::gallery {

/// One thing that a person would do on a form.
struct Step {
    enum class Kind {
        Text,  ///< types into a box, or picks a line of a list
        Click, ///< clicks a button, option or check box
        Menu,
        Key,     ///< types letter by letter; "\t" Tab, "\n" Enter, "^" and "v" the arrows
        Drag,    ///< draws with the left button on a picture, in its scale
        Hold,    ///< the same without letting the button go
        Tick,    ///< lets a timer come so many times, which then stands still
        On,      ///< steps on a form that the steps before have opened
        Answer,  ///< steps on the modal form that the next step brings up
        Message, ///< the message, by its title, that the next step brings up
        Keep,    ///< the form as it is now is the scene's picture
    } What;
    std::string Name; ///< of the control
    std::string Value;
    QPointF From = {};
    QPointF To = {};
    std::vector<Step> Inner = {};
};
using Steps = std::vector<Step>;

Step Text(const std::string& name, const std::string& value);
Step Click(const std::string& name);
Step Menu(const std::string& name);
Step Key(const std::string& name, const std::string& letters);
Step Drag(const std::string& name, QPointF from, QPointF to);
Step Hold(const std::string& name, QPointF from, QPointF to);
Step Tick(const std::string& name, int times);
Step On(const std::string& form, const Steps& steps);
Step Answer(const std::string& form, const Steps& steps);
Step Message(const std::string& title, bool keep = false); ///< kept with the form behind it
Step Keep();
Steps operator+(Steps first, const Steps& second);

struct Scene {
    const char* File;
    const char* Form;
    QSize Size;
    Steps Before; ///< while the form is not shown yet
    Steps Then;
    const char* Opens = nullptr; ///< a further form that the steps bring up; it is the picture
    Steps There = {};            ///< the steps on that form
};

inline constexpr QSize kUsual{1280, 800};
inline constexpr QSize kSmall{1024, 700};

std::vector<Scene> MenuScenes();
std::vector<Scene> MohrScenes();
std::vector<Scene> FailureScenes();
std::vector<Scene> SectionScenes();
std::vector<Scene> ReportScenes();
std::vector<Scene> EquationScenes();
std::vector<Scene> TrussScenes();
std::vector<Scene> BeamScenes();

/// Tells what went wrong; the gallery then ends with a failure.
void Complain(const std::string& what);
bool HasFailed();

/// Does a step on a form.
void Do(const screen::Form& form, const Step& step);
/// Does the steps that Stage.cpp does not know: drags, timers, modal forms, messages.
void Gesture(const screen::Form& form, const Step& step);
/// Answers a message that was announced; False for any other.
bool AnswerMessage(QWidget* owner, int code, const std::string& text, const std::string& title);
/// What Keep or Message kept since the last call; nothing where they did not.
QImage TakeKept();

/// Services that answer as a usual screen does and expect no message.
void SetServices();
/// Plays a scene from the start and writes its picture.
void Draw(const Scene& scene, const QDir& folder);
/// Writes the picture of a window.
void Save(QWidget& window, const QDir& folder, const char* name);

} // namespace forcelab::gallery
