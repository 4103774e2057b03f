#include "toolkit/ImplCommon/CoADMIcon.h"

#include "toolkit/ImplCommon/Resources.h"

namespace NRDM {
namespace {

/// The big-endian number at `place` of a picture's head; 0 beyond its end.
int numberAt(Bytes picture, std::size_t place) {
    if (picture.size() < place + 4) return 0;
    unsigned number = 0;
    for (const std::byte byte : picture.subspan(place, 4))
        number = number << 8 | std::to_integer<unsigned>(byte);
    return static_cast<int>(number & 0x7FFFFFFF);
}

// Where a PNG has them: behind its signature and the head of its first block.
constexpr std::size_t kWidthPlace = 16;
constexpr std::size_t kHeightPlace = 20;

} // namespace

CoADMIcon::CoADMIcon(SPPluginRef plugin, int id) : id_(id) {
    const Bytes picture = findResource(resourceLibrary(plugin), ResourceKind::Picture, id);
    width_ = numberAt(picture, kWidthPlace);
    height_ = numberAt(picture, kHeightPlace);
}

} // namespace NRDM
