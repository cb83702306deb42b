#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "Manager/Host/simulated_host.h"
#include "Orvo/values/text.h"
#include "Support/bench.h"

namespace Orvo::Tests {

using Manager::SimulatedHost;
using Simulator::Fault;
using Simulator::Milliseconds;
using Simulator::PowerAtStart;

/// A panel with a simulated amplifier that stands switched off, and a person in front.
class HostTest : public PanelTest {
protected:
    /// Lets the same time pass for the panel and the host.
    void pass(int milliseconds) {
        for (int i = 0; i < milliseconds / 10; ++i) {
            store_.advance(Milliseconds(10));
            host_->advance(Milliseconds(10));
        }
    }

    /// Connected, switched on and ready.
    void run() {
        pass(500);
        store_.perform(Deed::click(kCommon.powerButton));
        pass(2500);
    }

    [[nodiscard]] std::vector<std::string> log() const {
        std::vector<std::string> lines;
        for (const String& line : store_.get<Runtime::StoredList>(kCommon.log).state().items) {
            lines.push_back(toUtf8(line));
        }
        return lines;
    }

    /// How many lines say this.
    [[nodiscard]] std::ptrdiff_t logged(std::string_view text) const {
        const auto lines = log();
        return std::count_if(lines.begin(), lines.end(), [text](const std::string& line) {
            return line.find(text) != std::string::npos;
        });
    }
    [[nodiscard]] bool hasLogged(std::string_view text) const { return logged(text) > 0; }

    [[nodiscard]] int positivePower() const { return std::stoi(digits(pair(1).positivePower)); }
    [[nodiscard]] int temperature() const { return std::stoi(digits(pair(1).temperature)); }

    /// How far down each sample of the trace on a scope lies.
    [[nodiscard]] std::vector<float> trace(Widgets::PictureRef scope) const {
        const auto& drawing = store_.get<Runtime::StoredPicture>(scope).state().drawing;
        const auto& drawn = std::get<Widgets::Trace>(drawing.back());
        std::vector<float> heights;
        for (const Integer sample : drawn.samples) heights.push_back(drawn.y(sample));
        return heights;
    }

    /// The lowest and the highest voltage of the trace on a scope; the grid has 10 pixels for 30 V.
    struct Swing {
        float lowest = 0;
        float highest = 0;
    };
    [[nodiscard]] Swing swing(Widgets::PictureRef scope) const {
        const auto [top, bottom] = std::ranges::minmax(trace(scope));
        return {(50 - bottom) * 3, (50 - top) * 3};
    }

    std::unique_ptr<SimulatedHost> host_ =
        std::make_unique<SimulatedHost>(panel_, 1, PowerAtStart::off);
};

}  // namespace Orvo::Tests
