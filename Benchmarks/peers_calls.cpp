#include "peers_calls.h"

#include <array>

#include "measure.h"

// The analyzer takes Boost's own counting of references for a use of freed memory.
#if defined(ORVO_BENCHMARKS_BOOST) && !defined(__clang_analyzer__)
#define ORVO_BENCHMARKS_SIGNALS
#include <boost/signals2.hpp>
#endif

namespace Orvo::Benchmarks {
namespace {

class StoredHere final : public Stored {
public:
    [[nodiscard]] int value() const override { return values_[0]; }
    void store(int index, int value) override { values_[std::size_t(index & 3)] = value; }

private:
    std::array<int, 4> values_{};
};

}  // namespace

std::unique_ptr<Stored> makeStored() { return std::make_unique<StoredHere>(); }

std::unique_ptr<Properties> makeProperties() { return std::make_unique<Properties>(); }

QMetaMethod Properties::method(const char* signature) {
    return staticMetaObject.method(staticMetaObject.indexOfMethod(signature));
}

std::vector<Rival> boostSignal([[maybe_unused]] Limits limits) {
#ifdef ORVO_BENCHMARKS_SIGNALS
    using Signal = boost::signals2::signal<void(int, int)>;
    const auto make = [] {
        auto signal = std::make_unique<Signal>();
        signal->connect([stored = std::shared_ptr(makeStored())](int channel, int volume) {
            stored->store(channel, volume);
        });
        return signal;
    };
    const auto raise = [](Signal& signal, int turn) { signal(1, turn); };
    return {{Role::peer, "boost::signals2", repeated(make, raise), limits}};
#else
    return {};
#endif
}

}  // namespace Orvo::Benchmarks
