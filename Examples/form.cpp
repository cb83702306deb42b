// A host whose window was drawn in Qt Designer, with the panel from its palette: form.ui.
#include <QApplication>

#include "ui_form.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    Ui::Form form;
    form.setupUi(&window);
    auto* panel = form.panel;
    QObject::connect(panel, &Orvo::Window::PanelWidget::mute, panel,
                     [panel](int channel) { panel->setMute(channel, !panel->isMute(channel)); });
    panel->setConnected(true);
    window.show();
    return QApplication::exec();
}
