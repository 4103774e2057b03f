#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMImagesuite", slot> stub{};

} // namespace

// clang-format off
const ADMImageSuite kImageSuite = {
    .Create = stub<"Create">,
    .Destroy = stub<"Destroy">,
    .GetWidth = stub<"GetWidth">,
    .GetHeight = stub<"GetHeight">,
    .GetByteWidth = stub<"GetByteWidth">,
    .GetBitsPerPixel = stub<"GetBitsPerPixel">,
    .BeginBaseAddressAccess = stub<"BeginBaseAddressAccess">,
    .EndBaseAddressAccess = stub<"EndBaseAddressAccess">,
    .BeginADMDrawer = stub<"BeginADMDrawer">,
    .EndADMDrawer = stub<"EndADMDrawer">,
    .BeginAGMImageAccess = stub<"BeginAGMImageAccess">,
    .EndAGMImageAccess = stub<"EndAGMImageAccess">,
    .GetPixel = stub<"GetPixel">,
    .SetPixel = stub<"SetPixel">,
    .CreateBitmap = stub<"CreateBitmap">,
    .CreateOffscreen = stub<"CreateOffscreen">,
};
// clang-format on

} // namespace NRDM
