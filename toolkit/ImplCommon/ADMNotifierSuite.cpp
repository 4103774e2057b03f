#include "toolkit/ImplCommon/Notifier.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMNotifierSuite", slot> stub{};

CoADMDialog* dialogOf(CoADMNotifier& notifier) { return &notifier.dialog(); }

bool isType(CoADMNotifier& notifier, const std::string& type) { return notifier.type() == type; }

void getType(ADMNotifierRef notifier, char* buffer, ADMUInt32 size) {
    constexpr ADMUInt32 kMost = 1024; // longer than any type
    copyText(objectOf(notifier).type(), buffer, static_cast<ADMInt32>(std::min(size, kMost)));
}

} // namespace

// clang-format off
const ADMNotifierSuite kNotifierSuite = {
    .GetItem = call<&CoADMNotifier::item>,
    .GetDialog = call<&dialogOf>,
    .IsNotifierType = call<&isType>,
    .GetNotifierType = getType,
    .SkipNextClipboardOperation = stub<"SkipNextClipboardOperation">,
};
// clang-format on

} // namespace NRDM
