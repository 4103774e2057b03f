#include "easel/validate/LibraryFile.h"

#include "easel/core/Text.h"
#include "easel/session/DrawingSession.h"

#include <algorithm>
#include <span>

#include <windows.h>

namespace easel::validate {
namespace {

/// The file laid out in memory as for running, with nothing in it run.
class Layout {
public:
    explicit Layout(const std::filesystem::path& file)
        : module_(LoadLibraryExW(std::filesystem::absolute(file).make_preferred().c_str(), nullptr,
                                 DONT_RESOLVE_DLL_REFERENCES)) {
        if (module_ == nullptr) throw SessionError("the file is no library of this system");
    }
    ~Layout() { FreeLibrary(module_); }
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;

    template <typename Record> [[nodiscard]] const Record* at(std::size_t offset) const {
        return reinterpret_cast<const Record*>(reinterpret_cast<const char*>(module_) + offset);
    }
    [[nodiscard]] const IMAGE_NT_HEADERS64& headers() const {
        return *at<IMAGE_NT_HEADERS64>(static_cast<std::size_t>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
    }
    /// Null when there is none.
    template <typename Record> [[nodiscard]] const Record* directory(int which) const {
        const DWORD place = headers().OptionalHeader.DataDirectory[which].VirtualAddress;
        return place != 0 ? at<Record>(place) : nullptr;
    }
    [[nodiscard]] std::span<const IMAGE_SECTION_HEADER> sections() const {
        const IMAGE_NT_HEADERS64& all = headers();
        return {reinterpret_cast<const IMAGE_SECTION_HEADER*>(
                    reinterpret_cast<const char*>(&all.OptionalHeader) +
                    all.FileHeader.SizeOfOptionalHeader),
                all.FileHeader.NumberOfSections};
    }
    /// Where the file has what lies in memory at `laidOut`; 0 when it has not.
    [[nodiscard]] std::size_t placeInFile(const void* laidOut) const {
        const auto offset =
            static_cast<std::size_t>(static_cast<const std::byte*>(laidOut) - at<std::byte>(0));
        for (const IMAGE_SECTION_HEADER& each : sections())
            if (offset >= each.VirtualAddress && offset - each.VirtualAddress < each.SizeOfRawData)
                return each.PointerToRawData + offset - each.VirtualAddress;
        return 0;
    }
    [[nodiscard]] HMODULE module() const noexcept { return module_; }

private:
    HMODULE module_;
};

void readExports(const Layout& layout, LibraryFile& library) {
    const auto* const table =
        layout.directory<IMAGE_EXPORT_DIRECTORY>(IMAGE_DIRECTORY_ENTRY_EXPORT);
    if (table == nullptr) return;
    const DWORD* const names = layout.at<DWORD>(table->AddressOfNames);
    for (DWORD i = 0; i < table->NumberOfNames; ++i)
        library.exports.emplace_back(layout.at<char>(names[i]));
}

void readImports(const Layout& layout, LibraryFile& library) {
    const auto* each = layout.directory<IMAGE_IMPORT_DESCRIPTOR>(IMAGE_DIRECTORY_ENTRY_IMPORT);
    for (; each != nullptr && each->Name != 0; ++each) {
        std::string from = layout.at<char>(each->Name);
        std::ranges::transform(from, from.begin(), [](char letter) {
            return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
        });
        const auto* thunk = layout.at<IMAGE_THUNK_DATA64>(each->OriginalFirstThunk);
        for (; thunk->u1.AddressOfData != 0; ++thunk) {
            const bool byNumber = IMAGE_SNAP_BY_ORDINAL64(thunk->u1.Ordinal);
            const std::string function =
                byNumber ? '#' + std::to_string(IMAGE_ORDINAL64(thunk->u1.Ordinal))
                         : layout.at<IMAGE_IMPORT_BY_NAME>(thunk->u1.AddressOfData)->Name;
            library.imports.push_back(from + ' ' + function);
        }
    }
}

void readSections(const Layout& layout, LibraryFile& library) {
    constexpr DWORD kBoth = IMAGE_SCN_MEM_WRITE | IMAGE_SCN_MEM_EXECUTE;
    for (const IMAGE_SECTION_HEADER& each : layout.sections()) {
        const auto* const name = reinterpret_cast<const char*>(each.Name);
        if ((each.Characteristics & kBoth) == kBoth)
            library.selfWriting.emplace_back(name, strnlen(name, sizeof each.Name));
    }
    struct Protection {
        WORD flag;
        const char* name;
    };
    constexpr Protection kProtections[] = {
        {IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE, "an address of its own at each start"},
        {IMAGE_DLLCHARACTERISTICS_HIGH_ENTROPY_VA, "addresses of 64 bits"},
        {IMAGE_DLLCHARACTERISTICS_NX_COMPAT, "data that cannot be executed"},
    };
    for (const Protection& each : kProtections)
        if ((layout.headers().OptionalHeader.DllCharacteristics & each.flag) == 0)
            library.lacking.emplace_back(each.name);
}

std::string nameOf(LPCWSTR type) {
    if (IS_INTRESOURCE(type)) return '#' + std::to_string(reinterpret_cast<ULONG_PTR>(type));
    const std::wstring wide = type;
    return utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}

struct ResourceWalk {
    const Layout& layout;
    std::vector<Resource>& found;
};

BOOL CALLBACK addResource(HMODULE module, LPCWSTR type, LPWSTR name, LONG_PTR context) {
    const HRSRC place = FindResourceW(module, name, type);
    const HGLOBAL data = place != nullptr ? LoadResource(module, place) : nullptr;
    if (data == nullptr) return TRUE;
    const auto* const bytes = static_cast<const std::byte*>(LockResource(data));
    const int id = IS_INTRESOURCE(name) ? static_cast<int>(reinterpret_cast<ULONG_PTR>(name)) : 0;
    const ResourceWalk& walk = *reinterpret_cast<const ResourceWalk*>(context);
    walk.found.push_back({nameOf(type),
                          id,
                          walk.layout.placeInFile(bytes),
                          {bytes, bytes + SizeofResource(module, place)}});
    return TRUE;
}

BOOL CALLBACK addType(HMODULE module, LPWSTR type, LONG_PTR context) {
    EnumResourceNamesW(module, type, addResource, context);
    return TRUE;
}

} // namespace

LibraryFile readLibraryFile(const std::filesystem::path& file) {
    const Layout layout(file);
    LibraryFile library;
    readExports(layout, library);
    readImports(layout, library);
    readSections(layout, library);
    ResourceWalk walk{layout, library.resources};
    EnumResourceTypesW(layout.module(), addType, reinterpret_cast<LONG_PTR>(&walk));
    return library;
}

} // namespace easel::validate
