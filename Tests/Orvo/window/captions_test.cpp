#include <QAbstractButton>
#include <QFontInfo>
#include <QPainter>
#include <QTabBar>

#include "Orvo/window/drawing/fonts.h"
#include "Orvo/window/painted/painted_kinds.h"
#include "window_fixture.h"

namespace Orvo::Window {
namespace {

constexpr double kZooms[] = {0.5, 1, 1.25, 1.5, 2, 3};

class CaptionsTest : public WindowTest {
protected:
    /// What the widget leaves on a page, faint edges apart.
    [[nodiscard]] QRect inkOf(WidgetId id, const Scale& scale) const {
        PaintedLabel painted(store_, id);
        painted.layOut(scale);
        const QRect canvas = scale.rect(id).adjusted(-99, -99, 99, 99);
        QImage image(canvas.size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(-canvas.topLeft());
        painted.paint(painter);
        painter.end();
        return boundsOf(image).translated(canvas.topLeft());
    }

    static QRect boundsOf(const QImage& image) {
        constexpr int kFaint = 64;
        QRect bounds;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > kFaint) bounds |= QRect(x, y, 1, 1);
            }
        }
        return bounds;
    }
};

TEST_F(CaptionsTest, EveryFaceIsTheLayoutsOrTheOneBroughtAlong) {
    using Layout::Face;
    for (const Face face : {Face::arial, Face::microgramma, Face::serif, Face::standard}) {
        const QString shown = QFontInfo(toQt(Layout::Font{.face = face}, 1)).family();
        EXPECT_EQ(shown.toStdString(), familyOf(face).name.toStdString());
    }
}

TEST_F(CaptionsTest, EveryLabelKeepsToItsPlace) {
    for (const double zoom : kZooms) {
        const Scale scale(zoom);
        const int slack = scale.thickness(1);
        for (const WidgetId id : Layout::kAll<Layout::Kind::label>) {
            const auto& widget = Layout::describe(id);
            const QRect place = scale.rect(id);
            const QRect ink = inkOf(id, scale);
            EXPECT_FALSE(ink.isEmpty()) << widget.name;
            EXPECT_TRUE(place.adjusted(-slack, -slack, slack, slack).contains(ink))
                << widget.name << " at " << zoom << ": " << ink.left() - place.left() << " "
                << ink.top() - place.top() << " " << place.right() - ink.right() << " "
                << place.bottom() - ink.bottom();
        }
    }
}

TEST_F(CaptionsTest, EveryButtonHasRoomForItsCaption) {
    for (const double zoom : kZooms) {
        front_.setZoom(zoom);
        for (const auto* button : front_.findChildren<QAbstractButton*>()) {
            const auto id = Layout::findWidget(button->objectName().toStdString());
            if (!id) continue;
            const QString caption = toQt(Layout::describe(*id).caption);
            const QRect needed =
                QFontMetrics(button->font())
                    .boundingRect(button->rect(), Qt::AlignCenter | Qt::TextWordWrap, caption);
            EXPECT_TRUE(button->rect().contains(needed))
                << Layout::describe(*id).name << " at " << zoom;
        }
    }
}

TEST_F(CaptionsTest, EveryTabHasRoomForItsCaption) {
    const auto& strip = control<QTabBar>(kTabs);
    for (const double zoom : kZooms) {
        front_.setZoom(zoom);
        for (int tab = 0; tab < strip.count(); ++tab) {
            EXPECT_LT(widthOf(strip.tabText(tab), strip.font()), strip.tabRect(tab).width());
        }
        EXPECT_TRUE(strip.rect().contains(strip.tabRect(strip.count() - 1))) << zoom;
    }
}

}  // namespace
}  // namespace Orvo::Window
