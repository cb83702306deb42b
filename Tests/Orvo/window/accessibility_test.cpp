#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>

#include <QAbstractItemView>
#include <QAccessible>
#include <QHelpEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolTip>
#include <QVBoxLayout>

#include "Orvo/window/panel_widget.h"
#include "Orvo/window/spoken/names.h"
#include "Orvo/window/spoken/spoken.h"
#include "window_fixture.h"

namespace Orvo::Window {
namespace {

using Layout::Kind;

class AccessibilityTest : public WindowTest {
protected:
    Page& page(int tab) {
        for (QObject* child : front_.children()) {
            auto* page = dynamic_cast<Page*>(child);
            if (page != nullptr && page->tab() == tab) return *page;
        }
        throw std::logic_error("no such page");
    }

    QAccessibleInterface* known(WidgetId id) {
        const auto* all = QAccessible::queryAccessibleInterface(&page(pageOf(id)));
        for (int i = 0; i < all->childCount(); ++i) {
            if (all->child(i)->text(QAccessible::Name) == nameOf(speakerOf(id)))
                return all->child(i);
        }
        return nullptr;
    }
    std::string words(WidgetId id) {
        const auto* thing = known(id);
        return (thing->text(QAccessible::Name) + ": " + thing->text(QAccessible::Value))
            .toStdString();
    }

    void showDigits(const Layout::Readout& readout, Integer digit) {
        for (const auto place : readout.digits()) store_[place].setDigit(digit++);
    }
};

bool isLamp(const Layout::Style& style) {
    return style.kind == Kind::shape && style.outline == Layout::Outline::circle && !style.isSolid;
}

/// How a kind of widget is known.
struct Known {
    Kind kind{};
    QAccessible::Role role{};
    const char* says = "";
    bool isPressed = false;
};

constexpr auto kMeasure = "-?\\d+ (V|dB|°C)|no value";
constexpr Known kKnown[] = {
    {Kind::shape, QAccessible::StaticText, "lit|dark"},
    {Kind::digit, QAccessible::StaticText, kMeasure},
    {Kind::slider, QAccessible::Slider, kMeasure},
    {Kind::picture, QAccessible::Chart, "no signal"},
    {Kind::button, QAccessible::Button, ".+", true},
    {Kind::option, QAccessible::RadioButton, ".+", true},
    {Kind::check, QAccessible::CheckBox, "on|off", true},
    {Kind::combo, QAccessible::ComboBox, "\\d*"},
    {Kind::list, QAccessible::List, ".*"},
};

const Known* knownAs(const Layout::Style& style) {
    if (style.kind == Kind::shape && !isLamp(style)) return nullptr;
    const auto* row = std::ranges::find(kKnown, style.kind, &Known::kind);
    return row != std::end(kKnown) ? row : nullptr;
}

TEST_F(AccessibilityTest, EveryWidgetThatTellsOrTakesSomethingIsKnownByName) {
    for (int tab = 0; tab < 3; ++tab) {
        std::set<QString> names;
        const auto* all = QAccessible::queryAccessibleInterface(&page(tab));
        for (int i = 0; i < all->childCount(); ++i) {
            const QString name = all->child(i)->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty());
            EXPECT_TRUE(names.insert(name).second) << name.toStdString() << " stands twice";
            EXPECT_EQ(all->indexOfChild(all->child(i)), i) << name.toStdString();
        }
    }
    for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        const auto& widget = Layout::describe(id);
        const Known* expected = knownAs(widget.style);
        if (expected == nullptr || !store_.isShown(id)) continue;
        SCOPED_TRACE(widget.name);
        auto* found = known(id);
        ASSERT_TRUE(found);
        EXPECT_EQ(found->role(), expected->role);
        const QString said = found->text(QAccessible::Description);
        const QRegularExpression says(QRegularExpression::anchoredPattern(expected->says));
        EXPECT_TRUE(says.match(said).hasMatch()) << said.toStdString();
        EXPECT_TRUE(!expected->isPressed || found->actionInterface() != nullptr);
        EXPECT_EQ(found->valueInterface() != nullptr, widget.style.kind == Kind::slider)
            << "what can't be set must not offer to be increased";
    }
}

