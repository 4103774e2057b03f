#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// What the command line needs of the system it runs on.

namespace easel {

/// The arguments as UTF-8, the program's name first. On Windows from the system itself, because
/// those of `main` have lost every character that is not in the machine's code page.
[[nodiscard]] std::vector<std::string> utf8Arguments(int count, char** arguments);
/// Does somebody watch the standard error?
[[nodiscard]] bool errorIsTerminal() noexcept;

/// A path from the command line and back.
[[nodiscard]] inline std::filesystem::path pathFromUtf8(const std::string& text) {
    return std::u8string(text.begin(), text.end());
}

} // namespace easel
