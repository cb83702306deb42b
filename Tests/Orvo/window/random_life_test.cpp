#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/core/member_table.h"
#include "Orvo/store/store.h"
#include "Orvo/window/panel_widget.h"
#include "Support/fresh_screen.h"
#include "Support/random_person.h"
#include "Support/roles.h"

namespace Orvo::Window {
namespace {

constexpr int kDeeds = 1200;
constexpr int kDeedsBetweenLooks = 150;

/// A panel in a window, with a person in front and a host behind it who are not themselves.
class RandomLife {
public:
    explicit RandomLife(Tests::Chance& chance) : chance_(chance) { begin(); }
    ~RandomLife() { delete widget_; }
    RandomLife(const RandomLife&) = delete;
    RandomLife& operator=(const RandomLife&) = delete;

    void run() {
        if (!Tests::liveOn(
                kDeeds, kDeedsBetweenLooks, [this] { act(); }, [this] { look(); }))
            return;
        widget_->close();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

private:
    static constexpr int kDeepestEvent = 3;

    void begin() {
        widget_ = new PanelWidget(Platform{}, nullptr, Clock::byHand);
        widget_->show();
        listen();
    }

    void listen() {
        widget_->panel().setErrorHandler([](const Error&) {});
        host_ = widget_->panel().connect([this](Long, std::span<Value>) { answerEvent(); });
    }

    void answerEvent() {
        if (depth_ == kDeepestEvent) return;
        ++depth_;
        if (chance_.isOneIn(4)) act();
        --depth_;
    }

    void act() {
        switch (chance_.below(24)) {
            case 0:
                return widget_->setZoom((30 + chance_.below(200)) / 100.0);
            case 1:
                return widget_->resize(300 + chance_.below(900), 200 + chance_.below(600));
            case 2:
                return widget_->setVisible(!widget_->isVisible());
            case 3:
                return chance_.isOneIn(4) ? startAnew() : widget_->show();
            case 4:
                return changeLayout();
            case 5:
            case 6:
                return widget_->store().advance(std::chrono::milliseconds(chance_.below(3000)));
            case 7:
            case 8:
            case 9:
            case 10:
            case 11:
            case 12:
                return callMember();
            default:
                return person_.act(*widget_);
        }
    }

    void startAnew() {
        if (chance_.isOneIn(2)) {
            widget_->renew();
            return listen();
        }
        delete widget_;
        begin();
    }

    void changeLayout() {
        const auto widget = Widgets::WidgetId(chance_.below(Layout::kWidgetCount));
        auto& store = widget_->store();
        chance_.isOneIn(3) ? store.show(widget, chance_.isOneIn(2))
                           : store.enable(widget, !chance_.isOneIn(3));
    }

    void callMember() {
        const Member& member = chance_.oneOf(kMembers);
        std::vector<Value> arguments;
        for (const Parameter& parameter : member.parameters()) {
            arguments.push_back(valueOf(parameter.type));
        }
        try {
            widget_->panel().invoke(member.dispatchId, member.kind, arguments);
        } catch (const Error&) {
            // Most values are out of some range.
        }
    }

    Value valueOf(ValueType type) {
        constexpr Integer kIntegers[] = {0, 1, 2, 3, 4, 5, -1, 42, 80, 99, 300, 32767, -32768};
        switch (type) {
            case ValueType::boolean:
                return Boolean(chance_.isOneIn(2));
            case ValueType::string:
                return person_.text().toStdU16String();
            case ValueType::array:
                return samples();
            default:
                return chance_.isOneIn(2) ? Value(Integer(1 + chance_.below(4)))
                                          : Value(chance_.oneOf(kIntegers));
        }
    }

    IntegerArray samples() {
        std::vector<Integer> all(std::size_t(chance_.below(500)));
        for (Integer& sample : all) sample = Integer(chance_.below(65536) - 32768);
        return {Long(chance_.below(3)), all};
    }

    void look() {
        widget_->show();
        QApplication::processEvents();
        EXPECT_EQ(Tests::differenceFromFresh(*widget_), "");
        EXPECT_EQ(Tests::faultsOnScreen(), "");
    }

    Tests::Chance& chance_;
    Tests::RandomPerson person_{chance_, [this] { act(); }};
    QPointer<PanelWidget> widget_;
    Connection host_;
    int depth_ = 0;
};

TEST(RandomLife, LeavesAPanelThatLooksAsAFreshOne) {
    Tests::forSeeds([](Tests::Chance& chance) { RandomLife(chance).run(); });
}

}  // namespace
}  // namespace Orvo::Window
