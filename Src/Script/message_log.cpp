#include "Script/message_log.h"

#include "Orvo/layout/roles.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Script {
namespace {

std::size_t bytesOf(std::size_t items, std::size_t characters) {
    return items * sizeof(String) + characters * sizeof(char16_t);
}

}  // namespace

// What is no argument of the member is for the panel to refuse.
std::size_t bytesLogged(const Call& call) {
    const bool isLogged = &findMember(call.dispatchId, call.kind) == &kAddToLog &&
                          call.arguments.size() == kAddToLog.parameterCount;
    return isLogged ? bytesOf(1, argumentOf<String>(call, kAddToLog).size()) : 0;
}

std::size_t bytesOfLog(const Runtime::Store& store) {
    const auto& log = store.get<Runtime::StoredList>(Layout::kCommon.log).state();
    return bytesOf(log.items.size(), log.text);
}

}  // namespace Orvo::Script
