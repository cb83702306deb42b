#include <gtest/gtest.h>

#include <QApplication>
#include <QProxyStyle>
#include <QScreen>

#include "Manager/Scope/scope_window.h"
#include "Manager/Window/manager_window.h"
#include "Manager/Window/pictures.h"
#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/drawing/contrast.h"
#include "Support/temporary_directory.h"

namespace Orvo::Manager {
namespace {

/// A desktop for better sight.
class HighContrast : public QProxyStyle {
public:
    void polish(QPalette& palette) override {
        palette = framePalette(Frame::light, Contrast::high);
    }
    using QProxyStyle::polish;
};

/// A program that is started, used and closed again and again.
class ChoicesTest : public testing::Test {
protected:
    ManagerWindow& start(const Options& options = {}) {
        if (window_) window_->close();
        window_.emplace(options, &settings_);
        window_->open();
        return *window_;
    }

    void choose() {
        ManagerWindow& window = start();
        window.setZoom(150);
        window.selectTab(2);
        window.setFrame(Frame::light);
        window.showEvents(true);
        window.showScopes(true);
        window.session().station().conversation().setDetail(Detail::everything);
        window.session().station().conversation().setForm(Form::script);
        window.connectLink(LinkAddress{"/dev/nowhere", LineSettings()});
        window.resize(790, 610);
    }

    int tab() {
        const auto& store = window_->panelWidget().store();
        return store.get<Runtime::StoredTabs>(Layout::kTabs.id).state().current + 1;
    }

    const Tests::TemporaryDirectory directory_;
    QSettings settings_{QString::fromStdString(directory_.path() / "settings"),
                        QSettings::IniFormat};
    std::optional<ManagerWindow> window_;
};

TEST_F(ChoicesTest, AreThereAgainAtTheNextStart) {
    choose();
    ManagerWindow& window = start();
    EXPECT_EQ(window.zoom(), 150);
    EXPECT_EQ(tab(), 2);
    EXPECT_EQ(window.frame(), Frame::light);
    EXPECT_EQ(window.size(), QSize(790, 610));
    EXPECT_EQ(window.session().station().conversation().detail(), Detail::everything);
    EXPECT_EQ(window.session().station().conversation().form(), Form::script);
    EXPECT_TRUE(window.findChild<EventDock*>()->isVisible());
    EXPECT_TRUE(window.findChild<ScopeWindow*>()->isVisible());
    EXPECT_EQ(choicesIn(settings_).links, QStringList("/dev/nowhere@9600"));
}

TEST_F(ChoicesTest, GiveWayToTheCommandLine) {
    choose();
    EXPECT_EQ(start({.zoom = 75, .tab = 1}).zoom(), 75);
    EXPECT_EQ(tab(), 1);
    choose();
    EXPECT_EQ(start({.forgets = true}).zoom(), std::nullopt);
    EXPECT_EQ(tab(), 1);
    EXPECT_EQ(choicesIn(settings_).links, QStringList());
}

TEST_F(ChoicesTest, AreAsAtTheFirstStartWhereTheFileWasSpoilt) {
    QWidget farAway;
    farAway.setGeometry(90'000, -90'000, 30'000, 30'000);
    const std::pair<const char*, QVariantList> spoilt[] = {
        {"window/geometry", {farAway.saveGeometry(), "x", QByteArray(66, '\0'), 7}},
        {"window/docks", {"x", QByteArray(500, '\xFF')}},
        {"view/zoom", {0, 49, 801, "1e9", "wide", -150}},
        {"view/tab", {0, 9, -1, "two"}},
        {"link/last", {"", "/dev/ttyS0@7", QString(90'000, 'x') + QChar(0) + "@1"}},
    };
    for (const auto& [key, values] : spoilt) {
        for (const QVariant& value : values) {
            SCOPED_TRACE(key + value.toString().left(20).toStdString());
            window_.reset();
            settings_.clear();
            settings_.setValue(key, value);
            const ManagerWindow& window = start();
            EXPECT_EQ(window.zoom(), std::nullopt);
            EXPECT_EQ(tab(), 1);
            EXPECT_TRUE(window.screen()->geometry().contains(window.geometry()));
            EXPECT_EQ(choicesIn(settings_).links, QStringList());
        }
    }
}

TEST(FramePaletteTest, IsReadableAndMoreSoWhereTheDesktopIs) {
    using Role = QPalette::ColorRole;
    const std::pair<Role, Role> pairs[] = {
        {Role::WindowText, Role::Window},       {Role::Text, Role::Base},
        {Role::ButtonText, Role::Button},       {Role::HighlightedText, Role::Highlight},
        {Role::ToolTipText, Role::ToolTipBase}, {Role::Link, Role::Window}};
    for (const auto frame : {Frame::dark, Frame::light}) {
        for (const auto contrast : {Contrast::usual, Contrast::high}) {
            const QPalette palette = framePalette(frame, contrast);
            const double least = contrast == Contrast::high ? 10 : Window::kTextContrast;
            for (const auto& [text, ground] : pairs) {
                EXPECT_GE(Window::contrastOf(palette.color(text), palette.color(ground)), least)
                    << int(frame) << int(contrast) << int(text);
            }
            EXPECT_EQ(contrastOf(palette), contrast);
        }
    }
}

TEST_F(ChoicesTest, OfTheFrameFollowTheDesktopsContrastWhileTheWindowIsOpen) {
    ManagerWindow& window = start();
    const QString usual = QApplication::style()->name();
    const auto expect = [&](Contrast contrast) {
        QEvent change(QEvent::ThemeChange);
        QApplication::sendEvent(&window, &change);
        EXPECT_EQ(QApplication::palette().window(), framePalette(Frame::dark, contrast).window());
    };
    QApplication::setStyle(new HighContrast);
    expect(Contrast::high);
    QApplication::setStyle(usual);
    expect(Contrast::usual);
}

TEST_F(ChoicesTest, OfTheFramesColoursLeaveThePanelAsItIs) {
    const QPalette usual = QApplication::palette();
    ManagerWindow& window = start();
    for (const int tab : {1, 2}) {
        window.selectTab(tab);
        QImage pictures[2];
        for (const auto frame : {Frame::dark, Frame::light}) {
            window.setFrame(frame);
            pictures[int(frame)] = pictureOf(window.panelWidget());
        }
        EXPECT_EQ(pictures[0], pictures[1]) << tab;
        QApplication::setPalette(usual);
        EXPECT_EQ(pictureOf(window.panelWidget()), pictures[0]) << tab;
    }
}

}  // namespace
}  // namespace Orvo::Manager
