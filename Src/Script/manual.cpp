#include "Script/manual.h"

#include <algorithm>
#include <cctype>

#include "Orvo/version.h"
#include "Script/script_runner.h"

namespace Orvo::Script {
namespace {

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

// As the formatter takes it: a dash that may be copied, and no line that is taken for a request.
std::string roff(std::string_view text) {
    std::string escaped = replaced(replaced(std::string(text), "\\", "\\e"), "-", "\\-");
    return escaped.starts_with('.') || escaped.starts_with('\'') ? "\\&" + escaped : escaped;
}

std::string tagged(const std::string& tag, std::string_view text) {
    return ".TP\n" + tag + '\n' + roff(text) + '\n';
}

std::string bold(std::string_view text) { return "\\fB" + roff(text) + "\\fR"; }

std::string section(std::string_view title) { return ".SH " + std::string(title) + '\n'; }

std::string manPage(const Manual& manual) {
    std::string page = ".TH " + upper(roff(manual.program)) +
                       " 1 \"\" \"Orvo " ORVO_VERSION "\"\n" + section("NAME") +
                       roff(manual.program) + " \\- " + roff(manual.purpose) + '\n' +
                       section("SYNOPSIS") + bold(manual.program) + " [\\fIOPTION\\fR]... " +
                       roff(manual.operands) + '\n' + section("DESCRIPTION");
    for (const std::string& paragraph : manual.description)
        page += ".PP\n" + roff(paragraph) + '\n';
    page += section("OPTIONS");
    for (const ManualOption& option : manual.options) {
        std::string tag;
        for (const std::string& name : option.names) tag += (tag.empty() ? "" : ", ") + bold(name);
        if (!option.value.empty()) tag += "=\\fI" + roff(option.value) + "\\fR";
        page += tagged(tag, option.text);
    }
    if (!manual.keys.empty()) page += section("KEYS");
    std::string_view group;
    for (const ManualKey& key : manual.keys) {
        if (key.group != group) page += ".SS " + roff(key.group) + '\n';
        group = key.group;
        page += tagged(bold(key.keys), key.what);
    }
    page += section("EXIT STATUS");
    for (const auto& [status, text] : kStatusTexts) {
        page += tagged(bold(std::to_string(status)), text);
    }
    page += section("SEE ALSO");
    for (const std::string& other : manual.seeAlso) {
        const auto bracket = other.find('(');
        if (&other != &manual.seeAlso.front()) page += ",\n";
        page += bold(other.substr(0, bracket)) + other.substr(bracket);
    }
    return page + '\n';
}

bool takesFile(const ManualOption& option) {
    return option.value.starts_with("FILE") || option.value.starts_with("PATH");
}

std::string functionName(const Manual& manual) { return "_" + replaced(manual.program, "-", "_"); }

std::string bashCompletion(const Manual& manual) {
    std::string all;
    std::string files;
    std::string values;
    for (const ManualOption& option : manual.options) {
        for (const std::string& name : option.names)
            all.append(all.empty() ? "" : " ").append(name);
        if (option.value.empty()) continue;
        std::string& kind = takesFile(option) ? files : values;
        kind.append(kind.empty() ? "" : " | ").append(option.names.back());
    }
    std::string cases;
    if (!files.empty()) cases += "        " + files + ") return ;;\n";
    if (!values.empty()) cases += "        " + values + ") compopt +o default; return ;;\n";
    const std::string function = functionName(manual);
    return "# Completion of " + manual.program + " for bash.\n" + function +
           "() {\n"
           "    local word=$2 before=$3\n"
           "    COMPREPLY=()\n"
           "    case $before in\n" +
           cases +
           "    esac\n"
           "    [[ $word != -* ]] || mapfile -t COMPREPLY < <(compgen -W \"" +
           all + "\" -- \"$word\")\n}\ncomplete -o default -F " + function + ' ' + manual.program +
           '\n';
}

std::string zshCompletion(const Manual& manual) {
    std::string text = "#compdef " + manual.program + "\n_arguments \\\n";
    for (const ManualOption& option : manual.options) {
        std::string what = replaced(replaced(option.text, "'", "'\\''"), "[", "\\[");
        what = replaced(replaced(what, "]", "\\]"), ":", "\\:");
        for (const std::string& name : option.names) {
            text.append("    '").append(name).append(option.value.empty() ? "[" : "=[");
            text.append(what).append("]");
            if (!option.value.empty()) {
                text.append(":").append(option.value).append(takesFile(option) ? ":_files" : ": ");
            }
            text.append("' \\\n");
        }
    }
    return text + "    '*:file:_files'\n";
}

std::string fishCompletion(const Manual& manual) {
    std::string text;
    for (const ManualOption& option : manual.options) {
        text += "complete -c " + manual.program;
        for (const std::string& name : option.names) {
            text += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
        }
        if (!option.value.empty()) text += takesFile(option) ? " -r -F" : " -x";
        text += " -d '" + replaced(replaced(option.text, "\\", "\\\\"), "'", "\\'") + "'\n";
    }
    return text;
}

}  // namespace

std::string manualAs(std::string_view form, const Manual& manual) {
    if (form == "man") return manPage(manual);
    if (form == "bash") return bashCompletion(manual);
    if (form == "zsh") return zshCompletion(manual);
    if (form == "fish") return fishCompletion(manual);
    return {};
}

}  // namespace Orvo::Script
