#include "Orvo/core/panel.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "Orvo/core/notification_table.h"
#include "Orvo/layout/roles.h"

namespace Orvo {
namespace {

using namespace Widgets;
using namespace Layout;

constexpr Integer kHighestTestTemperature = 100;  // degrees Celsius

void writeToStandardError(const Error& error) {
    std::fprintf(stderr, "Orvo: run-time error %d: %s\n", static_cast<int>(error.number()),
                 error.what());
}

}  // namespace

class Panel::Prompt final : public InputPrompt {
public:
    explicit Prompt(InputPrompt& prompt) : prompt_(prompt) {}

    String ask(const Question& question) override {
        String answer;
        try {
            answer = prompt_.ask(question);
        } catch (const PromptWithdrawn&) {
            if (!isReleased_) throw;
        }
        if (isReleased_) throw Released{};
        return answer;
    }

    void release() { isReleased_ = true; }

private:
    InputPrompt& prompt_;
    bool isReleased_ = false;
};

Panel::Panel(std::shared_ptr<WidgetTree> runtime, Platform platform)
    : runtime_(std::move(runtime)),
      prompt_(std::make_unique<Prompt>(runtime_->inputPrompt())),
      informationEntry(*runtime_, *prompt_, amplifierId, events),
      portDiscovery(std::move(platform)) {}

Panel::~Panel() = default;

void Panel::create() {
    runtime_->notifyTo(this);
    WidgetTree& widgets = *runtime_;
    widgets[kTabs].setCurrentTab(kCommonTab);
    for (Integer channel = 1; channel <= Integer{kChannels.size()}; ++channel) {
        oscilloscope.drawAxes(channel);
    }
    for (const OptionRef first : {channel(1).positive.option, channel(3).positive.option})
        widgets[first].setValue(true);
    amplifierId.fillList();
    amplifierId.takeShownId();
    for (const Pair& pair : kPairs) widgets[pair.testSlider].setMaximum(kHighestTestTemperature);
}

void Panel::release(std::unique_ptr<Panel> panel) {
    Panel& released = *panel;
    released.runtime_->notifyTo(nullptr);
    released.events.close();
    released.prompt_->release();
    if (released.isUnderWay_) released.released_ = std::move(panel);
}

void Panel::notify(Notification& notification) {
    const UnderWay underWay(*this);
    const auto* bound = std::find_if(kNotifications.begin(), kNotifications.end(), [&](auto& row) {
        return row.widget == notification.widget && row.kind == notification.kind;
    });
    if (bound == kNotifications.end()) return;
    if (notification.cause == Cause::code) return bound->handle(*this, notification, bound->number);
    try {
        bound->handle(*this, notification, bound->number);
    } catch (const Released&) {
        // Whoever released the panel waits for nothing.
    } catch (...) {
        report(currentError());
    }
}

void Panel::failed(const Error& error) {
    const UnderWay underWay(*this);
    report(error);
}

void Panel::refuseThread() { throw Errors::wrongThread(); }

void Panel::setErrorHandler(ErrorHandler handler) {
    errorHandler_ = handler ? std::make_shared<const ErrorHandler>(std::move(handler)) : nullptr;
}

void Panel::report(const Error& error) const {
    const auto handler = errorHandler_;
    try {
        handler != nullptr ? (*handler)(error) : writeToStandardError(error);
    } catch (...) {
        writeToStandardError(currentError());
    }
}

}  // namespace Orvo
