#pragma once

#include <array>

#include <QFont>
#include <QLine>
#include <QPainterPath>
#include <QPixmap>

#include "Orvo/widgets/kind_table.h"
#include "Orvo/window/painted/painted.h"
#include "Orvo/window/painted/segments.h"

namespace Orvo::Window {

using Layout::Kind;
using Widgets::For;

/// One line of text may run over its place to the right, as the layout's places for results are as
/// wide as the first text. The text that the layout gives is narrowed where it needs more.
class PaintedLabel final : public Painted {
public:
    using Painted::Painted;
    void layOut(const Scale& scale) override;
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] QString text() const;
    [[nodiscard]] QFont fontOfFirst() const;
    [[nodiscard]] QFont font() const;
    [[nodiscard]] QRect textPlace() const;
    [[nodiscard]] int baseline() const;
    void paintEdge(QPainter& painter, QColor colour) const;
    void paintText(QPainter& painter) const;

    int edge_ = 1;  // pixels
    QFont font_;
    QFont firstFont_;
};

/// A lamp, a dot or an outline.
class PaintedShape final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] bool isLamp() const;
    [[nodiscard]] QRectF circle() const;
    void paintOutline(QPainter& painter) const;
    void paintLamp(QPainter& painter) const;
    void paintGlow(QPainter& painter) const;
    [[nodiscard]] double pen() const { return scale().measure(1); }
    [[nodiscard]] double glow() const;
};

class PaintedLine final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] QLine line() const;
    [[nodiscard]] int thickness() const { return scale().thickness(1.4); }
};

class PaintedFrame final : public Painted {
public:
    using Painted::Painted;
    void paint(QPainter& painter) const override;
};

/// Seven segments.
class PaintedDigit final : public Painted {
public:
    using Painted::Painted;
    void layOut(const Scale& scale) override;
    void paint(QPainter& painter) const override;

private:
    void paintLit(QPainter& painter, const QPainterPath& segment) const;
    void paintUnlit(QPainter& painter, const QPainterPath& segment) const;

    std::array<QPainterPath, kSegmentCount> segments_;
};

/// The header with the one tab above a scope; the scope's surface is a control of its own.
class PaintedScopeHeader final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;
};

/// The artwork behind everything, drawn once for each zoom and kept.
class PaintedImage final : public Painted {
public:
    using Painted::Painted;
    void layOut(const Scale& scale) override;
    void paint(QPainter& painter) const override;

private:
    void draw(double devicePixelRatio) const;

    mutable QPixmap artwork_;
};

// clang-format off
using PaintedKinds = Widgets::KindTable<
    For<Kind::label, PaintedLabel>,
    For<Kind::shape, PaintedShape>,
    For<Kind::line, PaintedLine>,
    For<Kind::frame, PaintedFrame>,
    For<Kind::digit, PaintedDigit>,
    For<Kind::tabs, PaintedScopeHeader>,
    For<Kind::image, PaintedImage>>;
// clang-format on

}  // namespace Orvo::Window
