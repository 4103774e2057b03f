/// Any bytes as the description of a cursor: reading never fails, what comes of it is within the
/// stated limits, and the picture shown is one of those described.

#include "fuzz/Require.h"
#include "toolkit/ImplCommon/CursorMap.h"

#include <algorithm>
#include <cstdint>

namespace {

using facetta::fuzz::require;
using NRDM::CursorMap;

bool isInside(int at) { return at >= 0 && at < CursorMap::kLargestSide; }

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CursorMap map = NRDM::readCursorMap({reinterpret_cast<const char*>(data), size});
    require(isInside(map.hotX) && isInside(map.hotY), "the hot spot lies in the picture");
    require(map.pictures.size() <= CursorMap::kMostPictures, "the number of pictures");
    constexpr int kPlain = -1; // no picture described has it
    for (const double scale : {0.5, 1.0, 1.5, 2.0, 100.0}) {
        const CursorMap::Picture shown = NRDM::pictureFor(map, scale, kPlain);
        require(shown.scale > 0 && shown.scale < 100, "the scale of a picture");
        require((shown.id == kPlain) == map.pictures.empty(), "a picture when there is one");
        require(map.pictures.empty() ||
                    std::ranges::find(map.pictures, shown) != map.pictures.end(),
                "one of those described");
    }
    return 0;
}
