#include "host/Codes.h"
#include "host/Suites.h"
#include "host/suites/AIAppContextSuite.h"
#include "toolkit/ImplCommon/CoADMDialog.h"
#include "toolkit/ImplCommon/Dialogs.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteTables.h"

#include <algorithm>

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMWinHostSuite", slot> stub{};

ADMWindowRef appWindow() {
    AIWindowRef window = nullptr;
    const auto* const context = ai::suites.appContext;
    if (context == nullptr || context->GetPlatformAppWindow(&window) != kNoErr) return nullptr;
    return window;
}

/// The window of the modal dialog on top, or the host's.
ADMWindowRef currentOwnerWindow() {
    const auto& open = Dialogs::current().open();
    const auto top = std::find_if(open.rbegin(), open.rend(),
                                  [](const auto& dialog) { return dialog->isRunning(); });
    return top != open.rend() ? (*top)->peer()->window() : appWindow();
}

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
