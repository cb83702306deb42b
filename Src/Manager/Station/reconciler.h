#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "Orvo/core/call_listener.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/state.h"
#include "Script/panel_owner.h"

namespace Orvo::Manager {

/// Who hears what a person asks for. A device is silent before its first word and from the loss of
/// its link to the next.
enum class Hearing : std::uint8_t { nobody, silentDevice, device };

/// Puts back what shows something that doesn't hold: the power buttons of the pair tabs and the
/// sliders, which change by themselves when a person works them.
///
/// A device has the first word, and kAnswerIsDue for it. What it hasn't answered then shows again
/// what was said last, and at once what nobody was asked for or nobody is there to answer. Of a
/// volume, a readout that changes is an answer too. A thermal test ends when it isn't heard of. A
/// slider that is held is left alone.
class Reconciler final : public CallListener {
public:
    using Milliseconds = std::chrono::milliseconds;
    using Tell = std::function<void(const std::string& what)>;

    static constexpr Milliseconds kAnswerIsDue{2000};

    /// `tell` is told what is about to be put back, and why.
    Reconciler(Script::PanelOwner& owner, Tell tell) : owner_(owner), tell_(std::move(tell)) {}

    void raised(Long dispatchId);
    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& result) override;
    /// The panel is another one, on which all shows what holds.
    void startAnew();

    void advance(Milliseconds elapsed, Hearing hearing);

private:
    /// For how long a control has shown the same.
    struct Wait {
        Integer shown = 0;
        Milliseconds lasted{0};
    };
    struct Volume {
        Integer known = 0;  // the slider's position
        std::optional<Integer> readout;
        Wait wait;
    };

    void hearReadout(std::size_t index, Integer readout);
    void accept(std::size_t index);

    void reconcilePower();
    void reconcileVolume(std::size_t index);
    void reconcileTest(std::size_t index);
    bool isOverdue(Wait& wait, Integer shown, Integer known, Milliseconds due) const;

    [[nodiscard]] Integer countOfButtonsThatDiffer(bool isOn) const;
    [[nodiscard]] const Runtime::SliderState& slider(Widgets::SliderRef slider) const;
    [[nodiscard]] Milliseconds answerIsDue() const;
    [[nodiscard]] std::string reason() const;

    Script::PanelOwner& owner_;
    Tell tell_;
    Milliseconds elapsed_{0};
    Hearing hearing_ = Hearing::nobody;
    bool isPowerAsked_ = false;
    Wait power_;
    std::array<Volume, Layout::kChannels.size()> volumes_;
    std::array<Wait, Layout::kPairs.size()> tests_;
    std::optional<std::size_t> told_;  // whose volume the call is about that is going on
};

}  // namespace Orvo::Manager
