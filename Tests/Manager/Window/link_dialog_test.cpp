#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLocalServer>
#include <QPointer>
#include <QTest>
#include <QTreeWidget>

#include "Manager/Window/manager_window.h"
#include "Support/pseudo_terminal.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// A window whose dialog offers what this test has.
class LinkDialogTest : public testing::Test {
protected:
    LinkDialogTest() {
        window_.setPortOffer([this] { return offered_; });
        window_.session().connectSimulator();
        window_.open();
    }

    void ask() {
        window_.askForLink();
        dialog_ = window_.findChild<QDialog*>();
        QApplication::setActiveWindow(dialog_);
    }

    static void press(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
    }

    [[nodiscard]] QString said() const {
        return dialog_ ? dialog_->findChild<QLabel*>("Link message")->text()
                       : "nothing: it is gone";
    }

    /// After a try.
    void expectSaid(const QString& text) {
        window_.session().letPass(1s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return said() == text; }, 20'000))
            << said().toStdString();
    }

    template <class Field>
    Field& field(int number = 0) {
        return *dialog_->findChildren<Field*>().at(number);
    }
    QComboBox& path() { return field<QComboBox>(0); }
    QComboBox& speed() { return field<QComboBox>(1); }

    [[nodiscard]] QString file(const char* name) const {
        return QString::fromStdString(directory_.path() / name);
    }
    QString connectedTo() {
        return QString::fromStdString(window_.session().station().situation().connectedTo);
    }

    Tests::TemporaryDirectory directory_;
    std::vector<OfferedPort> offered_;
    ManagerWindow window_;
    QPointer<QDialog> dialog_;
};

TEST_F(LinkDialogTest, APortIsChosenByKeysAndStaysChosenWhereverItStands) {
    const Tests::PseudoTerminal terminal;
    if (!terminal.isThere()) GTEST_SKIP() << "there are no pseudo-terminals here";
    const OfferedPort mine{QString::fromStdString(terminal.path()), "Mine", mayBeOpened()};
    const OfferedPort other{"/dev/other", "Other", "Only root may open it"};
    offered_ = {other, mine};
    ask();
    press({Qt::Key_Down});
    offered_ = {{"/dev/another", "", ""}, other, mine};
    const auto isListed = [this] { return field<QTreeWidget>().topLevelItemCount() == 3; };
    EXPECT_TRUE(QTest::qWaitFor(isListed, 20'000));
    EXPECT_EQ(field<QTreeWidget>().currentItem()->text(1), "Mine");
    press({Qt::Key_Tab, Qt::Key_Tab});
    speed().setCurrentText("19200");
    press({Qt::Key_Enter});
    expectSaid("nothing: it is gone");
    EXPECT_EQ(connectedTo(), "Link to " + mine.path + " at 19200");
    EXPECT_EQ(window_.lastLinks(), QStringList(mine.path + "@19200"));
    ask();
    EXPECT_EQ(path().currentText(), mine.path);
    EXPECT_EQ(speed().currentText(), "19200");
}

TEST_F(LinkDialogTest, SaysWhatIsWrongAndTriesAgainUntilItOpens) {
    window_.setLastLinks({file("link"), "/dev/nowhere@9600,7E1"});
    ask();
    press({Qt::Key_Enter});
    expectSaid("Not there. Trying again, also when this is closed.");
    EXPECT_TRUE(connectedTo().endsWith("(not there, trying again)"));
    QLocalServer server;
    ASSERT_TRUE(server.listen(file("link")));
    expectSaid("nothing: it is gone");
    EXPECT_TRUE(server.waitForNewConnection(1000));
    EXPECT_EQ(connectedTo(), "Link to " + file("link"));
}

TEST_F(LinkDialogTest, TriesOnceIfThatIsWanted) {
    ask();
    path().setEditText("/dev/null");
    field<QCheckBox>().setChecked(false);
    press({Qt::Key_Enter});
    expectSaid("No serial device, pipe or socket.");
    EXPECT_EQ(connectedTo(), "");
    ASSERT_TRUE(dialog_);
    press({Qt::Key_Escape});
    expectSaid("nothing: it is gone");
}

TEST_F(LinkDialogTest, RefusesWhatIsNoAddressAndLeavesWhatIsConnected) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "As it is"}, {" ", "9600"}, {"/dev/link", "fast"}, {"/dev/link", "0"}, {"@9600", ""}};
    ask();
    for (const auto& [path, speed] : cases) {
        this->path().setEditText(path);
        this->speed().setCurrentText(speed);
        press({Qt::Key_Enter});
        EXPECT_TRUE(said().startsWith("A link is a path")) << path << ' ' << speed;
        EXPECT_NE(window_.session().simulator(), nullptr) << path << ' ' << speed;
    }
}

}  // namespace
}  // namespace Orvo::Manager
