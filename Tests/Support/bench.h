#pragma once

#include <memory>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/store/user_input.h"
#include "Support/roles.h"

namespace Orvo {

inline void PrintTo(Boolean value, std::ostream* out) { *out << "Boolean " << value.raw(); }
inline void PrintTo(Colour colour, std::ostream* out) {
    *out << int{colour.red} << ',' << int{colour.green} << ',' << int{colour.blue};
}

namespace Tests {

using Runtime::Deed;

constexpr Boolean kTrue = true;
constexpr Boolean kFalse = false;

/// A panel on one of the runtimes. The test program that a conformance test is linked into says
/// which.
class Bench {
public:
    virtual ~Bench() = default;
    virtual MarvaneAssistant& panel() = 0;
    virtual Runtime::Store& store() = 0;
    /// Releases the panel; nothing else may be asked of it afterwards.
    virtual void release() = 0;
};

std::unique_ptr<Bench> makeBench();

/// An event as a line: "WaveForm 1 1 2".
std::string lineOf(Long dispatchId, std::span<const Value> arguments);

/// A panel, and what it raised and reported, as lines: "Mute 1", "! 6 Overflow".
class PanelTest : public testing::Test {
protected:
    using Lines = std::vector<std::string>;

    PanelTest();

    std::unique_ptr<Bench> bench_ = makeBench();
    MarvaneAssistant& panel_ = bench_->panel();
    Runtime::Store& store_ = bench_->store();
    Lines lines_;
    Connection connection_;
};

/// The number of the error that a call ends with; 0 when it doesn't.
template <class Call>
Long errorOf(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

}  // namespace Tests
}  // namespace Orvo
