#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileDialog>
#include <QRegularExpression>
#include <QTranslator>

#include "Manager/Window/manager_window.h"

namespace Orvo::Manager {
namespace {

class Brackets final : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* text, const char*,
                                    int) const override {
        return std::string_view(context) == "QShortcut" ? QString() : QString("[%1]").arg(text);
    }
};

/// The panel's, the toolkit's, and what comes from the rooms without a toolkit.
bool isOthers(const QObject* object) {
    const QStringList told{"Link", "Connected to", "Last word from the amplifier", "Veil"};
    const QObject* above = object->parent();
    while (above != nullptr && !qobject_cast<const Window::PanelWidget*>(above) &&
           !qobject_cast<const QFileDialog*>(above))
        above = above->parent();
    return above != nullptr || told.contains(object->objectName());
}

TEST(TranslationTest, NoWordsPassATranslatorBy) {
    Brackets brackets;
    QCoreApplication::installTranslator(&brackets);
    ManagerWindow window;
    window.setPortOffer([] { return std::vector<OfferedPort>(); });
    window.session().setReadOnly(true);
    window.showEvents(true);
    window.copyEvents();
    for (const auto open : {&ManagerWindow::showShortcuts, &ManagerWindow::showAbout,
                            &ManagerWindow::savePicture, &ManagerWindow::askForLink})
        (window.*open)();
    window.refresh();
    const QRegularExpression bareWords(R"(^(?!&?\d)[^\[]*\pL{3})");  // a numbered row is data
    QStringList bare;
    for (const QObject* object : QObjectList{&window} + window.findChildren<QObject*>()) {
        for (const char* property : {"text", "title", "windowTitle", "toolTip", "accessibleName"}) {
            const QString text = object->property(property).toString();
            if (!isOthers(object) && text.contains(bareWords)) bare += text;
        }
    }
    EXPECT_EQ(bare.join('\n').toStdString(), "");
    const auto help = std::get<Ending>(parseCommandLine({"marvane-manager", "--help"}));
    EXPECT_TRUE(help.text.contains("[Fills the screen.]"));
}

}  // namespace
}  // namespace Orvo::Manager
