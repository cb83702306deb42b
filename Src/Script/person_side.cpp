#include "Script/person_side.h"

#include <algorithm>

#include "Script/answers.h"
#include "Script/session.h"

namespace Orvo::Script::PersonSide {

std::string click(Session& session, const Touchable& widget, const Button& button) {
    session.bench().person().click(widget.id, button.button);
    return ok();
}

std::string release(Session& session, const Touchable& widget, const Button& button) {
    session.bench().person().dragOff(widget.id, button.button);
    return ok();
}

std::string activate(Session& session, const Touchable& widget) {
    session.bench().person().activate(widget.id);
    return ok();
}

std::string key(Session& session, const Touchable& widget, const KeyCode& code) {
    session.bench().person().type(widget.id, code.value);
    return ok();
}

std::string pick(Session& session, const Combo& combo, const Text& item) {
    const Runtime::Store& widgets = session.bench().widgets();
    const auto& items = widgets.get<Runtime::StoredCombo>(combo.id).state().items;
    if (!widgets.acceptsInput(combo.id)) return ok();
    if (std::find(items.begin(), items.end(), item.value) == items.end()) {
        throw Misunderstood{"the list has no item " + textOf(StringView(item.value))};
    }
    session.bench().person().pick(combo.id, item.value);
    return ok();
}

std::string slide(Session& session, const Slider& slider, const Position& position) {
    session.bench().person().slide(slider.id, position.value);
    return ok();
}

std::string hold(Session& session, const Slider& slider) {
    session.bench().person().hold(slider.id);
    return ok();
}

std::string drop(Session& session, const Slider& slider) {
    session.bench().person().drop(slider.id);
    return ok();
}

std::string tab(Session& session, const TabNumber& number) {
    session.bench().person().selectTab(number.value);
    return ok();
}

std::string answer(Session& session, const Answer& answer) {
    session.queueAnswer(answer.text);
    return ok();
}

std::string meanwhile(Session& session, const Nested& command) {
    session.queueAction(command.action);
    return ok();
}

std::string resume(Session& session) {
    session.queueResumption();
    return ok();
}

std::string wait(Session& session, const Milliseconds& time) {
    session.bench().person().wait(time.value);
    return ok();
}

}  // namespace Orvo::Script::PersonSide
