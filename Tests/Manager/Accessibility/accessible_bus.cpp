#include "accessible_bus.h"

#include <algorithm>

#include <QDBusArgument>
#include <QDBusVariant>

namespace Orvo::Manager {

namespace {

constexpr int kPatience = 60'000;  // milliseconds

const QString kAccessible = "org.a11y.atspi.Accessible";
const QString kAction = "org.a11y.atspi.Action";
const QString kValue = "org.a11y.atspi.Value";
const QString kProperties = "org.freedesktop.DBus.Properties";
const QString kRegistry = "org.a11y.atspi.Registry";
const QString kObjectEvents = "org.a11y.atspi.Event.Object";

QDBusConnection connectToBus() {
    const auto question = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                                         "org.a11y.Bus", "GetAddress");
    const auto answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kPatience);
    return QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "accessibility");
}

// The elements of an array that is a call's answer; none when the call has failed.
template <class Element, class Read>
std::vector<Element> elements(const QDBusMessage& answer, const Read& read) {
    std::vector<Element> all;
    if (answer.type() != QDBusMessage::ReplyMessage) return all;
    const auto array = answer.arguments().at(0).value<QDBusArgument>();
    array.beginArray();
    while (!array.atEnd()) all.push_back(read(array));
    array.endArray();
    return all;
}

Accessible readReference(const QDBusArgument& from) {
    Accessible thing;
    QDBusObjectPath path;
    from.beginStructure();
    from >> thing.service >> path;
    from.endStructure();
    thing.path = path.path();
    return thing;
}

QString readAction(const QDBusArgument& from) {
    QString name;
    QString description;
    QString keys;
    from.beginStructure();
    from >> name >> description >> keys;
    from.endStructure();
    return name;
}

quint32 readWord(const QDBusArgument& from) {
    quint32 word = 0;
    from >> word;
    return word;
}

}  // namespace

AccessibleBus::AccessibleBus() : bus_(connectToBus()) {
    for (const char* signal : {"PropertyChange", "StateChanged"}) {
        bus_.connect({}, {}, kObjectEvents, signal, this, SLOT(hear(QDBusMessage)));
    }
    // Programs tell only what somebody wants to know.
    const Accessible registry{kRegistry, "/org/a11y/atspi/registry"};
    (void)call(registry, kRegistry, "RegisterEvent", {"object:", QStringList(), QString()});
}

QDBusMessage AccessibleBus::call(const Accessible& thing, const QString& interface,
                                 const QString& method, const QVariantList& words) const {
    if (thing.path.isEmpty()) return {};
    auto message = QDBusMessage::createMethodCall(thing.service, thing.path, interface, method);
    message.setArguments(words);
    return bus_.call(message, QDBus::Block, kPatience);
}

QVariant AccessibleBus::property(const Accessible& thing, const QString& interface,
                                 const QString& name) const {
    const auto answer = call(thing, kProperties, "Get", {interface, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

std::vector<Accessible> AccessibleBus::programs() const {
    return childrenOf({kRegistry, "/org/a11y/atspi/accessible/root"});
}

std::vector<Accessible> AccessibleBus::childrenOf(const Accessible& thing) const {
    return elements<Accessible>(call(thing, kAccessible, "GetChildren"), readReference);
}

QString AccessibleBus::nameOf(const Accessible& thing) const {
    return property(thing, kAccessible, "Name").toString();
}

QString AccessibleBus::descriptionOf(const Accessible& thing) const {
    return property(thing, kAccessible, "Description").toString();
}

QString AccessibleBus::roleOf(const Accessible& thing) const {
    return call(thing, kAccessible, "GetRoleName").arguments().value(0).toString();
}

bool AccessibleBus::is(const Accessible& thing, State state) const {
    const auto words = elements<quint32>(call(thing, kAccessible, "GetState"), readWord);
    return !words.empty() && (words[0] >> int(state) & 1) != 0;
}

std::optional<double> AccessibleBus::valueOf(const Accessible& thing) const {
    const QVariant value = property(thing, kValue, "CurrentValue");
    return value.isValid() ? std::optional(value.toDouble()) : std::nullopt;
}

QStringList AccessibleBus::actionsOf(const Accessible& thing) const {
    const auto names = elements<QString>(call(thing, kAction, "GetActions"), readAction);
    return {names.begin(), names.end()};
}

void AccessibleBus::setValue(const Accessible& thing, double value) const {
    const QVariant wanted = QVariant::fromValue(QDBusVariant(value));
    (void)call(thing, kProperties, "Set", {kValue, "CurrentValue", wanted});
}

void AccessibleBus::act(const Accessible& thing, const QString& action) const {
    const auto number = int(actionsOf(thing).indexOf(action));
    (void)call(thing, kAction, "DoAction", {number});
}

void AccessibleBus::hear(const QDBusMessage& message) {
    const Accessible thing{message.service(), message.path()};
    heard_.emplace_back(thing, message.arguments().value(0).toString());
}

bool AccessibleBus::hasHeard(const Accessible& thing, const QString& change) const {
    return std::find(heard_.begin(), heard_.end(), std::pair(thing, change)) != heard_.end();
}

}  // namespace Orvo::Manager
