#include "Manager/Window/options.h"

#include <cstdio>
#include <limits>
#include <system_error>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include "Manager/Window/files.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/layout/common_tab.h"

namespace Orvo::Manager {
namespace {

// A value that isn't what it should be.
struct Refused {
    QString reason;
};

class CommandLine {
public:
    CommandLine() {
        parser_.setApplicationDescription(
            "Shows the front panel of a four-channel power amplifier, and a simulated amplifier "
            "behind it.");
        parser_.addOptions({help_, version_, simulate_, zoom_, tab_, readOnly_, fullScreen_});
        parser_.addOptions({script_, keepGoing_, record_, recordAnswers_, overwrite_, link_});
    }

    std::variant<Options, Ending> parse(const QStringList& words);

private:
    [[nodiscard]] Options options() const;
    [[nodiscard]] SessionSettings sessionSettings() const;
    template <class Number>
    [[nodiscard]] Number numberOf(const QCommandLineOption& option, Number lowest,
                                  Number highest) const;
    void refuseBoth(const QCommandLineOption& one, const QCommandLineOption& other) const;
    [[nodiscard]] std::optional<LinkAddress> linkAddress() const;
    [[nodiscard]] QString fileOf(const QCommandLineOption& option) const;
    [[nodiscard]] QString helpText() const;

