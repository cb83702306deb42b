#include <array>

#include "Orvo/core/call_listener.h"
#include "Orvo/core/event_hub.h"
#include "bench.h"
#include "measure.h"
#include "peers_calls.h"

// A host's calls, and the events that it hears.
namespace Orvo::Benchmarks {
namespace {

template <class Call>
Contender panelCall(Call call) {
    return repeated(makeBench,
                    [call](Bench& bench, int turn) { call(bench.panel, Integer(turn % 99 + 1)); });
}

template <class... Arguments>
void invoke(MarvaneAssistant& panel, Long id, MemberKind kind, Arguments... values) {
    const std::array<Value, sizeof...(values)> arguments{Value(values)...};
    keep(panel.invoke(id, kind, arguments));
}

Rival virtualGet(Limits limits) {
    return {Role::floor, "a virtual call that reads it",
            repeated(makeStored, [](Stored& stored, int) { keep(stored.value()); }), limits};
}

Rival virtualLet(Limits limits) {
    return {Role::floor, "a virtual call that stores it",
            repeated(makeStored, [](Stored& stored, int turn) { stored.store(1, turn); }), limits};
}

Rival getProperty(Limits limits) {
    return {Role::peer, "QObject::property",
            repeated(makeProperties,
                     [](Properties& object, int) { keep(object.property("IdDevice")); }),
            limits};
}

template <class Argument>
Rival setProperty(const char* name, Limits limits) {
    const auto call = [name](Properties& object, int turn) {
        object.setProperty(name, Argument(turn % 2));
    };
    return {Role::peer, "QObject::setProperty", repeated(makeProperties, call), limits};
}

Rival setFlag(Limits limits) { return setProperty<bool>("Signal", limits); }
Rival setNumber(Limits limits) { return setProperty<int>("IdDevice", limits); }

Rival getByMethod(Limits limits) {
    const auto call = [method = Properties::method("id()")](Properties& object, int) {
        int id = 0;
        method.invoke(&object, Qt::DirectConnection, Q_RETURN_ARG(int, id));
        keep(id);
    };
    return {Role::peer, "QMetaMethod::invoke", repeated(makeProperties, call), limits};
}

Rival letByMethod(Limits limits) {
    const auto call = [method = Properties::method("light(int,bool)")](Properties& object,
                                                                       int turn) {
        method.invoke(&object, Qt::DirectConnection, Q_ARG(int, 1), Q_ARG(bool, turn % 2 == 0));
    };
    return {Role::peer, "QMetaMethod::invoke", repeated(makeProperties, call), limits};
}

// A panel on which each call is told of.
struct Listened : Bench {
    CallListener nobody;
    Connection listening = panel.listen(nobody);
};

Row listened() {
    const auto call = [](Bench& bench, int turn) { bench.panel.Signal(1, turn % 2 == 0); };
    return {.measure = "let Signal, typed, with a listener",
            .ours = repeated([] { return std::make_unique<Listened>(); }, call),
            .rivals = {{Role::floor, "without a listener", repeated(makeBench, call)}}};
}

// What a panel raises its events with, and a host's sink.
struct Sounding final : MarvaneAssistantEvents {
    void VolumeChange(Integer& intChannel, Integer& intVolume) override {
        stored->store(intChannel, intVolume);
    }

    const std::unique_ptr<Stored> stored = makeStored();
    const ErrorHandler onError;
    EventHub hub{onError};
    const Connection connection = hub.connect(*this);
};

Row event() {
    // A lambda like the rivals': a function would be one more indirect call.
    const auto raise = [](Sounding& sounding, int turn) {
        Integer channel = 1;
        auto volume = Integer(turn % 30);
        sounding.hub.VolumeChange(channel, volume);
    };
    Row row{.measure = "an event to one typed sink",
            .ours = repeated([] { return std::make_unique<Sounding>(); }, raise),
            .rivals = {{Role::peer,
                        "a direct connection of Qt's",
                        repeated([] { return std::make_unique<Emitter>(); },
                                 [](Emitter& emitter, int turn) { emit emitter.moved(1, turn); }),
                        {.must = timesLess(8)}},
                       virtualLet({.must = times(2.2), .aim = times(1.5), .gate = times(12)})}};
    for (Rival& rival : boostSignal({.must = timesLess(20)})) row.rivals.push_back(rival);
    return row;
}

}  // namespace

std::vector<Row> callRows() {
    const Long id = dispatchIdOf("IdDevice").value();
    const Long signal = dispatchIdOf("Signal").value();
    using Panel = MarvaneAssistant;
    return {
        {.measure = "get IdDevice, typed",
         .ours = panelCall([](Panel& panel, Integer) { keep(panel.IdDevice()); }),
         .rivals = {virtualGet({.must = times(2.5), .aim = times(2)}), getProperty({})}},
        {.measure = "let Signal, typed",
         .ours = panelCall([](Panel& panel, Integer turn) { panel.Signal(1, turn % 2 == 0); }),
         .rivals = {virtualLet({.must = times(5), .aim = times(4)}), setFlag({})}},
        listened(),
        {.measure = "let IdDevice, typed",
         .ours = panelCall([](Panel& panel, Integer turn) { panel.IdDevice(turn); }),
         .rivals = {virtualLet({.must = times(13), .aim = times(8)}), setNumber({})}},
        {.measure = "get IdDevice, late-bound",
         .ours = panelCall([id](Panel& panel, Integer) { invoke(panel, id, MemberKind::get); }),
         .rivals = {getByMethod({.must = timesLess(2.2), .aim = timesLess(4), .gate = times(1.5)}),
                    getProperty({}), setNumber({.must = timesLess(12)}), virtualGet({})}},
        {.measure = "let Signal, late-bound",
         .ours = panelCall([signal](Panel& panel, Integer turn) {
             invoke(panel, signal, MemberKind::let, Integer{1}, Boolean(turn % 2 == 0));
         }),
         .rivals = {letByMethod({.must = timesLess(1.4), .aim = timesLess(3), .gate = times(1.5)}),
                    setFlag({.must = timesLess(7)}), virtualLet({})}},
        event(),
    };
}

}  // namespace Orvo::Benchmarks
