#include "Orvo/window/panel_widget.h"
#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

class WindowBench final : public Bench {
public:
    // The tests say what time it is.
    WindowBench() {
        store_->runOn({});
        window_->show();
    }

    MarvaneAssistant& panel() override { return window_->panel(); }
    Runtime::Store& store() override { return *store_; }
    void release() override { window_.reset(); }

private:
    std::unique_ptr<Window::PanelWidget> window_ = std::make_unique<Window::PanelWidget>();
    std::shared_ptr<Runtime::Store> store_ = window_->store().shared_from_this();
};

}  // namespace

std::unique_ptr<Bench> makeBench() { return std::make_unique<WindowBench>(); }

}  // namespace Orvo::Tests
