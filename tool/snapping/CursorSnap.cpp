#include "tool/snapping/CursorSnap.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AICursorSnapSuite.h"

#include <bit>

namespace facetta {
namespace {

/// The two numbers stand in the register that otherwise holds the point's address. Passed as one
/// number of their size they do so on every system.
using TrackByValue = AIErr (*)(AIDocumentViewHandle, ai::uint64, const AIEvent*, const char*,
                               AIRealPoint*);
static_assert(sizeof(AIRealPoint) == sizeof(ai::uint64));

bool samePoint(AIRealPoint a, AIRealPoint b) { return a.h == b.h && a.v == b.v; }

/// Hosts that take the point by value read the bits of an address as two tiny numbers: that harms
/// nothing and shows. The other mistake would crash the host, so the reference is tried first, with
/// a point that snaps to nothing and must come back as it is.
SnapPointForm probe(AIDocumentViewHandle view) {
    constexpr AIRealPoint kPoint{4096.5F, 2048.25F};
    constexpr AIRealPoint kUntouched{-1.0F, -1.0F};
    AIRealPoint result = kUntouched;
    ai::suites.cursorSnap->Track(view, kPoint, nullptr, "", &result);
    const bool readAsExpected = samePoint(result, kPoint) || samePoint(result, kUntouched);
    return readAsExpected ? SnapPointForm::Reference : SnapPointForm::Value;
}

} // namespace

AIRealPoint CursorSnap::snapped(AIRealPoint point, const char* control) const {
    AIRealPoint result = point;
    const auto track = ai::suites.cursorSnap->Track;
    if (form == SnapPointForm::Reference) {
        ai::check(track(view, point, event, control, &result));
    } else {
        const auto slot = reinterpret_cast<ReservedSlot>(track);
        const auto byValue = reinterpret_cast<TrackByValue>(slot);
        ai::check(byValue(view, std::bit_cast<ai::uint64>(point), event, control, &result));
    }
    return result;
}

void CursorSnap::clearFeedback() const {
    constexpr AIRealPoint kFarAway{50000.0F, 50000.0F};
    static_cast<void>(snapped(kFarAway, kSnapReset));
}

void CursorSnap::hideFeedback() const {
    constexpr AIRealPoint kOffTheCanvas{16384.0F, 16384.0F};
    static_cast<void>(snapped(kOffTheCanvas, kSnapToNothing));
}

bool CursorSnap::isOn() const { return ai::suites.cursorSnap->UseSmartGuides(view) != 0; }

CursorSnap cursorSnap(ToolSession& session, const AIToolMessage& message) {
    SnapPointForm& form = session.state.snapPointForm;
    if (form == SnapPointForm::Unknown) form = probe(session.view.handle);
    return {form, session.view.handle, message.event};
}

} // namespace facetta
