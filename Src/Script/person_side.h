#pragma once

#include <string>

#include "Script/argument_types.h"

// The person's commands. Each function returns its closing line.
namespace Orvo::Script::PersonSide {

std::string click(Session& session, const Touchable& widget, const Button& button);
std::string release(Session& session, const Touchable& widget, const Button& button);
std::string activate(Session& session, const Touchable& widget);
std::string key(Session& session, const Touchable& widget, const KeyCode& code);
std::string pick(Session& session, const Combo& combo, const Text& item);
std::string slide(Session& session, const Slider& slider, const Position& position);
std::string hold(Session& session, const Slider& slider);
std::string drop(Session& session, const Slider& slider);
std::string tab(Session& session, const TabNumber& number);
std::string answer(Session& session, const Answer& answer);
std::string meanwhile(Session& session, const Nested& command);
std::string resume(Session& session);
std::string wait(Session& session, const Milliseconds& time);

}  // namespace Orvo::Script::PersonSide
