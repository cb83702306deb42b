#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "Reference/reference.h"

// Writes what is derived from the tables into a source tree.
namespace {

using Orvo::Script::DerivedFile;

// A header that is up to date keeps its time, and with it whatever was built from it.
void write(const DerivedFile& file) {
    if (Orvo::Script::textIn(file.path) == file.text) return;
    std::ofstream out(file.path, std::ios::binary);
    if (!(out << file.text << std::flush))
        throw std::runtime_error("Can't write " + file.path.string());
}

}  // namespace

int main(int argc, char** argv) {
    try {
        for (const auto& file : Orvo::Script::derivedFiles(argc == 2 ? argv[1] : ".")) write(file);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
