#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

class StoreBench final : public Bench {
public:
    MarvaneAssistant& panel() override { return *panel_; }
    Runtime::Store& store() override { return *store_; }
    void release() override { panel_.reset(); }

private:
    std::shared_ptr<Runtime::Store> store_ = Runtime::Store::create();
    std::unique_ptr<MarvaneAssistant> panel_ = std::make_unique<MarvaneAssistant>(store_);
};

}  // namespace

std::unique_ptr<Bench> makeBench() { return std::make_unique<StoreBench>(); }

}  // namespace Orvo::Tests
