#include "easel/cli/Terminal.h"

#include <windows.h>

#include <io.h>
#include <shellapi.h>

#include <cstdio>

namespace easel {
namespace {

std::string utf8(const wchar_t* text) {
    const std::u8string converted = std::filesystem::path(text).u8string();
    return {converted.begin(), converted.end()};
}

} // namespace

std::vector<std::string> utf8Arguments(int /*count*/, char** /*arguments*/) {
    SetConsoleOutputCP(CP_UTF8);
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    arguments.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        arguments.push_back(utf8(wide[i]));
    LocalFree(wide);
    return arguments;
}

bool errorIsTerminal() noexcept { return _isatty(_fileno(stderr)) != 0; }

} // namespace easel
