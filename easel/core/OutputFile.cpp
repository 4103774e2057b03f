#include "easel/core/OutputFile.h"

#include <array>
#include <cstdio>
#include <random>
#include <utility>

namespace easel {

void OutputFile::fail(const std::string& what) const {
    throw FileError(file_.string() + ": " + what);
}

void OutputFile::failToMake() const {
    fail("the file cannot be made; check that the folder exists and may be written to");
}

void OutputFile::failToWrite() const {
    fail("the file cannot be written whole; check that there is room on the disk");
}

std::filesystem::path nameBeside(const std::filesystem::path& target) {
    std::random_device random;
    std::array<char, 40> name{};
    std::snprintf(name.data(), name.size(), ".easel-%08x%08x.part", static_cast<unsigned>(random()),
                  static_cast<unsigned>(random()));
    return target.parent_path() / name.data();
}

void writeFile(const std::filesystem::path& file, std::string bytes) {
    OutputFile output{file};
    output.prepare(std::move(bytes));
    output.commit();
}

} // namespace easel
