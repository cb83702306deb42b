#include "Manager/Window/choices.h"

#include "Manager/Session/manager_session.h"
#include "Manager/Window/files.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/layout/common_tab.h"

namespace Orvo::Manager {
namespace {

constexpr auto kGeometry = "window/geometry";
constexpr auto kDocks = "window/docks";
constexpr auto kScopes = "window/scopes";
constexpr auto kHasScopes = "window/scopes-shown";
constexpr auto kZoom = "view/zoom";
constexpr auto kTab = "view/tab";
constexpr auto kReadings = "view/readings";
constexpr auto kScript = "view/events-as-script";
constexpr auto kLightFrame = "view/light-frame";
constexpr auto kLinks = "link/last";

std::optional<int> numberIn(const QSettings& settings, const char* key, int lowest, int highest) {
    bool isNumber = false;
    const int number = settings.value(key).toInt(&isNumber);
    return isNumber && number >= lowest && number <= highest ? std::optional(number) : std::nullopt;
}

QStringList linksIn(const QSettings& settings) {
    QStringList links = settings.value(kLinks).toStringList();
    links.removeIf([](const QString& link) { return !LinkAddress::read(nativeName(link)); });
    return links.mid(0, kMostLastLinks);
}

}  // namespace

Choices choicesIn(const QSettings& settings) {
    constexpr int kTabs = int(Layout::kTabCaptions.size());
    return {.geometry = settings.value(kGeometry).toByteArray(),
            .docks = settings.value(kDocks).toByteArray(),
            .scopes = settings.value(kScopes).toByteArray(),
            .hasScopes = settings.value(kHasScopes).toBool(),
            .zoom = numberIn(settings, kZoom, kSmallestZoom, kLargestZoom),
            .tab = numberIn(settings, kTab, 1, kTabs).value_or(1),
            .links = linksIn(settings),
            .detail = settings.value(kReadings).toBool() ? Detail::everything : Detail::changes,
            .form = settings.value(kScript).toBool() ? Form::script : Form::words,
            .frame = settings.value(kLightFrame).toBool() ? Frame::light : Frame::dark};
}

void keep(const Choices& choices, QSettings& settings) {
    settings.setValue(kGeometry, choices.geometry);
    settings.setValue(kDocks, choices.docks);
    settings.setValue(kScopes, choices.scopes);
    settings.setValue(kHasScopes, choices.hasScopes);
    settings.setValue(kZoom, choices.zoom ? QVariant(*choices.zoom) : QVariant("fit"));
    settings.setValue(kTab, choices.tab);
    settings.setValue(kReadings, choices.detail == Detail::everything);
    settings.setValue(kScript, choices.form == Form::script);
    settings.setValue(kLightFrame, choices.frame == Frame::light);
    settings.setValue(kLinks, choices.links);
}

}  // namespace Orvo::Manager
