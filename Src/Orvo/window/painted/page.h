#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

#include "Orvo/window/drawing/kept_picture.h"
#include "Orvo/window/painted/painted.h"

class QHelpEvent;

namespace Orvo::Window {

/// How often a screen paints at most, in milliseconds.
inline constexpr int kFrameTime = 16;

/// One tab of the panel: the surface on which everything that takes no input is painted, layered in
/// the layout's order, and the parent of the controls. It is as large as the panel, so that its
/// pixels are the panel's; the tab strip covers its top.
///
/// What has always looked as it is laid out is its ground: one picture, which all panels share.
class Page final : public QWidget {
public:
    /// `fill` makes its controls, if there are none yet.
    Page(const Runtime::Store& store, int tab, std::function<void()> fill, QWidget* parent);

    void layOut(const Scale& scale);
    /// Takes note that one of its painted widgets is to be painted again, where it was and where it
    /// is.
    void noteChange(WidgetId id);
    /// Has what has been noted painted.
    void repaintChanges();
    /// Ends what fades in.
    void settle();
    /// Has the controls made that stand on it: nobody has yet looked at a page without.
    void fill() { fill_(); }

    [[nodiscard]] int tab() const { return tab_; }
    [[nodiscard]] const Runtime::Store& store() const { return store_; }
    /// The painted widgets that have something to say, in the layout's order; a readout's first
    /// digit stands for all of them.
    [[nodiscard]] std::vector<WidgetId> speakers() const;
    [[nodiscard]] bool isSpeaker(WidgetId id) const;
    /// Where one of them is, in pixels of the page.
    [[nodiscard]] QRect placeOf(WidgetId speaker) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    struct Layer {
        WidgetId id;
        std::unique_ptr<Painted> painted;
        QRect ink{};  // as last asked for; null while all of the page is to be painted
        bool isOnGround = true;
        bool isLit = false;
        QElapsedTimer fade{};  // invalid, unless it fades in
    };

    /// The number of layers when the widget isn't one.
    [[nodiscard]] std::size_t layerOf(WidgetId id) const;
    [[nodiscard]] QRect boundsOf(WidgetId id) const;
    void showTip(const QHelpEvent& event);

    void noteLight(Layer& layer);
    void note(const QRect& place);
    [[nodiscard]] bool isUnderGround(std::size_t layer) const;
    /// Decides what is on the ground, and says what that is.
    QString settleGround();
    void paint(QPainter& painter, const QRect& part);
    static void paint(QPainter& painter, const Layer& layer);

    const Runtime::Store& store_;
    const int tab_;
    const std::function<void()> fill_;
    Scale scale_{1};
    std::vector<Layer> layers_;
    std::vector<QRect> changed_;
    QBasicTimer fading_;
    KeptPicture ground_;
};

}  // namespace Orvo::Window
