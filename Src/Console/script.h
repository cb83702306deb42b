#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "Console/buffered_output.h"
#include "Console/line_reader.h"
#include "Console/options.h"
#include "Console/session.h"

namespace Orvo::Console {

/// Runs panel script from a file descriptor and answers on standard output, before it waits for
/// more at the latest. Each "?" is reported on standard error with the script's name, line and
/// column.
class Script {
public:
    Script(Bench& bench, const Grammar& grammar, int descriptor, std::string name,
           AtComplaint atComplaint);

    /// Whether every command was understood. Throws std::system_error when reading or writing
    /// fails.
    bool run();

private:
    void report(const Misunderstood& complaint, std::string_view line);

    BufferedOutput output_;
    Session session_;
    LineReader lines_;
    std::string name_;
    AtComplaint atComplaint_;
    std::size_t lineNumber_ = 0;
};

}  // namespace Orvo::Console
