#pragma once

#include <optional>

#include <QFont>
#include <QLine>
#include <QPainterPath>

#include "Orvo/widgets/kind_table.h"
#include "Orvo/window/painted/painted.h"
#include "Orvo/window/painted/painted_states.h"
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
    [[nodiscard]] bool isAsLaidOut() const override;
    [[nodiscard]] QRect bounds() const override;
    [[nodiscard]] QRect ink() const override;
    [[nodiscard]] QRect core() const override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool hasFirstText() const;
    [[nodiscard]] QFont fontOfFirst(const QFont& font) const;
    [[nodiscard]] const QFont& font() const;
    [[nodiscard]] QRect textPlace() const;
    [[nodiscard]] int baseline() const;
    [[nodiscard]] bool needsBacking() const;
    void paintBacking(QPainter& painter) const;
    void paintText(QPainter& painter) const;

    [[nodiscard]] QRect withEdge(const QRect& text) const;
    [[nodiscard]] int backing() const { return scale().thickness(3); }

    struct Fonts {
        QFont ofFirst;
        QFont ofOthers;
    };
    mutable std::optional<Fonts> fonts_;
};

/// A lamp, a dot or an outline.
class PaintedShape final : public PaintedStates {
public:
    using PaintedStates::PaintedStates;
    [[nodiscard]] bool isLampLit() const override { return state() == 1; }
    void paintFading(QPainter& painter, double share) const override;
    [[nodiscard]] bool isAsLaidOut() const override { return !isLamp(); }
    [[nodiscard]] QRect bounds() const override;
    [[nodiscard]] QRect ink() const override;
    [[nodiscard]] QRect core() const override { return isLamp() ? ink() : place(); }

protected:
    [[nodiscard]] int states() const override { return isLamp() ? 2 : 1; }
    [[nodiscard]] int state() const override;
    void draw(QPainter& painter, int state) const override;

private:
    [[nodiscard]] bool isLamp() const;
    [[nodiscard]] QRectF circle() const;
    void drawOutline(QPainter& painter) const;
    void drawLamp(QPainter& painter, bool isLit) const;
    void drawCore(QPainter& painter, const QRectF& lamp) const;
    void drawGlow(QPainter& painter) const;
    [[nodiscard]] double pen() const { return scale().measure(1); }
    [[nodiscard]] double glow() const;
};

class PaintedLine final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] bool isAsLaidOut() const override;
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] QLine line() const;
    [[nodiscard]] int thickness() const { return scale().thickness(1.4); }
};

class PaintedFrame final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] bool isAsLaidOut() const override { return true; }
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] QRect captions() const;
};

/// Seven segments.
class PaintedDigit final : public PaintedStates {
public:
    using PaintedStates::PaintedStates;
    [[nodiscard]] QRect ink() const override;

protected:
    // Dark, then each digit.
    [[nodiscard]] int states() const override { return 1 + int(kLitSegments.size()); }
    [[nodiscard]] int state() const override;
    void draw(QPainter& painter, int state) const override;

private:
    [[nodiscard]] QPainterPath segment(int number) const;
    void drawLit(QPainter& painter, const QPainterPath& segments) const;
    void drawUnlit(QPainter& painter, const QPainterPath& segments) const;
};

/// The header with the one tab above a scope; the scope's surface is a control of its own.
class PaintedScopeHeader final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] bool isAsLaidOut() const override { return true; }
    [[nodiscard]] QRect bounds() const override;
    void paint(QPainter& painter) const override;
};

/// The artwork behind everything.
class PaintedImage final : public Painted {
public:
    using Painted::Painted;
    [[nodiscard]] bool isAsLaidOut() const override { return true; }
    void paint(QPainter& painter) const override;
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
