#include "Orvo/core/marvane_assistant.h"
#include "Orvo/store/stored_widgets.h"
#include "Orvo/window/panel_widget.h"
#include "Support/memory.h"
#include "Support/roles.h"

namespace Orvo::Window {
namespace {

TEST(PanelMemoryTest, APanelThatCannotBeRenewedStays) {
    PanelWidget widget;
    widget.panel().Mute(1, true);
    const auto* const store = &widget.store();
    const QWidget* const control = widget.control(channel(1).muteButton);
    {
        const Tests::FailingMemory memory(0, Tests::Failing::once);
        EXPECT_ANY_THROW(widget.renew([] { FAIL() << "it stays"; }));
    }
    EXPECT_EQ(&widget.store(), store);
    EXPECT_EQ(widget.control(channel(1).muteButton), control);
    EXPECT_EQ(widget.panel().Mute(1), Boolean(true));
    widget.renew();
    EXPECT_EQ(widget.panel().Mute(1), Boolean(false));
}

}  // namespace
}  // namespace Orvo::Window
