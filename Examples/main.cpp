// A host without a window: it drives a panel and answers what a person in front of it asks for.
#include <cstdio>

#include <Orvo/core/marvane_assistant.h>
#include <Orvo/layout/roles.h>
#include <Orvo/store/store.h>

class Host : public Orvo::MarvaneAssistantEvents {
public:
    explicit Host(Orvo::MarvaneAssistant& panel) : panel_(panel) {}

    void OnOff() override { panel_.PowerOn(!bool(panel_.PowerOn())); }
    void Mute(Orvo::Integer& intChannel) override {
        panel_.Mute(intChannel, !bool(panel_.Mute(intChannel)));
    }

private:
    Orvo::MarvaneAssistant& panel_;
};

int main() {
    const auto store = Orvo::Runtime::Store::create();
    Orvo::MarvaneAssistant panel(store);
    Host host(panel);
    const Orvo::Connection connection = panel.connect(host);

    panel.Connected(true);
    panel.VPPower(1, 118);
    store->perform(Orvo::Runtime::Deed::click(Orvo::Layout::kCommon.powerButton));
    store->perform(Orvo::Runtime::Deed::click(Orvo::Layout::channel(2).muteButton));

    const bool isRight = bool(panel.PowerOn()) && bool(panel.Mute(2)) && !bool(panel.Mute(1));
    std::puts(isRight ? "on, channel 2 muted" : "the host was not heard");
    return isRight ? 0 : 1;
}
