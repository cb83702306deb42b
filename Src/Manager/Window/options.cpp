#include "Manager/Window/options.h"

#include <limits>
#include <system_error>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include "Manager/Window/files.h"
#include "Manager/Window/zoom_area.h"
#include "Orvo/layout/common_tab.h"
#include "Script/program.h"
#include "Script/text_of.h"

namespace Orvo::Manager {
namespace {

// A value that isn't what it should be.
struct Refused {
    QString reason;
};

class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(Orvo::Manager::CommandLine)

public:
    CommandLine() {
        parser_.setApplicationDescription(
            tr("Shows the front panel of a four-channel power amplifier, and a simulated amplifier "
               "behind it."));
        parser_.addOptions(options_);
    }

    std::variant<Options, Ending> parse(const QStringList& words);
    [[nodiscard]] Script::Manual manual() const;

private:
    [[nodiscard]] Options options() const;
    [[nodiscard]] SessionSettings sessionSettings() const;
    template <class Number>
    [[nodiscard]] Number numberOf(const QCommandLineOption& option, Number lowest,
                                  Number highest) const;
    template <class Number>
    [[nodiscard]] std::optional<Number> numberIfGiven(const QCommandLineOption& option,
                                                      Number lowest, Number highest) const;
    void refuseBoth(const QCommandLineOption& one, const QCommandLineOption& other) const;
    [[nodiscard]] std::optional<LinkAddress> linkAddress() const;
    [[nodiscard]] QString fileOf(const QCommandLineOption& option) const;
    [[nodiscard]] QString helpText() const;

