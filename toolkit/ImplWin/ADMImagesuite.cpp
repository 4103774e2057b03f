#include "toolkit/ImplWin/WinPeers.h"

#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMImagesuite", slot> stub{};

/// Images are opaque: there are no options.
ADMImageRef create(ADMInt32 width, ADMInt32 height, ADMInt32) {
    WinPeers& peers = WinPeers::current();
    return peers.images().make(peers.screen(), Extent{width, height});
}
void destroy(CoADMImage& image) { WinPeers::current().images().drop(image); }

} // namespace

// clang-format off
const ADMImageSuite kImageSuite = {
    .Create = create,
    .Destroy = call<&destroy>,
    .GetWidth = call<&CoADMImage::width>,
    .GetHeight = call<&CoADMImage::height>,
    .GetByteWidth = stub<"GetByteWidth">,
    .GetBitsPerPixel = stub<"GetBitsPerPixel">,
    .BeginBaseAddressAccess = stub<"BeginBaseAddressAccess">,
    .EndBaseAddressAccess = stub<"EndBaseAddressAccess">,
    .BeginADMDrawer = call<&CoADMImage::beginDrawing>,
    .EndADMDrawer = call<&CoADMImage::endDrawing>,
    .BeginAGMImageAccess = stub<"BeginAGMImageAccess">,
    .EndAGMImageAccess = stub<"EndAGMImageAccess">,
    .GetPixel = stub<"GetPixel">,
    .SetPixel = stub<"SetPixel">,
    .CreateBitmap = stub<"CreateBitmap">,
    .CreateOffscreen = create,
};
// clang-format on

} // namespace NRDM
