#include <algorithm>
#include <exception>
#include <string>

#include <unistd.h>

#include "Console/options.h"
#include "Console/terminal.h"
#include "Orvo/version.h"
#include "Script/buffered_output.h"
#include "Script/completion.h"
#include "Script/help.h"
#include "Script/program.h"
#include "Script/script_runner.h"
#include "Script/store_panel.h"

// orvo-console: the panel script on the in-memory runtime.
namespace {

using namespace Orvo::Console;
using namespace Orvo::Script;

constexpr Grammar kGrammar{.place = Place::inMemory};

int talk() {
    StorePanel panel;
    BufferedOutput output;
    Session session(panel, panel, kGrammar,
                    [&output](std::string_view line) { output.line(line); });
    Terminal terminal([](std::string_view before, std::string_view typed) {
        return completions(before, typed, kGrammar);
    });
    while (!session.hasQuit()) {
        const auto line = terminal.ask("orvo> ");
        if (!line) {
            output.line("");
            break;
        }
        const auto text = help(*line, kGrammar);
        if (text) {
            output.line(*text);
        } else {
            session.run(*line);
        }
        output.flush();
    }
    output.flush();
    return done;
}

int print(const std::string& text) {
    BufferedOutput output;
    output.line(text);
    output.flush();
    return done;
}

int generate(const std::string& form) {
    std::string text = manualAs(form, manual());
    if (text.empty()) throw WrongUsage{"--generate takes " + std::string(kManualForms)};
    text.pop_back();  // the line's end is the output's
    return print(text);
}

int run(const Options& options) {
    if (options.wish == Options::Wish::generate) return generate(options.form);
    if (options.wish == Options::Wish::help) return print(usage());
    if (options.wish == Options::Wish::version) return print("orvo-console " ORVO_VERSION);
    if (!options.file && ::isatty(STDIN_FILENO) != 0) return talk();
    StorePanel panel;
    return runScript(panel, panel, kGrammar, options.file.value_or("-"), options.atComplaint);
}

}  // namespace

int main(int argc, char** argv) {
    surviveFailedWrites();
    try {
        return run(readOptions({argv + std::min(argc, 1), argv + argc}));
    } catch (const WrongUsage& wrong) {
        complain("orvo-console: " + wrong.text);
        complain("Try orvo-console --help.");
    } catch (const std::exception& failure) {
        complain(std::string("orvo-console: ") + failure.what());
    }
    return cannotRun;
}
