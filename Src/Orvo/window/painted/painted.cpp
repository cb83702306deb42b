#include "Orvo/window/painted/painted.h"

#include <type_traits>

#include "Orvo/window/painted/painted_kinds.h"

namespace Orvo::Window {

std::unique_ptr<Painted> makePainted(const Runtime::Store& store, WidgetId id) {
    return PaintedKinds::visit(
        Layout::kindOf(id),
        [&]<class Shown>(std::type_identity<Shown> /*kind*/) -> std::unique_ptr<Painted> {
            return std::make_unique<Shown>(store, id);
        });
}

}  // namespace Orvo::Window
