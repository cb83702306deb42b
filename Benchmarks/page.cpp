#include "page.h"

#include <filesystem>
#include <fstream>
#include <thread>

#include <QString>
#include <QSysInfo>

#include "report.h"

namespace Orvo::Benchmarks {
namespace {

constexpr auto kHead = R"(# Speed, beside others

Written by `Tools/benchmark`; don't edit. Each figure is the least of many rounds, in which we and our
rivals take turns, in processor time of the whole process. The figures belong to one machine, and to
the library as it was when this page was last written; what counts are the ratios, ours to theirs.
"7x less" is good, "7x" is not.

)";

constexpr auto kMiddle = R"(
A *peer* does the same job in the usual way. A *floor* is what nobody can do without, such as reading
the samples. A *limit* is a figure. A scope's picture is what its window paints. Behind a row of
`marvane-manager` is the simulated amplifier, with a tone on two channels and its programme on the
others.

In the charts a bar to the left is less than the rival needs, one to the right is more. The stroke is
where it must end; red hasn't got there, and nothing is asked of what is grey.

![Beside peers](FILE-peers.svg)

![Above floors](FILE-floors.svg)

| measure | ours | rival | | theirs | ratio | must | aim | |
| --- | ---: | --- | --- | ---: | ---: | ---: | ---: | --- |
)";

std::string machine() {
    return "Measured on " + std::to_string(std::thread::hardware_concurrency()) + " cores (" +
           QSysInfo::currentCpuArchitecture().toStdString() + "), " ORVO_BENCHMARKS_COMPILER +
           ", Qt " + qVersion() + ", drawn offscreen.\n";
}

std::string nameOf(Role role) {
    if (role == Role::limit) return "limit";
    return role == Role::peer ? "peer" : "floor";
}

std::string tableRows(const Result& result) {
    std::string text;
    const Row& row = *result.row;
    for (const Compared& compared : result.rivals) {
        const Rival& rival = *compared.rival;
        const bool isFirst = text.empty();
        const auto cells = {isFirst ? row.measure : "",
                            isFirst ? figureText(row.unit, result.ours) : "",
                            rival.name,
                            nameOf(rival.role),
                            figureText(row.unit, compared.figure),
                            ratioText(compared.ratio),
                            ratioText(rival.limits.must),
                            ratioText(rival.limits.aim),
                            verdict(compared)};
        for (const std::string& cell : cells) text += "| " + cell + " ";
        text += "|\n";
    }
    return text;
}

void write(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream;
    stream.exceptions(std::ios::failbit | std::ios::badbit);
    stream.open(file);
    stream << text;
    stream.close();
}

}  // namespace

void writePage(const std::string& file, const std::vector<Result>& results) {
    const std::filesystem::path page(file);
    const std::string stem = page.stem().string();
    std::string middle = kMiddle;
    for (const char* place = "FILE"; middle.find(place) != std::string::npos;) {
        middle.replace(middle.find(place), 4, stem);
    }
    std::string text = kHead + machine() + middle;
    for (const Result& result : results) text += tableRows(result);
    write(page, text);
    write(page.parent_path() / (stem + "-peers.svg"), chart(results, Role::peer));
    write(page.parent_path() / (stem + "-floors.svg"), chart(results, Role::floor));
}

}  // namespace Orvo::Benchmarks
