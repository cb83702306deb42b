#include "Orvo/monitor/volume.h"

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

TEST(VolumeTest, AndPositionStandForEachOther) {
    for (Integer volume = -30; volume <= 30; volume += 2) {
        EXPECT_EQ(volumeAt(sliderPosition(volume)), volume);
        EXPECT_EQ(volumeAt(sliderPosition(static_cast<Integer>(volume - 1))), volume);
    }
    EXPECT_EQ(errorOf([] { volumeAt(-16400); }), 6);
}

}  // namespace
}  // namespace Orvo::Tests
