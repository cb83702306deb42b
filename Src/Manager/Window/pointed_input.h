#pragma once

#include <QWidget>

#include "Orvo/store/user_input.h"

// A person's mouse and keyboard on a control of the panel, as the toolkit would hand them on. What
// is done may end the control.
namespace Orvo::Manager {

using Runtime::MouseButton;
using Runtime::ReleasedWhere;

/// A button goes down in the middle of the control and up again.
void clickOn(QWidget& control, MouseButton button, ReleasedWhere released);

/// A key that types this character goes down and up again; codes 1 to 26 are Ctrl with a letter,
/// except those of the Return key.
void typeInto(QWidget& control, char16_t code);

}  // namespace Orvo::Manager
