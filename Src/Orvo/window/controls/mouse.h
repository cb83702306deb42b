#pragma once

#include <optional>

#include <QMouseEvent>

#include "Orvo/store/user_input.h"

namespace Orvo::Window {

/// None for the further buttons that some mice have.
inline std::optional<Runtime::MouseButton> mouseButtonOf(const QMouseEvent& event) {
    switch (event.button()) {
        case Qt::LeftButton:
            return Runtime::MouseButton::left;
        case Qt::RightButton:
            return Runtime::MouseButton::right;
        case Qt::MiddleButton:
            return Runtime::MouseButton::middle;
        default:
            return std::nullopt;
    }
}

}  // namespace Orvo::Window
