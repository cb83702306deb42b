#include "Reference/reference.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "Script/command.h"

namespace {

using namespace Orvo::Script;

std::string textIn(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string page(const std::string& name) { return textIn(ORVO_DOCS "/" + name); }

TEST(Reference, StandsInDocsAsItIsWritten) {
    const char* const remedy = "Build the target \"reference\" to write it anew.";
    EXPECT_EQ(page("panel-script.md"), scriptReference()) << remedy;
    EXPECT_EQ(page("interface.md"), interfaceReference()) << remedy;
}

TEST(Transcripts, ShowEveryCommand) {
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
