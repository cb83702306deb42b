#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Orvo::Designer {

/// The panel as Qt Designer offers it, and as a form brings it back. On the form that is being
/// designed its clock stands still.
class PanelPlugin final : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    void initialize(QDesignerFormEditorInterface* editor) override {
        isInDesigner_ |= editor != nullptr;
    }
    [[nodiscard]] bool isInitialized() const override { return isInDesigner_; }
    [[nodiscard]] bool isContainer() const override { return false; }

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QString domXml() const override;
    QWidget* createWidget(QWidget* parent) override;

private:
    bool isInDesigner_ = false;
};

}  // namespace Orvo::Designer
