#include "Support/hostile_texts.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QToolTip>
#include <QWindow>

#include "Manager/Window/manager_window.h"
#include "Manager/Window/warning.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Support/roles.h"

namespace Orvo::Manager {
namespace {

using Place = void (*)(ManagerWindow& window, const QString& text);

/// A host fails with these words at the next event.
void fail(ManagerWindow& window, const QString& words) {
    const auto host = window.panelWidget().panel().connect(
        [&](Long, std::span<Value>) { throw Error(1000, words.toStdString()); });
    window.panelWidget().store().perform(Runtime::Deed::click(channel(1).muteButton));
}

void warn(ManagerWindow& window, const QString& text) {
    showWarning(window, "Not done", "This could not be done.", text);
}

void connectLink(ManagerWindow& window, const QString& text) {
    window.connectLink(LinkAddress{"/nowhere/" + text.toStdString()});
}

void offerPort(ManagerWindow& window, const QString& text) {
    window.setPortOffer([text] { return std::vector<OfferedPort>{{text, text, text}}; });
    window.setLastLinks({text});
    window.askForLink();
}

void log(ManagerWindow& window, const QString& text) {
    window.panelWidget().panel().AggiugiTesto(text.toStdU16String());
}

TEST(HostileTexts, AreShownAsTheyAreByTheProgram) {
    const std::pair<const char*, Place> places[] = {{"error", fail},
                                                    {"warning", warn},
                                                    {"link", connectLink},
                                                    {"port", offerPort},
                                                    {"log", log}};
    const Tests::TrappedFile file;
    for (const auto& [place, show] : places) {
        ManagerWindow window;
        window.showEvents(true);
        window.open();
        for (const auto& [label, text] : Tests::hostileTexts(file)) {
            SCOPED_TRACE(std::string(place) + ": " + label);
            show(window, text);
            window.refresh();
            QApplication::processEvents();
            EXPECT_EQ(Tests::faultsOnScreen(), "");
            EXPECT_FALSE(file.hasBeenOpened());
            for (auto* dialog : window.findChildren<QDialog*>()) delete dialog;
        }
    }
}

TEST(HostileTexts, ATitleKeepsWhatLooksLikeAPlaceholder) {
    ManagerWindow window;
    window.open();
    connectLink(window, "[*] [*][*]");
    window.refresh();
    const QString title = window.windowHandle()->title();
    EXPECT_TRUE(title.contains("[*] [*][*]")) << title.toStdString();
}

TEST(HostileTexts, AFileThatIsToBeOverwrittenMayHaveAnyName) {
    const Tests::TrappedFile file;
    const QDir directory = QFileInfo(file.path()).dir();
    const QString name = directory.filePath("<img src=picture.png>.txt");
    QFile(name).open(QIODevice::WriteOnly);
    QDir::setCurrent(directory.path());
    ManagerWindow window;
    window.open();
    window.saveMessageLog();
    auto* dialog = window.findChild<QFileDialog*>();
    dialog->selectFile(name);
    QMetaObject::invokeMethod(dialog, "accept");
    auto* box = window.findChild<QMessageBox*>();
    ASSERT_NE(box, nullptr);
    QApplication::processEvents();
    EXPECT_TRUE(box->informativeText().contains("picture.png"));
    EXPECT_EQ(Tests::faultsOnScreen(), "");
    box->button(QMessageBox::Yes)->click();
    EXPECT_GT(QFileInfo(name).size(), 0);
    EXPECT_FALSE(file.hasBeenOpened());
    QDir::setCurrent(QDir::tempPath());
}

}  // namespace
}  // namespace Orvo::Manager
