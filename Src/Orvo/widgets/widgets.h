#pragma once

#include "Orvo/values/boolean.h"
#include "Orvo/values/types.h"
#include "Orvo/widgets/kind_table.h"
#include "Orvo/widgets/trace.h"

// One interface per kind of widget, with what the panel does to it and nothing more. Every
// operation may fail with an Error; it has then changed nothing. An operation that finds its value
// already there does nothing, and writing never notifies; except Option::setValue.
namespace Orvo::Widgets {

class Widget {
public:
    virtual ~Widget() = default;
};

class Enableable : public Widget {
public:
    virtual void setEnabled(Boolean enabled) = 0;
};

class Label : public Widget {
public:
    [[nodiscard]] virtual String caption() const = 0;
    virtual void setCaption(const String& caption) = 0;
    virtual void setColour(Colour text) = 0;
};

enum class FillStyle : Integer { solid = 0, transparent = 1 };

class Shape : public Widget {
public:
    [[nodiscard]] virtual FillStyle fillStyle() const = 0;
    virtual void setFillStyle(FillStyle style) = 0;
};

class Line : public Widget {
public:
    virtual void setColour(Colour colour) = 0;
    virtual void setVisible(Boolean visible) = 0;
};

class Button : public Enableable {};

class Option : public Enableable {
public:
    [[nodiscard]] virtual bool value() const = 0;
    /// Writing true clears the other options of the container and notifies a click, as if a person
    /// had clicked, on an option that is selected already too; an error of the click's handler
    /// reaches the writer.
    virtual void setValue(bool value) = 0;
};

enum class CheckValue : Integer { unchecked = 0, checked = 1 };

class Check : public Enableable {
public:
    virtual void setValue(CheckValue value) = 0;
};

class Combo : public Enableable {
public:
    virtual void addItem(const String& text) = 0;
    [[nodiscard]] virtual String text() const = 0;
    virtual void setText(const String& text) = 0;
};

class List : public Widget {
public:
    /// Adds an item at the end, in constant time. Error 7 when the list is full.
    virtual void addItem(const String& text) = 0;
    virtual void clear() = 0;
};

/// Enabling a timer that is disabled starts its interval anew.
class Timer : public Enableable {};

enum class ScaleMode : Integer { pixels = 3 };

/// A surface that keeps what is drawn on it until it is cleared, shown or not.
class Picture : public Widget {
public:
    virtual void clear() = 0;
    virtual void setDrawWidth(Integer pixels) = 0;
    virtual void setScaleMode(ScaleMode mode) = 0;
    [[nodiscard]] virtual float scaleWidth() const = 0;
    [[nodiscard]] virtual float scaleHeight() const = 0;
    virtual void line(Point from, Point to, Colour colour) = 0;
    virtual void setCurrentX(float x) = 0;
    virtual void setCurrentY(float y) = 0;
    virtual void setForeColour(Colour text) = 0;
    virtual void setFontSize(float points) = 0;
    /// Writes a text with its top left corner at the current position, in the fore colour.
    virtual void print(const String& text) = 0;
    /// Joins the samples in order: the same as drawing one line for each segment, and reading the
    /// scale's width and height before every one but the first; only faster.
    virtual void trace(Trace trace) = 0;
};

class Tabs : public Widget {
public:
    /// Brings a tab, counted from 0, to the front. Error 5 when there is no such tab.
    virtual void setCurrentTab(Integer tab) = 0;
    [[nodiscard]] virtual Boolean tabEnabled(Integer tab) const = 0;
    /// Disabling the tab in front brings the nearest enabled one to its left to the front.
    virtual void setTabEnabled(Integer tab, Boolean enabled) = 0;
};

class Digit : public Widget {
public:
    /// Shows a digit, 0 to 9. Error 5 for any other value.
    virtual void setDigit(Integer digit) = 0;
};

class Slider : public Enableable {
public:
    [[nodiscard]] virtual Integer position() const = 0;
    /// Any position is held and read back as written; outside the bounds it is drawn at the nearest
    /// end.
    virtual void setPosition(Integer position) = 0;
    /// Whether a person holds the slider's button at this moment.
    [[nodiscard]] virtual Boolean buttonDown() const = 0;
    virtual void setMaximum(Integer position) = 0;
};

/// Frames and images have none: nothing is done to them.
// clang-format off
using Interfaces = KindTable<
    For<Kind::label, Label>,
    For<Kind::shape, Shape>,
    For<Kind::line, Line>,
    For<Kind::button, Button>,
    For<Kind::option, Option>,
    For<Kind::check, Check>,
    For<Kind::combo, Combo>,
    For<Kind::list, List>,
    For<Kind::picture, Picture>,
    For<Kind::timer, Timer>,
    For<Kind::tabs, Tabs>,
    For<Kind::digit, Digit>,
    For<Kind::slider, Slider>>;
// clang-format on

}  // namespace Orvo::Widgets
