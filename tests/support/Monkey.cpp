#include "support/Monkey.h"

#include <QAbstractButton>
#include <QAction>
#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>

#include <cstdio>
#include <cstdlib>

namespace forcelab::test {

using screen::Form;

namespace {

constexpr int kTextsToAnEnter = 4;
constexpr int kClicksToARightOne = 6;

std::uint32_t SeedOf(std::uint32_t usual)
{
    const char* given = std::getenv("FORCELAB_SEED");
    const auto seed = given ? static_cast<std::uint32_t>(std::stoul(given)) : usual;
    std::printf("seed %u (FORCELAB_SEED)\n", seed);
    return seed;
}

bool IsIn(const std::vector<std::string>& list, const std::string& name)
{
    return std::find(list.begin(), list.end(), name) != list.end();
}

// A person gets to an item through its menu.
bool CanReach(const QAction& item)
{
    if (!item.isEnabled() || !item.isVisible()) return false;
    for (const QObject* place : item.associatedObjects())
        if (const auto* menu = qobject_cast<const QMenu*>(place))
            if (!menu->isEnabled() || !CanReach(*menu->menuAction())) return false;
    return true;
}

} // namespace

Monkey::Monkey(std::uint32_t seed, MonkeyGround ground)
    : ground_(std::move(ground)), random_(SeedOf(seed))
{}

int Monkey::Pick(std::size_t count)
{
    return static_cast<int>(random_() % count);
}

bool Monkey::Knows(const MsgBox& box) const
{
    return box.Title == "Forcelab" || IsIn(ground_.Titles, box.Title);
}

// Qt's own parts of a menu bar, a list or a box are not the form's.
bool Monkey::MayUse(const QWidget& widget) const
{
    return widget.isVisible() && widget.isEnabled() && !widget.size().isEmpty() &&
           !widget.objectName().startsWith(QLatin1String("qt_")) &&
           !IsIn(ground_.OffLimits, widget.objectName().toStdString());
}

QPoint Monkey::PlaceOn(const QWidget& widget)
{
    return {Pick(std::size_t(widget.width())), Pick(std::size_t(widget.height()))};
}

void Monkey::TypeInto(screen::TextBox& box, const std::string& text)
{
    const QPointer<QWidget> typed(&box);
    box.SetFocus();
    box.selectAll();
    QTest::keyClicks(&box, screen::Q(text));
    if (typed && OneIn(kTextsToAnEnter)) QTest::keyClick(typed, Qt::Key_Return);
}

void Monkey::Type(Form& form)
{
    if (auto* box = AnyVisible<screen::TextBox>(form)) TypeInto(*box, AnyOf(ground_.Texts));
}

void Monkey::Press(Form& form)
{
    auto* button = AnyVisible<QAbstractButton>(form);
    if (!button) return;
    // Near its left end, where an option and a check box have their mark.
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, {8, button->height() / 2});
}

void Monkey::PressKey(Form& form)
{
    static constexpr Qt::Key kKeys[] = {Qt::Key_Tab,  Qt::Key_Return, Qt::Key_Space,
                                        Qt::Key_Down, Qt::Key_Up,     Qt::Key_Left,
                                        Qt::Key_End,  Qt::Key_Escape, Qt::Key_Delete};
    QWidget* focused = form.focusWidget();
    if (focused && MayUse(*focused)) QTest::keyClick(focused, kKeys[Pick(std::size(kKeys))]);
}

void Monkey::ClickPicture(Form& form)
{
    auto* picture = AnyVisible<screen::PictureBox>(form);
    if (!picture) return;
    const auto button = OneIn(kClicksToARightOne) ? Qt::RightButton : Qt::LeftButton;
    QTest::mouseClick(picture, button, Qt::NoModifier, PlaceOn(*picture));
}

void Monkey::DragPicture(Form& form)
{
    const QPointer<QWidget> picture = AnyVisible<screen::PictureBox>(form);
    if (!picture) return;
    QTest::mousePress(picture, Qt::LeftButton, Qt::NoModifier, PlaceOn(*picture));
    if (picture) QTest::mouseMove(picture, PlaceOn(*picture));
    if (picture) QTest::mouseRelease(picture, Qt::LeftButton, Qt::NoModifier, PlaceOn(*picture));
}

void Monkey::Choose(Form& form)
{
    if (auto* combo = AnyVisible<screen::ComboBox>(form); combo && combo->count() > 0) {
        combo->setCurrentIndex(Pick(std::size_t(combo->count())));
        if (OneIn(2)) QTest::keyClick(combo, OneIn(2) ? Qt::Key_Down : Qt::Key_Up);
    }
    if (auto* list = AnyVisible<QListWidget>(form); list && list->count() > 0)
        list->setCurrentRow(Pick(std::size_t(list->count())));
    if (auto* bar = AnyVisible<QScrollBar>(form))
        bar->setValue(bar->minimum() + Pick(std::size_t(bar->maximum() - bar->minimum() + 1)));
}

QAction* Monkey::AnyItem(const Form& form)
{
    if (!ground_.Items.empty()) return form.findChild<QAction*>(screen::Q(AnyOf(ground_.Items)));
    std::vector<QAction*> items;
    for (QAction* item : form.findChildren<QAction*>())
        if (item->objectName().startsWith(QLatin1String("mnu")) && !item->menu() &&
            !IsIn(ground_.OffLimits, item->objectName().toStdString()))
            items.push_back(item);
    return items.empty() ? nullptr : AnyOf(items);
}

void Monkey::Trigger(Form& form)
{
    QAction* item = AnyItem(form);
    if (item && CanReach(*item)) item->trigger();
}

} // namespace forcelab::test
