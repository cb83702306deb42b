#include "Script/store_panel.h"

#include <utility>

namespace Orvo::Script {

class StorePanel::Spooler final : public PortSpooler {
public:
    bool enumPorts(const std::string& /*server*/, Long /*level*/, Long address,
                   std::span<std::byte> buffer, Long& needed, Long& count) override {
        return Runtime::writePortRecords(ports, address, buffer, needed, count) && !ports.empty();
    }

    Runtime::Ports ports;  // NOLINT(*-non-private-member-variables-in-classes)
};

StorePanel::StorePanel() : spooler_(std::make_shared<Spooler>()) {
    exchange([] {});
}

void StorePanel::connectPorts(const Runtime::Ports& ports) { spooler_->ports = ports; }

void StorePanel::exchange(const std::function<void()>& ending) {
    auto store = Runtime::Store::create();
    auto panel = std::make_unique<MarvaneAssistant>(store, Platform{.spooler = spooler_});
    ending();
    panel_ = std::move(panel);
    store_ = std::move(store);
}

}  // namespace Orvo::Script
