#include "Script/tried_script.h"

namespace Orvo::Script {

void TriedScript::say(const std::string& command) {
    text_ += command + '\n';
    session_.run(command);
}

void TriedScript::hear(std::string_view line) {
    if (line.starts_with("event ")) comment(line);
}

}  // namespace Orvo::Script
