#include "Manager/Link/link_bench.h"

#include <utility>

namespace Orvo::Manager {
namespace {

Error notOverALink() { return {70, "A link can't do that"}; }

}  // namespace

LinkBench::LinkBench(MarvaneAssistant& panel, std::function<void()> renew)
    : panel_(panel), renew_(std::move(renew)) {
    connect();
}

void LinkBench::connect() {
    events_ = panel_.connect([this](Long dispatchId, std::span<Value> arguments) {
        if (listener_ != nullptr) listener_->raised(eventWith(dispatchId), arguments);
    });
}

InvokeResult LinkBench::invoke(Long dispatchId, MemberKind kind, std::span<const Value> arguments) {
    return panel_.invoke(dispatchId, kind, arguments);
}

// The grammar of a link keeps these away.
Script::Person& LinkBench::person() { throw notOverALink(); }
Runtime::Store& LinkBench::widgets() { throw notOverALink(); }
void LinkBench::shoot(const String&) { throw notOverALink(); }

}  // namespace Orvo::Manager
