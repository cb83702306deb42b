#pragma once

#include <optional>
#include <utility>
#include <vector>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace Orvo::Manager {

/// Something that a program shows, as assistive technology finds it on the accessibility bus.
struct Accessible {
    QString service;
    QString path;

    friend bool operator==(const Accessible&, const Accessible&) = default;
};

enum class State { checked = 4, showing = 25 };

/// The accessibility bus, seen from a screen reader's side: it speaks to the programs over the bus
/// alone. What is no longer there has no name, no children and no value.
class AccessibleBus final : public QObject {
    Q_OBJECT

public:
    AccessibleBus();

    [[nodiscard]] std::vector<Accessible> programs() const;

    [[nodiscard]] std::vector<Accessible> childrenOf(const Accessible& thing) const;
    [[nodiscard]] QString nameOf(const Accessible& thing) const;
    [[nodiscard]] QString descriptionOf(const Accessible& thing) const;
    [[nodiscard]] QString roleOf(const Accessible& thing) const;
    [[nodiscard]] bool is(const Accessible& thing, State state) const;
    [[nodiscard]] std::optional<double> valueOf(const Accessible& thing) const;
    [[nodiscard]] QStringList actionsOf(const Accessible& thing) const;

    void setValue(const Accessible& thing, double value) const;
    void act(const Accessible& thing, const QString& action) const;

    /// Whether the thing has told of this change since the last `forget`: "accessible-value" for
    /// one, or "showing", which has an alert read out.
    [[nodiscard]] bool hasHeard(const Accessible& thing, const QString& change) const;
    void forget() { heard_.clear(); }

private:
    Q_SLOT void hear(const QDBusMessage& message);

    [[nodiscard]] QDBusMessage call(const Accessible& thing, const QString& interface,
                                    const QString& method, const QVariantList& words = {}) const;
    [[nodiscard]] QVariant property(const Accessible& thing, const QString& interface,
                                    const QString& name) const;

    QDBusConnection bus_;
    std::vector<std::pair<Accessible, QString>> heard_;
};

}  // namespace Orvo::Manager
