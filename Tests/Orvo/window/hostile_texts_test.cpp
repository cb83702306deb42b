#include "Support/hostile_texts.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QInputDialog>
#include <QTimer>
#include <QToolTip>

#include "window_fixture.h"

namespace Orvo::Window {
namespace {

class HostileTextsTest : public WindowTest {
protected:
    /// The pointer rests on a widget of the tab in front.
    void pointAt(WidgetId id) {
        QWidget* target = front_.control(id);
        if (auto* list = qobject_cast<QAbstractItemView*>(target)) target = list->viewport();
        const QPoint place = target != nullptr ? QPoint(9, 5) : Scale(1).rect(id).center();
        if (target == nullptr) target = front_.childAt(place);
        QHelpEvent event(QEvent::ToolTip, place, target->mapToGlobal(place));
        QApplication::sendEvent(target, &event);
        EXPECT_TRUE(QToolTip::isVisible());
    }

    void ask(const String& title, const String& text) {
        QTimer::singleShot(0, &front_, [] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            QApplication::processEvents();
            EXPECT_EQ(Tests::faultsOnScreen(), "");
            dialog->reject();
        });
        EXPECT_EQ(store_.inputPrompt().ask({text, title}), u"");
    }

    const Tests::TrappedFile file_;
};

TEST_F(HostileTextsTest, AreShownAsTheyAreWhereverTheyShow) {
    auto& combo = store_[kCommon.amplifierIds];
    combo.setEnabled(true);
    const std::pair<const char*, std::function<void(const String&)>> places[] = {
        {"log",
         [&](const String& text) {
             store_[kCommon.log].clear();
             store_[kCommon.log].addItem(text);
             settle();
             pointAt(kCommon.log);
         }},
        {"result",
         [&](const String& text) {
             store_[kCommon.testResults.at(0)].setCaption(text);
             settle();
             pointAt(kCommon.testResults.at(0));
         }},
        {"combo",
         [&](const String& text) {
             combo.addItem(text);
             combo.setText(text);
             settle();
             auto& box = control<QComboBox>(kCommon.amplifierIds);
             box.showPopup();
             EXPECT_EQ(Tests::faultsOnScreen(), "");
             box.hidePopup();
             pointAt(kCommon.amplifierIds);
         }},
        {"prompt", [&](const String& text) { ask(u"title", text); }},
        {"title", [&](const String& text) { ask(text, u"text"); }},
    };
    for (const auto& [place, show] : places) {
        for (const auto& [label, text] : Tests::hostileTexts(file_)) {
            SCOPED_TRACE(std::string(place) + ": " + label);
            show(fromQt(text));
            QApplication::processEvents();
            front_.grab();
            EXPECT_EQ(Tests::faultsOnScreen(), "");
            EXPECT_FALSE(file_.hasBeenOpened());
            QToolTip::hideText();
        }
    }
}

}  // namespace
}  // namespace Orvo::Window
