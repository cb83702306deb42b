#include <cstdio>
#include <cstdlib>
#include <string_view>

#include <QApplication>

#include "Manager/Window/platform.h"
#include "page.h"
#include "processes.h"
#include "report.h"
#include "runner.h"

namespace Orvo::Benchmarks {
namespace {

constexpr auto kHelp =
    "orvo-benchmarks [TEXT]       measures the rows that have the text in their names\n"
    "orvo-benchmarks --gates      only what must not fail anywhere; status 1 when it does\n"
    "orvo-benchmarks --page FILE  all of it, written to the file as a page with charts beside it\n";

std::vector<Row> allRows() {
    std::vector<Row> all;
    for (const auto rows : {traceRows, callRows, panelRows, paintRows, programRows}) {
        for (Row& row : rows()) all.push_back(std::move(row));
    }
    return all;
}

std::vector<Result> measureAll(const std::vector<Row>& rows, Effort effort,
                               std::string_view pattern = "") {
    std::vector<Result> results;
    for (const Row& row : rows) {
        if (row.measure.find(pattern) == std::string::npos) continue;
        results.push_back(measureRow(row, effort));
        std::fputs(text(results.back()).c_str(), stdout);
        std::fflush(stdout);
    }
    return results;
}

int checkGates() {
    const std::vector<Row> rows = gated(allRows());
    std::string failed;
    for (const Result& result : measureAll(rows, {.rounds = 5, .seconds = 1})) {
        failed += failedGates(result);
    }
    std::fputs(failed.c_str(), stderr);
    return failed.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

int run(std::string_view mode, std::string_view argument) {
    if (mode == kFirstPicture) return showFirstPicture(argument);
    if (mode == "--gates") return checkGates();
    const bool isPage = mode == "--page" && !argument.empty();
    if (mode.starts_with("--") && !isPage) {
        std::fputs(kHelp, stderr);
        return 2;
    }
    const std::vector<Row> rows = allRows();
    const auto results = measureAll(rows, Effort{}, isPage ? "" : mode);
    if (isPage) writePage(std::string(argument), results);
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace Orvo::Benchmarks

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Orvo::Manager::choosePlatform();
    const QApplication application(argc, argv);
    return Orvo::Benchmarks::run(argc > 1 ? argv[1] : "", argc > 2 ? argv[2] : "");
}