TEST_F(AccessibilityTest, WhatIsReadOutIsWhatIsShown) {
    store_[channel(1).protectionLamp].setFillStyle(Widgets::FillStyle::solid);
    showDigits(pair(1).negativePower, 0);
    showDigits(channel(2).volume, 1);
    showDigits(channel(4).volume, 1);
    store_[pair(1).temperature.places[0]].setDigit(1);
    store_[*channel(4).volume.sign].setCaption(u"");
    store_[kCommon.testResults.at(3)].setCaption(u"FAIL");
    store_[channel(2).volumeSlider].setPosition(20);
    store_[pair(2).testSlider].setPosition(20);
    settle();
    EXPECT_EQ(words(channel(1).protectionLamp), "Protection channel 1: lit");
    EXPECT_EQ(words(channel(2).protectionLamp), "Protection channel 2: dark");
    EXPECT_EQ(words(pair(1).negativePower.places[2]), "Negative power bus channels 1 and 2: -12 V");
    EXPECT_EQ(words(channel(2).volume.places[1]), "Volume readout channel 2: -12 dB");
    EXPECT_EQ(words(channel(4).volume.places[1]), "Volume readout channel 4: 12 dB")
        << "its sign is gone";
    EXPECT_EQ(words(pair(1).temperature.places[0]), "Temperature channels 1 and 2: no value");
    EXPECT_EQ(words(kCommon.testResults.at(3)), "Positive aux bus test: FAIL");
    EXPECT_EQ(words(kCommon.testResults.at(4)), "Negative aux bus test: no result");
    EXPECT_EQ(words(channel(2).volumeSlider), "Volume channel 2: -10 dB");
    EXPECT_EQ(words(pair(2).testSlider), "Test temperature channels 3 and 4: 20 °C");
    EXPECT_EQ(control(channel(2).volumeSlider).toolTip(), "Volume channel 2: -10 dB");
    const QPoint at = page(1).placeOf(channel(1).protectionLamp).center();
    QHelpEvent help(QEvent::ToolTip, at, page(1).mapToGlobal(at));
    QApplication::sendEvent(&page(1), &help);
    EXPECT_EQ(QToolTip::text(), "Protection channel 1: lit");
}

TEST_F(AccessibilityTest, AScopeSaysThePeakOfItsTraceAndItsCycles) {
    std::vector<Integer> samples(240);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        samples[i] = Integer(std::lround(134 - 50 * std::sin(double(i) * std::numbers::pi / 48)));
    }
    auto& scope = store_[channel(3).scope];
    scope.trace({samples, 240, 195, 95, {}});
    EXPECT_EQ(words(channel(3).scope), "Scope channel 3: 60.0 V peak, 2.5 cycles across");
    scope.clear();
    scope.trace({std::vector<Integer>(240, 90), 240, 195, 95, {}});
    EXPECT_EQ(words(channel(3).scope), "Scope channel 3: no signal");
}

TEST_F(AccessibilityTest, AssistiveTechnologyMovesASliderAsAPersonDoes) {
    toTab(1);
    auto* volume = known(channel(1).volumeSlider)->valueInterface();
    EXPECT_EQ(volume->maximumValue(), 30);
    EXPECT_EQ(volume->minimumValue(), -30);
    volume->setCurrentValue(-8.0);
    settle();
    EXPECT_EQ(volume->currentValue(), -8);
    EXPECT_EQ(store_[channel(1).volumeSlider].position(), 19);
    volume->setCurrentValue(1e9);
    settle();
    EXPECT_EQ(volume->currentValue(), 30);
    store_[channel(1).volumeSlider].setEnabled(false);
    volume->setCurrentValue(0);
    settle();
    const Tests::Told change{channel(1).volumeSlider, "change"};
    EXPECT_EQ(panel_.take(), (Heard{change, change})) << "and no third time";
}

TEST_F(AccessibilityTest, AssistiveTechnologyPressesWhatCanBePressed) {
    toTab(1);
    for (const auto button :
         {channel(1).muteButton.id, channel(2).positive.option.id, pair(1).powerCheck.id}) {
        auto* action = known(button)->actionInterface();
        action->doAction(action->actionNames()[0]);
        Heard heard;
        EXPECT_TRUE(QTest::qWaitFor([&] { return !(heard = panel_.take()).empty(); }));
        EXPECT_EQ(heard, (Heard{{button, "click"}}));
    }
    settle();
    EXPECT_TRUE(known(channel(2).positive.option)->state().checked);
}

