#include "Reference/reference.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "Orvo/core/contract_table.h"
#include "Orvo/store/state.h"
#include "Script/command.h"

namespace {

using namespace Orvo::Script;

TEST(DerivedTest, StandsInTheTreeAsTheTablesHaveIt) {
    for (const auto& [path, text] : derivedFiles(ORVO_ROOT)) {
        EXPECT_EQ(textIn(path), text)
            << path << ": build the target \"reference\" to write it anew";
    }
}

TEST(ContractsTest, KnowTheLimitsOfTheStoresLog) {
    using Limits = Orvo::Runtime::ListState;
    const auto* add = std::find_if(Orvo::kMembers.begin(), Orvo::kMembers.end(),
                                   [](auto& member) { return member.name == "AggiugiTesto"; });
    for (const std::size_t limit : {Limits::kMostItems, Limits::kMostText}) {
        EXPECT_NE(contractOf(*add).errors.find(std::to_string(limit)), std::string::npos) << limit;
    }
}

TEST(TranscriptsTest, ShowEveryCommand) {
    std::string transcripts;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ORVO_TRANSCRIPTS)) {
        if (entry.is_regular_file()) transcripts += textIn(entry.path());
    }
    for (const Command& command : allCommands()) {
        if (command.name == "widgets") continue;  // the layout's own list shows what it answers
        EXPECT_NE(transcripts.find("\n> " + std::string(command.name)), std::string::npos)
            << command.name;
    }
}

}  // namespace
