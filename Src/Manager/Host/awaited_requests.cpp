#include "Manager/Host/awaited_requests.h"

namespace Orvo::Manager {
namespace {

using namespace Simulator;

bool replaces(const Request& later, const Request& earlier) {
    const auto* one = std::get_if<SetVolume>(&later);
    const auto* other = std::get_if<SetVolume>(&earlier);
    return one != nullptr && other != nullptr && one->channel == other->channel;
}

}  // namespace

void AwaitedRequests::add(Milliseconds now, SentRequest sent) {
    std::erase_if(
        waits_, [&sent](const Wait& wait) { return replaces(sent.request, wait.second.request); });
    waits_.emplace_back(now + LinkFigures::kAnswerIsDue, std::move(sent));
}

std::vector<SentRequest> AwaitedRequests::takeUpTo(std::uint32_t number) {
    return takeWhile([number](const Wait& wait) { return wait.second.number <= number; });
}

std::vector<SentRequest> AwaitedRequests::takeOverdue(Milliseconds now) {
    return takeWhile([now](const Wait& wait) { return wait.first <= now; });
}

std::vector<SentRequest> AwaitedRequests::takeAll() {
    return takeWhile([](const Wait&) { return true; });
}

template <class Condition>
std::vector<SentRequest> AwaitedRequests::takeWhile(const Condition& holds) {
    std::vector<SentRequest> taken;
    for (; !waits_.empty() && holds(waits_.front()); waits_.pop_front()) {
        taken.push_back(std::move(waits_.front().second));
    }
    return taken;
}

}  // namespace Orvo::Manager
