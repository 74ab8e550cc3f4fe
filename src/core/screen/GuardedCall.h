#pragma once

#include "core/screen/Form.h"

#include <QWidget>

#include <functional>

namespace forcelab::screen {

/// Runs a handler of a control inside the Guard of the form that the control stands on.
inline void GuardedCall(QWidget& control, const std::function<void()>& handler)
{
    for (QWidget* owner = &control; owner; owner = owner->parentWidget())
        if (auto* form = dynamic_cast<Form*>(owner)) return form->Guard(handler);
    handler();
}

} // namespace forcelab::screen