    const QCommandLineOption help_{{"h", "help"}, tr("Shows this help and ends.")};
    const QCommandLineOption version_{{"v", "version"}, tr("Shows the version and ends.")};
    const QCommandLineOption simulate_{
        "simulate",
        tr("Connects the simulated amplifier, which is the default. The same seed gives the same "
           "life; it is 1 unless given."),
        tr("SEED"), "1"};
    const QCommandLineOption zoom_{
        "zoom",
        tr("The panel's size in percent, %1 to %2; else it fits the window, and in a script it "
           "is %3.")
            .arg(kSmallestZoom)
            .arg(kLargestZoom)
            .arg(kPlainZoom),
        tr("PERCENT")};
    const QCommandLineOption tab_{
        "tab", tr("The tab in front: 1 is Common, 2 is Ch1 + Ch2, 3 is Ch3 + Ch4."), tr("NUMBER")};
    const QCommandLineOption readOnly_{"read-only",
                                       tr("Shows everything, changes nothing on the amplifier.")};
    const QCommandLineOption fullScreen_{"fullscreen", tr("Fills the screen.")};
    const QCommandLineOption reset_{
        "reset",
        tr("Forgets the window's place and size, zoom, tab, view and link of the last time.")};
    const QCommandLineOption script_{
        "script",
        tr("Runs panel script from the file, \"-\" being standard input, and ends with it. The "
           "script plays the amplifier too: only --zoom, --keep-going and --overwrite go with it."),
        tr("FILE")};
    const QCommandLineOption keepGoing_{
        "keep-going", tr("Goes on after a command of the script that was not understood.")};
    const QCommandLineOption record_{
        "record",
        tr("Writes to the file, as panel script, what the amplifier and the person do to the "
           "panel. Traces on all four scopes make about 250 MB an hour."),
        tr("FILE")};
    const QCommandLineOption recordAnswers_{
        "record-answers",
        tr("Records what is typed at the panel's prompts, passwords included; else all of them are "
           "recorded as cancelled.")};
    const QCommandLineOption overwrite_{
        "overwrite",
        tr("Overwrites files that are there already, with --record and where a script takes a "
           "picture; else they are refused.")};
    const QCommandLineOption link_{
        "link",
        tr("Connects what is at the other end of a serial device, a pseudo-terminal, a pipe or a "
           "local socket instead of the simulator. It sends the host's commands of panel script "
           "and is answered, except on a pipe. A serial device's speed follows it, and if it "
           "isn't 8N1 its format: /dev/ttyUSB0@115200,8E1."),
        tr("PATH[@SPEED]")};
    const QCommandLineOption generate_{
        "generate",
        tr("Shows the manual page, or what a shell needs to complete this command line, and ends: "
           "%1.")
            .arg(Script::kManualForms),
        tr("FORM")};
    const QList<QCommandLineOption> options_{
        help_,   version_,   simulate_, zoom_,          tab_,       readOnly_, fullScreen_, reset_,
        script_, keepGoing_, record_,   recordAnswers_, overwrite_, link_,     generate_};
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
    const QString line = QString::fromStdString(Script::onOneLine(reason.toStdString()));
    return {kWrongUsage,
            program + ": " + line + '\n' + CommandLine::tr("Try \"%1 --help\".").arg(program)};
}

std::variant<Options, Ending> CommandLine::parse(const QStringList& words) {
    if (!parser_.parse(withSeed(words))) return wrongUsage(parser_.errorText());
    if (parser_.isSet(help_)) return Ending{0, helpText()};
    if (parser_.isSet(version_)) {
        return Ending{
            0, QCoreApplication::applicationName() + ' ' + QCoreApplication::applicationVersion()};
    }
    if (parser_.isSet(generate_)) return Options{.form = parser_.value(generate_)};
    const QStringList loose = parser_.positionalArguments();
    if (!loose.isEmpty()) {
        return wrongUsage(
            tr("\"%1\" is not expected here. Options begin with \"--\", and a seed is written "
               "--simulate=7.")
                .arg(loose.first()));
    }
    try {
        return options();
    } catch (const Refused& refused) {
        return wrongUsage(refused.reason);
    }
}

Options CommandLine::options() const {
    constexpr int kTabs = int(Layout::kTabCaptions.size());
    for (const QCommandLineOption* other : {&record_, &link_, &simulate_, &reset_}) {
        refuseBoth(script_, *other);
    }
    refuseBoth(link_, simulate_);
    return {.zoom = numberIfGiven(zoom_, kSmallestZoom, kLargestZoom),
            .tab = numberIfGiven(tab_, 1, kTabs),
            .forgets = parser_.isSet(reset_),
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
    throw Refused{
        tr("%1 takes a whole number from %2 to %3, not \"%4\".")
            .arg(nameOf(option), QString::number(lowest), QString::number(highest), text)};
}

template <class Number>
std::optional<Number> CommandLine::numberIfGiven(const QCommandLineOption& option, Number lowest,
                                                 Number highest) const {
    if (!parser_.isSet(option)) return std::nullopt;
    return numberOf(option, lowest, highest);
}

void CommandLine::refuseBoth(const QCommandLineOption& one, const QCommandLineOption& other) const {
    if (!parser_.isSet(one) || !parser_.isSet(other)) return;
    throw Refused{tr("%1 and %2 exclude one another.").arg(nameOf(one), nameOf(other))};
}

std::optional<LinkAddress> CommandLine::linkAddress() const {
    if (!parser_.isSet(link_)) return std::nullopt;
    auto address = LinkAddress::read(nativeName(parser_.value(link_)));
    if (address) return address;
    throw Refused{tr("--link takes %1, not \"%2\".").arg(linkAddressRule(), parser_.value(link_))};
}

QString CommandLine::fileOf(const QCommandLineOption& option) const {
    if (parser_.isSet(option) && parser_.value(option).isEmpty()) {
        throw Refused{tr("%1 takes the name of a file.").arg(nameOf(option))};
    }
    return parser_.value(option);
}

QString CommandLine::helpText() const {
    QString text = parser_.helpText();
    text.replace(QString("--simulate <%1>").arg(simulate_.valueName()),
                 QString("--simulate[=%1]").arg(simulate_.valueName()));
    text.replace(QCoreApplication::arguments().first(), QCoreApplication::applicationName());
    return text.trimmed();
}

Script::Manual CommandLine::manual() const {
    Script::Manual manual{.program = QCoreApplication::applicationName().toStdString(),
                          .purpose = "front panel of a four-channel power amplifier",
                          .operands = "",
                          .description = {parser_.applicationDescription().toStdString()},
                          .options = {},
                          .keys = {},
                          .seeAlso = {"orvo-console(1)"}};
    for (const QCommandLineOption& option : options_) {
        std::vector<std::string> names;
        for (const QString& name : option.names()) {
            names.push_back((name.size() == 1 ? "-" : "--") + name.toStdString());
        }
        manual.options.push_back(
            {names, option.valueName().toStdString(), option.description().toStdString()});
    }
    return manual;
}

}  // namespace

Script::Manual manualOfOptions() { return CommandLine().manual(); }

QString linkAddressRule() {
    return CommandLine::tr(
        "a path, for a serial device also with a speed from 50 to 4000000 and a format, such as "
        "/dev/ttyUSB0@9600,8E1");
}

int complain(const std::exception& failure) {
    const auto* reason = dynamic_cast<const std::system_error*>(&failure);
    const bool isThere = reason != nullptr && reason->code() == std::errc::file_exists;
    Script::complain(std::string("marvane-manager: ") + failure.what() +
                     (isThere ? CommandLine::tr(" (--overwrite replaces it)").toStdString() : ""));
    return kWrongUsage;
}

std::variant<Options, Ending> parseCommandLine(const QStringList& words) {
    return CommandLine().parse(words);
}

}  // namespace Orvo::Manager
