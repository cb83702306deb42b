#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

#include "Manager/Window/manager_window.h"
#include "Orvo/core/marvane_assistant.h"
#include "Support/fresh_screen.h"
#include "Support/random_person.h"

namespace Orvo::Manager {
namespace {

constexpr int kDeeds = 160;
constexpr int kDeedsBetweenLooks = 80;

QList<QAction*> actionsIn(const QList<QAction*>& menu) {
    QList<QAction*> all;
    for (QAction* action : menu) {
        if (const auto* below = action->menu<QMenu*>()) {
            all += actionsIn(below->actions());
        } else if (!action->isSeparator() && action->menuRole() != QAction::QuitRole) {
            all += action;
        }
    }
    return all;
}

/// The program's window with a person in front who tries everything but to quit.
class RandomLife {
public:
    explicit RandomLife(Tests::Chance& chance) : chance_(chance) {
        qputenv("HOME", person_.file("").toUtf8());
        // No port of this machine.
        const OfferedPort port{"/nowhere/" + person_.text(), person_.text(), person_.text()};
        window_.setPortOffer([port] { return std::vector{port, port}; });
        window_.session().connectSimulator();
        window_.open();
    }

    void run() {
        if (!Tests::liveOn(
                kDeeds, kDeedsBetweenLooks, [this] { act(); }, [this] { look(); }))
            return;
        window_.close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

private:
    // A dialog keeps the person from the menus.
    void act() {
        const bool isKept = QApplication::activeModalWidget() != nullptr;
        switch (chance_.below(12)) {
            case 0:
            case 1:
            case 2:
                return isKept ? person_.act(window_) : chance_.oneOf(actions_)->trigger();
            case 3:
                return window_.session().letPass(std::chrono::milliseconds(chance_.below(2000)));
            case 4:
                return window_.panelWidget().panel().AggiugiTesto(
                    person_.text().left(2000).toStdU16String());
            case 5:
                return window_.resize(200 + chance_.below(1000), 200 + chance_.below(600));
            case 6:
                return window_.connectLink(LinkAddress{person_.text().toStdString()});
            default:
                return person_.act(window_);
        }
    }

    void look() {
        if (QApplication::activeModalWidget() != nullptr) return;
        EXPECT_EQ(Tests::differenceFromFresh(window_.panelWidget()), "");
        EXPECT_EQ(Tests::faultsOnScreen(), "");
    }

    Tests::Chance& chance_;
    Tests::RandomPerson person_{chance_, [this] { act(); }};
    ManagerWindow window_;
    const QList<QAction*> actions_ = actionsIn(window_.menuBar()->actions());
};

TEST(RandomLife, LeavesTheProgramRunning) {
    Tests::forSeeds([](Tests::Chance& chance) { RandomLife(chance).run(); });
}

}  // namespace
}  // namespace Orvo::Manager
