#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/widgets/widget_tree.h"

namespace Orvo {

/// The quick test's result lines, 0 to 5: what a line shows is its state. Error 340 for any other.
class QuickTest {
public:
    explicit QuickTest(Widgets::WidgetTree& widgets) : widgets_(widgets) {}

    void setPassed(Integer row, Boolean value);
    [[nodiscard]] Boolean hasPassed(Integer row) const;

    /// Lines 0 to 4.
    void clearMeasurements();
    /// Line 5.
    void clearMains();

private:
    Widgets::WidgetTree& widgets_;
};

}  // namespace Orvo
