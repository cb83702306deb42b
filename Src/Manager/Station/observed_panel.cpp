#include "Manager/Station/observed_panel.h"

namespace Orvo::Manager {

Value ObservedPanel::callWith(const Member& member, std::span<const Value> arguments) {
    listener_.called(member, arguments);
    try {
        Value result = member.call(panel_, arguments);
        listener_.returned(member, result);
        return result;
    } catch (const Error& error) {
        listener_.failed(member, error);
        throw;
    }
}

}  // namespace Orvo::Manager
