#include "easel/runtime/Library.h"

#include "host/Error.h"

#include <windows.h>

#include <array>
#include <exception>

namespace easel {
namespace {

/// A library mapped for its resources alone: none of its code runs.
class DataFile {
public:
    explicit DataFile(const std::filesystem::path& file)
        : module_(LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE)) {
        if (module_ == nullptr) throw ai::Error{kSPPluginNotFoundError};
    }
    ~DataFile() { FreeLibrary(module_); }
    DataFile(const DataFile&) = delete;
    DataFile& operator=(const DataFile&) = delete;
    [[nodiscard]] HMODULE module() const noexcept { return module_; }

private:
    HMODULE module_;
};

struct Found {
    std::vector<PluginDescription> plugins;
    std::exception_ptr failure;
};

std::span<const std::byte> resourceBytes(HMODULE module, LPCWSTR type, LPCWSTR name) {
    const HRSRC resource = FindResourceW(module, name, type);
    const HGLOBAL loaded = resource == nullptr ? nullptr : LoadResource(module, resource);
    if (loaded == nullptr) throw ai::Error{kSPCorruptPiPLError};
    return {static_cast<const std::byte*>(LockResource(loaded)), SizeofResource(module, resource)};
}

/// Called by the system for each PIPL; what is wrong waits in `Found` until it has returned.
BOOL CALLBACK addPlugin(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR context) {
    auto& found = *reinterpret_cast<Found*>(context);
    try {
        found.plugins.push_back(parsePiPL(resourceBytes(module, type, name)));
        return TRUE;
    } catch (...) {
        found.failure = std::current_exception();
        return FALSE;
    }
}

HMODULE moduleOf(SPPlatformAccessRef library) { return reinterpret_cast<HMODULE>(library); }

} // namespace

std::vector<PluginDescription> describePlugins(const std::filesystem::path& file) {
    const DataFile library{std::filesystem::absolute(file)};
    Found found;
    EnumResourceNamesW(library.module(), L"PIPL", addPlugin, reinterpret_cast<LONG_PTR>(&found));
    if (found.failure) std::rethrow_exception(found.failure);
    if (found.plugins.empty()) throw ai::Error{fourCharacterCode("NSPP")};
    for (PluginDescription& plugin : found.plugins)
        if (plugin.name.empty()) plugin.name = file.stem().string();
    return found.plugins;
}

Library::Library(const std::filesystem::path& file)
    : library_(reinterpret_cast<SPPlatformAccessRef>(
          LoadLibraryExW(std::filesystem::absolute(file).make_preferred().c_str(), nullptr,
                         LOAD_WITH_ALTERED_SEARCH_PATH))) {
    if (library_ == nullptr) throw ai::Error{kSPCantAcquirePluginError};
}

Library::~Library() { FreeLibrary(moduleOf(library_)); }

SPPluginEntryFunc Library::entry(const std::string& name) const {
    const FARPROC found = GetProcAddress(moduleOf(library_), name.c_str());
    if (found == nullptr) throw ai::Error{kSPCantAcquirePluginError};
    return reinterpret_cast<SPPluginEntryFunc>(reinterpret_cast<void*>(found));
}

FormerPlace::FormerPlace(const Library& library) : start_(moduleOf(library.native())) {
    const auto* const start = static_cast<const std::byte*>(start_);
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(start);
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(start + dos->e_lfanew);
    size_ = headers->OptionalHeader.SizeOfImage;
}

void FormerPlace::keep() {
    if (VirtualAlloc(start_, size_, MEM_RESERVE, PAGE_NOACCESS) == nullptr)
        throw ai::Error{kSPCantReleasePluginError};
    kept_ = true;
}

FormerPlace::~FormerPlace() {
    if (kept_) VirtualFree(start_, 0, MEM_RELEASE);
}

std::filesystem::path programFolder() {
    std::array<wchar_t, 32768> path{}; // the longest path that Windows has
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return std::filesystem::path(path.data()).parent_path();
}

std::filesystem::path pluginFileName() { return "Facetta.aip"; }

} // namespace easel
