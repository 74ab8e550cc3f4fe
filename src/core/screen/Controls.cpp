#include "core/screen/Controls.h"

#include "core/Materials.h"
#include "core/NumericText.h"
#include "core/screen/GuardedCall.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace forcelab::screen {

TextBox::TextBox(QWidget* parent) : QLineEdit(parent) {}

void TextBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    selectAll();
    // The click that brought the focus would put the caret where it fell.
    selectOnRelease_ = event->reason() == Qt::MouseFocusReason;
}

void TextBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const bool stays =
        event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason;
    if (!stays && OnLostFocus) GuardedCall(*this, OnLostFocus);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (selectOnRelease_ && !hasSelectedText()) selectAll();
    selectOnRelease_ = false;
}

void TextBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        if (OnEnter) GuardedCall(*this, OnEnter);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

double TextBoxValue(const TextBox& box)
{
    return StringValue(box.Text());
}

namespace {

// Filling a list chooses nothing, so no handler hears of it.
void Fill(ComboBox& combo, std::span<const std::string_view> names)
{
    const QSignalBlocker quiet(combo);
    combo.Clear();
    for (const std::string_view name : names) combo.AddItem(name);
    combo.SetListIndex(-1);
}

} // namespace

void FillMaterialList(ComboBox& combo)
{
    Fill(combo, MaterialNames());
    ++MaterialTableLoaded;
}

void FillShearModulusList(ComboBox& combo)
{
    Fill(combo, ShearMaterialNames());
}

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

// A wheel that scrolls the column of inputs must not choose on its way.
void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void Describe(QWidget& widget, std::string_view accessibleName, std::string_view tip)
{
    widget.setAccessibleName(Q(accessibleName));
    if (!tip.empty()) widget.setToolTip(Q(tip));
}

} // namespace forcelab::screen
