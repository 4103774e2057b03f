#include "easel/core/OutputFile.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace easel;

namespace {

struct Folder {
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() { std::filesystem::remove_all(path); }

    [[nodiscard]] std::string content(const char* name) const {
        std::ifstream in{path / name, std::ios::binary};
        return {std::istreambuf_iterator<char>{in}, {}};
    }
    [[nodiscard]] long files() const {
        const auto all = std::filesystem::directory_iterator{path};
        return static_cast<long>(std::distance(begin(all), end(all)));
    }

    std::filesystem::path path = nameBeside(std::filesystem::temp_directory_path() / "x");
};

} // namespace

TEST_CASE("a file is there whole or as it was") {
    const Folder folder;
    const auto file = folder.path / "a.svg";
    writeFile(file, "former");
    {
        OutputFile given{file};
        given.prepare("never finished");
        CHECK(folder.content("a.svg") == "former");
    }
    CHECK(folder.content("a.svg") == "former");
    CHECK(folder.files() == 1);

    OutputFile one{file};
    OutputFile other{file};
    one.prepare("from one program");
    other.prepare("from the other");
    one.commit();
    CHECK(folder.content("a.svg") == "from one program");
    other.commit();
    CHECK(folder.content("a.svg") == "from the other");
    CHECK(folder.files() == 1);
}

TEST_CASE("what cannot be written is told, and nothing is left") {
    const Folder folder;
    CHECK_THROWS_WITH_AS(writeFile(folder.path / "none" / "a.svg", "x"),
                         doctest::Contains("check that the folder exists"), FileError);
    CHECK_THROWS_WITH_AS(writeFile(folder.path, "x"), doctest::Contains("this is a folder"),
                         FileError);
    CHECK(folder.files() == 0);
}

TEST_CASE("links are followed, devices are written to") {
    const Folder folder;
    writeFile(folder.path / "target.svg", "former");
    std::error_code error;
    std::filesystem::create_symlink("target.svg", folder.path / "link.svg", error);
    if (!error) { // not every Windows user may make links
        writeFile(folder.path / "link.svg", "new");
        CHECK(std::filesystem::is_symlink(folder.path / "link.svg"));
        CHECK(folder.content("target.svg") == "new");
        CHECK(folder.files() == 2);
    }
    if (std::filesystem::is_character_file("/dev/null", error)) {
        writeFile("/dev/null", "x");
        CHECK(std::filesystem::is_character_file("/dev/null"));
    }
}
