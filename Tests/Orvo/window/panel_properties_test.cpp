#include <functional>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QSignalSpy>
#include <QStyle>
#include <QVBoxLayout>

#include "Orvo/core/event_table.h"
#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/store.h"
#include "Orvo/window/panel_widget.h"
#include "Support/roles.h"

namespace Orvo::Window {
namespace {

using Widgets::WidgetId;

constexpr QSize kPlain(709, 460);

class PanelPropertiesTest : public testing::Test {
protected:
    void TearDown() override { delete widget_; }

    void click(WidgetId id) { widget_->store().perform(Runtime::Deed::click(id)); }
    void slideVolume() {
        widget_->store().perform(Runtime::Deed::slide(channel(1).volumeSlider, 3));
    }

    QPointer<PanelWidget> widget_ = new PanelWidget(Platform{}, nullptr, Clock::byHand);
};

TEST_F(PanelPropertiesTest, APanelThatFitsIsAsLargeAsItsWidgetAllowsInTheLayoutsProportions) {
    widget_->setFitsToSize(true);
    EXPECT_EQ(widget_->sizeHint(), kPlain) << "nobody has given it a size";
    widget_->show();
    QSignalSpy told(widget_, &PanelWidget::zoomChanged);
    const struct {
        QSize size;
        double zoom = 0;
    } rows[] = {{2 * kPlain, 2},     {{2 * 709, 4 * 460}, 2}, {{4 * 709, 3 * 460}, 3},
                {{400, 240}, 0.521}, {{100, 100}, 0.5},       {20 * kPlain, 8}};
    for (const auto& [size, zoom] : rows) {
        told.clear();
        widget_->resize(size);
        EXPECT_EQ(widget_->zoom(), zoom);
        EXPECT_EQ(told.size(), size == rows[1].size ? 0 : 1) << zoom;
    }
    widget_->setFitsToSize(false);
    EXPECT_EQ(widget_->zoom(), 8) << "it stays as it is";
}

TEST_F(PanelPropertiesTest, ALayoutGivesAPanelThatFitsItsHeight) {
    QWidget form;
    auto* column = new QVBoxLayout(&form);
    column->setContentsMargins({});
    column->addWidget(widget_);
    column->addStretch();
    widget_->setFitsToSize(true);
    form.resize(3 * 709, 5 * 460);
    form.show();
    EXPECT_EQ(widget_->size(), 3 * kPlain);
    form.resize(709, 5 * 460);
    QApplication::processEvents();
    EXPECT_EQ(widget_->size(), kPlain);
    form.layout()->removeWidget(widget_);
    widget_->setParent(nullptr);
}

TEST_F(PanelPropertiesTest, WhoeverWritesTheReadOnlyModeItIsToldOfOnce) {
    QSignalSpy told(widget_, &PanelWidget::readOnlyChanged);
    const std::pair<std::function<void()>, bool> rows[] = {
        {[&] { widget_->setReadOnly(true); }, true},
        {[&] { widget_->panel().ReadOnly(false); }, false},
        {[&] { widget_->panel().ReadOnly(true); }, true},
        {[&] { widget_->panel().ReadOnly(Boolean(Integer{1})); }, false},
        {[&] { widget_->setProperty("readOnly", true); }, true},
        {[&] { widget_->renew(); }, false},
    };
    for (const auto& [write, isReadOnly] : rows) {
        write();
        EXPECT_EQ(widget_->isReadOnly(), isReadOnly);
        widget_->flush();
        QApplication::processEvents();
        ASSERT_EQ(told.size(), 1);
        EXPECT_EQ(told.takeFirst().first(), isReadOnly);
    }
}

TEST_F(PanelPropertiesTest, EveryEventIsASignalAtOnceAndBeforeOtherSinksAlsoAfterRenewal) {
    for (int life = 0; life < 2; ++life) {
        std::vector<std::string> heard;
        const auto connection = widget_->panel().connect(
            [&](Long id, std::span<Value>) { heard.emplace_back(eventWith(id).name); });
        QObject context;
        QObject::connect(widget_, &PanelWidget::onOff, &context,
                         [&] { heard.emplace_back("onOff"); });
        QObject::connect(widget_, &PanelWidget::volumeChange, &context, [&](int one, int volume) {
            heard.push_back("volumeChange " + std::to_string(one) + ' ' + std::to_string(volume));
        });
        click(kCommon.powerButton);
        slideVolume();
        EXPECT_EQ(heard, (std::vector<std::string>{"onOff", "OnOff", "volumeChange 1 24",
                                                   "VolumeChange"}));
        widget_->renew();
    }
}

TEST_F(PanelPropertiesTest, ASlotMayEndOrRenewThePanel) {
    const std::function<void()> ends[] = {[&] { widget_->renew(); }, [&] { delete widget_; }};
    for (const auto& end : ends) {
        int heard = 0;
        QObject::connect(widget_, &PanelWidget::onOff, widget_, end);
        const auto connection = widget_->panel().connect([&](Long, std::span<Value>) { ++heard; });
        click(kCommon.powerButton);
        EXPECT_EQ(heard, 0) << "of a panel that is gone";
    }
    EXPECT_FALSE(widget_);
}

TEST_F(PanelPropertiesTest, SlotsTakeQtsTypesAndRefuseWhatIsNoInteger) {
    widget_->setMute(2, true);
    EXPECT_TRUE(widget_->isMute(2));
    EXPECT_EQ(widget_->trimStr(QString::fromUtf16(u"a\0b", 3)), "a");
    widget_->disegnaFormaDOnda(1, {10, 200, 10});
    try {
        widget_->setVolume(65537, 0);
        ADD_FAILURE() << "channel 1 was meant by nobody";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 6);
    }
}

TEST_F(PanelPropertiesTest, ThePanelLooksTheSameWhateverItsHostLooksLike) {
    const auto picture = [&](int tab) {
        widget_->store().perform(Runtime::Deed::tab(0, tab));
        widget_->flush();
        return widget_->grab().toImage();
    };
    QWidget host;
    widget_->setParent(&host);
    host.show();
    const QImage before[] = {picture(0), picture(1)};
    QPalette palette(Qt::magenta, Qt::yellow);
    QFont font("Liberation Serif", 30, QFont::Black, true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 5);
    font.setCapitalization(QFont::AllUppercase);
    font.setStrikeOut(true);
    font.setUnderline(true);
    font.setStretch(200);
    const std::pair<const char*, std::function<void()>> rows[] = {
        {"palette", [&] { host.setPalette(palette); }},
        {"font", [&] { host.setFont(font); }},
        {"direction", [&] { host.setLayoutDirection(Qt::RightToLeft); }},
    };
    for (const auto& [label, change] : rows) {
        change();
        for (const int tab : {0, 1}) {
            EXPECT_TRUE(picture(tab) == before[tab]) << label << tab;
        }
    }
    widget_->setParent(nullptr);
}

}  // namespace
}  // namespace Orvo::Window
