#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMWinHostSuite", slot> stub{};

ADMWindowRef appWindow() { return Dialogs::current().hostWindow(); }
ADMWindowRef currentOwnerWindow() { return Dialogs::current().ownerWindow(); }

} // namespace

// clang-format off
const ADMWinHostSuite kWinHostSuite = {
    .HandleADMMessage = stub<"HandleADMMessage">,
    .GetCurrentOwnerWindow = currentOwnerWindow,
    .IsADMMessage = stub<"IsADMMessage">,
    .GetPlatformAppWindow = appWindow,
    .SetPlatformAppWindow = stub<"SetPlatformAppWindow">,
    .GetModalMessageProc = stub<"GetModalMessageProc">,
    .SetModalMessageProc = stub<"SetModalMessageProc">,
    .GetTextFocusChangedProc = stub<"GetTextFocusChangedProc">,
    .SetTextFocusChangedProc = stub<"SetTextFocusChangedProc">,
    .SetHWNDOptimizationMode = stub<"SetHWNDOptimizationMode">,
    .AllowHWNDOptimizationForDialog = stub<"AllowHWNDOptimizationForDialog">,
};
// clang-format on

} // namespace NRDM
