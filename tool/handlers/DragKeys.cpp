#include "tool/handlers/DragKeys.h"

#include "host/Error.h"
#include "host/MessageNames.h"
#include "host/Suites.h"
#include "host/suites/AINotifierSuite.h"
#include "host/suites/AIPreferenceSuite.h"
#include "symmetry/ArtSpace.h"
#include "tool/Zones.h"
#include "tool/axes/CurrentAxes.h"
#include "tool/snapping/CursorSnap.h"

#include <cmath>
#include <utility>

namespace facetta {
namespace {

using platform::Key;
using platform::KeyState;

/// What the keys held make of the number of axes, and the hint that tells so.
struct CountChange {
    ai::int32 count = 0;
    HintId hint = HintId::None;
};

CountChange countAskedFor(const KeyState& keys, ai::int32 count) {
    for (int digit = 1; digit <= 9; ++digit)
        if (keys.isDown(static_cast<Key>(static_cast<int>(Key::Digit1) + digit - 1)))
            return {digit, HintId::SpecifyAxes};
    if (keys.isDown(Key::RightBracket) && count < kMostAxes)
        return {count + 1, HintId::IncreaseAxes};
    if (keys.isDown(Key::LeftBracket) && count > kFewestAxes)
        return {count - 1, HintId::DecreaseAxes};
    return {count, HintId::None};
}

} // namespace

void changeCountByKeys(ToolSession& session) {
    ToolState& state = session.state;
    if (!shapesAxes(state.zone) || state.gesture->takesArt) return;
    const CountChange change = countAskedFor(session.keys, state.axes.axisCount);
    if (change.hint == HintId::None) return;
    showHint(state.hint, change.hint, platform::ticks());
    if (change.count != state.axes.axisCount) state.gesture->recounted = true;
    state.axes.axisCount = change.count;
    session.preferences.count = change.count;
    axesChanged(session);
}

void toggleSmartGuides(ToolSession& session, const AIToolMessage& message) {
    ToolState& state = session.state;
    Gesture& gesture = *state.gesture;
    if (!session.keys.isDown(Key::U)) {
        gesture.smartGuidesKeyHeld = false;
        return;
    }
    const bool elsewhere = state.zone == ToolZone::Sector || state.zone == ToolZone::DialogTitle ||
                           state.zone == ToolZone::DialogButton;
    const CursorSnap host = cursorSnap(session, message);
    if (elsewhere || !host.isOn() || std::exchange(gesture.smartGuidesKeyHeld, true)) return;
    gesture.smartGuidesSuppressed = !gesture.smartGuidesSuppressed;
    const HintId hint =
        gesture.smartGuidesSuppressed ? HintId::SmartGuidesDisabled : HintId::SmartGuidesEnabled;
    showHint(state.hint, hint, platform::ticks());
    if (gesture.smartGuidesSuppressed) host.hideFeedback();
}

void setConstrainAngle(ToolSession& session) {
    ToolState& state = session.state;
    const double sector = sectorAngle(state.axes.axisCount);
    const double line = normaliseAngle(state.axes.angle + state.grabIndex * sector);
    const double degrees = line * 180.0 / kPi;
    constexpr const char* kOfTheHost = nullptr; // the application's own preferences
    const struct {
        const char* key;
        double value;
    } rows[] = {
        {kConstrainAnglePreference, degrees},
        {"constrain/cos", std::cos(line)},
        {"constrain/sin", std::sin(line)},
    };
    for (const auto& row : rows)
        ai::check(ai::suites.preference->PutRealPreference(kOfTheHost, row.key, row.value));
    session.host.constrainAngle = degrees;
    showHint(state.hint, HintId::SetConstrainAngle, platform::ticks());
    ai::check(ai::suites.notifier->Notify(kPreferenceChangedNotifier, nullptr));
}

} // namespace facetta
