#include "Orvo/window/spoken/measures.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvo::Window {

namespace {

constexpr std::array kPrefixes{"n", "µ", "m", "", "k", "M", "G"};
constexpr int kPlain = 3;  // the place of no prefix

}  // namespace

QString inVolts(double volts) {
    const double rounded = std::round(10 * volts) / 10;
    return QString::number(rounded == 0 ? 0 : rounded, 'f', 1) + " V";
}

QString withUnit(double value, const QString& unit) {
    if (value == 0) return "0 " + unit;
    const int thousands = int(std::floor(std::log10(std::abs(value)) / 3));
    const int prefix = std::clamp(thousands + kPlain, 0, int(kPrefixes.size()) - 1);
    const double number = value / std::pow(1000, prefix - kPlain);
    const int digitsBefore = std::abs(number) < 9.995 ? 1 : std::abs(number) < 99.95 ? 2 : 3;
    return QString::number(number, 'f', 3 - digitsBefore) + ' ' +
           QString::fromUtf8(kPrefixes[std::size_t(prefix)]) + unit;
}

}  // namespace Orvo::Window
