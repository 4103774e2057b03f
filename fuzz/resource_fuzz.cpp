/// Any bytes as compiled resources: the walk ends, what it gives lies in the file, and reading each
/// resource as a menu and as a table of strings makes nothing larger than its bytes.

#include "fuzz/Require.h"
#include "toolkit/ImplCommon/Resources.h"

#include <cstdint>

namespace {

using facetta::fuzz::require;
using NRDM::Bytes;

void checkMenu(Bytes bytes) {
    const auto menu = NRDM::parseMenu(bytes);
    if (!menu) return;
    std::size_t words = 2; // the head
    for (const NRDM::MenuLine& line : *menu)
        words += 2 + line.text.size(); // flags, the end of the text
    require(words * sizeof(char16_t) <= bytes.size(), "a menu no larger than its bytes");
}

void checkStrings(Bytes bytes) {
    std::size_t units = 0;
    for (int id = 0; id < NRDM::kStringsInTable; ++id)
        if (const auto string = NRDM::stringInTable(bytes, id)) units += string->size() + 1;
    require(units * sizeof(char16_t) <= bytes.size(), "strings no larger than their bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Bytes bytes = std::as_bytes(std::span(data, size));
    checkMenu(bytes);
    checkStrings(bytes);
    NRDM::ResourceFile file(bytes);
    std::size_t left = bytes.size();
    while (const auto resource = file.next()) {
        const auto* const begin = resource->data.data();
        require(begin >= bytes.data() && begin + resource->data.size() <= bytes.data() + size,
                "resources lie in the file");
        const auto rest = static_cast<std::size_t>(bytes.data() + size - begin);
        require(rest < left, "the walk goes on");
        left = rest;
        checkMenu(resource->data);
        checkStrings(resource->data);
    }
    return 0;
}
