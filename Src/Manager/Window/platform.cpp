#include "Manager/Window/platform.h"

#include <QGuiApplication>

namespace Orvo::Manager {
namespace {

constexpr auto kVariable = "QT_QPA_PLATFORM";

QtMessageHandler usualHandler = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

// Where there is no directory for what lives as long as a person is logged in, the toolkit makes
// one, and says so; offscreen it says that no window manager hears how small a window may become;
// and of a display that can't be reached it says first why, then how it was looked for. Of all that
// only the reason is anyone's concern.
void tell(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")) return;
    if (text.startsWith("Could not load the Qt platform plugin")) return;
    if (text.startsWith("Could not find the Qt platform plugin")) return;
    if (text.endsWith("does not support propagateSizeHints()")) return;
    usualHandler(type, context, text);
}

bool isGiven(const char* variable) { return !qEnvironmentVariableIsEmpty(variable); }

}  // namespace

// As the toolkit does it: GNOME draws no frames around Wayland's windows.
QByteArray platformFor(bool hasX, bool hasWayland, const QByteArray& desktop) {
    QByteArrayList platforms;
    if (hasX) platforms += "xcb";
    if (hasWayland) platforms.insert(desktop.contains("GNOME") ? platforms.size() : 0, "wayland");
    return (platforms << "offscreen").join(';');
}

void choosePlatform() {
    usualHandler = qInstallMessageHandler(tell);
    if (isGiven(kVariable)) return;
    qputenv(kVariable, platformFor(isGiven("DISPLAY"), isGiven("WAYLAND_DISPLAY"),
                                   qgetenv("XDG_CURRENT_DESKTOP")));
}

bool hasDisplay() {
    const QString platform = QGuiApplication::platformName();
    return platform != "offscreen" && platform != "minimal";
}

}  // namespace Orvo::Manager
