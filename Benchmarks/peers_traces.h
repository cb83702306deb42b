#pragma once

#include <memory>
#include <vector>

#include <QSize>

#include "Orvo/values/integer_array.h"
#include "row.h"

// What becomes of a trace elsewhere.
namespace Orvo::Benchmarks {

/// Draws traces of samples from 0 to 255, or does a part of it.
class Tracer {
public:
    virtual ~Tracer() = default;
    virtual void trace(const IntegerArray& samples) = 0;
};

enum class Wave { sine, noise };

/// Traces by turns two waves of that many samples, which are the same but for their phase.
using MakeTracer = std::function<std::unique_ptr<Tracer>()>;
Contender tracing(Wave wave, int count, const MakeTracer& make);

/// The share of a core that this takes at 60 traces a second, in percent, with what the event loop
/// then does.
Contender tracingAllTheTime(Wave wave, int count, const MakeTracer& make);

/// A painter's line for each segment, into a picture of that size.
std::unique_ptr<Tracer> makeLineDrawer(QSize size);

/// A virtual call for each segment, which writes it down.
std::unique_ptr<Tracer> makeSegmentRecorder();

/// The floor: the samples are copied, and their least and greatest found where a picture needs
/// them.
std::unique_ptr<Tracer> makeCopier();
std::unique_ptr<Tracer> makeScanningCopier();

/// A QCustomPlot that is replotted into its buffer, or four in a window that is repainted 60 times
/// a second; none when this was built without it.
std::vector<Rival> plotting(Wave wave, int count, QSize size, Limits limits);
std::vector<Rival> fourPlots(Wave wave, int count, QSize size, Limits limits);

}  // namespace Orvo::Benchmarks
