#include "easel/validate/Child.h"

#include "easel/core/Text.h"

#include <array>
#include <system_error>

#include <windows.h>

namespace easel::validate {
namespace {

constexpr DWORD kPauseMilliseconds = 5;

[[noreturn]] void fail(const char* what) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

std::wstring wide(const std::string& text) {
    const std::u16string units = utf16FromUtf32(utf32FromUtf8(text));
    return {units.begin(), units.end()};
}

/// `word` as the system's splitting of a command line gives it back.
std::wstring quoted(const std::string& word) {
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : wide(word)) {
        if (character == L'"') text.append(backslashes + 1, L'\\');
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        text += character;
    }
    text.append(backslashes, L'\\');
    return text + L'"';
}

std::wstring thisProgram() {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

} // namespace

struct Child::Process {
    HANDLE handle = nullptr;
    HANDLE output = nullptr;
};

Child::Child(const std::vector<std::string>& arguments) : process_(std::make_unique<Process>()) {
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    HANDLE input = nullptr;
    if (CreatePipe(&process_->output, &input, &inherited, 0) == FALSE) fail("CreatePipe");
    SetHandleInformation(process_->output, HANDLE_FLAG_INHERIT, 0);
    const std::wstring program = thisProgram();
    std::wstring line = L'"' + program + L'"';
    for (const std::string& argument : arguments)
        line += L' ' + quoted(argument);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = input;
    start.hStdError = input;
    PROCESS_INFORMATION made{};
    const BOOL started = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                                        nullptr, nullptr, &start, &made);
    CloseHandle(input);
    if (started == FALSE) {
        CloseHandle(process_->output);
        fail("CreateProcess");
    }
    CloseHandle(made.hThread);
    process_->handle = made.hProcess;
}

Child::~Child() {
    kill();
    CloseHandle(process_->handle);
    CloseHandle(process_->output);
}

Child::State Child::read(std::string& line, std::chrono::milliseconds patience) {
    const auto since = std::chrono::steady_clock::now();
    for (;;) {
        const auto end = pending_.find('\n');
        if (end != std::string::npos) {
            line = pending_.substr(0, end);
            if (line.ends_with('\r')) line.pop_back();
            pending_.erase(0, end + 1);
            return State::Line;
        }
        // Looked at in turns, because a pipe cannot be waited for with a time limit. Whether it has
        // ended is asked first: what it wrote before is then there.
        const bool ended = WaitForSingleObject(process_->handle, 0) == WAIT_OBJECT_0;
        DWORD there = 0;
        if (PeekNamedPipe(process_->output, nullptr, 0, nullptr, &there, nullptr) == FALSE)
            return State::Ended;
        if (there != 0) {
            std::array<char, 4096> bytes;
            DWORD got = 0;
            if (ReadFile(process_->output, bytes.data(), bytes.size(), &got, nullptr) == FALSE)
                return State::Ended;
            pending_.append(bytes.data(), got);
            continue;
        }
        if (ended) return State::Ended;
        if (std::chrono::steady_clock::now() - since > patience) return State::Silent;
        Sleep(kPauseMilliseconds);
    }
}

std::string Child::end() {
    WaitForSingleObject(process_->handle, INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process_->handle, &status);
    return status == 0 ? "" : "ended with status " + std::to_string(status);
}

void Child::kill() noexcept {
    if (WaitForSingleObject(process_->handle, 0) == WAIT_OBJECT_0) return;
    TerminateProcess(process_->handle, 1);
    WaitForSingleObject(process_->handle, INFINITE);
}

void crashQuietly() { SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX); }

} // namespace easel::validate
