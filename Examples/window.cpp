#include <Orvo/core/marvane_assistant.h>
#include <Orvo/window/panel_widget.h>

#include <QApplication>

struct Host : Orvo::MarvaneAssistantEvents {
    explicit Host(Orvo::MarvaneAssistant& panel) : panel(panel) {}
    void OnOff() override { panel.PowerOn(!bool(panel.PowerOn())); }  // ask the amplifier first
    Orvo::MarvaneAssistant& panel;
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Orvo::Window::PanelWidget window;
    Host host(window.panel());
    const Orvo::Connection connection = window.panel().connect(host);
    window.panel().Connected(true);
    window.show();
    return QApplication::exec();
}
