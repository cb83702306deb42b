#include <algorithm>
#include <map>
#include <regex>
#include <sstream>

#include "Manager/Host/simulated_host.h"
#include "Manager/Station/station.h"
#include "Script/session.h"
#include "Support/approved.h"
#include "Support/owned_panel.h"

// life.txt has what is done in front of a panel whose amplifier is simulated and stands switched
// off: panel script and a few words more, each after "> ". Indented below it stands what then
// passes between panel and host, but for readings and what the host asks; "look" shows the last
// readings. An empty line begins afresh.
namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

const char* const kPath = ORVO_TESTS "/Manager/Host/life.txt";

class HostLifeTest : public Tests::OwnedPanel, Script::Person {
protected:
    HostLifeTest() { station_.conversation().setDetail(Detail::everything); }

    void beginAfresh() {
        station_.disconnect();
        owner_.renew();
        station_.connect([this] {
            return std::make_unique<SimulatedHost>(owner_.panel(), 7, Simulator::PowerAtStart::off);
        });
        readings_.clear();
    }

    std::string answersTo(const std::string& line) {
        station_.log().clear();
        answers_.clear();
        if (line == "connect" || line == "run") {
            connect();
            if (line == "run") run();
            answers_.clear();
        } else if (line == "quick test") {
            host().runQuickTest();
        } else if (line == "look") {
            look();
        } else if (!setFault(line)) {
            session_.run(line);
        }
        takeLog();
        return answers_;
    }

private:
    SimulatedHost& host() { return dynamic_cast<SimulatedHost&>(*station_.device()); }

    Runtime::Store& store() override { return owner_.store(); }
    void wait(std::chrono::milliseconds time) override {
        for (auto passed = 0ms; passed < time; passed += 10ms) {
            store().advance(10ms);
            station_.advance(10ms);
            takeLog();
        }
    }

    void connect() { wait(500ms); }
    void run() {
        click(kCommon.powerButton);
        wait(2500ms);
    }

    bool setFault(const std::string& line) {
        const auto* row = std::ranges::find(Simulator::kFaults, line.substr(line.find(' ') + 1),
                                            &Simulator::FaultRow::description);
        const bool isOn = line.starts_with("fault ");
        if (row == Simulator::kFaults.end() || (!isOn && !line.starts_with("mend "))) return false;
        host().set(row->fault, isOn);
        return true;
    }

    void add(const std::string& line) { answers_ += "  " + line + '\n'; }

    void takeLog() {
        static const std::regex kReading("let (V[PN]\\w+|Temperature|Signal) (\\d) (.*)");
        static const std::regex kQuestion(" *(get|=|#) .*|call Disegna.*");
        for (const std::string& line : station_.log().lines()) {
            std::smatch words;
            if (std::regex_match(line, words, kReading)) {
                readings_[words.str(1)][words.str(2)] = words.str(3);
            } else if (!std::regex_match(line, kQuestion)) {
                add(line);
            }
        }
        station_.log().clear();
    }

    // Of each scope, one sample early in the first wave, the least and the greatest.
    void look() {
        std::string line;
        for (const auto& [name, values] : readings_) {
            line += name;
            for (const auto& [index, value] : values) line += ' ' + value;
            line += ", ";
        }
        const auto silence = station_.situation().silence.value();
        add(line + "last word " + std::to_string(silence.count()) + " ms ago");
        line = "scopes";
        for (Integer channel = 1; channel <= 4; ++channel) {
            if (!station_.traces().has(channel)) continue;
            const auto& samples = station_.traces().trace(channel).samples.elements();
            const auto [least, greatest] = std::ranges::minmax(samples);
            line += ' ' + std::to_string(samples[20]) + ':' + std::to_string(least) + ".." +
                    std::to_string(greatest);
        }
        add(line);
    }

    Station station_{owner_};
    std::map<std::string, std::map<std::string, std::string>> readings_;
    std::string answers_;
    Script::Session session_{owner_, *this, {}, [this](std::string_view line) {
                                 if (line != "ok" && !line.starts_with("event "))
                                     add(std::string(line));
                             }};
};

TEST_F(HostLifeTest, IsAsItIsKept) {
    std::string actual;
    std::istringstream kept(Tests::textIn(kPath));
    for (std::string line; std::getline(kept, line);) {
        if (line.empty()) beginAfresh();
        if (!line.starts_with(' ')) actual += line + '\n';
        if (line.starts_with("> ")) actual += answersTo(line.substr(2));
    }
    Tests::expectAsKept(kPath, actual);
}

}  // namespace
}  // namespace Orvo::Manager
