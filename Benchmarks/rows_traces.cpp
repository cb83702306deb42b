#include <QImage>

#include "bench.h"
#include "measure.h"
#include "peers_traces.h"

// A scope's trace, from the host's call to the picture.
namespace Orvo::Benchmarks {
namespace {

constexpr int kMany = 32767;
constexpr int kFew = 1000;

QSize scopeSize() { return placeOf(Layout::channel(1).scope).size(); }

// One scope of a panel, into a picture of its own.
class PanelScope : public Tracer {
public:
    void trace(const IntegerArray& samples) override {
        panel_->panel().DisegnaFormaDOnda(1, samples);
        panel_->flush();
        render();
    }

protected:
    void render() { scope_.render(&picture_); }

private:
    const std::unique_ptr<Window::PanelWidget> panel_ = makePanel(Layout::kFirstPairTab);
    QWidget& scope_ = *panel_->control(Layout::channel(1).scope);
    QImage picture_{scope_.size(), QImage::Format_RGB32};
};

// The floor: the picture of a scope that hasn't changed, and a look at each sample.
class UnchangedScope final : public PanelScope {
public:
    void trace(const IntegerArray& samples) override {
        copier_->trace(samples);
        render();
    }

private:
    const std::unique_ptr<Tracer> copier_ = makeScanningCopier();
};

// Two panels, as each shows two scopes at a time.
class FourScopes : public Tracer {
public:
    void trace(const IntegerArray& samples) override {
        for (const auto& panel : panels_) {
            for (const Integer channel : {Integer{1}, Integer{2}}) {
                panel->panel().DisegnaFormaDOnda(channel, samples);
            }
        }
    }

private:
    const std::array<std::unique_ptr<Window::PanelWidget>, 2> panels_{
        makePanel(Layout::kFirstPairTab), makePanel(Layout::kFirstPairTab)};
};

class IdleScopes final : public FourScopes {
public:
    void trace(const IntegerArray&) override {}
};

class HeadlessScope final : public Tracer {
public:
    void trace(const IntegerArray& samples) override { bench_.panel.DisegnaFormaDOnda(1, samples); }

private:
    Bench bench_;
};

template <class Kind>
std::unique_ptr<Tracer> make() {
    return std::make_unique<Kind>();
}

std::string nameOf(Wave wave) { return wave == Wave::sine ? ", sine" : ", noise"; }

void append(std::vector<Rival>& rivals, std::vector<Rival> more) {
    rivals.insert(rivals.end(), more.begin(), more.end());
}

Row toPicture(Wave wave, Limits againstLines) {
    const auto drawLines = [] { return makeLineDrawer(scopeSize()); };
    Row row{.measure = "a trace of 32,767 samples to picture" + nameOf(wave),
            .ours = tracing(wave, kMany, make<PanelScope>),
            .rivals = {
                {Role::peer, "drawLine a segment", tracing(wave, kMany, drawLines), againstLines},
                {Role::floor,
                 "1,000 samples",
                 tracing(wave, kFew, make<PanelScope>),
                 {.must = times(1.5)}},
                {Role::floor,
                 "samples scanned, scope unchanged",
                 tracing(wave, kMany, make<UnchangedScope>),
                 {.aim = times(2)}}}};
    append(row.rivals, plotting(wave, kMany, scopeSize(), {.must = timesLess(12)}));
    return row;
}

Row fewToPicture(Wave wave) {
    return {
        .measure = "a trace of 1,000 samples to picture" + nameOf(wave),
        .ours = tracing(wave, kFew, make<PanelScope>),
        .rivals = plotting(wave, kFew, scopeSize(), {.must = timesLess(4), .aim = timesLess(6)})};
}

// An idle panel's share is so small that it is its own tolerance that is asked for.
Contender idleAnd(double percent, Wave wave) {
    const Contender idle = tracingAllTheTime(wave, kFew, make<IdleScopes>);
    return [=]() -> Round { return [round = idle(), percent] { return round() + percent; }; };
}

Row four(Wave wave) {
    Row row{
        .measure = "four scopes at 60 Hz, 32,767 samples" + nameOf(wave),
        .unit = Unit::percent,
        .ours = tracingAllTheTime(wave, kMany, make<FourScopes>),
        .rivals = {{Role::floor, "idle windows, and 2 % of a core", idleAnd(2, wave), {.must = 1}},
                   {Role::floor, "idle windows, and 1 %", idleAnd(1, wave), {.aim = 1}}}};
    append(row.rivals,
           fourPlots(wave, kMany, scopeSize(), {.must = timesLess(4.5), .aim = timesLess(6)}));
    return row;
}

Row headless() {
    return {.measure = "a trace of 32,767 samples, no window",
            .ours = tracing(Wave::noise, kMany, make<HeadlessScope>),
            .rivals = {{Role::peer,
                        "a recorded virtual call a segment",
                        tracing(Wave::noise, kMany, makeSegmentRecorder),
                        {.must = timesLess(50)}},
                       {Role::floor,
                        "samples copied",
                        tracing(Wave::noise, kMany, makeCopier),
                        {.must = times(1.5), .gate = times(3)}}}};
}

}  // namespace

std::vector<Row> traceRows() {
    return {toPicture(Wave::sine, {.must = timesLess(190), .gate = timesLess(60)}),
            toPicture(Wave::noise, {.must = timesLess(400), .gate = timesLess(60)}),
            fewToPicture(Wave::sine),
            fewToPicture(Wave::noise),
            four(Wave::sine),
            four(Wave::noise),
            headless()};
}

}  // namespace Orvo::Benchmarks
