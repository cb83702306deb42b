#include <algorithm>
#include <cmath>
#include <sstream>

#include "page.h"
#include "report.h"

namespace Orvo::Benchmarks {
namespace {

constexpr int kLine = 18;  // pixels
constexpr int kTop = 24;
constexpr int kLabels = 560;
constexpr int kDecade = 70;
constexpr int kDecades = 3;  // to either side; what is beyond ends there
constexpr int kOne = kLabels + kDecades * kDecade;
constexpr int kWidth = kOne + kDecades * kDecade + 20;

double across(double ratio) {
    return kOne + kDecade * std::clamp(std::log10(ratio), double(-kDecades), double(kDecades));
}

void drawGrid(std::ostream& out, int height) {
    for (int decade = -kDecades; decade <= kDecades; ++decade) {
        const int x = kOne + decade * kDecade;
        const int power = int(std::lround(std::pow(10, std::abs(decade))));
        const char* side = decade < 0 ? "x less" : "x";
        out << "<line x1='" << x << "' x2='" << x << "' y1='" << kTop << "' y2='" << height
            << "' stroke='" << (decade == 0 ? "#444" : "#ddd") << "'/>\n<text x='" << x
            << "' y='16' text-anchor='middle'>" << power << side << "</text>\n";
    }
}

const char* colourOf(const std::string& verdict) {
    if (verdict.empty()) return "#aaa";
    return verdict == "missed" ? "#c8553d" : "#3b8ea5";
}

void drawBar(std::ostream& out, const Result& result, const Compared& compared, int y) {
    const double end = across(compared.ratio);
    out << "<text x='8' y='" << y + 13 << "'>" << result.row->measure << " / "
        << compared.rival->name << "</text>\n<rect x='" << std::min(end, double(kOne)) << "' y='"
        << y + 3 << "' width='" << std::abs(end - kOne) << "' height='12' fill='"
        << colourOf(verdict(compared)) << "'/>\n";
    if (compared.rival->limits.must == Limits::kNone) return;
    const double must = across(compared.rival->limits.must);
    out << "<line x1='" << must << "' x2='" << must << "' y1='" << y + 1 << "' y2='" << y + 17
        << "' stroke='black' stroke-width='2'/>\n";
}

}  // namespace

std::string chart(const std::vector<Result>& results, Role role) {
    std::ostringstream bars;
    int y = kTop;
    for (const Result& result : results) {
        for (const Compared& compared : result.rivals) {
            if (compared.rival->role != role) continue;
            drawBar(bars, result, compared, y);
            y += kLine;
        }
    }
    std::ostringstream out;
    out << "<svg xmlns='http://www.w3.org/2000/svg' width='" << kWidth << "' height='" << y + 8
        << "' font-family='sans-serif' font-size='11'>\n<rect width='100%' height='100%' "
           "fill='white'/>\n";
    drawGrid(out, y);
    out << bars.str() << "</svg>\n";
    return out.str();
}

}  // namespace Orvo::Benchmarks
