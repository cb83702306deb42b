#include "Manager/Window/elided_label.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>

namespace Orvo::Manager {
namespace {

constexpr int kFewest = 4;  // characters

}  // namespace

void ElidedLabel::setFullText(const QString& text) {
    setText(text);
    setToolTip(text);
}

QSize ElidedLabel::minimumSizeHint() const {
    const QSize whole = QLabel::minimumSizeHint();
    const int least = kFewest * fontMetrics().averageCharWidth() + 2 * margin();
    return {std::min(least, whole.width()), whole.height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    const QRect room = contentsRect().marginsRemoved(QMargins() + margin());
    const QString text = fontMetrics().elidedText(this->text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, int(alignment()), palette(), isEnabled(), text,
                          foregroundRole());
}

}  // namespace Orvo::Manager
