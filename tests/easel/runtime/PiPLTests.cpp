#include "easel/runtime/PiPL.h"

#include "host/Error.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

namespace facetta::tests {
namespace {

using Bytes = std::vector<std::byte>;

/// From hexadecimal digits, spaces between them left out.
Bytes bytes(const std::string& hex) {
    Bytes all;
    std::string digits;
    for (const char digit : hex)
        if (digit != ' ') digits.push_back(digit);
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        all.push_back(static_cast<std::byte>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return all;
}

const std::string kHead = "0100 00000000 04000000";
const std::string kKind = "45424441 646e696b 00000000 04000000 41455053";
const std::string kConvention = "45424441 73727669 00000000 04000000 02000000";
const std::string kEntry = "45424441 36387877 00000000 0c000000 506c7567696e4d61696e0000";
const std::string kName = "45424441 6d6e6970 00000000 08000000 4661636574746100";
const std::string kPurge = "45424441 4d706341 00000000 04000000 04000000";

} // namespace

TEST_CASE("a property list tells name, entry and flags") {
    for (const std::string& head : {kHead, std::string("00000000 04000000")}) {
        const auto plugin = easel::parsePiPL(bytes(head + kKind + kConvention + kEntry + kName));
        CHECK(plugin.name == "Facetta");
        CHECK(plugin.entry == "PluginMain");
        CHECK(plugin.messageFlags == 0);
    }
    const auto purged = easel::parsePiPL(bytes(kHead + kKind + kConvention + kEntry + kPurge));
    CHECK(purged.name.empty());
    CHECK(purged.messageFlags == easel::kAcceptsPurgeMessage);
}

TEST_CASE("a damaged property list is refused") {
    struct Row {
        std::string what;
        std::string hex;
        AIErr code;
    };
    constexpr AIErr kNotAPlugin = fourCharacterCode("NSPP");
    const Row rows[] = {
        {"empty", "", kSPCorruptPiPLError},
        {"cut off in a property", kHead + kKind.substr(0, 30), kSPCorruptPiPLError},
        {"fewer properties than counted", kHead + kKind + kConvention + kEntry,
         kSPCorruptPiPLError},
        {"another version", "0100 01000000 04000000" + kKind + kConvention + kEntry + kName,
         kSPCorruptPiPLError},
        {"length not a multiple of 4",
         kHead + "45424441 646e696b 00000000 03000000 41455053" + kConvention + kEntry + kName,
         kSPCorruptPiPLError},
        {"negative length",
         kHead + "45424441 646e696b 00000000 fcffffff 41455053" + kConvention + kEntry + kName,
         kSPCorruptPiPLError},
        {"entry name without an end",
         kHead + kKind + kConvention + "45424441 36387877 00000000 04000000 506c7567" + kName,
         kSPCorruptPiPLError},
        {"no entry", kHead + kKind + kConvention + kName + kName, kSPCorruptPiPLError},
        {"another calling convention",
         kHead + kKind + "45424441 73727669 00000000 04000000 01000000" + kEntry + kName,
         kSPCorruptPiPLError},
        {"another kind",
         kHead + "45424441 646e696b 00000000 04000000 4d494238" + kConvention + kEntry + kName,
         kNotAPlugin},
        {"no kind", kHead + kName + kConvention + kEntry + kName, kNotAPlugin},
    };
    for (const auto& row : rows) {
        INFO(row.what);
        try {
            static_cast<void>(easel::parsePiPL(bytes(row.hex)));
            FAIL_CHECK("accepted");
        } catch (const ai::Error& error) {
            CHECK(error.code == row.code);
        }
    }
}

} // namespace facetta::tests
