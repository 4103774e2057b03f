#include "tool/snapping/CursorSnap.h"

#include "host/Error.h"
#include "host/Suites.h"
#include "host/suites/AICursorSnapSuite.h"

namespace facetta {
namespace {

using TrackByValue = AIErr (*)(AIDocumentViewHandle, AIRealPoint, const AIEvent*, const char*,
                               AIRealPoint*);

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

AIRealPoint snapped(SnapPointForm& form, AIDocumentViewHandle view, AIRealPoint point,
                    const AIEvent* event, const char* control) {
    if (form == SnapPointForm::Unknown) form = probe(view);
    AIRealPoint result = point;
    const auto track = ai::suites.cursorSnap->Track;
    if (form == SnapPointForm::Reference) {
        ai::check(track(view, point, event, control, &result));
    } else {
        const auto slot = reinterpret_cast<ReservedSlot>(track);
        const auto byValue = reinterpret_cast<TrackByValue>(slot);
        ai::check(byValue(view, point, event, control, &result));
    }
    return result;
}

void clearSnapFeedback(SnapPointForm& form, AIDocumentViewHandle view, const AIEvent* event) {
    constexpr AIRealPoint kFarAway{50000.0F, 50000.0F};
    static_cast<void>(snapped(form, view, kFarAway, event, kSnapReset));
}

void hideSnapFeedback(SnapPointForm& form, AIDocumentViewHandle view, const AIEvent* event) {
    constexpr AIRealPoint kOffTheCanvas{16384.0F, 16384.0F};
    static_cast<void>(snapped(form, view, kOffTheCanvas, event, kSnapToNothing));
}

} // namespace facetta
