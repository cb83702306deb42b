#include "Orvo/core/event_hub.h"

#include <exception>
#include <new>
#include <utility>

namespace Orvo {

// A sink and whether it is still connected. Whoever is raising holds the link, so a sink that
// disconnects itself ends only after its call.
class Connection::Link {
public:
    explicit Link(std::function<void(const Event&, std::span<Value>)> sink)
        : sink_(std::move(sink)) {}

    void deliver(const Event& event, std::span<Value> arguments) const { sink_(event, arguments); }
    void disconnect() { isConnected_ = false; }
    [[nodiscard]] bool isConnected() const { return isConnected_; }

private:
    std::function<void(const Event&, std::span<Value>)> sink_;
    bool isConnected_ = true;
};

Connection::Connection(std::shared_ptr<Link> link) : link_(std::move(link)) {}
Connection::Connection(Connection&& other) noexcept = default;
Connection::~Connection() { disconnect(); }

Connection& Connection::operator=(Connection&& other) noexcept {
    if (this != &other) disconnect();
    link_ = std::move(other.link_);
    return *this;
}

void Connection::disconnect() {
    if (link_) link_->disconnect();
    link_.reset();
}

bool Connection::isConnected() const { return link_ && link_->isConnected(); }

Error currentError() {
    try {
        throw;
    } catch (const Error& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return Errors::outOfMemory();
    } catch (const std::exception& exception) {
        return Errors::hostFailure(exception.what());
    } catch (...) {
        return Errors::hostFailure("unknown exception");
    }
}

Connection EventHub::connect(MarvaneAssistantEvents& sink) {
    return connect(Deliver([&sink](const Event& event, std::span<Value> arguments) {
        event.deliver(sink, arguments);
    }));
}

Connection EventHub::connect(LateBoundSink sink) {
    return connect(
        Deliver([sink = std::move(sink)](const Event& event, std::span<Value> arguments) {
            sink(event.dispatchId, arguments);
        }));
}

Connection EventHub::connect(Deliver deliver) {
    std::erase_if(links_, [](const auto& link) { return !link->isConnected(); });
    links_.push_back(std::make_shared<Connection::Link>(std::move(deliver)));
    return Connection(links_.back());
}

void EventHub::close() {
    isOpen_ = false;
    for (const auto& link : links_) link->disconnect();
}

void EventHub::raise(const Event& event, std::initializer_list<Value> arguments) {
    const auto links = links_;
    for (const auto& link : links) {
        if (link->isConnected()) deliver(*link, event, arguments);
    }
    if (!isOpen_) throw Released{};
}

void EventHub::deliver(const Connection::Link& link, const Event& event,
                       std::vector<Value> arguments) {
    try {
        link.deliver(event, arguments);
    } catch (...) {
        onError_(currentError());
    }
}

void EventHub::OnOff() { raise(eventNamed("OnOff"), {}); }
void EventHub::Mute(Integer& intChannel) { raise(eventNamed("Mute"), {intChannel}); }
void EventHub::DownLoad() { raise(eventNamed("DownLoad"), {}); }
void EventHub::VolumeChange(Integer& intChannel, Integer& intVolume) {
    raise(eventNamed("VolumeChange"), {intChannel, intVolume});
}
void EventHub::SetTemp(Integer& intChannel, Integer& intValue) {
    raise(eventNamed("SetTemp"), {intChannel, intValue});
}
void EventHub::WaveForm(Integer& intNChannel, Integer& intTypeWaveForm, Integer& intPosNeg) {
    raise(eventNamed("WaveForm"), {intNChannel, intTypeWaveForm, intPosNeg});
}
void EventHub::GeneralInformations(Integer& intIdDevice, String& strInformations, String& strSnAmp,
                                   String& strSnCard) {
    raise(eventNamed("GeneralInformations"), {intIdDevice, strInformations, strSnAmp, strSnCard});
}
void EventHub::ChangeAmpId(Integer& intIdDevice) {
    raise(eventNamed("ChangeAmpId"), {intIdDevice});
}

}  // namespace Orvo
