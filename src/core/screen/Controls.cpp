#include "core/screen/Controls.h"

#include "core/Materials.h"
#include "core/NumericText.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

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
    if (!stays && OnLostFocus) OnLostFocus();
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
        if (OnEnter) OnEnter();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

double TextBoxValue(const TextBox& box)
{
    return StringValue(box.Text());
}

void FillMaterialList(ComboBox& combo)
{
    combo.Clear();
    for (const std::string_view name : MaterialNames()) combo.AddItem(name);
    combo.SetListIndex(-1);
    ++MaterialTableLoaded;
}

void FillShearModulusList(ComboBox& combo)
{
    combo.Clear();
    for (const std::string_view name : ShearMaterialNames()) combo.AddItem(name);
    combo.SetListIndex(-1);
}

void Describe(QWidget& widget, std::string_view accessibleName, std::string_view tip)
{
    widget.setAccessibleName(Q(accessibleName));
    if (!tip.empty()) widget.setToolTip(Q(tip));
}

} // namespace forcelab::screen
