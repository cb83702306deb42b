#include "Script/person_side.h"

#include "Script/answers.h"
#include "Script/session.h"
#include "Script/text_of.h"

namespace Orvo::Script::PersonSide {
namespace {

bool isForNoItem(const Runtime::Deed& deed, const Runtime::Store& store) {
    return deed.verb == Runtime::Deed::Verb::pick && store.acceptsInput(deed.widget) &&
           !store.get<Runtime::StoredCombo>(deed.widget).hasItem(deed.text);
}

}  // namespace

std::string perform(Session& session, const Runtime::Deed& deed) {
    if (isForNoItem(deed, session.person().store())) {
        throw Misunderstood{"the list has no item " + textOf(StringView(deed.text))};
    }
    session.person().perform(deed);
    return ok();
}

std::string answer(Session& session, const std::optional<String>& text) {
    session.queueAnswer(text);
    return ok();
}

std::string meanwhile(Session& session, const ParsedCommand& command) {
    session.queueCommand(command);
    return ok();
}

std::string resume(Session& session) {
    session.queueResumption();
    return ok();
}

std::string wait(Session& session, std::chrono::milliseconds time) {
    session.person().wait(time);
    return ok();
}

}  // namespace Orvo::Script::PersonSide
