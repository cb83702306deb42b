#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using InformationEntryTest = PanelTest;

TEST_F(InformationEntryTest, EndsWhenThePanelIsReleasedUnderIt) {
    struct Releasing final : Runtime::Prompter {
        std::optional<String> ask(const Widgets::Question& /*question*/) override {
            ++asked;
            bench->release();
            return u"530284";
        }
        std::unique_ptr<Bench> bench = makeBench();
        int asked = 0;
    } person;
    person.bench->store().promptWith(&person);
    person.bench->store().perform(Deed::key(kCommon.log, 18));
    EXPECT_EQ(person.asked, 1);
    EXPECT_TRUE(person.bench->store().widget(kCommon.resetLogButton).isEnabled());
}

}  // namespace
}  // namespace Orvo::Tests