TEST_F(AccessibilityTest, TheLogIsAListOfItsLines) {
    auto& list = store_[kCommon.log];
    list.addItem(u"first");
    list.addItem(u"second");
    settle();
    control(kCommon.log).setFocus();
    QTest::keyClick(&control(kCommon.log), Qt::Key_End);
    const auto* log = known(kCommon.log);
    ASSERT_EQ(log->childCount(), 2);
    EXPECT_EQ(log->focusChild()->text(QAccessible::Name), "second");
    EXPECT_TRUE(log->child(1)->state().selected);
    EXPECT_EQ(log->indexOfChild(log->childAt(log->child(0)->rect().x(), log->child(0)->rect().y())),
              0);
    list.clear();
    settle();
    EXPECT_EQ(log->childCount(), 0);
    const auto* ids = known(kCommon.amplifierIds);
    EXPECT_EQ(ids->childCount(), 1);
    toTab(1);
    EXPECT_EQ(ids->childCount(), 0) << "behind another tab";
    EXPECT_EQ(ids->child(0), nullptr);
}

TEST_F(AccessibilityTest, TheTabKeyReachesEveryControlAndShowsIt) {
    store_.enable(kCommon.amplifierIds, true);
    for (int tab = 0; tab < 3; ++tab) {
        toTab(tab);
        std::set<std::string> reached;
        QWidget* strip = &control(kTabs);
        strip->setFocus();
        WidgetId last = 0;
        for (QWidget* focused = nullptr; focused != strip;) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            focused = QApplication::focusWidget();
            const WidgetId next = Layout::findWidget(focused->objectName().toStdString()).value();
            EXPECT_TRUE(next > last || focused == strip) << "not in the layout's order";
            last = next;
            ASSERT_TRUE(reached.insert(focused->objectName().toStdString()).second);
            const QImage shown = focused->grab().toImage();
            focused->clearFocus();
            EXPECT_NE(focused->grab().toImage(), shown) << *reached.rbegin() << " shows no focus";
            focused->setFocus();
        }
        for (WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
            const auto& widget = Layout::describe(id);
            const Kind kind = widget.style.kind;
            const bool isOnlyRead =
                kind == Kind::picture || kind == Kind::digit || kind == Kind::shape;
            if (pageOf(id) != tab || knownAs(widget.style) == nullptr || isOnlyRead) continue;
            // The arrows reach the options beside the selected one.
            const bool isReached = reached.contains(std::string(widget.name));
            const bool isBeside = kind == Kind::option && !widget.style.isSelected;
            EXPECT_TRUE(isReached || isBeside || !store_.acceptsInput(id)) << widget.name;
        }
    }
}

QStringList namesBelow(const QAccessibleInterface& top) {
    QStringList names;
    for (int i = 0; i < top.childCount(); ++i) {
        names += top.child(i)->text(QAccessible::Name);
        names += namesBelow(*top.child(i));
    }
    return names;
}

TEST(AccessibilityOfAPanelTest, AFreshPanelIsKnownAfresh) {
    PanelWidget panel;
    const auto known = [&] { return namesBelow(*QAccessible::queryAccessibleInterface(&panel)); };
    const QStringList before = known();
    EXPECT_TRUE(before.contains("Protection channel 4"));
    panel.renew();
    EXPECT_EQ(known(), before);
}

TEST(AccessibilityOfAPanelTest, ThePanelKeepsAndGivesTheFocusBesideANeighbour) {
    QWidget host;
    QVBoxLayout layout(&host);
    PanelWidget panel;
    QPushButton neighbour;
    layout.addWidget(&panel);
    layout.addWidget(&neighbour);
    host.show();
    host.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    panel.control(kCommon.powerButton)->setFocus();
    panel.store().perform(Runtime::Deed::tab(0, 1));
    panel.flush();
    EXPECT_TRUE(panel.control(kTabs)->hasFocus()) << "its page has gone";
    neighbour.setFocus();
    QTest::keyClick(&neighbour, Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), panel.control(channel(2).muteButton));
}

}  // namespace
}  // namespace Orvo::Window
