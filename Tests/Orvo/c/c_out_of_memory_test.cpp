#include <array>

#include <gtest/gtest.h>

#include "Orvo/orvo.h"
#include "Support/memory.h"

namespace {

using namespace Orvo::Tests;

constexpr std::string_view kLong = "longer than what a text holds without an allocation of its own";

struct Host {
    Host() {
        orvo_create(nullptr, &panel, nullptr);
        orvo_on_error(panel, hearError, this, nullptr);
        orvo_subscribe(panel, ORVO_EVENT_Mute, hear, this, nullptr, nullptr);
    }
    ~Host() { orvo_destroy(panel, nullptr); }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    static void hear(void* /*user*/, std::int32_t /*event*/, const orvo_value* /*arguments*/,
                     std::size_t /*count*/) {}
    static void hearError(void* user, std::int32_t number, const char* /*text*/) {
        static_cast<Host*>(user)->error = number;
    }

    template <class Act>
    void attempt(const Act& act) {
        if (const std::int32_t number = act(*this); number != 0) error = number;
    }
    void expectAfter(bool hasFailed) const { ASSERT_EQ(error, hasFailed ? 7 : 0); }

    orvo_panel* panel = nullptr;
    std::int32_t error = 0;
};

TEST(COutOfMemoryTest, IsErrorSevenWhereverItHappens) {
    const std::array<std::int32_t (*)(Host&), 4> acts{
        [](Host& /*host*/) {
            orvo_panel* panel = nullptr;
            const auto number = orvo_create(nullptr, &panel, nullptr);
            orvo_destroy(panel, nullptr);
            return number;
        },
        [](Host& host) {
            const orvo_value text = orvo_string(kLong.data(), kLong.size());
            orvo_value result = ORVO_VALUE_INIT;
            const auto number = orvo_invoke(host.panel, ORVO_MEMBER_TrimStr, ORVO_METHOD, &text, 1,
                                            &result, nullptr);
            orvo_clear(&result);
            return number;
        },
        [](Host& host) {
            return orvo_subscribe(host.panel, ORVO_ALL_EVENTS, Host::hear, nullptr, nullptr,
                                  nullptr);
        },
        [](Host& host) {
            return orvo_perform(host.panel, ORVO_PICK, "Combo1", 0, kLong.data(), nullptr);
        },
    };
    for (const auto act : acts) {
        SCOPED_TRACE(&act - acts.data());
        failEveryAllocation<Host>(act);
    }
}

}  // namespace
