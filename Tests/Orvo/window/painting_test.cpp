#include <QAbstractItemView>
#include <QPaintEvent>
#include <QProxyStyle>
#include <QScreen>
#include <QScrollBar>

#include "window_fixture.h"

namespace Orvo::Window {
namespace {

/// Adds up what is painted, in pixels of the front.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& front) : front_(front) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget != nullptr && widget != &front_ &&
            front_.isAncestorOf(widget)) {
            ++events;
            const QRegion& region = static_cast<QPaintEvent*>(event)->region();
            painted += region.translated(widget->mapTo(&front_, QPoint()));
        }
        return false;
    }

    QRegion painted;
    int events = 0;

private:
    QWidget& front_;
};

class AnimatedStyle final : public QProxyStyle {
public:
    explicit AnimatedStyle(int duration) : duration_(duration) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        if (hint == SH_Widget_Animation_Duration) return duration_;
        return QProxyStyle::styleHint(hint, option, widget, more);
    }

private:
    const int duration_;
};

class PaintingTest : public WindowTest {
protected:
    PaintingTest() {
        toTab(1);
        for (int i = 0; i < 5; ++i) QTest::qWait(20);
    }

    /// A trace with so many samples a pixel that all is covered.
    static Widgets::Trace flat(Integer value) {
        return {std::vector<Integer>(1000, value), 1000, 195, 95, rgb(0, 255, 0)};
    }

    QRegion paintedBy(const std::function<void()>& change) {
        PaintWatch watch(front_);
        change();
        QTest::qWait(60);
        return watch.painted;
    }
};

TEST_F(PaintingTest, OnlyWhatChangedAndShowsIsPainted) {
    auto& lamp = store_[pair(1).clockLamp];
    const auto nothing = paintedBy([&] {
        store_[channel(3).volume.places[0]].setDigit(8);
        lamp.setFillStyle(Widgets::FillStyle::transparent);
        store_[pair(1).linkText].setCaption(u"Connected");
    });
    EXPECT_TRUE(nothing.isEmpty());
    const QRect painted =
        paintedBy([&] { lamp.setFillStyle(Widgets::FillStyle::solid); }).boundingRect();
    const QRect place = Scale(1).rect(pair(1).clockLamp);
    EXPECT_TRUE(painted.contains(place));
    EXPECT_TRUE(place.adjusted(-8, -8, 8, 8).contains(painted)) << "the glow, no more";
}

TEST_F(PaintingTest, ManyWritesArePaintedOnce) {
    PaintWatch watch(front_);
    for (int i = 0; i < 10'000; ++i) {
        store_[pair(1).positivePower.places[0]].setDigit(Integer(i % 10));
        store_[channel(1).volumeSlider].setPosition(Integer(i % 30));
    }
    QTest::qWait(60);
    EXPECT_EQ(watch.events, 2) << "the page and the slider";
}

TEST_F(PaintingTest, ALampFadesInWhereTheDesktopAnimates) {
    auto& lamp = store_[pair(1).clockLamp];
    const struct {
        const char* label;
        int duration;
        std::function<void()> then;
        bool fades;
    } kCases[] = {
        {"animated", 100, [] {}, true},
        {"flushed", 100, [&] { front_.flush(); }, false},
        {"not animated", 0, [] {}, false},
    };
    for (const auto& [label, duration, then, fades] : kCases) {
        AnimatedStyle style(duration);
        for (QWidget* child : front_.findChildren<QWidget*>()) child->setStyle(&style);
        lamp.setFillStyle(Widgets::FillStyle::transparent);
        QTest::qWait(60);
        PaintWatch watch(front_);
        lamp.setFillStyle(Widgets::FillStyle::solid);
        then();
        QTest::qWait(250);
        EXPECT_EQ(watch.events > 1, fades) << label;
        watch.events = 0;
        QTest::qWait(100);
        EXPECT_EQ(watch.events, 0) << label << ": nothing goes on";
        for (QWidget* child : front_.findChildren<QWidget*>()) child->setStyle(nullptr);
    }
}

