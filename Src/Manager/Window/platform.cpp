#include "Manager/Window/platform.h"

#include <QGuiApplication>

namespace Orvo::Manager {
namespace {

constexpr auto kVariable = "QT_QPA_PLATFORM";

QtMessageHandler usualHandler = nullptr;  // NOLINT(*-avoid-non-const-global-variables)

// Where there is no directory for what lives as long as a person is logged in, the toolkit makes
// one, and says so; offscreen it says that no window manager hears how small a window may become.
// Here both are nobody's concern.
void tell(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set")) return;
    if (text.endsWith("does not support propagateSizeHints()")) return;
    usualHandler(type, context, text);
}

bool isGiven(const char* variable) { return !qEnvironmentVariableIsEmpty(variable); }

}  // namespace

// With both, which one is better depends on the desktop, and the toolkit knows its ways.
QByteArray platformFor(bool hasX, bool hasWayland) {
    if (hasX && hasWayland) return {};
    if (hasX) return "xcb;offscreen";
    if (hasWayland) return "wayland;offscreen";
    return "offscreen";
}

void choosePlatform() {
    usualHandler = qInstallMessageHandler(tell);
    if (isGiven(kVariable)) return;
    const QByteArray platform = platformFor(isGiven("DISPLAY"), isGiven("WAYLAND_DISPLAY"));
    if (!platform.isEmpty()) qputenv(kVariable, platform);
}

bool hasDisplay() {
    const QString platform = QGuiApplication::platformName();
    return platform != "offscreen" && platform != "minimal";
}

}  // namespace Orvo::Manager
