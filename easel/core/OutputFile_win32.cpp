#include "easel/core/OutputFile.h"

#include <algorithm>
#include <array>
#include <windows.h>

namespace easel {
namespace {

/// Names that somebody else has, in a row.
constexpr int kMostTries = 100;

/// The system takes no more at once.
constexpr std::size_t kMostAtOnce = 1 << 28;

HANDLE asHandle(std::intptr_t value) { return reinterpret_cast<HANDLE>(value); }

bool writeAll(HANDLE file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
        if (WriteFile(file, bytes.data(), count, &written, nullptr) == 0 || written == 0)
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

/// While this is set the system removes the file when the program ends, however it ends.
bool setRemoved(HANDLE file, bool removed) {
    FILE_DISPOSITION_INFO info{};
    info.DeleteFile = removed ? TRUE : FALSE;
    return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info) != 0;
}

} // namespace

OutputFile::OutputFile(std::filesystem::path file) : file_(std::move(file)), target_(file_) {
    const DWORD attributes = GetFileAttributesW(file_.c_str());
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    if (isThere && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
        fail("this is a folder; name a file");
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE known =
        CreateFileW(file_.c_str(), GENERIC_WRITE, kShared, nullptr, OPEN_EXISTING, 0, nullptr);
    if (known == INVALID_HANDLE_VALUE) {
        if (isThere) fail("the file cannot be replaced; check that it may be written to");
        return;
    }
    isDevice_ = GetFileType(known) != FILE_TYPE_DISK;
    std::array<wchar_t, 32768> name{};
    const DWORD length =
        GetFinalPathNameByHandleW(known, name.data(), static_cast<DWORD>(name.size()), 0);
    CloseHandle(known);
    if (!isDevice_ && length > 0 && length < name.size()) target_ = name.data();
}

OutputFile::~OutputFile() {
    if (handle_ != -1) {
        setRemoved(asHandle(handle_), true);
        CloseHandle(asHandle(handle_));
    }
    if (!part_.empty()) DeleteFileW(part_.c_str());
}

void OutputFile::prepare(std::string bytes) {
    if (isDevice_) {
        bytes_ = std::move(bytes);
        return;
    }
    HANDLE file = INVALID_HANDLE_VALUE;
    for (int i = 0; file == INVALID_HANDLE_VALUE && i < kMostTries; ++i) {
        part_ = nameBeside(target_);
        file = CreateFileW(part_.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_DELETE, nullptr,
                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE && GetLastError() != ERROR_FILE_EXISTS) break;
    }
    if (file == INVALID_HANDLE_VALUE) {
        part_.clear();
        failToMake();
    }
    handle_ = reinterpret_cast<std::intptr_t>(file);
    setRemoved(file, true);
    if (!writeAll(file, bytes) || FlushFileBuffers(file) == 0) failToWrite();
}

void OutputFile::commit() {
    if (isDevice_) {
        HANDLE device =
            CreateFileW(target_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                        OPEN_EXISTING, 0, nullptr);
        const bool written = device != INVALID_HANDLE_VALUE && writeAll(device, bytes_);
        if (device != INVALID_HANDLE_VALUE) CloseHandle(device);
        if (!written) fail("the device takes no more");
        return;
    }
    const bool stays = setRemoved(asHandle(handle_), false);
    const bool closed = CloseHandle(asHandle(handle_)) != 0;
    handle_ = -1;
    if (!stays || !closed) failToWrite();
    if (MoveFileExW(part_.c_str(), target_.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0)
        fail("the file cannot be replaced; check that it may be written to");
    part_.clear();
}

} // namespace easel
