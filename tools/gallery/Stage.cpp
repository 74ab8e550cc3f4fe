#include "Gallery.h"

#include "core/MainModule.h"
#include "core/screen/Form.h"
#include "core/screen/Forms.h"
#include "core/screen/Services.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSpinBox>

#include <cstdio>

namespace forcelab::gallery {

using screen::Form;
using screen::Forms;
using screen::Q;
using screen::Services;

namespace {

bool Failed = false;

// A worked problem brings no message.
class NoMessages : public forcelab::screen::MessageService {
  public:
    int Show(QWidget* owner, int code, const std::string& text, const std::string& title) override
    {
        if (!AnswerMessage(owner, code, text, title))
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

} // namespace

void Complain(const std::string& what)
{
    std::fprintf(stderr, "gallery: %s\n", what.c_str());
    Failed = true;
}

bool HasFailed()
{
    return Failed;
}

void SetServices()
{
    Services::Current().UseSystem();
    Services::Current().Messages = std::make_unique<NoMessages>();
    Services::Current().Screen = std::make_unique<UsualScreen>();
}

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

Step Key(const std::string& name, const std::string& letters)
{
    return {Step::Kind::Key, name, letters};
}

Steps operator+(Steps first, const Steps& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

namespace {

void Trigger(const Form& form, const std::string& name)
{
    if (auto* action = form.findChild<QAction*>(Q(name))) return action->trigger();
    Complain("no menu item " + name);
}

void Pick(QListWidget& list, const std::string& line)
{
    const auto found = list.findItems(Q(line), Qt::MatchExactly);
    if (found.isEmpty()) return Complain("no line " + line);
    list.setCurrentItem(found.front());
}

int KeyOf(char letter)
{
    switch (letter) {
    case '\t':
        return Qt::Key_Tab;
    case '\n':
        return Qt::Key_Return;
    case '^':
        return Qt::Key_Up;
    case 'v':
        return Qt::Key_Down;
    default:
        return QChar(QLatin1Char(letter)).toUpper().unicode();
    }
}

// Types letter by letter into whatever takes the keys.
void TypeKeys(QWidget& widget, const std::string& letters)
{
    widget.setFocus();
    for (const char letter : letters) {
        QWidget* focused = QApplication::focusWidget();
        const bool arrow = letter == '^' || letter == 'v';
        const QString text = arrow ? QString() : QString(QLatin1Char(letter));
        QKeyEvent press(QEvent::KeyPress, KeyOf(letter), Qt::NoModifier, text);
        QCoreApplication::sendEvent(focused ? focused : &widget, &press);
        QCoreApplication::processEvents();
    }
}

void SetText(QWidget& widget, const std::string& text)
{
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) return box->setText(Q(text));
    if (auto* label = qobject_cast<QLabel*>(&widget)) return label->setText(Q(text));
    if (auto* box = qobject_cast<QSpinBox*>(&widget)) return box->setValue(std::stoi(text));
    if (auto* bar = qobject_cast<QScrollBar*>(&widget)) return bar->setValue(std::stoi(text));
    if (auto* list = qobject_cast<QListWidget*>(&widget)) return Pick(*list, text);
    Complain("no text on " + widget.objectName().toStdString());
}

} // namespace

void Do(const Form& form, const Step& step)
{
    if (step.What == Step::Kind::Menu) return Trigger(form, step.Name);
    if (step.What > Step::Kind::Key) return Gesture(form, step);
    QWidget* widget = form.ControlNamed(step.Name);
    if (!widget) return Complain("no control " + step.Name);
    if (step.What == Step::Kind::Text) return SetText(*widget, step.Value);
    if (step.What == Step::Kind::Key) return TypeKeys(*widget, step.Value);
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (!button || !button->isEnabled()) return Complain("cannot click " + step.Name);
    button->click();
}

namespace {

// A fresh form with its steps done; nothing where the program has no such form.
Form* Play(const Scene& scene)
{
    Form* form = Forms::Load(scene.Form);
    if (!form) return nullptr;
    for (const Step& step : scene.Before) Do(*form, step);
    Forms::Show(scene.Form);
    if (scene.Size.isValid() && !scene.Opens) form->resize(scene.Size);
    QCoreApplication::processEvents();
    for (const Step& step : scene.Then) Do(*form, step);
    return form;
}

// The form that the steps have brought up.
Form* Follow(const Scene& scene)
{
    if (!Forms::IsVisible(scene.Opens)) return nullptr;
    Form* form = Forms::Load(scene.Opens);
    form->resize(scene.Size);
    QCoreApplication::processEvents();
    for (const Step& step : scene.There) Do(*form, step);
    return form;
}

} // namespace

void Save(QWidget& window, const QDir& folder, const char* name)
{
    QCoreApplication::processEvents();
    const QImage kept = TakeKept();
    const QString file = folder.filePath(QStringLiteral("%1.png").arg(QLatin1String(name)));
    if (!(kept.isNull() ? window.grab().toImage() : kept).save(file))
        Complain("cannot write " + file.toStdString());
}

void Draw(const Scene& scene, const QDir& folder)
{
    Forms::UnloadAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    MainModule::MohrCaller = 1;
    MainModule::MohrInputKind = 1;
    MainModule::SectionCaller = 3;
    MainModule::DataPath = STEEL_FOLDER;
    Form* form = Play(scene);
    if (form && scene.Opens) form = Follow(scene);
    if (!form) return Complain(std::string("no form for ") + scene.File);
    if (scene.Size.isValid() && form->size() != scene.Size)
        Complain(std::string(scene.File) + " does not fit its window");
    Save(*form, folder, scene.File);
}

} // namespace forcelab::gallery
