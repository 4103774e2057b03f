#include "easel/validate/LibraryFile.h"

#include "easel/session/DrawingSession.h"

#include <cstring>
#include <fstream>
#include <iterator>

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
        if (offset > content_.size() || content_.size() - offset < sizeof record)
            throw SessionError("the library's file is cut short");
        std::memcpy(&record, content_.data() + offset, sizeof record);
        return record;
    }
    [[nodiscard]] std::string text(std::size_t offset) const {
        if (offset >= content_.size()) throw SessionError("the library's file is cut short");
        return content_.c_str() + offset;
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

} // namespace

LibraryFile readLibraryFile(const std::filesystem::path& file) {
    const Bytes bytes(file);
    const auto header = bytes.at<Elf64_Ehdr>(0);
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_type != ET_DYN)
        throw SessionError("the file is no library of this system");
    LibraryFile library;
    readSegments(bytes, header, library);
    readSymbols(bytes, header, library);
    return library;
}

} // namespace easel::validate
