#include "Orvo/core/identity.h"

#include <utility>

#include <gtest/gtest.h>

namespace Orvo::Identity {
namespace {

TEST(IdentityTest, IsTheOneThatHostsAreBuiltAgainst) {
    const std::pair<std::string_view, std::string_view> kTexts[] = {
        {kLibrary.name, "Orvo"},
        {kLibrary.id, "7882F3A5-93D0-4C7A-B9FF-AEEBA91C13A6"},
        {kClass.name, "MarvaneAssistant"},
        {kClass.id, "39ABF8B7-002B-4A32-B963-E5315F1D24AE"},
        {kClass.programmaticId, "Orvo.MarvaneAssistant"},
        {kDefaultInterface.name, "_MarvaneAssistant"},
        {kDefaultInterface.id, "10E6D219-3040-448F-8C54-8EC0BA6107AF"},
        {kDefaultSource.name, "__MarvaneAssistant"},
        {kDefaultSource.id, "616BF7F8-1E70-4966-809E-C185A6AA6E38"},
    };
    for (const auto& [text, published] : kTexts) EXPECT_EQ(text, published);
    EXPECT_EQ(kLibrary.locale, 0x0409U);
    EXPECT_EQ(kClass.statusFlags, 0x20191U);
    EXPECT_EQ(kDefaultInterface.typeFlags, dual | hidden | notExtensible);
    EXPECT_EQ(kDefaultSource.typeFlags, hidden | notExtensible);
}

}  // namespace
}  // namespace Orvo::Identity
