#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "Manager/Station/event_log.h"
#include "Orvo/core/call_listener.h"
#include "Orvo/core/event_table.h"

namespace Orvo::Manager {

/// Whether the steady flow of measured values, traces and repetitions is written down too.
enum class Detail { changes, everything };

/// In a technician's words, each line with the time of day, or as panel script.
enum class Form { words, script };

/// Writes down what the panel raises and what its host answers. What the host does while it handles
/// an event stands under it, indented. In words, no question is told of, nor what it is answered.
///
/// With Detail::changes, what the host says of its own accord is left out when it is a measured
/// value, a trace or a question, or when it only repeats what the host said last; and so is a test
/// temperature that the panel repeats.
class Conversation final : public CallListener {
public:
    explicit Conversation(EventLog& log) : log_(log) {}

    void setDetail(Detail detail) { detail_ = detail; }
    [[nodiscard]] Detail detail() const { return detail_; }

    void setForm(Form form) { form_ = form; }
    [[nodiscard]] Form form() const { return form_; }
    /// What time of day it is.
    void setClock(std::function<std::string()> clock) { clock_ = std::move(clock); }

    /// The time since the start, which a comment in the script tells after every pause of a second.
    void setTime(std::chrono::milliseconds time) { time_ = time; }

    /// An event is raised; everything up to `handled` is the answer to it.
    void raised(Long dispatchId, std::span<const Value> arguments);
    void handled();
    /// The panel is another one: no answer to an event is going on, and all that it is told is
    /// news.
    void startAnew();

    void called(const Member& member, std::span<const Value> arguments) override;
    void returned(const Member& member, const Value& result) override;
    void failed(const Member& member, const Error& error) override;
    /// An error that no caller waits for.
    void failed(const Error& error);
    /// What neither of the two did.
    void remark(const std::string& text) { write((isScript() ? "# " : "") + text); }

private:
    bool isWorthALine(const Member& member, std::span<const Value> arguments);
    bool isWorthALine(const Event& event, std::span<const Value> arguments);
    bool isNews(const Member& member, std::span<const Value> arguments);
    bool isNews(const std::string& what, const Value& value);
    [[nodiscard]] bool isScript() const { return form_ == Form::script; }
    void write(const std::string& text);

    EventLog& log_;
    Detail detail_ = Detail::changes;
    Form form_ = Form::script;
    std::function<std::string()> clock_ = [] { return ""; };
    std::chrono::milliseconds time_{0};
    std::chrono::milliseconds timeOfLastLine_{0};
    int depth_ = 0;
    bool isLastCallShown_ = false;
    // The last value by the call or event without it.
    std::map<std::string, std::string> lastSaid_;
};

}  // namespace Orvo::Manager
