#include <fstream>
#include <iostream>
#include <string>

#include "Reference/reference.h"

// Writes the reference pages into a directory.
namespace {

bool write(const std::string& path, const std::string& text) {
    return bool(std::ofstream(path, std::ios::binary) << text << std::flush);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace Orvo::Script;
    const std::string directory = argc == 2 ? argv[1] : ".";
    const bool isWritten = write(directory + "/panel-script.md", scriptReference()) &&
                           write(directory + "/interface.md", interfaceReference());
    if (!isWritten) std::cerr << "Can't write into " << directory << '\n';
    return isWritten ? 0 : 1;
}
