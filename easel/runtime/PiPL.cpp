#include "easel/runtime/PiPL.h"

#include "host/Error.h"

#include <algorithm>

namespace easel {
namespace {

constexpr ai::int32 kPluginKind = fourCharacterCode("SPEA");
constexpr ai::int32 kCallingConvention = 2;
constexpr AIErr kNotAPlugin = fourCharacterCode("NSPP");

/// Takes little-endian numbers off the front of a list; running out of bytes is damage.
class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    std::span<const std::byte> take(std::size_t count) {
        if (count > bytes_.size()) throw ai::Error{kSPCorruptPiPLError};
        const auto taken = bytes_.first(count);
        bytes_ = bytes_.subspan(count);
        return taken;
    }
    ai::int32 number() {
        ai::uint32 value = 0;
        int shift = 0;
        for (const std::byte byte : take(4)) {
            value |= std::to_integer<ai::uint32>(byte) << shift;
            shift += 8;
        }
        return static_cast<ai::int32>(value);
    }

private:
    std::span<const std::byte> bytes_;
};

/// The zero-terminated text in `data`; a text without its end is damage.
std::string text(std::span<const std::byte> data) {
    const auto end = std::find(data.begin(), data.end(), std::byte{0});
    if (end == data.end()) throw ai::Error{kSPCorruptPiPLError};
    std::string characters;
    std::transform(data.begin(), end, std::back_inserter(characters),
                   [](std::byte byte) { return static_cast<char>(byte); });
    return characters;
}

/// What was found of the properties that every plug-in must have.
struct Required {
    bool kind = false;
    bool convention = false;
};

void readProperty(Reader& list, PluginDescription& plugin, Required& required) {
    list.number(); // the vendor: one and the same for all properties read here
    const ai::int32 key = list.number();
    list.number(); // the property id
    const ai::int32 length = list.number();
    if (length < 0 || length % 4 != 0) throw ai::Error{kSPCorruptPiPLError};
    const auto data = list.take(static_cast<std::size_t>(length));

    if (key == fourCharacterCode("kind")) {
        if (Reader{data}.number() != kPluginKind) throw ai::Error{kNotAPlugin};
        required.kind = true;
    } else if (key == fourCharacterCode("ivrs")) {
        required.convention = Reader{data}.number() == kCallingConvention;
    } else if (key == fourCharacterCode("wx86")) {
        plugin.entry = text(data);
    } else if (key == fourCharacterCode("pinm")) {
        plugin.name = text(data);
    } else if (key == fourCharacterCode("AcpM")) {
        plugin.messageFlags = Reader{data}.number();
    }
}

} // namespace

PluginDescription parsePiPL(std::span<const std::byte> bytes) {
    const bool leadingWord =
        bytes.size() > 1 && bytes[0] == std::byte{1} && bytes[1] == std::byte{0};
    Reader list{leadingWord ? bytes.subspan(2) : bytes};
    if (list.number() != 0) throw ai::Error{kSPCorruptPiPLError};
    PluginDescription plugin;
    Required required;
    for (ai::int32 left = list.number(); left > 0; --left)
        readProperty(list, plugin, required);
    if (!required.kind) throw ai::Error{kNotAPlugin};
    if (!required.convention || plugin.entry.empty()) throw ai::Error{kSPCorruptPiPLError};
    return plugin;
}

} // namespace easel
