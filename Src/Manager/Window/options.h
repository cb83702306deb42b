#pragma once

#include <exception>
#include <optional>
#include <variant>

#include <QString>
#include <QStringList>

#include "Manager/Session/manager_session.h"
#include "Script/manual.h"

namespace Orvo::Manager {

/// How a person wants the program to start.
struct Options {
    std::optional<int> zoom{};  ///< percent; none: as fits the window
    std::optional<int> tab{};   ///< counted from 1
    bool forgets = false;       ///< what is remembered of the last time
    SessionSettings session{};
    bool isFullScreen = false;
    QString script{};  ///< a file, "-" for standard input; empty: none
    bool keepsGoing = false;
    std::optional<LinkAddress> link{};
    QString form{};  ///< what is to be generated; empty: nothing
};

/// There is nothing to start: the program says this and ends. Status 0 is an answer for standard
/// output, any other an error for standard error.
struct Ending {
    int status = 0;
    QString text;
};

constexpr int kWrongUsage = 2;

/// What LinkAddress takes, in words.
QString linkAddressRule();

/// Says in one line on standard error what ends the program, and returns the status for that.
int complain(const std::exception& failure);

/// What the command line knows, for a manual; the keys are the window's.
Script::Manual manualOfOptions();

/// The command line, the program's name being its first word. Needs the application object.
std::variant<Options, Ending> parseCommandLine(const QStringList& words);

}  // namespace Orvo::Manager
