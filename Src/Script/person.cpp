#include "Script/person.h"

#include "Orvo/values/error.h"

namespace Orvo::Script {

void Person::shoot(const String& /*file*/) {
    throw Error(70, "There is no window to take a picture of");
}

void Person::connectPorts(Runtime::Ports /*ports*/) {
    throw Error(70, "The ports are the machine's");
}

}  // namespace Orvo::Script
