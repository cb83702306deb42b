#include "Manager/Scope/scope_window.h"

#include <cmath>
#include <numbers>

#include <QApplication>
#include <QComboBox>
#include <QTest>

#include "Manager/Scope/readings.h"
#include "Support/owned_panel.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

/// Says of the first two channels how far apart their samples are: 100 µs and 1 ms.
class Scoped final : public Device {
public:
    [[nodiscard]] std::string name() const override { return "Amplifier"; }
    void advance(std::chrono::milliseconds elapsed) override { silence_ += elapsed; }
    [[nodiscard]] std::optional<std::chrono::milliseconds> sinceLastWord() const override {
        return silence_;
    }
    [[nodiscard]] std::optional<double> sampleInterval(Integer channel) const override {
        return channel <= 2 ? std::optional(channel == 1 ? 1e-4 : 1e-3) : std::nullopt;
    }

private:
    std::chrono::milliseconds silence_{0};
};

class ScopeWindowTest : public Tests::OwnedPanel {
protected:
    ScopeWindowTest() {
        station_.connect([] { return std::make_unique<Scoped>(); });
        station_.advance(1s);
        window_.resize(900, 600);
        window_.show();
        window_.activateWindow();
        if (!QTest::qWaitForWindowActive(&window_)) ADD_FAILURE() << "the window stays inactive";
    }

    // 60 V of amplitude, 20 samples a period.
    void draw(Integer channel, int count = 241) {
        std::vector<Integer> samples(std::size_t(count), 0);
        for (std::size_t i = 0; i < samples.size(); ++i) {
            const double sine = std::sin(double(i) * std::numbers::pi / 10);
            samples[i] = Integer(std::lround(134 - 50 * sine));
        }
        panel().DisegnaFormaDOnda(channel, {1, samples});
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&window_, Qt::Key(key), modifiers);
    }
    void onPlot(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&plot_, Qt::Key(key), modifiers);
    }
    std::string figure(Integer channel, int column) {
        static_cast<void>(window_.picture());  // brings it up to date
        return table_.item(channel - 1, column)->text().toStdString();
    }
    std::string cursors() { return cursorText(plot_.view()).simplified().toStdString(); }

    Station station_{owner_};
    ScopeWindow window_{station_};
    Plot& plot_ = *window_.findChild<Plot*>();
    FiguresTable& table_ = *window_.findChild<FiguresTable*>();
};

TEST_F(ScopeWindowTest, MeasuresEachChannelInTheTimeThatTheDeviceTells) {
    for (Integer channel = 1; channel < kChannels; ++channel) draw(channel);
    const char* const kFrequencies[] = {"500 Hz", "50.0 Hz", "1 in 20.0 samples", "–"};
    const char* const kDivisions[] = {"2.40 ms", "24.0 ms", "24.0 samples", "–"};
    for (Integer channel = 1; channel <= kChannels; ++channel) {
        SCOPED_TRACE(channel);
        EXPECT_EQ(figure(channel, 0), channel == 4 ? "–" : "119.6 V");
        EXPECT_EQ(figure(channel, 3), kFrequencies[channel - 1]);
        EXPECT_EQ(figure(channel, 4), kDivisions[channel - 1]);
    }
    EXPECT_EQ(plot_.accessibleDescription(),
              "Channel 1: 60.0 V peak, 500 Hz. Channel 2: 60.0 V peak, 50.0 Hz. "
              "Channel 3: 60.0 V peak, 1 in 20.0 samples. Channel 4: no signal");
    window_.findChildren<QComboBox*>()[1]->setCurrentText("1.00 ms");
    EXPECT_EQ(figure(3, 3), "1.20 kHz") << "a person who knows the time can say it";
    press(Qt::Key_1);
    EXPECT_EQ(figure(1, 0), "–") << "the channel is off";
}

