#include "toolkit/ImplCommon/CoADMIcon.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMIconSuite", slot> stub{};

/// Icons of numbered families follow each other. There are no names.
ADMIconRef getFromResource(SPPluginRef plugin, const char*, ADMInt32 id, ADMInt32 index) {
    return Dialogs::current().icons.make(plugin, id + index);
}

void destroy(CoADMIcon& icon) { Dialogs::current().icons.drop(icon); }

} // namespace

// clang-format off
const ADMIconSuite kIconSuite = {
    .GetFromResource = getFromResource,
    .Create = stub<"Create">,
    .Destroy = call<&destroy>,
    .GetType = call<&CoADMIcon::type>,
    .GetWidth = call<&CoADMIcon::width>,
    .GetHeight = call<&CoADMIcon::height>,
    .GetData = stub<"GetData">,
    .IsFromResource = call<&CoADMIcon::isKnown>,
    .CreateFromImage = stub<"CreateFromImage">,
};
// clang-format on

} // namespace NRDM
