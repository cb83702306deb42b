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

void StorePanel::connectPorts(Runtime::Ports ports) { spooler_->ports = std::move(ports); }

void StorePanel::exchange() {
    panel_.reset();
    make();
}

void StorePanel::make() {
    store_ = Runtime::Store::create();
    spooler_ = std::make_shared<Spooler>();
    panel_ = std::make_unique<MarvaneAssistant>(store_, Platform{.spooler = spooler_});
}

}  // namespace Orvo::Script
