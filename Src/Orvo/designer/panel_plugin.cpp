#include "Orvo/designer/panel_plugin.h"

#include <QIcon>

#include "Orvo/service/platform.h"
#include "Orvo/window/emblem.h"
#include "Orvo/window/panel_widget.h"

namespace Orvo::Designer {

QString PanelPlugin::name() const { return Window::PanelWidget::staticMetaObject.className(); }
QString PanelPlugin::group() const { return "Orvo"; }
QIcon PanelPlugin::icon() const { return Window::emblem(); }
QString PanelPlugin::toolTip() const { return "Front panel of a four-channel power amplifier"; }
QString PanelPlugin::includeFile() const { return "<Orvo/window/panel_widget.h>"; }

QString PanelPlugin::whatsThis() const {
    return "The front panel of a four-channel power amplifier. Its slots show what the amplifier "
           "reports; its signals say what a person wants.";
}

QString PanelPlugin::domXml() const {
    return R"(<ui language="c++" displayname="Amplifier Panel">
    <widget class="Orvo::Window::PanelWidget" name="panel">
        <property name="geometry">
            <rect> <x>0</x> <y>0</y> <width>709</width> <height>460</height> </rect>
        </property>
    </widget>
</ui>)";
}

QWidget* PanelPlugin::createWidget(QWidget* parent) {
    const auto clock = isInDesigner_ ? Window::Clock::byHand : Window::Clock::real;
    return new Window::PanelWidget(Platform{}, parent, clock);
}

}  // namespace Orvo::Designer
