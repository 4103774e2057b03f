#include "platform/Platform.h"
#include "toolkit/ImplCommon/Notifier.h"
#include "toolkit/ImplCommon/Slots.h"
#include "toolkit/ImplCommon/SuiteUnits.h"
#include "toolkit/ImplCommon/System.h"

namespace NRDM {
namespace {

template <slots::Name slot> inline constexpr Stub<"ADMTrackerSuite", slot> stub{};

using facetta::platform::Key;

/// The keys as they are now, for whoever asks without a tracker.
ADMModifiers modifiersNow() {
    struct Row {
        Key key;
        ADMModifiers bit;
    };
    constexpr Row kRows[] = {
        {Key::Shift, 0x20}, {Key::Control, 0x40}, {Key::Alt, 0x80}, {Key::Space, 0x200}};
    const auto keys = facetta::platform::readKeys();
    ADMModifiers modifiers = 0;
    for (const auto& [key, bit] : kRows)
        if (keys.isDown(key)) modifiers |= bit;
    return modifiers;
}

void getPoint(ADMTrackerRef tracker, ADMPoint* point) {
    const Place place = tracker != nullptr ? tracker->input().place : pointer();
    objectOf(point) = {place.x, place.y};
}

ADMAction actionOf(CoADMTracker& tracker) { return tracker.input().action; }

ADMModifiers getModifiers(ADMTrackerRef tracker) {
    return tracker != nullptr ? tracker->input().modifiers : modifiersNow();
}

bool testAction(CoADMTracker& tracker, ADMAction action) {
    return tracker.input().action == action;
}

bool testModifier(CoADMTracker& tracker, ADMModifiers modifiers) {
    return (tracker.input().modifiers & modifiers) != 0;
}

ADMTime timeOf(CoADMTracker&) { return static_cast<ADMTime>(facetta::platform::ticks()); }

/// Captured while a button is down.
ADMMouseState mouseState(CoADMTracker& tracker) {
    constexpr ADMModifiers kButtons = 0x1C;
    return (tracker.input().modifiers & kButtons) != 0 ? 1 : 0;
}

} // namespace

// clang-format off
const ADMTrackerSuite kTrackerSuite = {
    .GetPoint = getPoint,
    .GetAction = call<&actionOf>,
    .GetModifiers = getModifiers,
    .TestAction = call<&testAction>,
    .TestModifier = call<&testModifier>,
    .GetTime = call<&timeOf>,
    .Abort = stub<"Abort">,
    .GetMouseState = call<&mouseState>,
    .ReleaseMouseCapture = stub<"ReleaseMouseCapture">,
    .GetVirtualKey = stub<"GetVirtualKey">,
    .GetCharacter = stub<"GetCharacter">,
    .GetKeysState = stub<"GetKeysState">,
};
// clang-format on

} // namespace NRDM