TEST_F(ScopeWindowTest, CursorsMoveByKeysAndByTheMouse) {
    draw(1);
    window_.refresh();
    press(Qt::Key_T);
    press(Qt::Key_V);
    EXPECT_EQ(cursors(),
              "CH1 T1 4.80 ms T2 14.4 ms Δt 9.60 ms 1/Δt 104 Hz "
              "V1 60.0 V V2 -60.0 V ΔV 120.0 V");
    onPlot(Qt::Key_Right, Qt::ShiftModifier);
    onPlot(Qt::Key_Down);
    onPlot(Qt::Key_Space);
    onPlot(Qt::Key_Up, Qt::ControlModifier);
    for (int i = 0; i < 9; ++i) onPlot(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(cursors(),
              "CH1 T1 7.20 ms T2 24.0 ms Δt 16.8 ms 1/Δt 59.5 Hz "
              "V1 57.0 V V2 -59.7 V ΔV 116.7 V")
        << "and stays within the plot";
    press(Qt::Key_V);
    const PlotGeometry places = plot_.places();
    const auto at = [&](double share) {
        return QPoint(qRound(places.x(share)), qRound(places.area().center().y()));
    };
    QTest::mousePress(&plot_, Qt::LeftButton, {}, at(0.3));
    QTest::mouseMove(&plot_, at(0.5));
    QTest::mouseRelease(&plot_, Qt::LeftButton, {}, at(0.5));
    EXPECT_NEAR(plot_.view().cursors.shares[0], 0.5, 0.002);
}

TEST_F(ScopeWindowTest, SaysWhatIsHeldAndWhatIsOld) {
    draw(1);
    window_.refresh();
    press(Qt::Key_H);
    draw(1, 21);
    window_.refresh();
    EXPECT_EQ(plot_.view().traces[0].drawn().size(), 241U);
    EXPECT_TRUE(plot_.view().note.startsWith("Held since "));
    press(Qt::Key_H);
    window_.refresh();
    EXPECT_EQ(plot_.view().traces[0].drawn().size(), 21U);
    EXPECT_EQ(plot_.view().note, "");
    const QImage live = plot_.grab().toImage();
    station_.advance(kStaleAfter);
    window_.refresh();
    EXPECT_TRUE(plot_.view().note.startsWith("Old values, held since "));
    EXPECT_TRUE(window_.windowTitle().startsWith("Old values"));
    EXPECT_NE(plot_.grab().toImage(), live);
}

TEST_F(ScopeWindowTest, RestsWhileNothingIsNew) {
    draw(1);
    window_.refresh();
    QApplication::processEvents();
    struct Paints final : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    } paints;
    plot_.installEventFilter(&paints);
    QTest::qWait(200);
    EXPECT_EQ(paints.count, 0);
    for (int i = 0; i < 40; ++i) {
        draw(1, 20 + i);
        QTest::qWait(5);
    }
    EXPECT_GT(paints.count, 1);
    EXPECT_LT(paints.count, 40) << "the eye sees no more than 30 a second";
}

TEST(PlotGeometryTest, ADenseTraceIsItsLeastAndGreatestOfEachColumn) {
    const PlotGeometry geometry({0, 0, 100, 80}, PlotView{});
    std::vector<Integer> samples(32767, 134);
    samples[20000] = 9;
    const QPolygonF line = geometry.line(0, samples);
    EXPECT_EQ(line.size(), 200);
    EXPECT_NEAR(line.boundingRect().top(), geometry.y(0, scopeScale().volts(9)), 1e-9);
    EXPECT_NEAR(line.boundingRect().width(), 99, 1e-9);
    EXPECT_EQ(geometry.line(0, std::vector<Integer>{134}).size(), 1);
}

TEST(PlotGeometryTest, TagsKeepApartAndAboveTheBottom) {
    using Places = std::vector<double>;
    EXPECT_EQ(spreadOut({10, 11, 50}, 20, 100), Places({10, 30, 50}));
    EXPECT_EQ(spreadOut({90, 95, 99}, 20, 100), Places({60, 80, 100}));
}

}  // namespace
}  // namespace Orvo::Manager
