#include "Script/store_bench.h"

namespace Orvo::Script {

StoreBench::StoreBench() { renew(); }

void StoreBench::renew() {
    panel_.reset();
    const auto store = Runtime::Store::create();
    panel_ = std::make_unique<MarvaneAssistant>(store);
    take(*panel_, store);
    takeErrors();
}

void StoreBench::shoot(const String& /*file*/) {
    throw Error(70, "There is no window to take a picture of");
}

}  // namespace Orvo::Script
