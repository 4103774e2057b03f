#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace easel::validate {

/// Something that a library carries beside code.
struct Resource {
    std::string type;      ///< Types without a name are "#" and their number.
    int id = 0;            ///< 0 for one that goes by a name.
    std::size_t place = 0; ///< In the file.
    std::vector<std::byte> bytes;
};

/// What a library's file tells of it before any of its code runs, where the system's files tell it.
struct LibraryFile {
    std::vector<std::string> exports;
    std::vector<std::string> imports;     ///< "library.dll function".
    std::vector<std::string> selfWriting; ///< Parts that are writable and executable at once.
    std::vector<std::string> lacking;     ///< Protections that it does without.
    std::vector<Resource> resources;
};

/// Throws SessionError when it is no library of this system.
[[nodiscard]] LibraryFile readLibraryFile(const std::filesystem::path& file);

} // namespace easel::validate
