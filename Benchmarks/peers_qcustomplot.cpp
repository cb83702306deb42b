#include "peers_traces.h"

#ifdef ORVO_BENCHMARKS_QCUSTOMPLOT
#include <qcustomplot.h>

namespace Orvo::Benchmarks {
namespace {

// As cheap as it gets: nothing is smoothed, and of the axes there is the grid alone.
class Plot final : public QCustomPlot {
public:
    explicit Plot(QSize size, QWidget* parent = nullptr) : QCustomPlot(parent) {
        resize(size);
        setBackground(QBrush(Qt::black));
        setNotAntialiasedElements(QCP::aeAll);
        setPlottingHints(QCP::phCacheLabels);
        for (QCPAxis* axis : {xAxis, yAxis}) {
            axis->setTicks(false);
            axis->setTickLabels(false);
        }
        addGraph()->setPen(QPen(Qt::green, 0));
        yAxis->setRange(0, 255);
    }

    void show(const IntegerArray& samples) {
        const auto values = samples.elements();
        QVector<QCPGraphData> points;
        points.reserve(qsizetype(values.size()));
        for (const Integer value : values) {
            points.append(QCPGraphData(double(points.size()), double(value)));
        }
        xAxis->setRange(0, double(points.size()));
        graph(0)->data()->set(points, true);
    }
};

class OnePlot final : public Tracer {
public:
    // It takes its size when it is shown.
    explicit OnePlot(QSize size) : plot_(size) { plot_.QWidget::show(); }

    void trace(const IntegerArray& samples) override {
        plot_.show(samples);
        plot_.replot();
    }

private:
    Plot plot_;
};

class FourPlots final : public Tracer {
public:
    explicit FourPlots(QSize size) {
        for (int i = 0; i < 4; ++i) {
            plots_.push_back(new Plot(size, &window_));
            plots_.back()->move(0, i * size.height());
        }
        window_.show();
    }

    void trace(const IntegerArray& samples) override {
        for (Plot* plot : plots_) {
            plot->show(samples);
            plot->replot(QCustomPlot::rpQueuedReplot);
        }
    }

private:
    QWidget window_;
    std::vector<Plot*> plots_;
};

}  // namespace

std::vector<Rival> plotting(Wave wave, int count, QSize size, Limits limits) {
    const auto make = [size] { return std::make_unique<OnePlot>(size); };
    return {{Role::peer, "QCustomPlot, to its buffer", tracing(wave, count, make), limits}};
}

std::vector<Rival> fourPlots(Wave wave, int count, QSize size, Limits limits) {
    const auto make = [size] { return std::make_unique<FourPlots>(size); };
    return {{Role::peer, "four QCustomPlots", tracingAllTheTime(wave, count, make), limits}};
}

}  // namespace Orvo::Benchmarks

#else

namespace Orvo::Benchmarks {

std::vector<Rival> plotting(Wave, int, QSize, Limits) { return {}; }
std::vector<Rival> fourPlots(Wave, int, QSize, Limits) { return {}; }

}  // namespace Orvo::Benchmarks

#endif
