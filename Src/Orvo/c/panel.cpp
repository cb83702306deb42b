#include <array>
#include <utility>

#include "Orvo/c/handle.h"
#include "Orvo/c/values.h"
#include "Orvo/core/event_table.h"
#include "Orvo/layout/layout.h"
#include "Orvo/values/ignoring_case.h"
#include "Orvo/values/text.h"

namespace Orvo::C {
namespace {

using Runtime::Deed;
using Runtime::Store;

struct StoredPanel final : orvo_panel {
    explicit StoredPanel(Platform platform) : assistant(widgets, std::move(platform)) {}

    MarvaneAssistant& panel() override { return assistant; }
    Store& store() override { return *widgets; }

    const std::shared_ptr<Store> widgets = Store::create();
    MarvaneAssistant assistant;
};

MemberKind kindOf(std::int32_t kind) {
    if (kind < ORVO_METHOD || kind > ORVO_LET) throw badArgument();
    return static_cast<MemberKind>(kind);
}

// The panel may be gone when this returns.
Value invoked(orvo_panel& panel, std::int32_t member, MemberKind kind,
              const std::vector<Value>& arguments) {
    InvokeResult result = panel.panel().invoke(member, kind, arguments);
    if (result.error) throw Error(*result.error);
    return std::move(result.value);
}

void raise(orvo_event_handler handler, void* user, Long event, std::span<const Value> arguments) {
    std::array<std::string, 4> texts;
    std::array<orvo_value, 4> values{};
    for (std::size_t i = 0; i < arguments.size(); ++i) values[i] = lent(arguments[i], texts[i]);
    handler(user, event, values.data(), arguments.size());
}

LateBoundSink sinkOf(std::int32_t event, orvo_event_handler handler, void* user) {
    return [=](Long raised, std::span<Value> arguments) {
        if (event == ORVO_ALL_EVENTS || event == raised) raise(handler, user, raised, arguments);
    };
}

bool isEvent(std::int32_t id) {
    return id == ORVO_ALL_EVENTS ||
           std::ranges::find(kEvents, id, &Event::dispatchId) != kEvents.end();
}

Widgets::WidgetId widgetNamed(const char* name) {
    const auto widget = Layout::findWidget(required(name));
    if (!widget) throw badArgument();
    return *widget;
}

char16_t characterOf(int code) {
    if (code < 0 || code > 0xFFFF) throw badArgument();
    return static_cast<char16_t>(code);
}

Deed deedOf(std::int32_t deed, Widgets::WidgetId widget, int number, const char* text) {
    switch (deed) {
        case ORVO_CLICK:
            return Deed::click(widget);
        case ORVO_ACTIVATE:
            return Deed::activate(widget);
        case ORVO_KEY:
            return Deed::key(widget, characterOf(number));
        case ORVO_PICK:
            return Deed::pick(widget, fromUtf8(required(text)));
        case ORVO_SLIDE:
            return Deed::slide(widget, number);
        case ORVO_HOLD:
            return Deed::hold(widget);
        case ORVO_DROP:
            return Deed::drop(widget);
        case ORVO_TAB:
            return Deed::tab(widget, number);
        default:
            throw badArgument();
    }
}

}  // namespace
}  // namespace Orvo::C

// Not in a header: NOLINTNEXTLINE(google-global-names-in-headers)
using namespace Orvo::C;

int32_t orvo_create(const orvo_options* options, orvo_panel** panel, orvo_error* error) {
    return guarded(error, [&] {
        orvo_panel*& place = *required(panel);
        place = new StoredPanel(platformFor(options));
    });
}

int32_t orvo_destroy(orvo_panel* panel, orvo_error* error) {
    if (panel == nullptr) return 0;
    return guarded(panel, error, [](orvo_panel& ended) { delete &ended; });
}

int32_t orvo_invoke(orvo_panel* panel, int32_t member, int32_t kind, const orvo_value* arguments,
                    size_t count, orvo_value* result, orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& called) {
        if (result != nullptr) checkRoom(*result);
        const auto value = invoked(called, member, kindOf(kind), valuesOf(arguments, count));
        if (result != nullptr) give(value, *result);
    });
}

int32_t orvo_subscribe(orvo_panel* panel, int32_t event, orvo_event_handler handler, void* user,
                       uint32_t* subscription, orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& raising) {
        if (handler == nullptr || !isEvent(event)) throw badArgument();
        auto connection = raising.panel().connect(sinkOf(event, handler, user));
        const auto id = raising.lastSubscription + 1;
        raising.subscriptions.emplace(id, std::move(connection));
        raising.lastSubscription = id;
        if (subscription != nullptr) *subscription = id;
    });
}

int32_t orvo_unsubscribe(orvo_panel* panel, uint32_t subscription, orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& raising) {
        if (raising.subscriptions.erase(subscription) == 0) throw badArgument();
    });
}

int32_t orvo_on_error(orvo_panel* panel, orvo_error_handler handler, void* user,
                      orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& failing) {
        if (handler == nullptr) return failing.panel().setErrorHandler({});
        failing.panel().setErrorHandler(
            [=](const Orvo::Error& failure) { handler(user, failure.number(), failure.what()); });
    });
}

int32_t orvo_advance(orvo_panel* panel, int64_t milliseconds, orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& ticking) {
        if (milliseconds < 0) throw badArgument();
        ticking.store().advance(Orvo::Runtime::Store::Milliseconds(milliseconds));
    });
}

int32_t orvo_perform(orvo_panel* panel, int32_t deed, const char* widget, int32_t number,
                     const char* text, orvo_error* error) {
    return guarded(panel, error, [&](orvo_panel& touched) {
        touched.store().perform(deedOf(deed, widgetNamed(widget), number, text));
    });
}

int32_t orvo_member_id(const char* name) {
    return name == nullptr ? 0 : Orvo::dispatchIdOf(name).value_or(0);
}

int32_t orvo_event_id(const char* name) {
    for (const Orvo::Event& event : Orvo::kEvents) {
        if (name != nullptr && Orvo::equalIgnoringCase(event.name, std::string_view(name)))
            return event.dispatchId;
    }
    return 0;
}
