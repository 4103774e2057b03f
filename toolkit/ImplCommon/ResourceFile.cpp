#include "toolkit/ImplCommon/ResourceFile.h"

#include "toolkit/ImplCommon/ByteReader.h"

#include <algorithm>

namespace NRDM {
namespace {

constexpr char16_t kNumberFollows = 0xFFFF;
/// Both parts of a resource begin at multiples of this.
constexpr std::size_t kAlignment = 4;

std::size_t aligned(std::size_t size) { return (size + kAlignment - 1) / kAlignment * kAlignment; }

ResourceName readName(ByteReader& header) {
    const char16_t first = header.word();
    if (first == kNumberFollows) return header.word();
    std::u16string name(1, first);
    return first == 0 ? std::u16string{} : name + header.text();
}

} // namespace

std::optional<Resource> ResourceFile::next() {
    ByteReader sizes(rest_);
    const std::size_t dataSize = sizes.doubleWord();
    const std::size_t headerSize = sizes.doubleWord();
    if (sizes.failed() || headerSize < sizes.position() || aligned(headerSize) > rest_.size() ||
        dataSize > rest_.size() - aligned(headerSize)) {
        rest_ = {};
        return std::nullopt;
    }
    ByteReader header(rest_.subspan(sizes.position(), headerSize - sizes.position()));
    Resource resource{readName(header), readName(header), {}};
    resource.data = rest_.subspan(aligned(headerSize), dataSize);
    rest_ = rest_.subspan(std::min(rest_.size(), aligned(headerSize) + aligned(dataSize)));
    return resource;
}

} // namespace NRDM
