#pragma once

#include <optional>
#include <span>

#include "Orvo/export.h"
#include "Orvo/values/types.h"

namespace Orvo {

/// What the samples of a trace stand for: volts = atZero + perCount * sample. More counts are
/// lower.
struct SampleScale {
    double atZero = 0;
    double perCount = 1;

    [[nodiscard]] constexpr double volts(double sample) const { return atZero + perCount * sample; }
};

/// The scale of a surface of this height in pixels, as its grid has it.
ORVO_OWN_EXPORT SampleScale sampleScale(float height);

/// What somebody reads off the n samples x of a trace, in volts:
///
///     peak to peak  max(x) - min(x)
///     peak          max(|x|)
///     mean          sum(x) / n
///     RMS           sqrt(sum(x * x) / n)
///     period        (last crossing - first crossing) / (crossings - 1), in samples
///
/// The crossings are those of the middle, (max(x) + min(x)) / 2, upwards, where the straight line
/// between two samples meets it; one counts when the wave comes to it from a quarter of peak to
/// peak below and goes on to a quarter above. There is no period with fewer than two of them, nor
/// when one lies a fifth of a period or more off its place. Where there is a period, mean and RMS
/// are of as many whole ones as there are samples for, from the first sample on.
struct WaveFigures {
    double least = 0;
    double greatest = 0;
    double mean = 0;
    double rms = 0;
    std::optional<double> period;
    bool isSignal = false;  ///< peak to peak is 3 counts or more: less may be noise

    [[nodiscard]] double peakToPeak() const { return greatest - least; }
    [[nodiscard]] ORVO_OWN_EXPORT double peak() const;
};

/// None without samples.
ORVO_OWN_EXPORT std::optional<WaveFigures> waveFigures(std::span<const Integer> samples,
                                                       const SampleScale& scale);

}  // namespace Orvo
