#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <new>
#include <thread>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/orvo.h"
#include "Orvo/ports/machine_platform.h"
#include "Orvo/store/store.h"

/// A panel with its widgets, as C hosts hold it: on the store alone, or in a window.
struct orvo_panel {  // NOLINT(readability-identifier-naming): C's
    orvo_panel() = default;
    virtual ~orvo_panel() = default;
    orvo_panel(const orvo_panel&) = delete;
    orvo_panel& operator=(const orvo_panel&) = delete;

    virtual Orvo::MarvaneAssistant& panel() = 0;
    virtual Orvo::Runtime::Store& store() = 0;

    const std::thread::id thread = std::this_thread::get_id();
    std::map<std::uint32_t, Orvo::Connection> subscriptions;
    std::uint32_t lastSubscription = 0;
};

namespace Orvo::C {

inline Error noPanel() { return {ORVO_NO_PANEL, "There is no panel"}; }
inline Error badArgument() { return {ORVO_BAD_ARGUMENT, "An argument of the call isn't taken"}; }

/// Tells the host of an error, as far as there is room, and returns its number.
inline std::int32_t tell(orvo_error* error, Long number, const char* text) {
    if (error == nullptr || error->size <= offsetof(orvo_error, text)) return number;
    error->number = number;
    const std::size_t room = error->size - offsetof(orvo_error, text) - 1;
    // Of the size that the host says: a later version's is longer.
    *std::copy_n(text, std::min(room, std::strlen(text)), error->text) = '\0';
    return number;
}

/// Does what a host asks for; nothing is thrown to it.
template <class Act>
std::int32_t guarded(orvo_error* error, const Act& act) try {
    act();
    return 0;
} catch (const Error& failure) {
    return tell(error, failure.number(), failure.what());
} catch (const std::bad_alloc&) {
    return tell(error, Errors::kOutOfMemory.number(), Errors::kOutOfMemory.what());
} catch (...) {
    return tell(error, ORVO_FAILURE, "The call failed");
}

/// The same, for what is asked of a panel.
template <class Act>
std::int32_t guarded(orvo_panel* panel, orvo_error* error, const Act& act) {
    return guarded(error, [&] {
        if (panel == nullptr) throw noPanel();
        if (panel->thread != std::this_thread::get_id()) throw Errors::wrongThread();
        act(*panel);
    });
}

template <class Pointer>
Pointer* required(Pointer* pointer) {
    if (pointer == nullptr) throw badArgument();
    return pointer;
}

/// What the options say the panel is given of the machine.
inline Platform platformFor(const orvo_options* options) {
    using enum Runtime::PrintServers;
    if (options == nullptr) return {};
    if (options->size < sizeof(orvo_options)) throw badArgument();
    switch (options->ports) {
        case ORVO_PORTS_NONE:
            return {};
        case ORVO_PORTS_DEVICES:
            return Runtime::machinePlatform(leftAlone);
        case ORVO_PORTS_SERVERS:
            return Runtime::machinePlatform(asked);
        default:
            throw badArgument();
    }
}

}  // namespace Orvo::C
