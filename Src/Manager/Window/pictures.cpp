#include "Manager/Window/pictures.h"

#include <algorithm>

#include <QBuffer>
#include <QPixmap>

#include "Orvo/layout/roles.h"

namespace Orvo::Manager {
namespace {

constexpr double kScopeZoom = 4;

// The panel at another size, unseen, as long as this is.
class Enlarged {
public:
    explicit Enlarged(Window::PanelWidget& panel) : panel_(panel), zoom_(panel.zoom()) {
        panel_.setUpdatesEnabled(false);
        panel_.setZoom(std::max(zoom_, kScopeZoom));
    }
    ~Enlarged() {
        panel_.setZoom(zoom_);
        panel_.setUpdatesEnabled(true);
    }
    Enlarged(const Enlarged&) = delete;
    Enlarged& operator=(const Enlarged&) = delete;

private:
    Window::PanelWidget& panel_;
    double zoom_;
};

}  // namespace

QImage pictureOf(Window::PanelWidget& panel) {
    panel.flush();
    return panel.grab(panel.childrenRect()).toImage();
}

QImage pictureOfScope(Window::PanelWidget& panel, int channel) {
    panel.flush();
    const Enlarged enlarged(panel);
    return panel.control(Layout::kChannels.at(std::size_t(channel - 1)).scope)->grab().toImage();
}

QByteArray toPng(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

}  // namespace Orvo::Manager
