#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include "Manager/Link/link_address.h"
#include "Manager/Ports/offered_ports.h"
#include "Manager/Window/labels.h"

namespace Orvo::Manager {

class ManagerWindow;

/// Asks where a link is to lead: to a port that is there, to what was connected before, or to any
/// path. It says why a link doesn't open, and stays until one is open or the person has enough.
class LinkDialog final : public QDialog {
    Q_OBJECT

public:
    LinkDialog(ManagerWindow& window, PortOffer offer);

private:
    void layOut();
    QLayout* makeFields();
    QLayout* makeFoot();
    void follow();
    void showPorts();
    void choosePort();
    void chooseLink(const QString& address);
    void setPath(const QString& path);
    [[nodiscard]] QString path() const;
    [[nodiscard]] QTreeWidgetItem* itemOf(const QString& path) const;
    void connectLink();
    void watch();
    void giveUp();
    void say(const QString& text);
    [[nodiscard]] std::optional<LinkAddress> address() const;
    [[nodiscard]] QString trouble(const std::string& trouble) const;

    ManagerWindow& window_;
    const PortOffer offer_;
    std::vector<OfferedPort> offered_;
    QString chosenPath_;
    QTreeWidget* const ports_;
    QComboBox* const path_;
    QComboBox* const speed_;
    QComboBox* const format_;
    QCheckBox* const keepsTrying_;
    AlertLabel* const message_;
    QPushButton* const connect_;
    QPushButton* const cancel_;
    QTimer looks_;
    QTimer watches_;  // while a link is to open
};

}  // namespace Orvo::Manager
