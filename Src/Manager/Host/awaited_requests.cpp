#include "Manager/Host/awaited_requests.h"

namespace Orvo::Simulator {
namespace {

bool replaces(const Command& later, const Command& earlier) {
    const auto* one = std::get_if<SetVolume>(&later);
    const auto* other = std::get_if<SetVolume>(&earlier);
    return one != nullptr && other != nullptr && one->channel == other->channel;
}

}  // namespace

void AwaitedRequests::add(Milliseconds now, Request request) {
    std::erase_if(waits_, [&request](const Wait& wait) {
        return replaces(request.command, wait.second.command);
    });
    waits_.emplace_back(now + LinkFigures::kAnswerIsDue, std::move(request));
}

std::vector<Request> AwaitedRequests::takeUpTo(std::uint32_t number) {
    return takeWhile([number](const Wait& wait) { return wait.second.number <= number; });
}

std::vector<Request> AwaitedRequests::takeOverdue(Milliseconds now) {
    return takeWhile([now](const Wait& wait) { return wait.first <= now; });
}

std::vector<Request> AwaitedRequests::takeAll() {
    return takeWhile([](const Wait&) { return true; });
}

template <class Condition>
std::vector<Request> AwaitedRequests::takeWhile(const Condition& holds) {
    std::vector<Request> taken;
    for (; !waits_.empty() && holds(waits_.front()); waits_.pop_front()) {
        taken.push_back(std::move(waits_.front().second));
    }
    return taken;
}

}  // namespace Orvo::Simulator