TEST_F(PaintingTest, WhatIsOnTheScreenIsWhatPaintingAllOfItShows) {
    const auto expectAsPaintedAnew = [&](const char* when) {
        settle();
        settle();  // Qt empties a list in two steps
        const QImage shown = front_.screen()->grabWindow(front_.winId()).toImage();
        EXPECT_EQ(shown.convertToFormat(QImage::Format_RGB32),
                  front_.grab().toImage().convertToFormat(QImage::Format_RGB32))
            << when;
    };
    auto& text = store_[pair(1).linkText];
    for (const auto* caption : {u"Disconnected, and for long", u"x", u"Connected"}) {
        text.setCaption(caption);
        store_[pair(1).positivePower.places[1]].setDigit(Integer(*caption % 10));
        expectAsPaintedAnew("a text");
    }
    store_.show(Layout::describe(pair(1).positivePower.places[0]).container, false);
    expectAsPaintedAnew("a hidden frame");
    toTab(0);
    for (int line = 0; line < 60; ++line) {
        store_[kCommon.log].addItem(fromQt(QString("line %1 ").arg(line).repeated(line)));
        if (line % 3 != 1) expectAsPaintedAnew("a line of the log");
    }
    control<QAbstractItemView>(kCommon.log).verticalScrollBar()->setValue(11);
    expectAsPaintedAnew("scrolling back");
    store_[kCommon.log].clear();
    expectAsPaintedAnew("an empty log");
}

TEST_F(PaintingTest, WhatIsDrawnOnAScopeLiesOnTopAndColoursItsOwnPixelsAlone) {
    auto& surface = store_[channel(1).scope];
    const auto shown = [&] { return control(channel(1).scope).grab().toImage(); };
    surface.clear();
    settle();
    QImage expected = shown();
    for (const bool isTrace : {true, false, true}) {
        for (int x = isTrace ? 30 : 0; x < 195; ++x)
            expected.setPixelColor(2 + x, 2 + 50, isTrace ? QColor(0, 255, 0) : QColor(Qt::red));
        isTrace ? surface.trace(flat(135)) : surface.line({0, 50}, {195, 50}, rgb(255, 0, 0));
        settle();
        EXPECT_EQ(shown(), expected) << isTrace;
    }
}

TEST_F(PaintingTest, AScopeThatKeepsItsGridShowsWhatItWouldWithoutIt) {
    auto& surface = store_[channel(1).scope];
    const auto shown = [&] { return control(channel(1).scope).grab().toImage(); };
    const auto drawGrid = [&](float y, StringView text) {
        surface.clear();
        surface.line({0, y}, {195, y}, rgb(0, 100, 0));
        surface.setForeColour(rgb(0, 200, 0));
        surface.print(String(text));
    };
    const std::pair<const char*, std::function<void()>> kSteps[] = {
        {"a grid", [&] { drawGrid(50, u"0 V"); }},
        {"a trace over it", [&] { surface.trace(flat(100)); }},
        {"a second trace", [&] { surface.trace(flat(150)); }},
        {"the grid again", [&] { drawGrid(50, u"0 V"); }},
        {"another trace", [&] { surface.trace(flat(200)); }},
        {"another line", [&] { drawGrid(60, u"0 V"), surface.trace(flat(200)); }},
        {"another text", [&] { drawGrid(60, u"1 V"), surface.trace(flat(200)); }},
        {"disabled", [&] { store_.enable(channel(1).scope, false); }},
        {"cleared", [&] { surface.clear(); }},
    };
    for (const auto& [label, change] : kSteps) {
        change();
        settle();
        const QImage kept = shown();
        front_.setZoom(2);
        settle();
        front_.setZoom(1);
        settle();
        EXPECT_EQ(kept, shown()) << label;
    }
}

}  // namespace
}  // namespace Orvo::Window
