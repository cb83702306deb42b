#pragma once

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>

namespace Orvo::Manager {

/// Something that a program shows, as assistive technology finds it on the accessibility bus.
struct Accessible {
    QString service;
    QString path;

    friend bool operator==(const Accessible&, const Accessible&) = default;
};

inline const QDBusArgument& operator>>(const QDBusArgument& from, Accessible& thing) {
    QDBusObjectPath path;
    from.beginStructure();
    from >> thing.service >> path;
    from.endStructure();
    thing.path = path.path();
    return from;
}

struct Action {
    QString name;
    QString description;
    QString keys;
};

inline const QDBusArgument& operator>>(const QDBusArgument& from, Action& action) {
    from.beginStructure();
    from >> action.name >> action.description >> action.keys;
    from.endStructure();
    return from;
}

enum class State { checked = 4, showing = 25 };

/// The accessibility bus, seen from a screen reader's side: it speaks to the programs over the bus
/// alone. What is no longer there has no name, no children and no value.
class AccessibleBus final : public QObject {
    Q_OBJECT

public:
    AccessibleBus() {
        for (const char* signal : {"PropertyChange", "StateChanged"}) {
            bus_.connect({}, {}, "org.a11y.atspi.Event.Object", signal, this,
                         SLOT(hear(QDBusMessage)));
        }
        // Programs tell only what somebody wants to know.
        const Accessible registry{kRegistry, "/org/a11y/atspi/registry"};
        (void)call(registry, kRegistry, "RegisterEvent", {"object:", QStringList(), QString()});
    }

    [[nodiscard]] auto programs() const {
        return childrenOf({kRegistry, "/org/a11y/atspi/accessible/root"});
    }
    [[nodiscard]] std::vector<Accessible> childrenOf(const Accessible& thing) const {
        return elements<Accessible>(call(thing, kAccessible, "GetChildren"));
    }
    [[nodiscard]] QString nameOf(const Accessible& thing) const {
        return property(thing, kAccessible, "Name").toString();
    }
    [[nodiscard]] QString descriptionOf(const Accessible& thing) const {
        return property(thing, kAccessible, "Description").toString();
    }
    [[nodiscard]] QString roleOf(const Accessible& thing) const {
        return call(thing, kAccessible, "GetRoleName").arguments().value(0).toString();
    }
    [[nodiscard]] bool is(const Accessible& thing, State state) const {
        const auto words = elements<quint32>(call(thing, kAccessible, "GetState"));
        return !words.empty() && (words[0] >> int(state) & 1) != 0;
    }
    [[nodiscard]] std::optional<double> valueOf(const Accessible& thing) const {
        const QVariant value = property(thing, kValue, "CurrentValue");
        return value.isValid() ? std::optional(value.toDouble()) : std::nullopt;
    }
    [[nodiscard]] QStringList actionsOf(const Accessible& thing) const {
        QStringList names;
        for (const Action& action : elements<Action>(call(thing, kAction, "GetActions")))
            names += action.name;
        return names;
    }

    void setValue(const Accessible& thing, double value) const {
        const QVariant wanted = QVariant::fromValue(QDBusVariant(value));
        (void)call(thing, kProperties, "Set", {kValue, "CurrentValue", wanted});
    }
    void act(const Accessible& thing, const QString& action) const {
        (void)call(thing, kAction, "DoAction", {int(actionsOf(thing).indexOf(action))});
    }

    /// Whether the thing has told of this change since the last `forget`: "accessible-value" for
    /// one, or "showing", which has an alert read out.
    [[nodiscard]] bool hasHeard(const Accessible& thing, const QString& change) const {
        return std::ranges::find(heard_, std::pair(thing, change)) != heard_.end();
    }
    void forget() { heard_.clear(); }

private:
    static constexpr int kPatience = 60'000;  // milliseconds
    static constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
    static constexpr const char* kAction = "org.a11y.atspi.Action";
    static constexpr const char* kValue = "org.a11y.atspi.Value";
    static constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
    static constexpr const char* kRegistry = "org.a11y.atspi.Registry";

    Q_SLOT void hear(const QDBusMessage& message) {
        const Accessible thing{message.service(), message.path()};
        heard_.emplace_back(thing, message.arguments().value(0).toString());
    }

    static QDBusConnection connectToBus() {
        const auto question = QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus",
                                                             "org.a11y.Bus", "GetAddress");
        const auto answer = QDBusConnection::sessionBus().call(question, QDBus::Block, kPatience);
        return QDBusConnection::connectToBus(answer.arguments().value(0).toString(),
                                             "accessibility");
    }

    [[nodiscard]] QDBusMessage call(const Accessible& thing, const QString& interface,
                                    const QString& method, const QVariantList& words = {}) const {
        if (thing.path.isEmpty()) return {};
        auto message = QDBusMessage::createMethodCall(thing.service, thing.path, interface, method);
        message.setArguments(words);
        return bus_.call(message, QDBus::Block, kPatience);
    }
    [[nodiscard]] QVariant property(const Accessible& thing, const QString& interface,
                                    const QString& name) const {
        const auto answer = call(thing, kProperties, "Get", {interface, name});
        return answer.arguments().value(0).value<QDBusVariant>().variant();
    }

    /// Of an array that is a call's answer; none when the call has failed.
    template <class Element>
    static std::vector<Element> elements(const QDBusMessage& answer) {
        std::vector<Element> all;
        if (answer.type() != QDBusMessage::ReplyMessage) return all;
        const auto array = answer.arguments().at(0).value<QDBusArgument>();
        for (array.beginArray(); !array.atEnd();) array >> all.emplace_back();
        array.endArray();
        return all;
    }

    QDBusConnection bus_ = connectToBus();
    std::vector<std::pair<Accessible, QString>> heard_;
};

}  // namespace Orvo::Manager
