#include <algorithm>
#include <functional>

#include <QAbstractButton>
#include <QPainter>

#include "Support/roles.h"
#include "pictures_fixture.h"

namespace Orvo::Window {
namespace {

constexpr int kZoom = 2;
constexpr int kMargin = 8;  // pixels

/// One picture for each kind of widget: the states that it can be in, side by side.
class WidgetPicturesTest : public PicturesTest {
protected:
    WidgetPicturesTest() { widget_.setZoom(kZoom); }

    void add(WidgetId id) {
        const QRect place = Scale(kZoom).rect(id);
        tiles_.push_back(
            picture(pageOf(id)).copy(place.adjusted(-kMargin, -kMargin, kMargin, kMargin)));
    }

    /// As it is, without the focus and with it, and disabled.
    void addStates(WidgetId id) {
        store_.enable(id, true);
        add(id);
        control(id).setFocus(Qt::TabFocusReason);
        add(id);
        control(id).clearFocus();
        store_.enable(id, false);
        add(id);
        store_.enable(id, true);
        widget_.flush();
    }

    QWidget& control(WidgetId id) {
        picture(pageOf(id));
        return *widget_.control(id);
    }

    void expectTilesAsKept(const char* name, bool isText) const {
        QSize size;
        std::vector<QRect> texts;
        for (const QImage& tile : tiles_) {
            if (isText) texts.emplace_back(QPoint(size.width(), 0), tile.size());
            size = {std::max(size.width(), 0) + tile.width(),
                    std::max(size.height(), tile.height())};
        }
        QImage sheet(size, QImage::Format_RGB32);
        sheet.fill(Qt::black);
        QPainter painter(&sheet);
        for (int left = 0; const QImage& tile : tiles_) {
            painter.drawImage(left, 0, tile);
            left += tile.width();
        }
        painter.end();
        expectAsKept(name, sheet, texts);
    }

private:
    std::vector<QImage> tiles_;
};

TEST_F(WidgetPicturesTest, Digits) {
    add(pair(1).temperature.places[0]);
    for (Integer digit = 0; digit <= 9; ++digit) {
        store_[pair(1).negativePower.places[0]].setDigit(digit);
        add(pair(1).negativePower.places[0]);
    }
    expectTilesAsKept("digits", false);
}

TEST_F(WidgetPicturesTest, Lamps) {
    for (const auto lamp : {pair(1).readyLamp, channel(1).protectionLamp, kCommon.protectionLamp,
                            kCommon.powerLamp}) {
        for (const auto fill : {Widgets::FillStyle::transparent, Widgets::FillStyle::solid}) {
            store_[lamp].setFillStyle(fill);
            add(lamp);
        }
    }
    expectTilesAsKept("lamps", false);
}

TEST_F(WidgetPicturesTest, Lines) {
    add(Layout::describe(channel(1).positive.option).container);
    for (const auto option :
         {channel(1).negative.option, channel(2).positive.option, channel(2).negative.option}) {
        store_.perform(Runtime::Deed::click(option));
        add(Layout::describe(channel(1).positive.option).container);
    }
    expectTilesAsKept("route", false);
}

TEST_F(WidgetPicturesTest, OptionsAndChecks) {
    for (const auto button : {pair(1).waves[0].id, pair(1).waves[1].id, pair(1).powerCheck.id})
        addStates(button);
    store_.perform(Runtime::Deed::click(pair(1).powerCheck));
    addStates(pair(1).powerCheck);
    expectTilesAsKept("options", false);
}

TEST_F(WidgetPicturesTest, Buttons) {
    for (const auto button : {channel(1).muteButton, pair(1).startButton, kCommon.powerButton}) {
        addStates(button);
        dynamic_cast<QAbstractButton&>(control(button)).setDown(true);
        add(button);
    }
    expectTilesAsKept("buttons", true);
}

TEST_F(WidgetPicturesTest, Sliders) {
    for (const auto slider : {channel(1).volumeSlider, pair(1).testSlider}) {
        addStates(slider);
        store_.perform(Runtime::Deed::hold(slider));
        for (const int position : {0, 13, 100}) {
            store_.perform(Runtime::Deed::move(slider, position));
            add(slider);
        }
        store_.perform(Runtime::Deed::drop(slider));
    }
    expectTilesAsKept("sliders", false);
}

TEST_F(WidgetPicturesTest, ListsAndScopes) {
    addStates(kCommon.log);
    panel_.CancellaTesto();
    add(kCommon.log);
    addStates(kCommon.amplifierIds);
    add(channel(1).scope);
    panel_.DisegnaAssi(1);
    add(channel(1).scope);
    add(Layout::describe(channel(1).scope).container);
    expectTilesAsKept("lists", true);
}

TEST_F(WidgetPicturesTest, Captions) {
    for (const bool isConnected : {true, false}) {
        panel_.Connected(isConnected);
        add(pair(1).linkText);
    }
    add(kCommon.testResults.at(0));
    panel_.ClearTest();
    panel_.chkTest(1, true);
    panel_.chkTest(2, false);
    for (Integer row = 0; row < 3; ++row) add(kCommon.testResults.at(row));
    add(kCommon.title);
    expectTilesAsKept("captions", true);
}

}  // namespace
}  // namespace Orvo::Window
