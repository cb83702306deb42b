#include <algorithm>
#include <functional>
#include <string_view>

#include <QAbstractButton>
#include <QPainter>

#include "pictures_fixture.h"

namespace Orvo::Window {
namespace {

constexpr int kZoom = 2;
constexpr int kMargin = 8;  // pixels

WidgetId idOf(std::string_view name) { return Layout::findWidget(name).value(); }

/// One picture for each kind of widget: the states that it can be in, side by side.
class WidgetPicturesTest : public PicturesTest {
protected:
    WidgetPicturesTest() { widget_.setZoom(kZoom); }

    void add(std::string_view name) {
        const WidgetId id = idOf(name);
        const QRect place = Scale(kZoom).rect(id);
        tiles_.push_back(
            picture(pageOf(id)).copy(place.adjusted(-kMargin, -kMargin, kMargin, kMargin)));
    }

    /// As it is, without the focus and with it, and disabled.
    void addStates(std::string_view name) {
        store_.enable(idOf(name), true);
        add(name);
        control(name).setFocus(Qt::TabFocusReason);
        add(name);
        control(name).clearFocus();
        store_.enable(idOf(name), false);
        add(name);
        store_.enable(idOf(name), true);
        widget_.flush();
    }

    QWidget& control(std::string_view name) {
        picture(pageOf(idOf(name)));
        return *widget_.findChild<QWidget*>(
            QString::fromLatin1(name.data(), qsizetype(name.size())));
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
    add("ledTemp12(0)");
    for (Integer digit = 0; digit <= 9; ++digit) {
        store_[Widgets::DigitRef{idOf("LED3")}].setDigit(digit);
        add("LED3");
    }
    expectTilesAsKept("digits", false);
}

TEST_F(WidgetPicturesTest, Lamps) {
    for (const char* lamp : {"Shape17", "Shape18", "Shape28", "shpOnOff"}) {
        for (const auto fill : {Widgets::FillStyle::transparent, Widgets::FillStyle::solid}) {
            store_[Widgets::ShapeRef{idOf(lamp)}].setFillStyle(fill);
            add(lamp);
        }
    }
    expectTilesAsKept("lamps", false);
}

TEST_F(WidgetPicturesTest, Lines) {
    add("Frame11");
    for (const char* option : {"optN1", "optP2", "optN2"}) {
        store_.input().click(idOf(option));
        add("Frame11");
    }
    expectTilesAsKept("route", false);
}

TEST_F(WidgetPicturesTest, OptionsAndChecks) {
    for (const char* button : {"opt100hz_ch12", "opt1000hz_ch12", "chkOnOff12"}) addStates(button);
    store_.input().click(idOf("chkOnOff12"));
    addStates("chkOnOff12");
    expectTilesAsKept("options", false);
}

TEST_F(WidgetPicturesTest, Buttons) {
    for (const char* button : {"Command12", "cmdGo12", "cmdOnOff"}) {
        addStates(button);
        dynamic_cast<QAbstractButton&>(control(button)).setDown(true);
        add(button);
    }
    expectTilesAsKept("buttons", true);
}

TEST_F(WidgetPicturesTest, Sliders) {
    for (const char* slider : {"ZelvinSlider1", "ZelvinSlider3"}) {
        addStates(slider);
        store_.input().hold(idOf(slider));
        for (const int position : {0, 13, 100}) {
            store_.input().move(idOf(slider), position);
            add(slider);
        }
        store_.input().drop(idOf(slider));
    }
    expectTilesAsKept("sliders", false);
}

TEST_F(WidgetPicturesTest, ListsAndScopes) {
    addStates("List1");
    panel_.CancellaTesto();
    add("List1");
    addStates("Combo1");
    add("Picture1");
    panel_.DisegnaAssi(1);
    add("Picture1");
    add("SSTScope1");
    expectTilesAsKept("lists", true);
}

TEST_F(WidgetPicturesTest, Captions) {
    for (const bool isConnected : {true, false}) {
        panel_.Connected(isConnected);
        add("lblConnected12");
    }
    add("lblTestResult(0)");
    panel_.ClearTest();
    panel_.chkTest(1, true);
    panel_.chkTest(2, false);
    for (const char* label :
         {"lblTestResult(0)", "lblTestResult(1)", "lblTestResult(2)", "Label59"})
        add(label);
    expectTilesAsKept("captions", true);
}

}  // namespace
}  // namespace Orvo::Window
