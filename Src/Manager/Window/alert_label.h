#pragma once

#include <QLabel>

namespace Orvo::Manager {

/// A label whose text is worth interrupting whoever has the screen read out.
class AlertLabel final : public QLabel {
public:
    AlertLabel();

    /// Has the text read out.
    void alert();
};

}  // namespace Orvo::Manager
