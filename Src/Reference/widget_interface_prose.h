#pragma once

#include <string_view>

// What stands around the slots and signals that come from the tables.
namespace Orvo::Script {

constexpr std::string_view kHeaderBegin = R"(
// Written from the tables by orvo-reference.
// clang-format off

namespace Orvo {
class MarvaneAssistant;
class MarvaneAssistantEvents;
}  // namespace Orvo

namespace Orvo::Window {

/// The panel's members as functions and slots, and its events as signals, all with Qt's types.
///
/// They have the panel's own names with a small initial; what writes a property begins with `set`,
/// and what reads a truth with `is`. Samples are those from index 1 on. Errors are thrown as the
/// panel throws them, and error 6 where a number is beyond 16 bits: from a slot that is connected to
/// a signal they reach whoever emits it.
///
/// A signal is emitted while its event is raised, before other sinks of the panel are told. A slot
/// may do what a sink's handler may, deleting the widget included.
class ORVO_EXPORT PanelInterface : public QWidget {
    Q_OBJECT

public:
    ~PanelInterface() override;

    [[nodiscard]] virtual MarvaneAssistant& panel() const = 0;

)";

constexpr std::string_view kHeaderSignals = R"(
Q_SIGNALS:
)";

constexpr std::string_view kHeaderEnd = R"(
protected:
    explicit PanelInterface(QWidget* parent);

    /// Emits the signals for this panel's events from now on, until the connection ends.
    [[nodiscard]] Connection emitEventsOf(MarvaneAssistant& panel);

private:
    class Sink;
    const std::unique_ptr<MarvaneAssistantEvents> sink_;
};

}  // namespace Orvo::Window
)";

constexpr std::string_view kSourceBegin = R"(
// Written from the tables by orvo-reference.
// clang-format off

namespace Orvo::Window {
namespace {

Integer toInteger(int number) {
    return std::get<Integer>(convert(Long{number}, ValueType::integer));
}

IntegerArray toArray(const QList<short>& samples) {
    return {1, {samples.begin(), samples.end()}};
}

}  // namespace

class PanelInterface::Sink final : public MarvaneAssistantEvents {
public:
    explicit Sink(PanelInterface& widget) : widget_(widget) {}

)";

constexpr std::string_view kSourceMembers = R"(
private:
    PanelInterface& widget_;
};

PanelInterface::PanelInterface(QWidget* parent) : QWidget(parent), sink_(new Sink(*this)) {}
PanelInterface::~PanelInterface() = default;

Connection PanelInterface::emitEventsOf(MarvaneAssistant& panel) { return panel.connect(*sink_); }

// What a slot changes is the panel. NOLINTBEGIN(readability-make-member-function-const)
)";

constexpr std::string_view kSourceEnd = R"(// NOLINTEND(readability-make-member-function-const)

}  // namespace Orvo::Window
)";

}  // namespace Orvo::Script
