#include "report.h"

#include <array>
#include <cstdio>
#include <span>

namespace Orvo::Benchmarks {
namespace {

struct Scale {
    double below;
    double one;
    const char* name;
};

constexpr auto kTimes = std::to_array<Scale>(
    {{1e3, 1, "ns"}, {1e6, 1e3, "us"}, {1e9, 1e6, "ms"}, {Limits::kNone, 1e9, "s"}});
constexpr auto kSizes =
    std::to_array<Scale>({{1e3, 1, "B"}, {1e6, 1e3, "KB"}, {Limits::kNone, 1e6, "MB"}});
constexpr auto kShares = std::to_array<Scale>({{Limits::kNone, 1, "%"}});

std::span<const Scale> scalesOf(Unit unit) {
    if (unit == Unit::percent) return kShares;
    return unit == Unit::bytes ? std::span<const Scale>(kSizes) : kTimes;
}

template <class... Arguments>
std::string format(const char* pattern, Arguments... arguments) {
    std::array<char, 200> line{};
    std::snprintf(line.data(), line.size(), pattern, arguments...);
    return line.data();
}

// Three digits are as much as two runs agree on.
std::string rounded(double number) {
    const int decimals = number >= 100 ? 0 : number >= 10 ? 1 : 2;
    return format("%.*f", decimals, number);
}

}  // namespace

std::string figureText(Unit unit, double figure) {
    const auto scales = scalesOf(unit);
    std::size_t i = 0;
    while (figure >= scales[i].below) ++i;
    return rounded(figure / scales[i].one) + " " + scales[i].name;
}

std::string ratioText(double ratio) {
    if (ratio == Limits::kNone) return "";
    return ratio < 1 ? rounded(1 / ratio) + "x less" : rounded(ratio) + "x";
}

std::string verdict(const Compared& compared) {
    const Limits& limits = compared.rival->limits;
    if (limits.must == Limits::kNone && limits.aim == Limits::kNone) return "";
    if (limits.aim != Limits::kNone && compared.ratio <= limits.aim) return "aim";
    return limits.must != Limits::kNone && compared.ratio <= limits.must ? "met" : "missed";
}

std::string text(const Result& result) {
    const Row& row = *result.row;
    std::string text =
        format("%-52s %9s\n", row.measure.c_str(), figureText(row.unit, result.ours).c_str());
    for (const Compared& compared : result.rivals) {
        const auto& [must, aim, gate] = compared.rival->limits;
        text += format("    %-48s %9s   %-11s  must %-10s aim %-10s gate %-10s %s\n",
                       compared.rival->name.c_str(), figureText(row.unit, compared.figure).c_str(),
                       ratioText(compared.ratio).c_str(), ratioText(must).c_str(),
                       ratioText(aim).c_str(), ratioText(gate).c_str(), verdict(compared).c_str());
    }
    return text;
}

std::string failedGates(const Result& result) {
    std::string text;
    for (const Compared& compared : result.rivals) {
        const double gate = compared.rival->limits.gate;
        if (compared.ratio <= gate) continue;
        text += format("FAILED: %s: %s beside %s; at most %s\n", result.row->measure.c_str(),
                       ratioText(compared.ratio).c_str(), compared.rival->name.c_str(),
                       ratioText(gate).c_str());
    }
    return text;
}

}  // namespace Orvo::Benchmarks
