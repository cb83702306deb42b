#include "Orvo/window/painted/painted.h"

#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

std::unique_ptr<Painted> makePainted(const Runtime::Store& store, WidgetId id) {
    switch (Layout::describe(id).style.kind) {
        case Layout::Kind::label:
            return std::make_unique<PaintedLabel>(store, id);
        case Layout::Kind::shape:
            return std::make_unique<PaintedShape>(store, id);
        case Layout::Kind::line:
            return std::make_unique<PaintedLine>(store, id);
        case Layout::Kind::frame:
            return std::make_unique<PaintedFrame>(store, id);
        case Layout::Kind::digit:
            return std::make_unique<PaintedDigit>(store, id);
        case Layout::Kind::tabs:
            return std::make_unique<PaintedScopeHeader>(store, id);
        case Layout::Kind::image:
            return std::make_unique<PaintedImage>(store, id);
        default:
            return nullptr;
    }
}

}  // namespace Orvo::Window
