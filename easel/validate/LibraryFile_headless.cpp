#include "easel/validate/LibraryFile.h"

#include "easel/session/DrawingSession.h"

#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>

#include <elf.h>

namespace easel::validate {
namespace {

class Bytes {
public:
    explicit Bytes(const std::filesystem::path& file) {
        std::ifstream stream(file, std::ios::binary);
        content_.assign(std::istreambuf_iterator<char>(stream), {});
    }
    template <typename Record> [[nodiscard]] Record at(std::size_t offset) const {
        Record record;
        if (!holds(offset, sizeof record)) throw SessionError("the library's file is cut short");
        std::memcpy(&record, content_.data() + offset, sizeof record);
        return record;
    }
    [[nodiscard]] std::string text(std::size_t offset) const {
        if (offset >= content_.size()) throw SessionError("the library's file is cut short");
        return content_.c_str() + offset;
    }

    /// `npos` when it is nowhere.
    [[nodiscard]] std::size_t find(std::string_view what) const { return content_.find(what); }
    [[nodiscard]] bool holds(std::size_t offset, std::size_t size) const {
        return offset <= content_.size() && size <= content_.size() - offset;
    }
    [[nodiscard]] std::vector<std::byte> part(std::size_t offset, std::size_t size) const {
        const auto* const begin = reinterpret_cast<const std::byte*>(content_.data()) + offset;
        return {begin, begin + size};
    }

private:
    std::string content_;
};

void readSegments(const Bytes& bytes, const Elf64_Ehdr& header, LibraryFile& library) {
    for (std::size_t i = 0; i < header.e_phnum; ++i) {
        const auto segment = bytes.at<Elf64_Phdr>(header.e_phoff + i * header.e_phentsize);
        const bool both = (segment.p_flags & PF_W) != 0 && (segment.p_flags & PF_X) != 0;
        if (both && (segment.p_type == PT_LOAD || segment.p_type == PT_GNU_STACK))
            library.selfWriting.push_back(
                segment.p_type == PT_GNU_STACK ? "the stack" : "segment " + std::to_string(i));
    }
}

void readSymbols(const Bytes& bytes, const Elf64_Ehdr& header, LibraryFile& library) {
    const auto section = [&](std::size_t index) {
        return bytes.at<Elf64_Shdr>(header.e_shoff + index * header.e_shentsize);
    };
    for (std::size_t i = 0; i < header.e_shnum; ++i) {
        const Elf64_Shdr symbols = section(i);
        if (symbols.sh_type != SHT_DYNSYM) continue;
        const Elf64_Shdr names = section(symbols.sh_link);
        for (std::size_t at = 0; at < symbols.sh_size; at += sizeof(Elf64_Sym)) {
            const auto symbol = bytes.at<Elf64_Sym>(symbols.sh_offset + at);
            if (ELF64_ST_BIND(symbol.st_info) == STB_GLOBAL && symbol.st_shndx != SHN_UNDEF)
                library.exports.push_back(bytes.text(names.sh_offset + symbol.st_name));
        }
    }
}

/// What a resource is called by: a number after a word of ones, or a text. `at` moves behind it.
std::string nameAt(const Bytes& bytes, std::size_t& at, int& number) {
    const auto word = [&] {
        at += sizeof(char16_t);
        return bytes.at<char16_t>(at - sizeof(char16_t));
    };
    std::string name;
    char16_t letter = word();
    if (letter == 0xFFFF) {
        number = word();
        return '#' + std::to_string(number);
    }
    for (; letter != 0; letter = word())
        name += static_cast<char>(letter);
    return name;
}

/// The library holds the compiled file of resources that one for Windows is linked with. Every
/// such file begins with a resource that is empty.
void readResources(const Bytes& bytes, LibraryFile& library) {
    constexpr std::string_view kEmpty("\0\0\0\0\x20\0\0\0\xFF\xFF\0\0\xFF\xFF\0\0", 16);
    constexpr std::uint32_t kLargestHeader = 512;
    const auto aligned = [](std::size_t size) { return (size + 3) / 4 * 4; };
    std::size_t at = bytes.find(kEmpty);
    if (at == std::string::npos) return;
    for (;;) {
        const auto size = bytes.at<std::uint32_t>(at);
        const auto header = bytes.at<std::uint32_t>(at + 4);
        if (header < kEmpty.size() || header > kLargestHeader ||
            !bytes.holds(at + aligned(header), size))
            return; // something else follows
        std::size_t place = at + 8;
        Resource resource;
        int ignored = 0;
        resource.type = nameAt(bytes, place, ignored);
        static_cast<void>(nameAt(bytes, place, resource.id));
        resource.place = at + aligned(header);
        resource.bytes = bytes.part(resource.place, size);
        at = resource.place + aligned(size);
        if (size != 0) library.resources.push_back(std::move(resource));
    }
}

} // namespace

LibraryFile readLibraryFile(const std::filesystem::path& file) {
    const Bytes bytes(file);
    const auto header = bytes.at<Elf64_Ehdr>(0);
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_type != ET_DYN)
        throw SessionError("the file is no library of this system");
    LibraryFile library;
    readSegments(bytes, header, library);
    readSymbols(bytes, header, library);
    readResources(bytes, library);
    return library;
}

} // namespace easel::validate
