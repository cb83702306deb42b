#include <cstddef>
#include <utility>

#include "Orvo/store/store.h"
#include "Orvo/store/stored_widgets.h"

namespace Orvo::Runtime {

using Widgets::Point;
using Widgets::Trace;

namespace {

constexpr std::size_t kUsualDrawing = 24;  // a grid and a trace

}  // namespace

void StoredPicture::clear() {
    observe({.verb = Verb::clear});
    state_.current = {};
    if (state_.drawing.empty()) return;
    state_.drawing.clear();
    changed();
}

void StoredPicture::setDrawWidth(Integer pixels) {
    keep(Verb::setDrawWidth, state_.drawWidth, pixels);
}
void StoredPicture::setScaleMode(Widgets::ScaleMode mode) { observe(Verb::setScaleMode, mode); }

float StoredPicture::scaleWidth() const {
    return read(Verb::readScaleWidth, static_cast<float>(width()));
}

float StoredPicture::scaleHeight() const {
    return read(Verb::readScaleHeight, static_cast<float>(height()));
}

void StoredPicture::line(Point from, Point to, Colour colour) {
    const LineSegment segment{from, to, colour};
    observe(Verb::line, segment);
    draw(segment);
}

void StoredPicture::setCurrentX(float x) { keep(Verb::setCurrentX, state_.current.x, x); }
void StoredPicture::setCurrentY(float y) { keep(Verb::setCurrentY, state_.current.y, y); }
void StoredPicture::setForeColour(Colour text) {
    keep(Verb::setForeColour, state_.foreColour, text);
}
void StoredPicture::setFontSize(float points) { keep(Verb::setFontSize, state_.fontSize, points); }

void StoredPicture::print(const String& text) {
    observe(Verb::print, text);
    draw(DrawnText{state_.current, text, state_.foreColour, state_.fontSize});
}

void StoredPicture::trace(Trace trace) {
    std::size_t reached = store().isObserved() ? 0 : trace.samples.size();
    const auto keep = [&] {
        trace.samples.resize(reached);
        if (reached > 1) draw(std::move(trace));
    };
    try {
        for (; reached < trace.samples.size(); ++reached) observePoint(trace, reached);
    } catch (...) {
        keep();
        throw;
    }
    keep();
}

// What an observer sees of a trace: the operations that it stands for.
void StoredPicture::observePoint(const Trace& trace, std::size_t i) {
    if (i == 0) return;
    if (i > 1) observe({.verb = Verb::readScaleWidth});
    if (i > 1) observe({.verb = Verb::readScaleHeight});
    observe({.verb = Verb::line, .value = segmentTo(trace, i)});
}

int StoredPicture::width() const {
    return description().place.width / Layout::kTwipsPerPixel - 2 * kPictureBorder;
}

int StoredPicture::height() const {
    return description().place.height / Layout::kTwipsPerPixel - 2 * kPictureBorder;
}

void StoredPicture::draw(Drawn drawn) {
    if (state_.drawing.empty()) state_.drawing.reserve(kUsualDrawing);
    state_.drawing.push_back(std::move(drawn));
    changed();
}

}  // namespace Orvo::Runtime