    const QCommandLineOption help_{{"h", "help"}, "Shows this help and ends."};
    const QCommandLineOption version_{{"v", "version"}, "Shows the version and ends."};
    const QCommandLineOption simulate_{
        "simulate",
        "Connects the simulated amplifier, which is the default. The same seed gives the same "
        "life; it is 1 unless given.",
        "SEED", "1"};
    const QCommandLineOption zoom_{
        "zoom",
        QString("The panel's size in percent, %1 to %2.").arg(kSmallestZoom).arg(kLargestZoom),
        "PERCENT", "100"};
    const QCommandLineOption tab_{
        "tab", "The tab in front: 1 is Common, 2 is Ch1 + Ch2, 3 is Ch3 + Ch4.", "NUMBER", "1"};
    const QCommandLineOption readOnly_{"read-only",
                                       "Shows everything, changes nothing on the amplifier."};
    const QCommandLineOption fullScreen_{"fullscreen", "Fills the screen."};
    const QCommandLineOption script_{
        "script",
        "Runs panel script from the file, \"-\" being standard input, and ends with it. The script "
        "plays the amplifier too: only --zoom, --keep-going and --overwrite go with it.",
        "FILE"};
    const QCommandLineOption keepGoing_{
        "keep-going", "Goes on after a command of the script that was not understood."};
    const QCommandLineOption record_{
        "record",
        "Writes to the file, as panel script, what the amplifier and the person do to the panel. "
        "Traces on all four scopes make about 250 MB an hour.",
        "FILE"};
    const QCommandLineOption recordAnswers_{
        "record-answers",
        "Records what is typed at the panel's prompts, passwords included; else all of them are "
        "recorded as cancelled."};
    const QCommandLineOption overwrite_{"overwrite",
                                        "Overwrites files that are there already, with --record "
                                        "and where a script takes a picture; "
                                        "else they are refused."};
    const QCommandLineOption link_{
        "link",
        "Connects what is at the other end of a serial device, a pseudo-terminal, a pipe or a "
        "local "
        "socket instead of the simulator. It sends the host's commands of panel script and is "
        "answered, except on a pipe. A serial device's speed follows it: /dev/ttyUSB0@115200.",
        "PATH[@SPEED]"};
    QCommandLineParser parser_;
};

// The parser knows values that must be given, or none.
QStringList withSeed(QStringList words) {
    words.replaceInStrings(QRegularExpression("^--simulate$"), "--simulate=1");
    return words;
}

QString nameOf(const QCommandLineOption& option) { return "--" + option.names().last(); }

Ending wrongUsage(const QString& reason) {
    const QString program = QCoreApplication::applicationName();
    return {kWrongUsage, program + ": " + reason + "\nTry \"" + program + " --help\"."};
}

std::variant<Options, Ending> CommandLine::parse(const QStringList& words) {
    if (!parser_.parse(withSeed(words))) return wrongUsage(parser_.errorText());
    if (parser_.isSet(help_)) return Ending{0, helpText()};
    if (parser_.isSet(version_)) {
        return Ending{
            0, QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion()};
    }
    const QStringList loose = parser_.positionalArguments();
    if (!loose.isEmpty()) {
        return wrongUsage("\"" + loose.first() + "\" is not expected here. Options begin with " +
                          "\"--\", and a seed is written --simulate=7.");
    }
    try {
        return options();
    } catch (const Refused& refused) {
        return wrongUsage(refused.reason);
    }
}

Options CommandLine::options() const {
    constexpr int kTabs = int(Layout::kTabCaptions.size());
    for (const QCommandLineOption* other : {&record_, &link_, &simulate_}) {
        refuseBoth(script_, *other);
    }
    refuseBoth(link_, simulate_);
    return {.zoom = numberOf(zoom_, kSmallestZoom, kLargestZoom),
            .tab = numberOf(tab_, 1, kTabs),
            .session = sessionSettings(),
            .isFullScreen = parser_.isSet(fullScreen_),
            .script = fileOf(script_),
            .keepsGoing = parser_.isSet(keepGoing_),
            .link = linkAddress()};
}

SessionSettings CommandLine::sessionSettings() const {
    return {
        .seed = numberOf<std::uint32_t>(simulate_, 0, std::numeric_limits<std::uint32_t>::max()),
        .isReadOnly = parser_.isSet(readOnly_),
        .record = nativeName(fileOf(record_)),
        .existing =
            parser_.isSet(overwrite_) ? Script::Existing::overwritten : Script::Existing::refused,
        .answers =
            parser_.isSet(recordAnswers_) ? Script::Answers::inFull : Script::Answers::asCancelled};
}

template <class Number>
Number CommandLine::numberOf(const QCommandLineOption& option, Number lowest,
                             Number highest) const {
    const QString text = parser_.value(option);
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (isNumber && number >= lowest && number <= highest) return Number(number);
    throw Refused{QString("%1 takes a whole number from %2 to %3, not \"%4\".")
                      .arg(nameOf(option))
                      .arg(lowest)
                      .arg(highest)
                      .arg(text)};
}

void CommandLine::refuseBoth(const QCommandLineOption& one, const QCommandLineOption& other) const {
    if (!parser_.isSet(one) || !parser_.isSet(other)) return;
    throw Refused{nameOf(one) + " and " + nameOf(other) + " exclude one another."};
}

std::optional<LinkAddress> CommandLine::linkAddress() const {
    if (!parser_.isSet(link_)) return std::nullopt;
    auto address = LinkAddress::read(nativeName(parser_.value(link_)));
    if (address) return address;
    throw Refused{QString("--link takes ") + kLinkAddressRule + ", not \"" + parser_.value(link_) +
                  "\"."};
}

QString CommandLine::fileOf(const QCommandLineOption& option) const {
    if (parser_.isSet(option) && parser_.value(option).isEmpty()) {
        throw Refused{nameOf(option) + " takes the name of a file."};
    }
    return parser_.value(option);
}

QString CommandLine::helpText() const {
    QString text = parser_.helpText();
    text.replace("--simulate <SEED>", "--simulate[=SEED]");
    text.replace(QCoreApplication::arguments().first(), QCoreApplication::applicationName());
    return text.trimmed();
}

}  // namespace

int complain(const std::exception& failure) {
    const auto* reason = dynamic_cast<const std::system_error*>(&failure);
    const bool isThere = reason != nullptr && reason->code() == std::errc::file_exists;
    std::fprintf(stderr, "marvane-manager: %s%s\n", failure.what(),
                 isThere ? " (--overwrite replaces it)" : "");
    return kWrongUsage;
}

std::variant<Options, Ending> parseCommandLine(const QStringList& words) {
    return CommandLine().parse(words);
}

}  // namespace Orvo::Manager
