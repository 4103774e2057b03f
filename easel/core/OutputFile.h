#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace easel {

/// What is wrong with a file, in one line: "FILE:LINE: what is wrong; what would be right".
struct FileError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// A file that is written whole or not at all. Failures throw FileError.
///
///   1. `prepare` writes the bytes to the disk, under a name of their own beside the file. A link
///   is
///      followed to what it leads to.
///   2. `commit` puts them in the file's place at once, so that whoever looks sees the former file
///      or the new one. What is no file, a pipe or a device, is written to instead.
///   3. Without `commit` nothing is left, nor when the program ends in between, where the system
///   can
///      see to that.
class OutputFile {
public:
    explicit OutputFile(std::filesystem::path file);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void prepare(std::string bytes);
    void commit();

private:
    [[noreturn]] void fail(const std::string& what) const;
    [[noreturn]] void failToMake() const;
    [[noreturn]] void failToWrite() const;

    std::filesystem::path file_;   ///< As the user names it.
    std::filesystem::path target_; ///< Where links lead.
    std::filesystem::path part_;   ///< The name in the meantime; empty: there is none.
    std::intptr_t handle_ = -1;
    bool isDevice_ = false;
    std::string bytes_; ///< For a device.
};

/// A name that nobody can guess, in the folder of `target`.
[[nodiscard]] std::filesystem::path nameBeside(const std::filesystem::path& target);

/// The two steps at once.
void writeFile(const std::filesystem::path& file, std::string bytes);

} // namespace easel
